#pragma once

#include "forms/Form5.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The help page shows the text file of the working directory.
struct HelpPage {
    Form5& page;
    Files& files;
    const Directories& directories;

    void mnuHelp_Click();

    void Form5_Load();
    void Command1_Click();
    /// Writes the text as it stands, as one quoted item. A failure is told in a box.
    void Command2_Click();
};

}  // namespace tallyhut
