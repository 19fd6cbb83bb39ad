#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "log/operating_time.h"

namespace tallyhut {

/// A band and its entry in the menu.
struct BandRow {
    MenuEntry Form1::*entry;
    std::string_view band;  ///< metres
};

/// The contest's bands.
inline constexpr std::array kBands{
    BandRow{&Form1::mnu160, "160"}, BandRow{&Form1::mnu80, "80"}, BandRow{&Form1::mnu40, "40"},
    BandRow{&Form1::mnu20, "20"},   BandRow{&Form1::mnu15, "15"}, BandRow{&Form1::mnu10, "10"},
};

/// The band that contacts are stamped with.
struct BandSelection {
    Form1& form;
    Preferences& preferences;
    PreferencesFile& preferencesFile;
    OperatingTime& time;
    Desk& desk;

    /// The displays of spots follow the band.
    std::function<void()> bandChanged = [] {};

    /// What a click on the band's menu entry does.
    void ChooseBand(std::string_view band);
    /// A double click takes the next band; nothing where the present one is none of the table.
    void Label30_DblClick();
    /// Shows the present band and checks its entry; a band text that is none leaves all of them unchecked.
    void ShowBand();
};

}  // namespace tallyhut
