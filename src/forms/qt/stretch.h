#pragma once

#include <vector>

namespace tallyhut {

/// Where a control begins and ends in one direction of its form's design, and what it needs of it in the window.
struct Span {
    double begin = 0;  ///< design units
    double end = 0;
    double need = 0;  ///< pixels
};

/// One direction of a form's design, drawn in a window. The design is like a sheet of rubber: it is drawn out where a
/// control needs more room than its place gives, and what lies behind moves on. So what shares an edge in the design
/// shares it in the window, and controls that are apart stay apart.
class Stretch {
public:
    /// Where nothing needs more, distances are those of the design times the scale.
    Stretch(const std::vector<Span>& spans, double length, double scale);
    /// With the gaps of the design as wide as the room allows, down to a share of what they are in the design. The
    /// whole may be longer than the room even so.
    static Stretch Into(double room, const std::vector<Span>& spans, double length);

    /// Pixels from the begin of the window.
    double At(double design) const;
    /// Pixels of the whole design.
    double Whole() const { return At(length_); }

private:
    std::vector<double> edges_;   ///< of all spans, in ascending order, and 0 before them
    std::vector<double> pixels_;  ///< of the edges
    double length_;
    double scale_;
};

}  // namespace tallyhut
