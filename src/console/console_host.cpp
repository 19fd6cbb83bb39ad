#include "console/console_host.h"

#include <memory>

#include "console/commands.h"
#include "console/console_error.h"
#include "console/console_ports.h"
#include "console/console_printer.h"
#include "console/text_encoding.h"
#include "platform/platform_error.h"
#include "platform/real/real_machine.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/parallel_port.h"
#include "platform/sim/screen.h"
#include "platform/sim/sound.h"
#include "values/text.h"
#include "values/utf8.h"

namespace tallyhut {
namespace {

constexpr double kMinutesAnHour = 60;
constexpr double kUnitsAPixel = 15;
constexpr int kMostRefusals = 1'000;

struct EventClipboard : sim::Clipboard {
    explicit EventClipboard(JsonOutput& output) : out{output} {}

    void SetText(const std::string& newText) override {
        text = newText;
        out.Event({{"event", "clipboard"}, {"text", Latin1ToUtf8(newText)}});
    }

    void AddTo(DeviceCommands& commands) {
        commands["clipboard"] = [this](CommandWords& words) {
            text = FromUtf8(words.Take("text").text);
            words.CheckEnd();
        };
    }

    JsonOutput& out;
};

void AddSettingTo(DeviceCommands& commands, SettingsStore& settings) {
    commands["setting"] = [&settings](CommandWords& words) {
        const std::string key = words.Take("key").text;
        const std::string value = FromUtf8(words.Take("value").text);
        words.CheckEnd();
        try {
            settings.Set("Settings", key, value);
        } catch (const PlatformError& failure) {
            throw ConsoleError{failure.what()};
        }
    };
}

/// The connection to the cluster fails, as its host or the net would make it.
void AddNetworkErrorTo(DeviceCommands& commands, Program& program) {
    commands["neterror"] = [&program](CommandWords& words) {
        const int number = words.TakeNumber("number");
        words.CheckEnd();
        program.desk.PostAction([&program, number] { program.spotsPart.transports.Socket_Error(number); });
    };
}

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

/// What the virtual clock does not ask the driver for: the wait of a key that is held back, and the pauses of a command
/// to the radio. A scan is a clockwork of its own, and its end is nobody's `ready`.
std::optional<Tick> HeldUntil(const Program& program) {
    const std::optional<Tick> key = program.desk.HeldUntil();
    const std::deque<CommandStep>& steps = program.rigPart.rigCommands.command.steps;
    return key || steps.empty() || program.rigPart.tuneForm.chkScan.Value() ? key : steps.front().until;
}

}  // namespace

int RunConsole(const Options& options, const std::string& workingDirectory, const std::string& dataFolder,
               int inputDescriptor, std::ostream& out) {
    PolledDescriptors descriptors;
    LineSource lines{descriptors, inputDescriptor};
    JsonOutput output{out};
    RealMachine machine{options.ports, dataFolder};
    std::unique_ptr<sim::Clock> virtualClock;
    if (options.clock) {
        virtualClock =
            std::make_unique<sim::Clock>(*options.clock, static_cast<int>(options.utcOffset * kMinutesAnHour));
        output.virtualNow = [&virtualClock] { return virtualClock->IsoNow(); };
    }
    Clock& clock = virtualClock ? static_cast<Clock&>(*virtualClock) : machine.clock;
    ConsolePump pump{descriptors, lines, output, virtualClock.get(), machine.clock};
    ConsoleDialogs dialogs{output};
    EventClipboard clipboard{output};
    ConsolePrinter printer{output};
    sim::Screen screen = SimulatedScreen(options);
    ConsolePorts ports{machine.serialPorts, clock, output};
    sim::ParallelPorts parallelPorts{clock};
    parallelPorts.onOut = [&output](int address, unsigned char value) {
        output.Event({{"event", "out"}, {"address", address}, {"value", value}});
    };
    sim::Sound sound{clock, machine.files};
    sound.onCommand = [&output](const sim::Sound::Command& command) {
        output.Event({{"event", "media"},
                      {"player", command.player},
                      {"command", command.command},
                      {"file", ToUtf8(command.file)}});
    };
    DeviceCommands devices;
    ports.AddTo(devices);
    clipboard.AddTo(devices);
    AddSettingTo(devices, machine.settings);

    try {
        Program program{machine.Lend({.pump = pump,
                                      .dialogs = dialogs,
                                      .clipboard = clipboard,
                                      .printer = printer,
                                      .screen = screen,
                                      .clock = &clock,
                                      .serialPorts = &ports,
                                      .parallelPorts = options.simulatesParallel ? &parallelPorts : nullptr,
                                      .sound = options.simulatesSound ? &sound : nullptr,
                                      .seed = options.seed,
                                      .agwEngine = options.agwEngine.value_or("")}),
                        workingDirectory};
        AddNetworkErrorTo(devices, program);
        Commands commands{program, output, pump, dialogs, virtualClock.get(), devices};
        dialogs.runDialog = [&program](const std::function<bool()>& done) { program.desk.RunDialog(done); };
        pump.describeTurn = [&] { return DescribeTurn(program.desk, dialogs); };
        pump.runLine = [&commands](const std::string& line, bool putAt) { commands.Run(line, putAt); };
        pump.heldUntil = [&] { return dialogs.Waiting().empty() ? HeldUntil(program) : std::nullopt; };
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
        // A script's message goes out whole at the end of input, but not when somebody wants the program to end.
        lines.endedBySignal = [&program] {
            if (program.keyingPart.sender.gCWSending == 1) {
                program.RequestClose();
            }
        };
        program.desk.outlets.formChanged = [&output](Form& form, DeskOutlets::FormEvent event) {
            if (const char* name = NameOf(event)) {
                output.Event({{"event", name}, {"form", form.name}});
            }
        };
        if (options.sections) {
            program.TakeSections(*options.sections);
        }
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
