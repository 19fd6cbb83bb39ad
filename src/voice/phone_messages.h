#pragma once

#include <cstdint>

#include "forms/PhoneFrm.h"
#include "keying/key_line.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/sound.h"
#include "support/directories.h"

namespace tallyhut {

/// The messages of the function keys in a phone contest: a key plays its wave file into the transmitter, which is keyed
/// from before the first sample until a moment after the last. No line stays down while nothing plays, whatever fails.
struct PhoneMessages {
    PhoneFrm& form;
    KeyLine& line;
    WavePlayer& player;
    const Files& files;
    const Directories& directories;
    Dialogs& dialogs;

    std::uint8_t gPhoneRepeat = 0;  ///< 1 while the message of F1 repeats

    /// Plays the message of F1 to F9, by the key's code; any other code does nothing. What was playing stops. What
    /// fails ends it without a word, with the transmitter let go.
    void FKeyPhone(int KeyCode);
    /// Opens the port that the form names, if it names one. A failure is told in a box, and the form shown where it is
    /// hidden.
    void PhoneSetup();

    // The main form's keys.
    /// Any key ends the repeat and lets what is playing finish.
    void EndRepeat();
    /// What Esc does to a message; false where nothing is playing.
    bool StopsAtEsc();

    void Timer1_Elapsed();
    void tmrRepeat_Elapsed();
    /// Lets the transmitter go where nothing plays any more; for waits in which no timer runs.
    void LetGoWhenOver();
    /// A message is playing.
    bool IsOnTheAir() const { return player.Mode() == WavePlayer::kPlaying; }
    /// Nothing is played or keyed any more, at once.
    void Silence();
    /// The path of a key's file; empty where it has none.
    std::string PathOf(const PhoneKey& key) const;

private:
    void PutDown();
    void LetGo();
};

}  // namespace tallyhut
