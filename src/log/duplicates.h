#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "log/operating_time.h"
#include "log/prompts.h"

namespace tallyhut {

/// The two checks of a call sign against the log: the whole call when it is left or committed, its beginning while it
/// is typed. A call counts once in the whole contest, whatever the band.
struct Duplicates {
    Panel& panel;
    const Contest& contest;
    const OperatingTime& time;
    Prompts& prompts;

    /// What is typed is the keyer's and reaches no field.
    std::function<bool()> typingIsSent = [] { return false; };

    std::uint8_t gIsDupe = 0;     ///< 1 while a duplicate is being reported
    DateTime gDupeAt = {};        ///< local time at which gIsDupe was set
    Tick redLineUntil = 0;        ///< of that duplicate
    std::uint8_t gPartialOn = 1;  ///< not kept from run to run

    /// A duplicate is told and the entry is thrown away.
    void dupcheck();
    /// Lists the logged calls that begin with the text of txtCall and the key that is on its way there.
    void ShowPartials(int KeyAscii);
    /// The wait itself is the gate below: the key that ends it has been held back until the red line had its time.
    void WaitDupeDelay() { gIsDupe = 0; }
    void cmdDup_Click();

    /// Until when the number and the call field hold a key back; nothing for a key that passes.
    std::optional<Tick> HoldsKey(const Key& key) const;

private:
    void Report(std::int32_t row);
};

}  // namespace tallyhut
