#include "views/section_outlines.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr Colour kBlack = FromRgb(0, 0, 0);
constexpr Colour kWhite = FromRgb(255, 255, 255);

/// One line of the file, taken word by word.
class MapLine {
public:
    explicit MapLine(std::string_view line) : whole_{line}, rest_{line} {}

    bool AtEnd() {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
        return rest_.empty();
    }
    std::string_view Word() {
        if (AtEnd()) {
            Refuse();
        }
        const std::string_view word = rest_.substr(0, rest_.find(' '));
        rest_.remove_prefix(word.size());
        return word;
    }
    int Number() {
        const std::string_view word = Word();
        int number = 0;
        const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), number);
        if (failure != std::errc{} || end != word.data() + word.size()) {
            Refuse();
        }
        return number;
    }
    Point Pair() {
        const int x = Number();
        const int y = Number();
        return {static_cast<double>(x), static_cast<double>(y)};
    }
    std::string Rest() { return AtEnd() ? std::string{} : std::string{rest_}; }
    [[noreturn]] void Refuse() const {
        throw ValueError{"The section map has a line that is damaged: " + std::string{whole_.substr(0, 60)}};
    }

private:
    std::string_view whole_;
    std::string_view rest_;
};

/// The first point, then the way to each next one.
Path TakeRing(MapLine& line) {
    Path ring;
    Point at;
    while (!line.AtEnd()) {
        const Point step = line.Pair();
        at = {at.x + step.x, at.y + step.y};
        ring.push_back(at);
    }
    if (ring.size() < 3) {
        line.Refuse();
    }
    return ring;
}

bool IsInside(const Path& ring, const Point& at) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point& one = ring[i];
        const Point& other = ring[(i + 1) % ring.size()];
        if ((one.y > at.y) != (other.y > at.y) &&
            at.x < one.x + (other.x - one.x) * (at.y - one.y) / (other.y - one.y)) {
            inside = !inside;
        }
    }
    return inside;
}

/// Parted by slashes.
std::vector<std::string> CodesIn(std::string_view word) {
    std::vector<std::string> codes;
    for (std::size_t slash = word.find('/'); slash != std::string_view::npos; slash = word.find('/')) {
        codes.emplace_back(word.substr(0, slash));
        word.remove_prefix(slash + 1);
    }
    codes.emplace_back(word);
    return codes;
}

void TakeLine(SectionOutlines& map, MapLine& line) {
    const std::string_view kind = line.Word();
    if (kind == "map") {
        const Point size = line.Pair();
        map.width = size.x;
        map.height = size.y;
    } else if (kind == "panel") {
        line.Number();
        const Point corner = line.Pair();
        const Point size = line.Pair();
        map.panels.push_back({corner, size, line.Rest()});
    } else if (kind == "region") {
        line.Number();
        map.regions.push_back({.codes = CodesIn(line.Word()), .name = line.Rest()});
    } else if (kind == "land") {
        MapPart part{.panel = static_cast<std::size_t>(line.Number())};
        part.ring = TakeRing(line);
        map.land.push_back(std::move(part));
    } else if ((kind == "part" || kind == "islet") && !map.regions.empty()) {
        MapPart part{.panel = static_cast<std::size_t>(line.Number())};
        if (kind == "part") {
            part.seed = line.Pair();
        }
        part.ring = TakeRing(line);
        if (part.panel >= map.panels.size()) {
            line.Refuse();
        }
        map.regions.back().parts.push_back(std::move(part));
    } else {
        line.Refuse();
    }
}

}  // namespace

bool MapPanel::Holds(const Point& at) const {
    return at.x >= corner.x && at.y >= corner.y && at.x < corner.x + size.x && at.y < corner.y + size.y;
}

const std::string& MapRegion::CodeIn(const SectionList& list) const {
    const auto known = std::ranges::find_if(codes, [&list](const std::string& code) { return list.Find(code) != 0; });
    return known == codes.end() ? codes.front() : *known;
}

const MapRegion* SectionOutlines::RegionAt(const Point& at) const {
    std::size_t panel = panels.size();
    while (panel > 1 && !panels[panel - 1].Holds(at)) {
        --panel;
    }
    --panel;
    const auto region = std::ranges::find_if(regions, [&](const MapRegion& candidate) {
        return std::ranges::any_of(candidate.parts,
                                   [&](const MapPart& part) { return part.panel == panel && IsInside(part.ring, at); });
    });
    return region == regions.end() ? nullptr : &*region;
}

SectionOutlines ReadSectionOutlines(std::string_view text) {
    SectionOutlines map;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        line = line.substr(0, line.find('\r'));
        if (!line.empty() && !line.starts_with('#')) {
            MapLine words{line};
            TakeLine(map, words);
        }
    }
    if (map.width <= 0 || map.height <= 0 || map.panels.empty()) {
        throw ValueError{"The section map has no size or no panel."};
    }
    return map;
}

RasterImage OutlinesOn(const SectionOutlines& map, int pixelsWide) {
    const double scale = pixelsWide / map.width;
    RasterImage image{pixelsWide, static_cast<int>(std::ceil(map.height * scale)), kWhite};
    for (const MapRegion& region : map.regions) {
        for (const MapPart& part : region.parts) {
            for (std::size_t i = 0; i < part.ring.size(); ++i) {
                const Point& from = part.ring[i];
                const Point& to = part.ring[(i + 1) % part.ring.size()];
                image.DrawLine(static_cast<int>(from.x * scale), static_cast<int>(from.y * scale),
                               static_cast<int>(to.x * scale), static_cast<int>(to.y * scale), kBlack);
            }
        }
    }
    return image;
}

}  // namespace tallyhut
