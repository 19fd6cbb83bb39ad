#include "support/port_texts.h"

#include <gtest/gtest.h>

#include "platform/sim/serial_port.h"
#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

using Source = PortMeaning::Source;

constexpr const char* kNoRightNote =
    "You have no right to open this device: add yourself to the group dialout (sudo adduser YOURNAME dialout) and log "
    "in again.";

TEST(PortTexts, MeaningIsToldInAFewWords) {
    struct Case {
        PortMeaning meaning;
        const char* how;
        const char* there;
        const char* toolTip;
    };
    const Case cases[] = {
        {{}, "", "", "no device"},
        {{.device = {.path = "/dev/ttyS0"}, .source = Source::Found}, "automatic", "", "/dev/ttyS0"},
        {{.device = {.path = "/dev/ttyUSB0", .description = "Acme Cable"}, .source = Source::Choice},
         "chosen",
         "Acme Cable",
         "/dev/ttyUSB0, Acme Cable"},
        {{.device = {.path = "/dev/ttyUSB0", .description = "Acme Cable", .mayOpen = false}, .source = Source::Found},
         "automatic",
         "no right to open it, Acme Cable",
         "/dev/ttyUSB0, no right to open it, Acme Cable"},
        {{.device = {.path = "/tmp/rig", .isThere = false}, .source = Source::CommandLine},
         "--port",
         "not there",
         "/tmp/rig, not there"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(HowMeant(each.meaning), each.how);
        EXPECT_EQ(WhatIsThere(each.meaning), each.there);
        EXPECT_EQ(PortToolTip(each.meaning), each.toolTip);
    }
}

TEST(PortTexts, NoteSaysWhatToDo) {
    const SerialDevice device{.path = "/dev/ttyUSB0"};
    SerialDevice forbidden = device;
    forbidden.mayOpen = false;
    SerialDevice missing = device;
    missing.isThere = false;
    const std::string fixed = "The device was given with --port and stays for as long as the program runs.";
    EXPECT_EQ(NoteOn({.device = device, .source = Source::Found}), "");
    EXPECT_EQ(NoteOn({.device = device, .source = Source::Choice}), "");
    EXPECT_EQ(NoteOn({}),
              "No device was found for this port. Plug it in and look again, or type the path of its device.");
    EXPECT_EQ(NoteOn({.device = missing, .source = Source::Choice}), "Nothing stands at this path now.");
    EXPECT_EQ(NoteOn({.device = forbidden, .source = Source::Found}), kNoRightNote);
    EXPECT_EQ(NoteOn({.device = device, .source = Source::CommandLine}), fixed);
    EXPECT_EQ(NoteOn({.device = forbidden, .source = Source::CommandLine}), kNoRightNote + (' ' + fixed));
}

/// A form on which a port is chosen by its number.
struct ChoiceForm : Form {
    explicit ChoiceForm(Desk& owner) : Form{owner, "Choice", "Choice", {}} {}

    ControlArray<Option> optComm{
        0, 9,
        [this](int i) { return std::make_unique<Option>(*this, "optComm", std::to_string(i + 1), ButtonDesign{}); }};
};

struct PortToolTips : ToolkitTest {
    sim::SerialPorts ports{clock};
    ChoiceForm form{desk};
};

TEST_F(PortToolTips, EveryNumberTellsItsDevice) {
    ports.devices = {{.path = "/dev/ttyS0", .description = "Built-in port"}};
    ports.choices[10] = "/tmp/rig";
    SetPortToolTips(form.optComm, ports);
    EXPECT_EQ(form.optComm(0).State().toolTip, "/dev/ttyS0, Built-in port");
    EXPECT_EQ(form.optComm(1).State().toolTip, "no device");
    EXPECT_EQ(form.optComm(9).State().toolTip, "/tmp/rig");
}

}  // namespace
}  // namespace tallyhut
