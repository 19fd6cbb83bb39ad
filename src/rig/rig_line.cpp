#include "rig/rig_line.h"

#include <string_view>

#include "toolkit/desk.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr std::string_view kNoAnswer = "Radio: no answer";

}  // namespace

void RigLine::Show() {
    const std::string text = Text();
    if (text == kNoAnswer && form1.lblRig.Caption() != kNoAnswer) {
        form1.desk.Announce(kNoAnswer);
    }
    form1.lblRig.SetCaption(text);
    looked();
}

std::optional<float> RigLine::Frequency() const {
    const RigState& state = radio.state;
    const bool isKnown = state.polls && !state.lost && state.frequencyHeard;
    return isKnown && state.RigFrequency > 0 ? std::optional{state.RigFrequency} : std::nullopt;
}

std::string RigLine::Text() const {
    if (radio.state.polls && radio.state.lost) {
        return std::string{kNoAnswer};
    }
    const std::optional<float> frequency = Frequency();
    return frequency ? FormatNumber(*frequency, "#.0000") : "";
}

}  // namespace tallyhut
