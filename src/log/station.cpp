#include "log/station.h"

#include <array>

#include "log/entry_flow.h"
#include "platform/platform_error.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr float kFallbackUtcOffset = 5;

struct SharedValue {
    TextBox frmStationID::*box;
    std::string_view key;
};

/// In the order in which they are handed over; the last one has the file written.
constexpr std::array kSharedValues{
    SharedValue{&frmStationID::Text1, "OWN_CALL"},  SharedValue{&frmStationID::Text5, "OWN_ARRL_SECTION"},
    SharedValue{&frmStationID::Text6, "OWN_UTC"},   SharedValue{&frmStationID::Text3, "OWN_PRECEDENCE"},
    SharedValue{&frmStationID::Text4, "OWN_CHECK"},
};

const MessageBox kNotNumericBox{.title = "Numerical value required.",
                                .text = "Please enter a numerical value.",
                                .buttons = Buttons::OK,
                                .icon = Icon::Exclamation};

void Cap3(int& KeyAscii) {
    Capital(KeyAscii);
}

/// Esc types nothing: it goes on and closes the form, as it does from every field.
void numberr(int& KeyAscii) {
    const bool accepted = KeyAscii == kKeyBackspace || KeyAscii == kKeyEsc || (KeyAscii >= '-' && KeyAscii <= '9');
    if (!accepted) {
        KeyAscii = 0;
    }
}

}  // namespace

void Station::mnuSetup_Click() {
    dialog.ShowModal();
    if (dialog.IsLoaded()) {  // the close box has unloaded it
        TakeOver();
    }
    ShowExchange();
    dialog.Unload();
    preferencesFile.SavePref();
}

void Station::TakeOver() {
    preferences.gOwnCall = dialog.Text1.Text();
    preferences.gOwnPrec = dialog.Text3.Text();
    preferences.gOwnCheck = dialog.Text4.Text();
    preferences.gOwnSection = dialog.Text5.Text();
    const std::optional<double> offset = ParseNumber(dialog.Text6.Text());
    preferences.gUtcOffset = offset ? static_cast<float>(*offset) : kFallbackUtcOffset;
    preferences.gContestMode = dialog.Option2.Value() ? 1 : 0;
}

void Station::ShowExchange() {
    form1.Label1.SetCaption(preferences.gOwnPrec);
    form1.Label2.SetCaption(preferences.gOwnCall);
    form1.Label3.SetCaption(preferences.gOwnCheck);
    form1.Label4.SetCaption(preferences.gOwnSection);
    form1.lblMode.SetCaption(preferences.gContestMode == 1 ? "Phone" : "CW");
}

void Station::frmStationID_Load() {
    dialog.Text1.SetText(preferences.gOwnCall);
    dialog.Text3.SetText(preferences.gOwnPrec);
    dialog.Text4.SetText(preferences.gOwnCheck);
    dialog.Text5.SetText(preferences.gOwnSection);
    dialog.Text6.SetText(PlainText(preferences.gUtcOffset));
    (preferences.gContestMode == 1 ? dialog.Option2 : dialog.Option1).SetValue(true);
    if (dialog.Text1.Text().empty()) {
        dialog.Text1.SetText(settings.Get("Settings", "UserCallSign"));
    }
}

bool Station::DoneOnEnter(int& KeyAscii) {
    if (KeyAscii != kKeyEnter) {
        return false;
    }
    KeyAscii = 0;
    Command1_Click();
    return true;
}

void Station::TextField_KeyPress(int& KeyAscii) {
    if (!DoneOnEnter(KeyAscii)) {
        Cap3(KeyAscii);
    }
}

void Station::Text6_KeyPress(int& KeyAscii) {
    if (!DoneOnEnter(KeyAscii)) {
        numberr(KeyAscii);
    }
}

void Station::Text6_LostFocus() {
    if (!IsNumeric(dialog.Text6.Text())) {
        desk.dialogs.Show(kNotNumericBox);
        dialog.Text6.GiveFocusBack();
    }
}

void Station::Command1_Click() {
    preferences.gStationSet = 1;
    if (!IsNumeric(dialog.Text6.Text())) {
        dialog.Text6.SetText("0");
    }
    Share();
    dialog.Hide();
}

void Station::Share() {
    try {
        for (const SharedValue& shared : kSharedValues) {
            SetSharedPreference(shared.key, (dialog.*shared.box).Text(), &shared == &kSharedValues.back());
        }
    } catch (const PlatformError& failure) {  // the station is set all the same
        desk.dialogs.Show(
            {.title = "Error.", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    }
}

}  // namespace tallyhut
