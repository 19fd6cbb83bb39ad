#include "window_main.h"

#include <QApplication>

#include "app/program.h"
#include "forms/qt/desktop_look.h"
#include "forms/qt/dialog_loop.h"
#include "forms/qt/logo_layout.h"
#include "forms/qt/program_style.h"
#include "forms/qt/qt_clipboard.h"
#include "forms/qt/qt_dialogs.h"
#include "forms/qt/qt_printer.h"
#include "forms/qt/qt_pump.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/window_host.h"
#include "platform/platform_error.h"
#include "platform/real/real_machine.h"
#include "platform/real/termination_signals.h"

namespace tallyhut {

int RunWindow(int& argc, char** argv, const Options& options, const std::string& workingDirectory,
              const std::string& dataFolder) {
    QApplication application{argc, argv};
    QApplication::setApplicationName("tallyhut");
    QApplication::setStyle(new ProgramStyle);
    QApplication::setWindowIcon(LogoIcon());
    QApplication::setDesktopFileName("tallyhut");

    const TerminationSignals terminations;
    RealMachine machine{options.ports, dataFolder};
    QtPump pump{machine.clock};
    QtDialogs dialogs;
    QtClipboard clipboard;
    QtPrinter printer;
    QtScreen screen;
    Program program{machine.Lend({.pump = pump,
                                  .dialogs = dialogs,
                                  .clipboard = clipboard,
                                  .printer = printer,
                                  .screen = screen,
                                  .agwEngine = options.agwEngine.value_or("")}),
                    workingDirectory};
    dialogs.Bind(program.desk);
    printer.Bind(program.desk);
    printer.folder = [&program] { return program.supportPart.directories.WorkingDirectory; };
    WindowHost host{program.desk, pump};
    DesktopLook desktopLook;
    program.look.show = [&desktopLook](WindowLook look) { desktopLook.Show(look); };
    program.look.ShowStored();
    const auto close = [&program] {
        CancelDialogs();
        program.RequestClose();
    };
    const IoSource termination{program.desk, terminations.Number(), [&terminations, &close] {
                                   terminations.Clear();
                                   close();
                               }};
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, close);  // a logout
    try {
        if (options.sections) {
            program.TakeSections(*options.sections);
        }
        if (options.chooseDirectory) {
            program.ChooseDirectory();
        }
        program.Start();
        program.Run();
    } catch (const ProgramEnd& end) {
        return end.status;
    }
}

}  // namespace tallyhut
