#pragma once

#include <functional>
#include <optional>

#include "forms/Form1.h"
#include "rig/radio.h"

namespace tallyhut {

/// What the main form says of the radio, in lblRig: its frequency, or that it is lost; nothing while no radio is
/// polled, and of one whose replies nobody can decode.
struct RigLine {
    Form1& form1;
    const Radio& radio;

    /// The radio may have been heard, or lost.
    std::function<void()> looked = [] {};

    /// Behind each poll, and when polling ends. A radio that is lost is announced, once each time.
    void Show();

    /// MHz, of a radio that is polled and answers.
    std::optional<float> Frequency() const;

private:
    std::string Text() const;
};

}  // namespace tallyhut
