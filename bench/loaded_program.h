#pragma once

#include <string>

#include "app/program.h"
#include "bench/full_log.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/environment.h"
#include "platform/sim/event_pump.h"
#include "platform/sim/files.h"
#include "platform/sim/printer.h"
#include "platform/sim/screen.h"
#include "platform/sim/serial_port.h"
#include "platform/sim/settings_store.h"

namespace tallyhut {

/// The whole program on a simulated machine with a log of so many contacts; its serial ports may be real ones.
struct LoadedProgram {
    explicit LoadedProgram(int contacts, SerialPorts* realPorts = nullptr)
        : ports{realPorts == nullptr ? serialPorts : *realPorts} {
        program.form1.Form_Load = {};  // no questions
        program.form1.Show();
        program.sections.Fill(program.form1);
        files.Put("/contest/Log.txt", FullLog(contacts, clock.Now()));
        program.reload.mnuopen2();
        program.time.gTimeOn = 1;
        program.desk.RunPending();
    }

    void Type(const std::string& text) {
        for (const char character : text) {
            program.desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
            program.desk.RunPending();
        }
    }

    sim::Clock clock{{2026, 11, 8, 21, 0, 0}};
    sim::EventPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    sim::Printer printer;
    sim::Files files{"/contest"};
    sim::SettingsStore settings;
    sim::Screen screen;
    sim::Environment environment;
    sim::SerialPorts serialPorts{clock};
    SerialPorts& ports;
    Program program{{.clock = clock,
                     .pump = pump,
                     .dialogs = dialogs,
                     .clipboard = clipboard,
                     .printer = printer,
                     .files = files,
                     .settings = settings,
                     .screen = screen,
                     .environment = environment,
                     .serialPorts = ports},
                    "/contest"};
};

}  // namespace tallyhut
