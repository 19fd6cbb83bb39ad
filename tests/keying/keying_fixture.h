#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "keying/morse_table.h"
#include "tests/log/program_fixture.h"

namespace tallyhut {

inline constexpr const char* kMessagesPath = "/contest/CW.txt";

inline constexpr const char* kInvalidKeyingPort =
    "message \"Invalid port.\" \"The port you have selected for CW keying is invalid.  Please select another or enter "
    "0 "
    "for none.\" OK Exclamation";

/// The whole program with a key line on port 1 that writes down what it is told.
struct KeyingFixture : ProgramFixture {
    static constexpr Microtick kUnitUs = 60'000;  ///< at 20 WPM

    struct Edge {
        Microtick at = 0;
        int port = 0;
        sim::ControlLine line = sim::ControlLine::Dtr;
        bool on = false;
    };
    std::vector<Edge> edges;
    Microtick from = 0;  ///< since when Keyed tells

    KeyingFixture() {
        serialPorts.onLevel = [this](int port, sim::ControlLine line, bool on) {
            edges.push_back({clock.TickUs(), port, line, on});
        };
    }

    /// The ports tell of the program's end, too.
    void TearDown() override { program.reset(); }

    CWFrm& Cw() { return program->keyingPart.form; }
    frmCWStrings& Strings() { return program->keyingPart.stringsForm; }
    MorseSender& Sender() { return program->keyingPart.sender; }
    CwMessages& Messages() { return program->keyingPart.messages; }
    KeyLine& Key() { return program->keyingPart.line; }

    /// In a CW contest, with RTS of port 1 at 20 WPM.
    void StartKeying() {
        StartOnTime();
        Choose(Cw().Option1);
        Cw().Text10.SetText("1");
        Cw().Text11.SetText("20");
        Listen();
    }
    static void Choose(Option& option) { option.SetValue(true); }
    void Listen() {
        edges.clear();
        from = clock.TickUs();
    }
    void Send(std::string_view text) {
        Sender().gCWBuffer = text;
        Sender().LoopThroughCWBuffer();
    }
    void SendAnew(std::string_view text) {
        Listen();
        Send(text);
    }
    /// Runs between two characters, behind the nth from now; for what a key press sends.
    void Behind(int character, std::function<void()> script) { pump.OnCollect(character + 1, std::move(script)); }

    /// What one line has done since Listen, one digit a unit, up to now.
    std::string Keyed(sim::ControlLine line = sim::ControlLine::Rts) const {
        std::string digits;
        bool isDown = false;
        const auto fill = [&](Microtick until) {
            const auto units = static_cast<std::size_t>((until - from + kUnitUs / 2) / kUnitUs);
            digits.append(units > digits.size() ? units - digits.size() : 0, isDown ? '1' : '0');
        };
        for (const Edge& edge : edges) {
            if (edge.line == line) {
                fill(edge.at);
                isDown = edge.on;
            }
        }
        fill(clock.TickUs());
        return digits;
    }
    bool IsKeyDown() const {
        bool rts = false;
        bool dtr = false;
        for (const Edge& edge : edges) {
            (edge.line == sim::ControlLine::Rts ? rts : dtr) = edge.on;
        }
        return rts || dtr;
    }
    double UnitsPassed() const { return static_cast<double>(clock.TickUs() - from) / kUnitUs; }

    static std::string Elements(std::string_view text) {
        std::string digits;
        for (const char character : text) {
            digits += ElementString(character);
        }
        return digits;
    }
    std::string OnDisk(const std::string& path) const {
        return files.contents.contains(path) ? files.contents.at(path) : "";
    }
};

}  // namespace tallyhut
