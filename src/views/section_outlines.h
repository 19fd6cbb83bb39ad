#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/section_list.h"
#include "toolkit/drawing.h"

namespace tallyhut {

/// A closed piece of land of a section, on one of the map's panels.
struct MapPart {
    std::size_t panel = 0;
    std::optional<Point> seed = {};  ///< inside of it; an islet has none
    Path ring = {};
};

/// What is labelled as one: a section, or a part of one that lies apart.
struct MapRegion {
    std::vector<std::string> codes;  ///< at least one; those of different years
    std::string name;
    std::vector<MapPart> parts = {};  ///< the largest first on each panel

    /// The code that a contest with this list has for it; the first one where it has none.
    const std::string& CodeIn(const SectionList& list) const;
};

/// A frame with a map of its own. Panel 0 is the whole map, those behind it lie on it.
struct MapPanel {
    Point corner;  ///< the upper left one
    Point size;
    std::string title = {};

    bool Holds(const Point& at) const;
};

/// The map of the sections; all in units of its own.
struct SectionOutlines {
    double width = 0;
    double height = 0;
    std::vector<MapPanel> panels = {};
    std::vector<MapRegion> regions = {};
    std::vector<MapPart> land = {};  ///< of no section, which only shows where things lie

    /// The region at a place; null for none, and beside all land.
    const MapRegion* RegionAt(const Point& at) const;
};

/// Reads data/section_map.txt; docs/files.md has its format. Throws ValueError for a line that is none.
SectionOutlines ReadSectionOutlines(std::string_view text);

/// The outlines in black on white, so many pixels wide, to be filled from the seeds.
RasterImage OutlinesOn(const SectionOutlines& map, int pixelsWide);

}  // namespace tallyhut
