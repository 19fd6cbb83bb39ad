#pragma once

#include <memory>

#include "log/log_part.h"
#include "voice/phone_recording.h"
#include "voice/voice_prompts.h"
#include "voice/wave_selections.h"

namespace tallyhut {

/// Sound: the messages of a phone contest with their recording, and what is spoken to an operator who does not see the
/// screen.
struct VoicePart {
    VoicePart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log);

    PhoneFrm form;
    BlindFrm promptsForm;

    std::unique_ptr<SerialPort> commPhone;
    std::unique_ptr<WavePlayer> messagePlayer;
    std::unique_ptr<WavePlayer> promptPlayer;
    std::unique_ptr<WaveRecorder> recorder;
    KeyLine line;
    PhoneMessages messages;
    WaveSelections selections;
    PhoneRecording recording;
    VoicePrompts prompts;

    void AddTo(ToldNames& told) const;

private:
    void Bind(LogPart& log);
    void BindMessages();
    void BindOutput();
    void BindRecording();
    void BindPrompts(LogPart& log);
};

}  // namespace tallyhut
