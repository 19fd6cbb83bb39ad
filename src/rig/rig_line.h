#pragma once

#include "forms/Form1.h"
#include "rig/radio.h"

namespace tallyhut {

/// What the main form says of the radio, in lblRig: its frequency, or that it does not answer; nothing while no radio
/// is polled, and of one whose replies nobody can decode.
struct RigLine {
    static constexpr int kMissedPolls = 3;  ///< so many without a decoded reply: the radio is lost

    Form1& form1;
    const Radio& radio;

    /// Behind each poll, and when polling ends.
    void Show();

private:
    std::string Text() const;
};

}  // namespace tallyhut
