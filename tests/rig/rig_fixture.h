#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tests/log/program_fixture.h"
#include "values/format.h"
#include "values/hex.h"

namespace tallyhut {

inline constexpr const char* kRigSettingsPath = "/contest/RigCntrl.txt";
inline constexpr Tick kMediumTick = 250;  ///< of the poll, at the rate that the form begins with

/// The whole program with a simulated radio's cable on port 1.
struct RigFixture : ProgramFixture {
    RigFixture() {
        files.Put(
            "/contest/BandPlan.txt",
            "\"now\"\r\n\"160\",\"E\",\"CW\",1.8,2\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n\"80\",\"E\",\"PH\",3.6,4\r\n"
            "\"40\",\"E\",\"CW\",7,7.125\r\n\"40\",\"E\",\"PH\",7.125,7.3\r\n\"20\",\"E\",\"CW\",14,14.15\r\n"
            "\"20\",\"E\",\"PH\",14.15,14.35\r\n");
    }

    RigControlfrm& Rig() { return program->rigForm; }
    RigState& State() { return program->rigState; }
    sim::SerialLine& Line(int number = 1) { return serialPorts.Line(number); }

    void PickRig(std::string_view name) {
        Rig().Show();
        const std::vector<std::string>& rigs = Rig().List1.Items();
        const auto row = std::ranges::find(rigs, name);
        ASSERT_NE(row, rigs.end()) << name;
        TheDesk().PostRowClick(Rig().List1, static_cast<int>(row - rigs.begin()), kLeftButton);
        TheDesk().RunPending();
    }
    /// Starts the program and polls a radio; its first request has gone out, and the next tick reads.
    void StartPolling(std::string_view name) {
        Start();
        PickRig(name);
        Click(Rig().Command1);
    }
    void NextTick(int times = 1) {
        for (int i = 0; i < times; ++i) {
            PassTime(static_cast<Tick>(Rig().tmrGetData.Interval()));
        }
    }
    /// A reply comes whole and is read.
    void ReplyAndRead(std::string_view bytes) {
        Line().Receive(bytes);
        NextTick();
    }
    std::string SentHex() { return BytesToHexText(Line().TakeSent()); }
    std::string FrequencyRead() { return FormatNumber(State().RigFrequency, "###.####0"); }

    /// Begins a command; its pauses have yet to pass.
    void AskFrequency(float frequency) { program->rigCommands.ChangeFrequency(frequency); }
    void AskMode(std::string mode, float frequency = 0) { program->rigCommands.ChangeMode(frequency, mode); }
    /// To the next timer, or to the tick before it.
    void RunTo(Tick end) {
        clock.AdvanceTo(std::min(TheDesk().NextDue().value_or(end), end));
        TheDesk().RunPending();
    }
    /// Every timer runs at its own moment.
    void LetTimeGoBy(Tick milliseconds) {
        const Tick end = clock.TickMs() + milliseconds;
        do {
            RunTo(end);
        } while (clock.TickMs() < end);
    }
    void FinishCommands() {
        while (State().commanding) {
            RunTo(*TheDesk().NextDue());
        }
    }
    void ChangeFrequency(float frequency) {
        AskFrequency(frequency);
        FinishCommands();
    }
    void ChangeMode(std::string mode) {
        AskMode(std::move(mode));
        FinishCommands();
    }
    /// What is written from now on, one line a call: the milliseconds that have passed, and the bytes as pairs.
    std::vector<std::string> WrittenDuring(const std::function<void()>& step) {
        const std::size_t before = Line().written.size();
        const Tick start = clock.TickMs();
        step();
        std::vector<std::string> lines;
        for (std::size_t i = before; i < Line().written.size(); ++i) {
            lines.push_back(std::to_string(Line().written[i].at - start) + ' ' +
                            BytesToHexText(Line().written[i].bytes));
        }
        return lines;
    }
    std::string RigSettingsOnDisk() {
        return files.contents.contains(kRigSettingsPath) ? files.contents.at(kRigSettingsPath) : "";
    }
};

}  // namespace tallyhut
