#include "spots/spot_labels.h"

#include <algorithm>
#include <cmath>

namespace tallyhut {
namespace {

constexpr double kBesideLine = 0.004;  ///< of a label's width
constexpr double kLeader = 0.3;        ///< the same, where a label does not stand at its mark

}  // namespace

std::vector<LabelPlace> PlacesAlong(const std::vector<double>& marks, double height, double first, double last,
                                    int mostColumns) {
    const int count = static_cast<int>(marks.size());
    const int fitting = static_cast<int>(std::max((last - first) / height, 0.0)) + 1;
    const int columns = std::clamp((count + fitting - 1) / fitting, 1, mostColumns);
    std::vector<LabelPlace> places(marks.size());
    for (int column = 0; column < columns; ++column) {
        std::vector<double> own;
        for (int i = column; i < count; i += columns) {
            own.push_back(marks[static_cast<std::size_t>(i)]);
        }
        const std::vector<double> centres = SpreadOut(own, height, first, last);
        for (std::size_t i = 0; i < centres.size(); ++i) {
            places[static_cast<std::size_t>(column) + i * static_cast<std::size_t>(columns)] = {column, centres[i]};
        }
    }
    return places;
}

void DrawSpot(Label& label, Line& leader, const Spot& spot, const AgeRow& age, const std::string& hint, double lineEnd,
              double mark, const LabelPlace& where) {
    Place place = label.State().place;
    const bool apart = where.column > 0 || where.centre != mark;
    place.left = lineEnd - place.width * (1 + kBesideLine + where.column + (apart ? kLeader : 0));
    place.top = where.centre - place.height / 2;
    label.SetToolTip(hint);
    label.SetCaption(spot.SpotPrefix);
    label.SetForeColor(age.colour);
    label.SetBold(age.bold);
    label.SetItalic(age.italic);
    label.SetPlace(place);
    label.SetVisible(true);
    leader.SetEnds(place.left + place.width, where.centre, lineEnd, mark);
    leader.SetVisible(apart);
}

}  // namespace tallyhut
