#include "forms/frmPorts.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 8640;

LabelDesign Heading(double top, double width) {
    return {.place = {kLeft, top, width, 240}};
}

ButtonDesign Command(double left, int tabIndex, std::string toolTip) {
    return {.place = {left, 6180, 1620, 390}, .toolTip = std::move(toolTip), .tabIndex = tabIndex};
}

}  // namespace

frmPorts::frmPorts(Desk& owner)
    : Form{owner, "frmPorts", " Serial Ports", {.width = 9000, .height = 6750}},
      lblPorts{*this, "lblPorts", "&Port numbers, and the device that each means:", Heading(120, kWidth)},
      lstPorts{*this,
               "lstPorts",
               {{.caption = "Port", .width = 600},
                {.caption = "Device", .width = 2700},
                {.caption = "How", .width = 1260},
                {.caption = "What is there", .width = 3960}},
               {.place = {kLeft, 390, kWidth, 2760}, .tabIndex = 1}},
      lblDevices{*this, "lblDevices", "&Devices found:", Heading(3270, kWidth)},
      lstDevices{*this, "lstDevices", {.place = {kLeft, 3540, kWidth, 1320}, .tabIndex = 2}},
      lblDevice{*this, "lblDevice", "", Heading(5040, 1800)},
      txtDevice{*this,
                "txtDevice",
                {.place = {2040, 4980, 6780, 330}, .maxLength = kLongestPath, .tabIndex = 3, .fontSize = 11}},
      lblNote{*this, "lblNote", "", {.place = {kLeft, 5430, kWidth, 660}}},
      cmdUse{*this, "cmdUse", "&Use for This Port", Command(kLeft, 4, "Stores the device for the port selected above")},
      cmdLook{*this, "cmdLook", "&Look Again", Command(1980, 5, "Looks for devices that have been plugged in")},
      cmdDone{*this, "cmdDone", "Done", Command(7200, 6, "")} {}

}  // namespace tallyhut
