#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "rig/rig_reply.h"
#include "values/format.h"

namespace tallyhut {

/// A reading as one line: frequency, mode and VFO, "-" for what the reply says nothing of.
inline std::string ReadingText(const RigReading& reading) {
    std::string text = reading.frequency ? FormatNumber(*reading.frequency, "###.####0") : "-";
    text += ' ';
    text += reading.mode ? *reading.mode : "-";
    text += ' ';
    text += reading.vfoDigit ? std::to_string(*reading.vfoDigit) : "-";
    return text;
}

struct ReplyCase {
    std::string rxBuffer;
    std::string_view reading;
};

inline void ExpectReadings(RigDecoder decoder, const std::vector<ReplyCase>& cases,
                           std::string_view frequencyString = "FA;", std::string_view modeString = "MD0;") {
    for (const ReplyCase& one : cases) {
        EXPECT_EQ(ReadingText(decoder(
                      {.rxBuffer = one.rxBuffer, .frequencyString = frequencyString, .modeString = modeString})),
                  one.reading)
            << testing::PrintToString(one.rxBuffer);
    }
}

}  // namespace tallyhut
