#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "contest/contact_log.h"
#include "platform/files.h"
#include "spots/spot_transports.h"
#include "support/directories.h"

namespace tallyhut {

/// What the setup keeps, in the working directory.
struct SpotStore {
    Files& files;
    const Directories& directories;

    std::string Path() const { return WorkingFile(directories, "PackSpot.txt"); }
};

/// The setup of the spots: what the form shows for each kind of source, what it stores, and a spot of the last contact.
struct SpotSetup {
    PacketSpotfrm& form;
    SpotTransports& transports;
    SpotRecord& link;
    SpotStore store;
    const ContactLog& contacts;

    /// While the form follows the file, choosing a row of the list does not act.
    bool loading = false;

    std::function<void()> savePref = [] {};
    std::function<void()> PacketResize = [] {};

    void Form_Load();
    void List1_Click();
    void cmdDone_Click();
    /// Spot Last.
    void Command3_Click();
    /// An option or a field of the serial port was changed.
    void TakeSerialOptions();

private:
    void LoadSpotSettings();
    void ShowSettings();
    void SaveSpotSettings();
    void ShowLayout();
    void SetTncDefaults();
};

}  // namespace tallyhut
