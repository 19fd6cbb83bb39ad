#pragma once

#include <array>
#include <string_view>

#include "rig/rig_reply.h"

namespace tallyhut {

/// A part of a band where one mode is usual; in MHz, the limits themselves belong to neither side.
struct ModeSegment {
    float above;
    float below;
    std::string_view mode;
};

/// In the order of testing. 160 metres has no row: no mode is derived there, and no mode command sent.
inline constexpr std::array<ModeSegment, 19> kModeSegments{{
    {3.5F, 3.6F, kCw},         {3.6F, 4.0F, kPhone},  {7.0F, 7.125F, kCw},      {7.125F, 7.3F, kPhone},
    {10.1F, 10.15F, kCw},      {14.0F, 14.15F, kCw},  {14.15F, 14.35F, kPhone}, {18.068F, 18.11F, kCw},
    {18.11F, 18.168F, kPhone}, {21.0F, 21.2F, kCw},   {21.2F, 21.45F, kPhone},  {24.89F, 24.93F, kCw},
    {24.93F, 24.99F, kPhone},  {28.0F, 28.3F, kCw},   {28.3F, 29.7F, kPhone},   {50.0F, 50.1F, kCw},
    {50.1F, 54.0F, kPhone},    {144.0F, 144.1F, kCw}, {144.1F, 148.0F, kPhone},
}};

/// Empty outside of all segments.
constexpr std::string_view SegmentMode(float frequency) {
    for (const ModeSegment& segment : kModeSegments) {
        if (frequency > segment.above && frequency < segment.below) {
            return segment.mode;
        }
    }
    return {};
}

}  // namespace tallyhut
