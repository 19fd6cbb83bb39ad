#include "views/privileges.h"

#include <array>

#include "contest/bands.h"
#include "platform/platform_error.h"
#include "support/form_scaling.h"
#include "toolkit/desk.h"
#include "values/format.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kFileName = "BandPlan.txt";

struct LicenceClass {
    std::string_view letter;
    std::string_view title;
};

/// In the order of the buttons.
constexpr std::array<LicenceClass, 6> kClasses{{
    {"N", "Novice Frequency Privileges"},
    {"T", "Technician Frequency Privileges"},
    {"P", "Technician Plus Frequency Privileges"},
    {"G", "General Frequency Privileges"},
    {"A", "Advanced Frequency Privileges"},
    {"E", "Extra Frequency Privileges"},
}};
constexpr int kExtra = 5;

const MessageBox kNoPlanBox{.title = "Band Data Not Available.",
                            .text = "Band data not available.",
                            .buttons = Buttons::OK,
                            .icon = Icon::Exclamation};

// In shares of the form.
constexpr double kLineLeft = 0.1;
constexpr double kLineWidth = 0.85;
constexpr double kLineHeight = 0.04;
constexpr double kLineSpacing = 0.05;
constexpr double kFirstLine = 0.125;
constexpr int kUsualLines = 12;

/// The upper half of a line has the band's caption and its scale, the lower half the segments.
constexpr double kHalf = 0.5;
constexpr double kAbove = 0.15;  ///< of a line's height: so far the scale stands in the gap above the line
constexpr int kScaleParts = 4;
constexpr double kScaleLabel = 0.08;  ///< of the line's width
constexpr double kTextSize = 9;

constexpr Colour kCwGround = FromRgb(0x15, 0x65, 0xC0);
constexpr Colour kPhoneGround = FromRgb(0xF5, 0x9E, 0x0B);
constexpr Colour kRadioMark = FromRgb(0xD3, 0x2F, 0x2F);
constexpr int kPixels = 816;

Colour GroundOf(std::string_view word) {
    return word == kCw ? kCwGround : kPhoneGround;
}

/// What is allowed on a frequency of a band that the class may use some of. On a channel for upper sideband the radio
/// shows the carrier, which lies below all of the signal. Source: 47 CFR 97.303(h), the dial 1.5 kHz below the middle.
std::string WordAt(const LicenceBand& band, float dial) {
    constexpr float kToTheMiddle = 0.0015F;
    for (const LicenceSegment& segment : band.segments) {
        const float frequency = segment.word == "USB" ? dial + kToTheMiddle : dial;
        if (frequency >= std::min(segment.Low, segment.High) && frequency <= std::max(segment.Low, segment.High)) {
            return segment.word;
        }
    }
    return "no privilege";
}

}  // namespace

void Privileges::frmBandPlan_Load() {
    form.Label3.SetBackColor(kCwGround);
    form.Label4.SetBackColor(kPhoneGround);
    ReadPlan();
    Class_Click(kExtra);
}

void Privileges::Form_Unload() {
    RemoveLabels();
    plan.clear();
    shown.clear();
}

/// All of the file, or none of it: half a plan would tell of fewer privileges than there are.
void Privileges::ReadPlan() {
    plan.clear();
    try {
        BandPlan read = ReadBandPlan(files.Read(WorkingFile(directories, kFileName)));
        if (read.damaged) {
            throw ValueError{"A record of the band plan is damaged."};
        }
        form.Label1.SetCaption("Frequencies Effective: " + read.effective);
        plan = std::move(read.rows);
        plan.resize(std::min(plan.size(), kMostPlanRows));
        return;
    } catch (const PlatformError&) {
        // No file, or one that cannot be read: told below.
    } catch (const ValueError&) {
        // A damaged one is told in the same words.
    }
    form.desk.dialogs.Show(kNoPlanBox);
}

void Privileges::Class_Click(int which) {
    const LicenceClass& licence = kClasses.at(static_cast<std::size_t>(which));
    form.Label2.SetCaption(licence.title);
    ShowPrivileges(licence.letter);
}

void Privileges::RemoveLabels() {
    form.bnlb.RemoveAll();
    form.priv.RemoveAll();
    form.blbl.RemoveAll();
}

