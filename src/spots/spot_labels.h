#pragma once

#include <vector>

#include "spots/map_scale.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// Where a label stands beside a line.
struct LabelPlace {
    int column;  ///< 0 beside the line, 1 beside that, and on
    double centre;
};

/// Places for labels of one height, so that none lies on another: what does not fit below each other stands in columns
/// side by side, in as few as it takes and at most so many.
///
/// @param marks  where they would be, ascending
std::vector<LabelPlace> PlacesAlong(const std::vector<double>& marks, double height, double first, double last,
                                    int mostColumns);

/// Shows the spot on a label of a map, by its age, and the leader where the label does not stand at its mark.
void DrawSpot(Label& label, Line& leader, const Spot& spot, const AgeRow& age, const std::string& hint, double lineEnd,
              double mark, const LabelPlace& where);

}  // namespace tallyhut
