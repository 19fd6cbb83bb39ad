#include "platform/sim/serial_port.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/path_error.h"
#include "platform/port_meaning.h"

namespace tallyhut::sim {

std::string SerialLine::TakeSent() {
    std::string sent;
    for (; taken_ < written.size(); ++taken_) {
        sent += written[taken_].bytes;
    }
    return sent;
}

void SerialLine::Receive(std::string_view bytes) {
    if (isOpen && !IsDead()) {
        arrivals_.push_back({.at = clock.TickMs(), .bytes = std::string{bytes}});
    }
}

void SerialLine::Reply(const std::string& request, const std::string& reply, Tick after) {
    if (request.empty() || reply.empty()) {
        replies_.erase(request);
    } else {
        replies_[request] = {.reply = reply, .after = after};
    }
}

void SerialLine::LetGo() {
    holding = false;
    outputCount = 0;
}

void SerialLine::Unplug() {
    plugged_ = false;
    hungUp_ = isOpen;
    arrivals_.clear();
}

void SerialLine::Open(const SerialSetup& setup) {
    isOpen = true;
    settings = setup.settings;
    handshake = setup.handshake;
    dtr.reset();
    rts.reset();
}

void SerialLine::Close() {
    isOpen = false;
    hungUp_ = false;
    outputCount = 0;
    arrivals_.clear();
    for (auto& [request, canned] : replies_) {
        canned.seen.clear();
    }
}

void SerialLine::Record(Written bytes) {
    if (written.size() == 2 * kKept) {
        written.erase(written.begin(), written.begin() + kKept);
        taken_ -= std::min(taken_, kKept);
    }
    written.push_back(std::move(bytes));
}

void SerialLine::Record(Level level) {
    if (levels.size() == 2 * kKept) {
        levels.erase(levels.begin(), levels.begin() + kKept);
    }
    levels.push_back(level);
}

void SerialLine::Take(std::string_view bytes) {
    Record(Written{.at = clock.TickMs(), .bytes = std::string{bytes}});
    if (holding) {
        outputCount += static_cast<int>(bytes.size());
    }
    for (const char byte : bytes) {
        for (auto& [request, canned] : replies_) {
            canned.seen += byte;
            if (canned.seen.ends_with(request)) {
                canned.seen.clear();
                arrivals_.push_back({.at = clock.TickMs() + canned.after, .bytes = canned.reply});
            } else if (canned.seen.size() > request.size()) {
                canned.seen.erase(0, 1);
            }
        }
    }
}

std::string SerialLine::Deliver() {
    std::ranges::stable_sort(arrivals_, {}, &Arrival::at);
    const auto later = std::ranges::upper_bound(arrivals_, clock.TickMs(), {}, &Arrival::at);
    std::string bytes;
    std::for_each(arrivals_.begin(), later, [&bytes](const Arrival& arrival) { bytes += arrival.bytes; });
    arrivals_.erase(arrivals_.begin(), later);
    return bytes;
}

SerialPorts::SerialPorts(const tallyhut::Clock& clock) : lines_(kLastPort, SerialLine{clock}) {}

std::unique_ptr<tallyhut::SerialPort> SerialPorts::NewPort() {
    return std::make_unique<SerialPort>(*this);
}

PortMeaning SerialPorts::MeaningOf(int number) const {
    const auto choice = choices.find(number);
    return MeaningAmong(devices, commandLine, number, choice != choices.end() ? choice->second : "");
}

void SerialPorts::Choose(int number, const std::string& path) {
    if (!choiceFailure.empty()) {
        throw PlatformError{choiceFailure};
    }
    choices[number] = path;
}

void SerialPort::SetNumber(int number) {
    CheckPortNumber(number);
    if (open_) {
        throw PathError(PortName(setup_.number), kPortIsOpen);
    }
    setup_.number = number;
}

void SerialPort::SetSettings(const std::string& settings) {
    const SerialSettings parsed = ParseSerialSettings(settings);
    CheckAlive();
    setup_.settings = parsed;
    if (open_) {
        Line().settings = parsed;
    }
}

void SerialPort::SetHandshake(Handshake handshake) {
    CheckAlive();
    setup_.handshake = handshake;
    if (open_) {
        Line().handshake = handshake;
    }
}

void SerialPort::SetLevel(ControlLine line, bool on) {
    CheckAlive();
    const bool isDtr = line == ControlLine::Dtr;
    (isDtr ? setup_.dtr : setup_.rts) = on;
    std::optional<bool>& level = isDtr ? Line().dtr : Line().rts;
    if (!open_ || level == on) {
        return;
    }
    level = on;
    Line().Record(SerialLine::Level{.at = Line().clock.TickUs(), .line = line, .on = on});
    ports_.onLevel(setup_.number, line, on);
}

void SerialPort::Open() {
    SerialLine& line = Line();
    const std::string name = PortName(setup_.number);
    if (line.isOpen) {
        throw open_ ? PathError(name, kPortIsOpen) : PathError(name, EBUSY);
    }
    if (!line.plugged_) {
        throw PathError(name, ENOENT);
    }
    if (!line.refusal.empty()) {
        throw PathError(name, line.refusal);
    }
    line.Open(setup_);
    open_ = true;
    ports_.onPort(setup_.number, line);
    if (setup_.dtr) {
        SetDtr(*setup_.dtr);
    }
    if (setup_.rts) {
        SetRts(*setup_.rts);
    }
}

void SerialPort::Release() {
    if (std::exchange(open_, false)) {
        Line().Close();
        ports_.onPort(setup_.number, Line());
    }
}

int SerialPort::OutputCount() const {
    return open_ && !Line().IsDead() ? Line().outputCount : 0;
}

void SerialPort::Write(std::string_view bytes) {
    if (!open_) {
        throw PathError(PortName(setup_.number), kPortIsClosed);
    }
    CheckAlive();
    if (!bytes.empty()) {
        Line().Take(bytes);
        ports_.onWrite(setup_.number, bytes);
    }
}

std::string SerialPort::ReadAll() {
    return open_ && !Line().IsDead() ? Line().Deliver() : "";
}

void SerialPort::CheckAlive() const {
    if (open_ && Line().IsDead()) {
        throw PathError(PortName(setup_.number), EIO);
    }
}

}  // namespace tallyhut::sim
