#include "app/main_form_layout.h"

#include <algorithm>

#include "support/form_scaling.h"
#include "toolkit/desk.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr float kLeastPercent = 30;

float WithinLimits(double percent) {
    return static_cast<float>(std::clamp<double>(percent, kLeastPercent, kUnscaled));
}

const MessageBox kRestartBox{.title = "For this setting to take effect please restart this program.",
                             .text = "This program must be closed and restarted for this setting to take effect.",
                             .buttons = Buttons::OK,
                             .icon = Icon::Information};
const MessageBox kNotNumericBox{.title = "Numeric Values Required",
                                .text = "Please enter only numeric values.",
                                .buttons = Buttons::OK,
                                .icon = Icon::Exclamation};
const MessageBox kNotUnscaledBox{.title = "Please set your form size to 100% to use this option.",
                                 .text = "The form size must be set to 100% to use the taskbar display option.",
                                 .buttons = Buttons::OK,
                                 .icon = Icon::Exclamation};

/// The part of the screen that 100 percent are of.
ScreenSize AreaFor(const Preferences& preferences, const Screen& screen) {
    const bool besideTaskbar = preferences.gTaskbar == 1 && preferences.gFormScale == kUnscaled;
    return besideTaskbar ? screen.WorkArea() : screen.Whole();
}

}  // namespace

void MainFormLayout::LayOutMainForm() {
    const ScreenSize area = AreaFor(preferences, screen);
    const double share = WithinLimits(preferences.gFormScale) / 100.0;  // the file may hold anything
    ScaleFormToSize(form1,
                    {.NewHeight = area.height * share,
                     .NewWidth = area.width * share,
                     .OldHeight = form1.design.height,
                     .OldWidth = form1.design.width,
                     .SetSize = true},
                    area);
    Place place = form1.FormPlace();
    place.top = std::max(place.top, 0.0);  // a form as high as the area has no room above it for a title bar
    form1.SetFormPlace(place);
    PacketResize();
}

void MainFormLayout::mnuFormSize_Click() {
    Dialogs& dialogs = form1.desk.dialogs;
    const std::optional<std::string> answer = dialogs.Ask(
        InputBox{.title = "Please enter screen percentage.",
                 .text = "Enter the % of the screen you would like the form to cover.  Try between 90 and 100 for best "
                         "results.  Values below 75 do not display well.",
                 .preset = PlainText(preferences.gFormScale)});
    if (!answer) {
        return;
    }
    const std::optional<double> percent = ParseNumber(*answer);
    if (!percent) {
        dialogs.Show(kNotNumericBox);
        return;
    }
    preferences.gFormScale = WithinLimits(*percent);
    dialogs.Show(kRestartBox);
    preferencesFile.SavePref();
}

void MainFormLayout::mnuTaskbar_Click() {
    if (preferences.gFormScale != kUnscaled) {
        form1.desk.dialogs.Show(kNotUnscaledBox);
        return;
    }
    preferences.gTaskbar = preferences.gTaskbar == 1 ? 0 : 1;
    ShowTaskbarOption();
    preferencesFile.SavePref();
    LayOutMainForm();
}

void MainFormLayout::ShowTaskbarOption() {
    form1.mnuTaskbar.SetChecked(preferences.gTaskbar == 1);
}

}  // namespace tallyhut
