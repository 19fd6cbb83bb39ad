#pragma once

#include <string>

#include "toolkit/desk.h"
#include "voice/phone_messages.h"

namespace tallyhut {

/// Records the messages of the keys from the default input into the working directory, F1.wav to F9.wav. A file that
/// stands there is recorded over only after a question, and stays as it is until the recording is stopped.
struct PhoneRecording {
    PhoneFrm& form;
    PhoneMessages& messages;
    WaveRecorder& recorder;
    const Files& files;
    const Directories& directories;
    Desk& desk;

    int recorded = 0;       ///< the key that is being recorded, or whose recording could not be kept yet; 0 for none
    double peak = 0;        ///< greatest level of the recording
    std::string last = {};  ///< path of the newest recording

    /// @param key  1 for F1 to 9 for F9
    void cmdRecord_Click(int key);
    /// Keeps what was recorded, and names it in the key's field.
    void cmdStopRecord_Click();
    /// Plays what was recorded last, into the loudspeaker alone.
    void cmdPlayBack_Click();
    void tmrLevel_Elapsed();
    /// Esc stops a recording, and nothing else then.
    void PhoneFrm_KeyPress(int& KeyAscii);
    /// Keeps what was recorded if something is being recorded.
    void Stop();

private:
    bool MayReplace(const std::string& path, const std::string& name) const;
    void Begin(int key);
    void Keep();
    void ShowLevel(double level);
    void Tell(std::string_view words);
};

}  // namespace tallyhut
