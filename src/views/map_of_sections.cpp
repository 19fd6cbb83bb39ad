#include "views/map_of_sections.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "toolkit/desk.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kFileName = "/section_map.txt";
constexpr int kPixels = 2000;
constexpr Colour kWhite = FromRgb(255, 255, 255);
constexpr double kBrightest = 254;
constexpr double kOutline = 8;  ///< units of the map
constexpr double kFrame = 12;
constexpr double kTitleHeight = 320;

Path Around(const MapPanel& panel) {
    const Point& at = panel.corner;
    const Point& size = panel.size;
    return {at, {at.x + size.x, at.y}, {at.x + size.x, at.y + size.y}, {at.x, at.y + size.y}, at};
}

Path Closed(Path ring) {
    ring.push_back(ring.front());
    return ring;
}

/// Where a region has its label: the largest of its parts where the map shows it largest, in an inset if there is one.
const MapPart* LabelledPart(const MapRegion& region) {
    const MapPart* labelled = nullptr;
    for (const MapPart& part : region.parts) {
        if (part.seed && (labelled == nullptr || part.panel > labelled->panel)) {
            labelled = &part;
        }
    }
    return labelled;
}

}  // namespace

void MapOfSections::SectionMap_Load() {
    CentreForm();
    try {
        map = ReadSectionOutlines(pictures.files.Read(dataFolder + kFileName));
    } catch (const ValueError& failure) {
        throw PlatformError{failure.what()};
    }
    PlaceCounties();
    HideCaptions();
    NameInsets();
    ShowCounts();
    ShowPicture(OutlinesOn(map, kPixels));
}

void MapOfSections::SectionMap_Unload() {
    map = {};
}

void MapOfSections::Open() {
    if (form.IsLoaded()) {
        ShowCounts();
        form.Timer1.SetTimerEnabled(true);
    }
    form.Show();
}

void MapOfSections::ShowOtherSections() {
    if (form.IsLoaded() && !map.regions.empty()) {
        PlaceCounties();
        HideCaptions();
        ShowCounts();
        ShowPicture(OutlinesOn(map, kPixels));
        form.Timer1.SetTimerEnabled(true);
    }
}

void MapOfSections::CentreForm() {
    Place place = form.FormPlace();
    place.left = (screen.Whole().width - place.width) / 2;
    place.top = (screen.Whole().height - place.height) / 2;
    form.SetFormPlace(place);
}

/// Each label's middle onto the first seed of its region.
void MapOfSections::PlaceCounties() {
    const Place& picture = form.Picture1.State().place;
    for (int i = 1; i <= SectionMap::kLastCounty; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        const MapPart* const part = at < map.regions.size() ? LabelledPart(map.regions[at]) : nullptr;
        Label& county = form.lblCounty(i);
        county.SetVisible(part != nullptr);
        if (part == nullptr) {
            continue;
        }
        Place place = county.State().place;
        place.left = picture.left + part->seed->x * picture.width / map.width - place.width / 2;
        place.top = picture.top + part->seed->y * picture.height / map.height - place.height / 2;
        county.SetPlace(place);
        county.SetCaption(map.regions[at].CodeIn(contest.sections.List()));
    }
}

void MapOfSections::HideCaptions() {
    for (int i = 1; i <= SectionMap::kLastCounty; ++i) {
        form.lblCounty(i).SetToolTip(form.lblCounty(i).Caption());
        form.lblCounty(i).SetCaption("");
    }
}

/// In the upper line of each frame.
void MapOfSections::NameInsets() {
    const Place& picture = form.Picture1.State().place;
    const double across = picture.width / map.width;
    const double down = picture.height / map.height;
    for (int i = 1; i <= SectionMap::kLastPanel; ++i) {
        const auto at = static_cast<std::size_t>(i);
        form.lblPanel(i).SetVisible(at < map.panels.size());
        if (at < map.panels.size()) {
            const MapPanel& panel = map.panels[at];
            form.lblPanel(i).SetCaption(panel.title);
            form.lblPanel(i).SetPlace({.left = picture.left + panel.corner.x * across,
                                       .top = picture.top + panel.corner.y * down,
                                       .width = panel.size.x * across,
                                       .height = kTitleHeight * down});
        }
    }
}

void MapOfSections::ShowCounts() {
    const int worked = contest.sections.gSectionsWorked;
    form.lblWorked.SetCaption("Worked " + PlainText(worked));
    form.lblNeeded.SetCaption("Needed " + PlainText(contest.sections.gSectionCount - worked));
    if (contest.log.gContactCount() > 0) {
        form.Label1.SetVisible(false);
    }
}

