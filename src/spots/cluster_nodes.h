#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/PacketSpotfrm.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// The clusters that the operator has put on a list, each as HOST:PORT.
struct ClusterNodes {
    PacketSpotfrm& form;
    SettingsStore& settings;

    /// Host and port in the form are those of a node that was picked.
    std::function<void()> picked = [] {};

    void Show();
    void lstNodes_Click();
    /// Puts host and port of the form on the list, where they are not on it. Throws PlatformError.
    void cmdAddNode_Click();
    /// Takes the chosen node off the list. Throws PlatformError.
    void cmdRemoveNode_Click();

private:
    void Keep(const std::vector<std::string>& nodes);
};

/// The port of the cluster in the form; 0 where that is none.
int PortInForm(const PacketSpotfrm& form);

/// The address of the cluster in the form, HOST:PORT; empty without a host or a port.
std::string NodeInForm(const PacketSpotfrm& form);

}  // namespace tallyhut
