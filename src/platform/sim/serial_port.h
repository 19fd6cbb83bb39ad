#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/serial_port.h"
#include "platform/serial_settings.h"

namespace tallyhut::sim {

enum class ControlLine { Dtr, Rts };

/// The cable of one port number and what hangs on it: records what the program does, whichever object does it, and
/// plays what a test arranges. The record holds the latest, as many as kKept at least and twice that at most, so that a
/// console that runs for days does not grow.
struct SerialLine {
    explicit SerialLine(const tallyhut::Clock& machineClock) : clock{machineClock} {}

    const tallyhut::Clock& clock;

    static constexpr std::size_t kKept = 4'096;

    // What the program has done.
    bool isOpen = false;
    SerialSettings settings = {};  ///< of the present opening, else of the last
    Handshake handshake = Handshake::None;
    std::optional<bool> dtr = {};  ///< as the program has set it since the opening or before; nothing if it never did
    std::optional<bool> rts = {};
    struct Written {
        Tick at = 0;
        std::string bytes;  ///< of one call

        bool operator==(const Written&) const = default;
    };
    std::vector<Written> written;
    struct Level {
        Microtick at = 0;
        ControlLine line = ControlLine::Dtr;
        bool on = false;

        bool operator==(const Level&) const = default;
    };
    std::vector<Level> levels;  ///< each change while open, and at an opening what was set before

    /// All bytes written since the last call that are still kept.
    std::string TakeSent();

    // What a test arranges.
    int outputCount = 0;   ///< bytes that have not left the machine; 0 again when the port is closed
    bool holding = false;  ///< what is written stays in the output count
    std::string refusal;   ///< while it is not empty an opening fails with this reason

    /// Bytes arrive now. What arrives at a closed port or a pulled cable is lost, as on a real one.
    void Receive(std::string_view bytes);
    /// From now on, whenever the request has been written, in one call or in many, the reply arrives so much later.
    /// Replaces what was arranged for the same request; an empty reply ends it.
    void Reply(const std::string& request, const std::string& reply, Tick after = 0);
    /// Stops holding, and what was held has left.
    void LetGo();
    /// Every operation fails until the cable is plugged in and the port is opened anew.
    void Unplug();
    void Plug() { plugged_ = true; }

private:
    friend struct SerialPort;

    struct CannedReply {
        std::string reply;
        Tick after = 0;
        std::string seen = {};  ///< the last bytes written that may begin the request
    };
    struct Arrival {
        Tick at = 0;
        std::string bytes;
    };

    void Open(const SerialSetup& setup);
    void Close();
    void Take(std::string_view bytes);
    void Record(Written bytes);
    void Record(Level level);
    std::string Deliver();
    bool IsDead() const { return !plugged_ || hungUp_; }

    bool plugged_ = true;
    bool hungUp_ = false;  ///< the cable was pulled since the opening
    std::size_t taken_ = 0;
    std::map<std::string, CannedReply> replies_;  // by request
    std::vector<Arrival> arrivals_;               // in order of their moments
};

/// The simulated lines. Number 1 is the same line for every port that is opened with it.
struct SerialPorts : tallyhut::SerialPorts {
    explicit SerialPorts(const tallyhut::Clock& clock);

    std::unique_ptr<tallyhut::SerialPort> NewPort() override;
    PortMeaning MeaningOf(int number) const override;
    std::vector<SerialDevice> Devices() const override { return devices; }
    void Choose(int number, const std::string& path) override;

    SerialLine& Line(int number) { return lines_.at(static_cast<std::size_t>(number - kFirstPort)); }

    std::vector<SerialDevice> devices;       ///< found on the machine
    std::map<int, std::string> commandLine;  ///< paths named at the start, by number
    std::map<int, std::string> choices;      ///< the operator's, by number
    std::string choiceFailure;               ///< while it is not empty Choose fails with it and changes nothing

    // Told as it happens.
    std::function<void(int number, const SerialLine& line)> onPort = [](int, const SerialLine&) {};  ///< opened, closed
    std::function<void(int number, std::string_view bytes)> onWrite = [](int, std::string_view) {};
    std::function<void(int number, ControlLine line, bool on)> onLevel = [](int, ControlLine, bool) {};

private:
    std::vector<SerialLine> lines_;
};

/// A port on the simulated lines. What a test looks at is the line of its number.
struct SerialPort : tallyhut::SerialPort {
    explicit SerialPort(SerialPorts& ports) : ports_{ports} {}
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;
    SerialPort(SerialPort&&) = delete;
    SerialPort& operator=(SerialPort&&) = delete;
    ~SerialPort() override { Release(); }

    void SetNumber(int number) override;
    void SetSettings(const std::string& settings) override;
    void SetHandshake(Handshake handshake) override;
    void SetDtr(bool on) override { SetLevel(ControlLine::Dtr, on); }
    void SetRts(bool on) override { SetLevel(ControlLine::Rts, on); }
    void Open() override;
    void Close() override { Release(); }
    bool IsOpen() const override { return open_; }
    int OutputCount() const override;
    void Write(std::string_view bytes) override;
    std::string ReadAll() override;

    SerialLine& Line() const { return ports_.Line(setup_.number); }
    std::string TakeSent() const { return Line().TakeSent(); }
    void Receive(std::string_view bytes) const { Line().Receive(bytes); }

private:
    void SetLevel(ControlLine line, bool on);
    /// Throws for an open port whose cable has been pulled.
    void CheckAlive() const;
    void Release();

    SerialPorts& ports_;
    SerialSetup setup_;
    bool open_ = false;
};

}  // namespace tallyhut::sim
