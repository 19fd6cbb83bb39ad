#include "forms/frmNetwork.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 7140;
constexpr double kRadioTop = 1320;
constexpr double kAppTop = 2520;

ButtonDesign Use(double top, int tabIndex) {
    return {.place = {kLeft, top, kWidth, 300}, .tabIndex = tabIndex};
}

LabelDesign NameAt(double top) {
    return {.place = {kLeft, top + 60, 1200, 240}};
}

TextBoxDesign FieldAt(double top, int tabIndex, std::string toolTip) {
    return {.place = {1440, top, 5880, 330},
            .maxLength = kLongestDescription,
            .tabIndex = tabIndex,
            .fontSize = 11,
            .toolTip = std::move(toolTip)};
}

constexpr const char* kAddressTip = "HOST:PORT, with commas between several: 127.0.0.1:12060, 192.168.1.255:12060";

}  // namespace

frmNetwork::frmNetwork(Desk& owner)
    : Form{owner, "frmNetwork", " Network", {.width = 7500, .height = 4800}},
      chkContacts{*this, "chkContacts", "Send each &contact that is logged, edited or deleted", Use(240, 1)},
      lblContacts{*this, "lblContacts", "Contacts &to:", NameAt(630)},
      txtContacts{*this, "txtContacts", FieldAt(630, 2, kAddressTip)},
      chkRadio{*this, "chkRadio", "Send the &radio's frequency and mode", Use(kRadioTop, 3)},
      lblRadio{*this, "lblRadio", "Radio t&o:", NameAt(kRadioTop + 390)},
      txtRadio{*this, "txtRadio", FieldAt(kRadioTop + 390, 4, kAddressTip)},
      lblApp{*this, "lblApp", "&Sender:", NameAt(kAppTop)},
      txtApp{*this, "txtApp", FieldAt(kAppTop, 5, "What the datagrams say of the program that has sent them")},
      lblAppNote{*this,
                 "lblAppNote",
                 "Most readers drop what comes from any other sender. An empty field is the usual one.",
                 {.place = {kLeft, kAppTop + 420, kWidth, 240}}},
      lblNote{*this,
              "lblNote",
              "An address is HOST:PORT, with commas between several. Nothing is received.",
              {.place = {kLeft, kAppTop + 720, kWidth, 240}}},
      lblNetwork{*this, "lblNetwork", "", {.place = {kLeft, kAppTop + 1080, kWidth, 480}}},
      cmdDone{*this, "cmdDone", "&Done", {.place = {6120, 4230, 1200, 390}, .tabIndex = 6}} {}

}  // namespace tallyhut