void Privileges::ShowPrivileges(std::string_view ClassLetter) {
    RemoveLabels();
    shown = BandsOfClass(plan, ClassLetter);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        AddBand(shown[i], LineOf(i));
    }
    DrawBands();
    tmrRadio_Elapsed();
}

Place Privileges::LineOf(std::size_t band) const {
    const Place& display = form.FormPlace();
    return {.left = kLineLeft * display.width,
            .top = (kFirstLine + static_cast<double>(band) * kLineSpacing) * display.height,
            .width = kLineWidth * display.width,
            .height = kLineHeight * display.height};
}

void Privileges::AddBand(const LicenceBand& band, const Place& line) {
    form.blbl.Make(CaptionOf(band), {.place = line, .fontSize = kTextSize * FontRatioOf(form)});
    AddScale(band, line);
    AddSegments(band, line);
}

/// Its quarters; where the band begins stands in its caption.
void Privileges::AddScale(const LicenceBand& band, const Place& line) {
    const double low = std::min(band.Low, band.High);
    const double high = std::max(band.Low, band.High);
    const double width = kScaleLabel * line.width;
    for (int part = 1; part <= kScaleParts; ++part) {
        const double share = static_cast<double>(part) / kScaleParts;
        const bool last = part == kScaleParts;
        const Place place{.left = line.left + share * line.width - (last ? width : width / 2),
                          .top = line.top - line.height * kAbove,
                          .width = width,
                          .height = line.height * (kHalf + kAbove)};
        form.bnlb.Make(FormatNumber(low + (high - low) * share, "#,###.##0"),
                       {.place = place, .fontSize = kTextSize * FontRatioOf(form)});
    }
}

void Privileges::AddSegments(const LicenceBand& band, const Place& line) {
    for (const LicenceSegment& segment : band.segments) {
        const Place place{.left = line.left + segment.from * line.width,
                          .top = line.top + line.height * kHalf,
                          .width = (segment.to - segment.from) * line.width,
                          .height = line.height * kHalf};
        form.priv.Make(segment.word, {.place = place,
                                      .toolTip = segment.word + "  " + FormatNumber(segment.Low, "#,###.##0") + " - " +
                                                 FormatNumber(segment.High, "#,###.##0"),
                                      .backColor = GroundOf(segment.word),
                                      .fontSize = kTextSize * FontRatioOf(form)});
    }
}

/// From end to end of each band, so that what lies between the segments is seen, with the marks of the scale.
void Privileges::DrawBands() {
    Place picture = form.picPlan.State().place;
    picture.height =
        std::max<double>(static_cast<double>(shown.size()), kUsualLines) * kLineSpacing * form.FormPlace().height;
    form.picPlan.SetPlace(picture);
    Drawing drawing{.width = picture.width, .height = picture.height, .ground = kButtonFace};
    Shape bands{.kind = Shape::Kind::Area, .colour = kWindowGround};
    Shape marks{.colour = kWindowText, .width = 1};
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Place line = LineOf(i);
        const double left = line.left - picture.left;
        const double right = left + line.width;
        const double top = line.top - picture.top + line.height * kHalf;
        const double bottom = line.top - picture.top + line.height;
        bands.paths.push_back({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
        for (int part = 0; part <= kScaleParts; ++part) {
            const double x = left + line.width * part / kScaleParts;
            marks.paths.push_back({{x, top}, {x, bottom}});
        }
    }
    drawing.shapes = {std::move(bands), std::move(marks)};
    form.picPlan.Show(std::move(drawing), kPixels);
}

void Privileges::tmrRadio_Elapsed() {
    const std::optional<float> frequency = rigLine.Frequency();
    form.LineRadio.SetVisible(false);
    if (!frequency) {
        form.lblRadio.SetCaption("");
        return;
    }
    std::string word = "no privilege";
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (const std::optional<double> share = shown[i].ShareAt(*frequency)) {
            const Place line = LineOf(i);
            const double x = line.left + *share * line.width;
            word = WordAt(shown[i], *frequency);
            form.LineRadio.SetForeColor(kRadioMark);
            form.LineRadio.SetEnds(x, line.top, x, line.top + line.height);
            form.LineRadio.SetVisible(true);
        }
    }
    form.lblRadio.SetCaption("Radio " + FormatNumber(*frequency, "#.0000") + "  " + word);
}

}  // namespace tallyhut
