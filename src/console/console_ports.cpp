#include "console/console_ports.h"

#include <array>

#include "console/console_error.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr std::string_view kSimulated = "sim";

constexpr std::array<std::string_view, 4> kHandshakeNames{"none", "xonxoff", "rts", "rtsxonxoff"};

std::string_view NameOf(Handshake handshake) {
    return kHandshakeNames.at(static_cast<std::size_t>(handshake));
}

/// One port of the program's that may get any number: what it is told goes to a real and to a simulated one, of which
/// the one of the number is opened.
struct ConsolePort : SerialPort {
    explicit ConsolePort(ConsolePorts& owner)
        : ports{owner}, real{owner.real.NewPort()}, simulated{owner.simulated.NewPort()} {}

    ConsolePorts& ports;
    std::unique_ptr<SerialPort> real;
    std::unique_ptr<SerialPort> simulated;
    SerialPort* meant = MeantBy(kFirstPort);

    SerialPort* MeantBy(int number) const { return ports.IsSimulated(number) ? simulated.get() : real.get(); }
    SerialPort& Other() const { return meant == real.get() ? *simulated : *real; }

    void SetNumber(int number) override {
        meant->SetNumber(number);
        Other().SetNumber(number);
        meant = MeantBy(number);
    }
    void SetSettings(const std::string& settings) override {
        meant->SetSettings(settings);
        Other().SetSettings(settings);
    }
    void SetHandshake(Handshake handshake) override {
        meant->SetHandshake(handshake);
        Other().SetHandshake(handshake);
    }
    void SetDtr(bool on) override {
        meant->SetDtr(on);
        Other().SetDtr(on);
    }
    void SetRts(bool on) override {
        meant->SetRts(on);
        Other().SetRts(on);
    }
    void Open() override { meant->Open(); }
    void Close() override { meant->Close(); }
    bool IsOpen() const override { return meant->IsOpen(); }
    int OutputCount() const override { return meant->OutputCount(); }
    void Write(std::string_view bytes) override { meant->Write(bytes); }
    std::string ReadAll() override { return meant->ReadAll(); }
};

}  // namespace

ConsolePorts::ConsolePorts(TtyPorts& machinePorts, const Clock& clock, JsonOutput& output)
    : out{output}, real{machinePorts}, simulated{clock} {
    simulated.onPort = [this](int number, const sim::SerialLine& line) {
        out.Event({{"event", "port"},
                   {"port", number},
                   {"state", line.isOpen ? "open" : "closed"},
                   {"settings", SettingsText(line.settings)},
                   {"handshake", NameOf(line.handshake)}});
    };
    simulated.onWrite = [this](int number, std::string_view bytes) {
        out.Event({{"event", "tx"}, {"port", number}, {"hex", BytesToHexText(bytes)}});
    };
    simulated.onLevel = [this](int number, sim::ControlLine line, bool on) {
        out.Event(
            {{"event", "line"}, {"port", number}, {"line", line == sim::ControlLine::Dtr ? "DTR" : "RTS"}, {"on", on}});
    };
}

std::unique_ptr<SerialPort> ConsolePorts::NewPort() {
    return std::make_unique<ConsolePort>(*this);
}

PortMeaning ConsolePorts::MeaningOf(int number) const {
    if (IsSimulated(number)) {
        return {.device = {.path = std::string{kSimulated}, .description = "simulated"},
                .source = PortMeaning::Source::CommandLine};
    }
    return real.MeaningOf(number);
}

bool ConsolePorts::IsSimulated(int number) const {
    const auto given = real.commandLine.find(number);
    return given != real.commandLine.end() && given->second == kSimulated;
}

void ConsolePorts::AddTo(DeviceCommands& commands) {
    commands["rx"] = [this](CommandWords& words) { Receive(words); };
    commands["reply"] = [this](CommandWords& words) { Reply(words); };
    commands["hold"] = [this](CommandWords& words) { Hold(words); };
    commands["unplug"] = [this](CommandWords& words) { TakeOnlyLine(words).Unplug(); };
    commands["plug"] = [this](CommandWords& words) { TakeOnlyLine(words).Plug(); };
}

/// The far end of a port that is simulated.
sim::SerialLine& ConsolePorts::TakeLine(CommandWords& words) {
    const int number = words.TakeNumber("port");
    if (!IsSimulated(number)) {
        throw ConsoleError{"no simulated port: " + std::to_string(number)};
    }
    return simulated.Line(number);
}

sim::SerialLine& ConsolePorts::TakeOnlyLine(CommandWords& words) {
    sim::SerialLine& line = TakeLine(words);
    words.CheckEnd();
    return line;
}

void ConsolePorts::Receive(CommandWords& words) {
    sim::SerialLine& line = TakeLine(words);
    const std::string bytes = HexToBytes(words.Take("bytes").text);
    words.CheckEnd();
    line.Receive(bytes);
}

void ConsolePorts::Reply(CommandWords& words) {
    sim::SerialLine& line = TakeLine(words);
    const std::string request = HexToBytes(words.Take("request").text);
    const std::string reply = HexToBytes(words.Take("reply").text);
    const Tick after = words.AtEnd() ? 0 : words.TakeMilliseconds();
    words.CheckEnd();
    if (request.empty()) {
        throw ConsoleError{"the request has no bytes"};
    }
    line.Reply(request, reply, after);
}

void ConsolePorts::Hold(CommandWords& words) {
    sim::SerialLine& line = TakeLine(words);
    const std::string& state = words.Take("on or off").text;
    words.CheckEnd();
    if (state == "on") {
        line.holding = true;
    } else if (state == "off") {
        line.LetGo();
    } else {
        throw ConsoleError{"on or off is wanted, not " + state};
    }
}

}  // namespace tallyhut
