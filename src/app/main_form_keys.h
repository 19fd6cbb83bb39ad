#pragma once

#include "keying/keying_part.h"
#include "log/log_part.h"
#include "rig/rig_part.h"
#include "spots/spots_part.h"
#include "views/views_part.h"
#include "voice/voice_part.h"

namespace tallyhut {

/// What the main form does with a key before its fields see it. Each such key is a row of one table.
struct MainFormKeys {
    LogPart& log;
    RigPart& rig;
    KeyingPart& keying;
    VoicePart& voice;
    SpotsPart& spots;
    ViewsPart& views;

    bool gCtrlKeyTaken = false;  ///< the press that goes with this key is swallowed

    /// Any key ends the repeat of a message.
    void EndRepeats();
    void Form_KeyDown(int& KeyCode, int Shift);
    void Form_KeyPress(int& KeyAscii);
};

}  // namespace tallyhut