void MapOfSections::Timer1_Timer() {
    form.Timer1.SetTimerEnabled(false);
    if (map.regions.empty()) {
        return;  // the map could not be read, as was told
    }
    RasterImage image = form.Picture1.Image();
    PaintWorked(image);
    ShowPicture(std::move(image));
}

/// In the order of the sections' table, so that a seeded map is the same each time.
void MapOfSections::PaintWorked(RasterImage& image) {
    std::mt19937 engine{seed.value_or(static_cast<std::uint32_t>(form.desk.clock.TickUs()))};
    std::uniform_real_distribution<double> random;
    const double scale = image.Width() / map.width;
    for (int k = 1; k <= contest.sections.gSectionCount; ++k) {
        const int red = static_cast<int>(RoundHalfEven(random(engine) * kBrightest));
        const int green = static_cast<int>(RoundHalfEven(random(engine) * kBrightest));
        const int blue = static_cast<int>(RoundHalfEven(random(engine) * kBrightest));
        const Label& section = form1.Label10(k);
        if (section.State().foreColor != contest.preferences.gColorWorked) {
            continue;
        }
        for (std::size_t i = 0; i < map.regions.size(); ++i) {
            const int county = static_cast<int>(i) + 1;
            if (county > SectionMap::kLastCounty || form.lblCounty(county).State().toolTip != section.Caption()) {
                continue;
            }
            for (const MapPart& part : map.regions[i].parts) {
                if (part.seed) {
                    image.FloodFill(static_cast<int>(part.seed->x * scale), static_cast<int>(part.seed->y * scale),
                                    FromRgb(red, green, blue));
                }
            }
        }
    }
}

Point MapOfSections::SeedOf(int county) const {
    const Place& place = form.lblCounty(county).State().place;
    const Place& picture = form.Picture1.State().place;
    return {place.left + place.width / 2 - picture.left, place.top + place.height / 2 - picture.top};
}

Point MapOfSections::OnMap(const Point& onPicture) const {
    const Place& picture = form.Picture1.State().place;
    return {onPicture.x * map.width / picture.width, onPicture.y * map.height / picture.height};
}

/// A region has the colour that its seed has; what is still white is drawn as the desktop's ground.
void MapOfSections::ShowPicture(RasterImage image) {
    Drawing drawing{.width = map.width, .height = map.height, .ground = kButtonFace};
    Shape outlines{.colour = kWindowText, .width = kOutline};
    Shape land{.colour = kWindowText, .width = kOutline / 2};
    const double scale = image.Width() / map.width;
    for (const MapPart& part : map.land) {
        land.paths.push_back(Closed(part.ring));
    }
    drawing.shapes.push_back(std::move(land));
    for (const MapRegion& region : map.regions) {
        const MapPart* const seeded = LabelledPart(region);
        const Colour filled = seeded == nullptr ? kWhite
                                                : image.At(static_cast<int>(seeded->seed->x * scale),
                                                           static_cast<int>(seeded->seed->y * scale));
        Shape area{.kind = Shape::Kind::Area, .colour = filled == kWhite ? kWindowGround : filled};
        for (const MapPart& part : region.parts) {
            area.paths.push_back(part.ring);
            outlines.paths.push_back(Closed(part.ring));
        }
        drawing.shapes.push_back(std::move(area));
    }
    drawing.shapes.push_back(std::move(outlines));
    Shape frames{.colour = kWindowText, .width = kFrame};
    std::transform(map.panels.begin() + 1, map.panels.end(), std::back_inserter(frames.paths), Around);
    drawing.shapes.push_back(std::move(frames));
    form.Picture1.Show(std::move(drawing), std::move(image));
}

void MapOfSections::cmdSave_Click() const {
    pictures.Save(form.Picture1, "Sections.png");
}

void MapOfSections::Picture1_MouseMove() {
    TellRegion(map.panels.empty() ? nullptr : map.RegionAt(OnMap(form.Picture1.pointer)));
}

void MapOfSections::lblCounty_MouseMove(int index) {
    TellRegion(map.panels.empty() ? nullptr : map.RegionAt(OnMap(SeedOf(index))));
}

void MapOfSections::TellRegion(const MapRegion* region) {
    ShowCounts();  // contacts may have been logged since
    std::string told;
    if (region != nullptr) {
        const std::string& code = region->CodeIn(contest.sections.List());
        const int section = contest.sections.Find(code);
        told = section == 0
                   ? code + "   no section"
                   : code + "   " + std::string{contest.sections.Name(section)} + "   " +
                         PlainText(contest.sections.SectionQsos.at(static_cast<std::size_t>(section))) +
                         (contest.sections.SectionQsos.at(static_cast<std::size_t>(section)) == 1 ? " contact"
                                                                                                  : " contacts");
    }
    form.lblRegion.SetCaption(told);
    form.Picture1.SetToolTip(told);
}

}  // namespace tallyhut
