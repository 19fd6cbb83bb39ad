#include "forms/qt/stretch.h"

#include <algorithm>

namespace tallyhut {
namespace {

/// What remains of the design's gaps before the text has to become smaller.
constexpr double kLeastGaps = 0.55;
constexpr int kHalvings = 10;

}  // namespace

Stretch::Stretch(const std::vector<Span>& spans, double length, double scale)
    : edges_{0}, length_{length}, scale_{scale} {
    for (const Span& span : spans) {
        edges_.push_back(std::max(span.begin, 0.0));
        edges_.push_back(std::max(span.end, 0.0));
    }
    std::ranges::sort(edges_);
    edges_.erase(std::unique(edges_.begin(), edges_.end()), edges_.end());
    std::vector<Span> byEnd = spans;
    std::ranges::sort(byEnd, {}, &Span::end);
    auto span = byEnd.begin();
    for (std::size_t i = 0; i < edges_.size(); ++i) {
        double at = i == 0 ? 0 : pixels_.back() + (edges_[i] - edges_[i - 1]) * scale;
        for (; span != byEnd.end() && span->end <= edges_[i]; ++span) {
            if (span->begin < span->end) {
                at = std::max(at, At(std::max(span->begin, 0.0)) + span->need);
            }
        }
        pixels_.push_back(at);
    }
}

Stretch Stretch::Into(double room, const std::vector<Span>& spans, double length) {
    double most = room / length;
    Stretch wanted{spans, length, most};
    if (wanted.Whole() <= room) {
        return wanted;
    }
    double least = most * kLeastGaps;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (least + most) / 2;
        (Stretch{spans, length, middle}.Whole() <= room ? least : most) = middle;
    }
    return {spans, length, least};
}

double Stretch::At(double design) const {
    const auto behind = std::ranges::upper_bound(edges_, design);
    const auto i = static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - edges_.begin() - 1, 0));
    const double beyond = design - edges_[i];
    if (i + 1 >= pixels_.size()) {
        return pixels_[std::min(i, pixels_.size() - 1)] + beyond * scale_;
    }
    return pixels_[i] + beyond / (edges_[i + 1] - edges_[i]) * (pixels_[i + 1] - pixels_[i]);
}

}  // namespace tallyhut
