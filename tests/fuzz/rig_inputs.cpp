#include "tests/fuzz/rig_inputs.h"

#include <cmath>

#include "rig/mode_plan.h"
#include "rig/rig_settings.h"
#include "rig/rig_table.h"
#include "values/format.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

bool CanBeShown(const RigReading& reading) {
    if (reading.frequency && (!std::isfinite(*reading.frequency) || FormatNumber(*reading.frequency, "#.0").empty())) {
        return false;
    }
    const bool modeIsKnown = !reading.mode || *reading.mode == kCw || *reading.mode == kPhone ||
                             *reading.mode == "AM" || *reading.mode == "FM";
    return modeIsKnown && reading.vfoDigit.value_or(0) <= 9;
}

bool DecodersTake(const RigRow& rig, const RigReply& reply) {
    const auto takes = [&reply](RigDecoder decoder) { return decoder == nullptr || CanBeShown(decoder(reply)); };
    return takes(rig.readFrequency) && takes(rig.readMode);
}

void Encode(const RigRow& rig, std::string_view text) {
    try {
        EncodeRequest(rig.request, text, true);
    } catch (const ValueError&) {
        // A text that is no row of pairs is refused: that is well.
    }
    try {
        float frequency = 14.2F;
        if (rig.frequencyCommand != nullptr) {
            rig.frequencyCommand({.frequency = frequency, .frequencyString = text, .vfoDigit = 1});
        }
        if (rig.modeCommand != nullptr) {
            rig.modeCommand({.mode = "CW", .frequencyString = text, .modeString = text});
        }
    } catch (const ValueError&) {
        // An address that is none.
    }
}

}  // namespace

bool TakesRigInput(std::string_view bytes) {
    const RigReply ofTheBytes{
        .rxBuffer = bytes, .frequencyString = bytes.substr(0, 2), .modeString = bytes.substr(0, 3)};
    for (const RigRow& rig : kRigs) {
        const RigReply ofTheRow{
            .rxBuffer = bytes, .frequencyString = rig.frequencyString, .modeString = rig.modeString};
        if (!DecodersTake(rig, ofTheRow) || !DecodersTake(rig, ofTheBytes)) {
            return false;
        }
        Encode(rig, bytes);
    }
    const RigRecord record = ReadRigRecord(bytes);
    ModeForFrequency(ModePlanOf(bytes), 14.2F);
    return ReadRigRecord(WriteRigRecord(record)) == record;
}

}  // namespace tallyhut
