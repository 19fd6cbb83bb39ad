#pragma once

#include "network/contact_news.h"
#include "network/network_setup.h"
#include "rig/rig_part.h"

namespace tallyhut {

/// What is told to other programs over the network: contacts and the radio, and the form where that is chosen. Nothing
/// is sent, and no socket made, before the operator has chosen it; nothing is received.
struct NetworkPart {
    NetworkPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig);

    frmNetwork form;

    NetworkSettings settings;
    NewsOrigin origin;
    ContactIds ids;
    NewsSender sender;
    ContactNews contacts;
    RadioNews radio;
    NetworkSetup setup;

private:
    void Bind(LogPart& log, RigPart& rig);
    void BindForm();
};

}  // namespace tallyhut
