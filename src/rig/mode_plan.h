#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "values/band_plan.h"

namespace tallyhut {

/// The segments by which a mode is chosen for a frequency: those of class "E", the widest privileges, so that the mode
/// does not depend on the operator's licence. At most 200; records beyond are ignored.
///
/// Reads the text of BandPlan.txt; a damaged line of it is left out.
std::vector<BandPlanRow> ModePlanOf(std::string_view text);

/// The mode to set on a frequency in MHz: the first segment that has it strictly inside. Empty where there is none, and
/// on 160 metres.
std::string ModeForFrequency(const std::vector<BandPlanRow>& plan, float Frequency);

}  // namespace tallyhut
