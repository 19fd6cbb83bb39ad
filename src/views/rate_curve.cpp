#include "views/rate_curve.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "forms/GraphQSO.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::int64_t kWindow = 600;  ///< seconds
constexpr int kWindowsAnHour = 6;
constexpr int kFarthestGap = 15;  ///< positions
constexpr int kMeanOver = 7;

std::size_t At(int position) {
    return static_cast<std::size_t>(position);
}

ContactMoment MomentOf(const ContactLog& log, std::int32_t row, int presentYear) {
    const std::optional<ContactMoment> moment = MomentAsFarAsWritten(log, row, presentYear);
    if (!moment) {
        throw ValueError{"Record " + PlainText(row) + " has no date and time that can be read."};
    }
    return *moment;
}

/// The moments seen so far, in order, so that those of a window are counted without a walk over all of them.
struct Moments {
    std::vector<std::int64_t> seconds;

    void Add(std::int64_t moment) { seconds.insert(std::ranges::upper_bound(seconds, moment), moment); }
    /// Also those behind the moment, where contacts stand in no order.
    std::ptrdiff_t LaterThan(std::int64_t moment) const {
        return seconds.end() - std::ranges::upper_bound(seconds, moment);
    }
};

}  // namespace

DateTime RateCurve::MomentAt(double share) const {
    return AddSeconds(start, std::llround(static_cast<double>(span) * share));
}

double RateCurve::PositionOf(std::int64_t seconds) const {
    if (span == 0) {
        return 1;
    }
    return RoundHalfEven(static_cast<double>(seconds) * kPositions / static_cast<double>(span));
}

Colour RateCurve::ColourAt(int position) const {
    while (position > 1 && RateColor.at(At(position)) == 0) {
        --position;
    }
    return RateColor.at(At(position));
}

RateCurve CurveOver(const ContactLog& log, int presentYear) {
    RateCurve curve;
    const ContactMoment start = MomentOf(log, 1, presentYear);
    curve.start = AddSeconds({}, start);
    curve.span = MomentOf(log, log.gContactCount(), presentYear) - start;
    return curve;
}

void TakeRates(RateCurve& curve, const ContactLog& log, int presentYear) {
    const ContactMoment start = SecondsBetween({}, curve.start);
    Moments moments;
    Colour colour = kGraphBands.front().colour;
    for (std::int32_t row = 1; row <= log.gContactCount(); ++row) {
        const std::int64_t moment = MomentOf(log, row, presentYear) - start;
        moments.Add(moment);
        const auto* const band = std::ranges::find(kGraphBands, log.Row(row).Bnd, &GraphBand::caption);
        colour = band == kGraphBands.end() ? colour : band->colour;
        const double position = row == 1 ? 1 : curve.PositionOf(moment);
        if (position >= 0 && position < static_cast<double>(RateCurve::kEntries)) {
            const std::size_t at = At(static_cast<int>(position));
            curve.RateRaw.at(at) = static_cast<float>(moments.LaterThan(moment - kWindow) * kWindowsAnHour);
            curve.RateColor.at(at) = colour;
        }
    }
}

void FillGaps(RateCurve& curve) {
    for (int i = 1; i <= RateCurve::kPositions; ++i) {
        float* const here = curve.RateRaw.data() + i;
        if (*here == 0) {
            const float* const ahead =
                std::find_if(here + 1, here + 1 + kFarthestGap, [](float rate) { return rate > 0; });
            if (ahead == here + 1 + kFarthestGap) {
                continue;
            }
            const float before = *(here - 1);
            const float step = (*ahead - before) / static_cast<float>(ahead - here + 1);
            for (float* gap = here; gap != ahead; ++gap) {
                *gap = before + step * static_cast<float>(gap - here + 1);
            }
        }
        curve.RateSmooth.at(At(i)) = *here;
    }
}

void Average(RateCurve& curve) {
    for (int i = kMeanOver; i <= RateCurve::kPositions; ++i) {
        const float* const last = curve.RateRaw.data() + i + 1;
        const float* const first = last - kMeanOver;
        const auto count = std::count_if(first, last, [](float rate) { return rate > 0; });
        if (count > 0) {
            curve.RateSmooth.at(At(i)) = std::accumulate(first, last, 0.0F) / static_cast<float>(count);
        }
    }
}

void FindBounds(RateCurve& curve) {
    const auto [least, most] =
        std::minmax_element(curve.RateSmooth.begin() + 1, curve.RateSmooth.begin() + 1 + RateCurve::kPositions);
    curve.RateMin = *least;
    curve.RateMax = *most;
}

}  // namespace tallyhut
