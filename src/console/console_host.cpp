#include "console/console_host.h"

#include <csignal>
#include <memory>

#include "console/commands.h"
#include "console/console_ports.h"
#include "console/console_printer.h"
#include "console/text_encoding.h"
#include "platform/platform_error.h"
#include "platform/real/desktop_environment.h"
#include "platform/real/ini_settings.h"
#include "platform/real/posix_files.h"
#include "platform/real/system_clock.h"
#include "platform/sim/screen.h"

namespace tallyhut {
namespace {

constexpr double kMinutesAnHour = 60;
constexpr double kUnitsAPixel = 15;
constexpr int kMostRefusals = 1'000;

struct EventClipboard : sim::Clipboard {
    explicit EventClipboard(JsonOutput& output) : out{output} {}

    void SetText(const std::string& newText) override {
        text = newText;
        out.Event({{"event", "clipboard"}, {"text", ToUtf8(newText)}});
    }

    JsonOutput& out;
};

ScreenSize InUnits(const ScreenSize& pixels) {
    return {.width = pixels.width * kUnitsAPixel, .height = pixels.height * kUnitsAPixel};
}

sim::Screen SimulatedScreen(const Options& options) {
    sim::Screen screen;
    if (options.screen) {
        screen.whole = InUnits(*options.screen);
        screen.workArea = InUnits(*options.workArea);
    }
    return screen;
}

const char* NameOf(DeskOutlets::FormEvent event) {
    switch (event) {
        case DeskOutlets::FormEvent::Shown:
            return "show";
        case DeskOutlets::FormEvent::ShownModal:
            return "modal";
        case DeskOutlets::FormEvent::Hidden:
            return "hide";
        case DeskOutlets::FormEvent::Minimised:
            return "minimise";
        case DeskOutlets::FormEvent::Refused:
            return "refused";
        default:
            return nullptr;
    }
}

Json DescribeTurn(const Desk& desk, const ConsoleDialogs& dialogs) {
    if (!dialogs.Waiting().empty()) {
        return {{"ready", "answer"}, {"dialog", dialogs.Waiting()}};
    }
    const Form* form = desk.Active();
    if (form == nullptr) {
        return {{"ready", "idle"}, {"form", nullptr}, {"focus", nullptr}};
    }
    return {{"ready", form->IsModal() ? "modal" : "idle"},
            {"form", form->name},
            {"focus", form->Focus() == nullptr ? Json(nullptr) : Json(form->Focus()->FullName())}};
}

}  // namespace

int RunConsole(const Options& options, const std::string& workingDirectory, const std::string& dataFolder,
               int inputDescriptor, std::ostream& out) {
    std::signal(SIGPIPE, SIG_IGN);  // a driver that has gone is the end of input
    PolledDescriptors descriptors;
    LineSource lines{descriptors, inputDescriptor};
    JsonOutput output{out};
    SystemClock systemClock;
    std::unique_ptr<sim::Clock> virtualClock;
    if (options.clock) {
        virtualClock =
            std::make_unique<sim::Clock>(*options.clock, static_cast<int>(options.utcOffset * kMinutesAnHour));
        output.virtualNow = [&virtualClock] { return virtualClock->IsoNow(); };
    }
    Clock& clock = virtualClock ? static_cast<Clock&>(*virtualClock) : systemClock;
    ConsolePump pump{descriptors, lines, output, virtualClock.get(), systemClock};
    ConsoleDialogs dialogs{output};
    EventClipboard clipboard{output};
    ConsolePrinter printer{output};
    PosixFiles files;
    IniSettings settings;
    sim::Screen screen = SimulatedScreen(options);
    DesktopEnvironment environment;
    ConsolePorts ports{settings, clock, options.ports, output};

    try {
        Program program{{.clock = clock,
                         .pump = pump,
                         .dialogs = dialogs,
                         .clipboard = clipboard,
                         .printer = printer,
                         .files = files,
                         .settings = settings,
                         .screen = screen,
                         .environment = environment,
                         .serialPorts = ports,
                         .dataFolder = dataFolder},
                        workingDirectory};
        Commands commands{program, output, pump, dialogs, virtualClock.get(), clipboard, ports};
        dialogs.runDialog = [&program](const std::function<bool()>& done) { program.desk.RunDialog(done); };
        pump.describeTurn = [&] { return DescribeTurn(program.desk, dialogs); };
        pump.runLine = [&commands](const std::string& line, bool putAt) { commands.Run(line, putAt); };
        pump.heldUntil = [&] { return dialogs.Waiting().empty() ? program.desk.HeldUntil() : std::nullopt; };
        int refusals = 0;
        pump.endOfInput = [&] {
            Form* form = program.desk.Active();
            if (!dialogs.Waiting().empty()) {
                dialogs.Cancel();
            } else if (form != nullptr && form->IsModal()) {
                program.desk.PostAction([form] { form->RequestClose(); });
            } else if (++refusals > kMostRefusals) {
                pump.EndProgram(1);
            } else {
                program.RequestClose();
            }
        };
        program.desk.outlets.formChanged = [&output](Form& form, DeskOutlets::FormEvent event) {
            if (const char* name = NameOf(event)) {
                output.Event({{"event", name}, {"form", form.name}});
            }
        };
        if (options.chooseDirectory) {
            program.ChooseDirectory();
        }
        program.Start();
        program.Run();
    } catch (const ProgramEnd& end) {
        output.Exit(end.status);
        return end.status;
    }
}

}  // namespace tallyhut
