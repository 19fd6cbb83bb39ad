#include "rig/rig_line.h"

#include <string_view>

#include "toolkit/desk.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr std::string_view kNoAnswer = "Radio: no answer";

bool IsDecoded(const RigRow& rig) {
    return rig.link == RigLink::Files || rig.readFrequency != nullptr || rig.readMode != nullptr;
}

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
    const bool answers = state.polls && IsDecoded(radio.Row()) && state.missedPolls < kMissedPolls && state.answered;
    return answers && state.RigFrequency > 0 ? std::optional{state.RigFrequency} : std::nullopt;
}

std::string RigLine::Text() const {
    const RigState& state = radio.state;
    if (state.polls && IsDecoded(radio.Row()) && state.missedPolls >= kMissedPolls) {
        return std::string{kNoAnswer};
    }
    const std::optional<float> frequency = Frequency();
    return frequency ? FormatNumber(*frequency, "#.0000") : "";
}

}  // namespace tallyhut
