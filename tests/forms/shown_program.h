#pragma once

#include <QApplication>
#include <QPixmap>
#include <QWidget>
#include <string>
#include <vector>

#include "app/program.h"
#include "forms/qt/qt_pump.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/window_host.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/environment.h"
#include "platform/sim/files.h"
#include "platform/sim/printer.h"
#include "platform/sim/serial_port.h"
#include "platform/sim/settings_store.h"

namespace tallyhut {

/// The program on a simulated machine, drawn in real windows on a screen that nobody sees.
struct ShownProgram {
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

    sim::Clock clock{{2026, 11, 8, 3, 12, 44}};
    QtPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    QtScreen screen;
    sim::Printer printer;
    sim::Files files{"/contest"};
    sim::SettingsStore settings;
    sim::Environment environment;
    sim::SerialPorts serialPorts{clock};
    Program program{{.clock = clock,
                     .pump = pump,
                     .dialogs = dialogs,
                     .clipboard = clipboard,
                     .printer = printer,
                     .files = files,
                     .settings = settings,
                     .screen = screen,
                     .environment = environment,
                     .serialPorts = serialPorts,
                     .dataFolder = "/data"},
                    "/contest"};
    WindowHost host{program.desk, pump};
};

/// The size and scale of the screen that the tests run on, "1280x800@1"; part of the names of screenshots.
std::string& ScreenName();

/// A contest of so many contacts, the newest a minute old.
std::vector<Contact> LivelyContest(int contacts, const DateTime& now);

}  // namespace tallyhut
