#pragma once

#include <QApplication>
#include <QPixmap>
#include <QWidget>
#include <string>
#include <vector>

#include "forms/qt/qt_pump.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/window_host.h"
#include "platform/sim/machine.h"
#include "tests/program_units.h"

namespace tallyhut {

/// The program on a simulated machine, drawn in real windows on a screen that nobody sees.
struct ShownProgram : sim::Machine {
    ShownProgram();

    /// Lets the program and the windows come to rest.
    void Settle();
    /// Types at the active form, the characters as they stand.
    void Type(std::string_view text);
    void Press(std::string_view keyName);
    QWidget& WindowOf(const Form& form) { return *host.WindowOf(form); }
    /// Shows the form and lets it come to rest.
    QWidget& Show(Form& form);
    /// Keeps a picture of the form for whoever looks into a failure.
    void KeepScreenshot(const Form& form, const std::string& name);

    QtPump pump{clock};
    QtScreen screen;
    ProgramUnits program{Lend({.pump = &pump, .screen = &screen}), "/contest"};
    WindowHost host{program.desk, pump};
};

/// The size and scale of the screen that the tests run on, "1280x800@1"; part of the names of screenshots.
std::string& ScreenName();

/// A contest of so many contacts, the newest a minute old.
std::vector<Contact> LivelyContest(int contacts, const DateTime& now);

}  // namespace tallyhut
