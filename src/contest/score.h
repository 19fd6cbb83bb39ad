#pragma once

#include <cstdint>

namespace tallyhut {

/// Points of the contest: two for each contact, times the sections worked.
std::int32_t Score(int sectionsWorked, std::int32_t contacts);

/// The same as an entry claims it; throws ValueError beyond 32 bits.
std::int32_t ClaimedScore(std::int32_t contacts, int sectionsWorked);

}  // namespace tallyhut
