#include "rig/rig_line.h"

#include "values/format.h"

namespace tallyhut {
namespace {

bool IsDecoded(const RigRow& rig) {
    return rig.link == RigLink::Files || rig.readFrequency != nullptr || rig.readMode != nullptr;
}

}  // namespace

void RigLine::Show() {
    form1.lblRig.SetCaption(Text());
}

std::string RigLine::Text() const {
    const RigState& state = radio.state;
    if (!state.polls || !IsDecoded(radio.Row())) {
        return "";
    }
    if (state.missedPolls >= kMissedPolls) {
        return "Radio: no answer";
    }
    return state.answered && state.RigFrequency > 0 ? FormatNumber(state.RigFrequency, "#.0000") : "";
}

}  // namespace tallyhut
