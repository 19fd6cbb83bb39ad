#pragma once

#include <string>

#include "contest/preferences.h"
#include "platform/files.h"

namespace tallyhut {

/// A contest that is to lie in a folder of its own.
struct NewContest {
    std::string folder;
    std::string log;            ///< the text of Log.txt
    std::string sections = {};  ///< of Sections.txt, where the folder has none; empty writes none
    Preferences preferences;
};

/// Throws PlatformError, with the reason, where the folder holds contacts or cannot be looked at. One that is not there
/// yet holds none.
void CheckHoldsNoContacts(const Files& files, const std::string& folder);

/// Makes the folder if there is none and writes the contest into it, with whatever else a fresh one gets. Holds the
/// folder against other programs meanwhile.
///
/// @param dataFolder  where the files lie that a fresh contest gets
/// Throws PlatformError; the files of the folder are then as they were. A folder that was made stays, empty.
void WriteNewContest(Files& files, const NewContest& contest, const std::string& dataFolder);

}  // namespace tallyhut
