#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// A segment of a band that a class of licence may use; frequencies in MHz.
struct BandPlanRow {
    std::string Band;
    std::string Class;  ///< a letter; "O" with Mode "O" for the whole band
    std::string Mode;
    float Low = 0;
    float High = 0;

    bool operator==(const BandPlanRow&) const = default;
};

struct BandPlan {
    std::string effective;  ///< since when the frequencies hold, as the file words it
    std::vector<BandPlanRow> rows = {};
    bool damaged = false;  ///< a line was passed over
};

/// Reads the text of BandPlan.txt: the date, then records of five fields, taken field by field. A line with a damaged
/// record is passed over: a field that cannot be taken or is no number, or a record that takes the first fields of the
/// next line. Throws ValueError when there is no date.
BandPlan ReadBandPlan(std::string_view text);

}  // namespace tallyhut
