#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/wave_format.h"
#include "tests/log/program_fixture.h"

namespace tallyhut {

inline constexpr const char* kInvalidPhonePort =
    "message \"Invalid port.\" \"The port you have selected for Phone keying is invalid.  Please select another or "
    "enter 0 for none.\" OK Exclamation";

/// The whole program in a phone contest, with messages on F1 to F3, and all that goes to the machine written down in
/// its order.
struct VoiceFixture : ProgramFixture {
    using Lines = std::vector<std::string>;

    Lines events;  ///< "PhoneFrm play F1.wav", "RTS 1 on", "out 890 3", since the last look

    VoiceFixture() {
        stored.gContestMode = 1;
        sound.onCommand = [this](const sim::Sound::Command& command) {
            events.push_back(command.player + ' ' + command.command + ' ' +
                             command.file.substr(command.file.rfind('/') + 1));
        };
        serialPorts.onLevel = [this](int port, sim::ControlLine line, bool on) {
            events.push_back((line == sim::ControlLine::Dtr ? "DTR " : "RTS ") + std::to_string(port) +
                             (on ? " on" : " off"));
        };
        parallelPorts.onOut = [this](int address, unsigned char value) {
            events.push_back("out " + std::to_string(address) + ' ' + std::to_string(value));
        };
    }

    /// The ports tell of the program's end, too.
    void TearDown() override { program.reset(); }

    PhoneFrm& Phone() { return program->voicePart.form; }
    BlindFrm& Blind() { return program->voicePart.promptsForm; }
    PhoneMessages& Messages() { return program->voicePart.messages; }

    /// A wave file of silence that lasts so long.
    void PutWave(const std::string& path, int milliseconds) {
        constexpr int kRate = 8'000;
        const auto samples = static_cast<std::size_t>(milliseconds) * kRate / 1'000;
        files.Put(path, WaveFile(kRate, std::string(2 * samples, '\0')));
    }
    /// F1 lasts 3 seconds, F2 one, F3 half of one; F4 has no file.
    void StartPhone() {
        PutWave("/contest/F1.wav", 3'000);
        PutWave("/contest/F2.wav", 1'000);
        PutWave("/contest/F3.wav", 500);
        StartOnTime();
        Phone().Text1.SetText("/contest/F1.wav");
        Phone().Text2.SetText("/contest/F2.wav");
        Phone().Text3.SetText("/contest/F3.wav");
        events.clear();
    }
    /// The same with RTS of port 1.
    void StartKeyed() {
        StartPhone();
        Phone().Text10.SetText("1");
    }
    /// Runs what is due on the way, millisecond by millisecond.
    void Pass(int milliseconds) {
        for (int i = 0; i < milliseconds; ++i) {
            PassTime(1);
        }
    }
    Lines Taken() { return std::exchange(events, {}); }
    bool IsPlaying() { return program->voicePart.messagePlayer->Mode() == WavePlayer::kPlaying; }
    bool IsKeyDown() {
        return program->voicePart.line.dtrIsDown || program->voicePart.line.rtsIsDown ||
               program->voicePart.line.registerDown.has_value();
    }
};

}  // namespace tallyhut
