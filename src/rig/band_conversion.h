#pragma once

#include <string>

#include "contest/contact_log.h"
#include "log/band_selection.h"

namespace tallyhut {

/// What the main form does with the radio's readings: the band follows, and the next contact bears the frequency.
struct BandConversion {
    BandSelection& band;
    ContactLog& log;

    /// MHz. A frequency outside the contest bands changes no band, but is the next contact's all the same. May throw
    /// PlatformError when the band cannot be saved.
    void BandFreqConversion(const float& Frequency);
    /// The next contact bears no frequency.
    void ForgetFrequency() { log.gFrq.clear(); }
    /// Nothing in the log depends on the radio's mode: it is shown on the form, and goes no further.
    void ModeSelection(const std::string& /*Mode*/) {}
};

}  // namespace tallyhut
