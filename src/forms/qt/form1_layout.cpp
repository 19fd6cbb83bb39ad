#include "forms/qt/form1_layout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "forms/qt/picture_widgets.h"
#include "forms/qt/program_style.h"
#include "forms/qt/rows_widget.h"
#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

/// How a control of the main form is drawn; sizes in units of plain text's.
struct Style {
    double text = 1;
    double height = 1.45;  ///< 0: as much as there is
    bool data = false;
    bool bold = false;
    bool quiet = false;
    bool trimmed = true;
    bool boxed = false;
    bool wrapped = false;
    bool right = false;
    bool keepsRoom = true;  ///< while it is hidden
};

constexpr Style kCaption{.quiet = true};
constexpr Style kTitle{.text = 1.05, .height = 1.9, .bold = true};
constexpr Style kField{.text = 2.35, .height = 3.7, .data = true, .bold = true};
constexpr Style kSmallField{.text = 1.1, .height = 1.9, .data = true};
constexpr Style kButton{.text = 0.95, .height = 1.75};
constexpr Style kClear{.text = 0.95, .height = 3.7};
constexpr Style kSmallButton{.text = 0.9, .height = 1.6};
constexpr Style kBigButton{.text = 1.1, .height = 2.9};
constexpr Style kSending{.text = 1.55, .height = 2.2, .data = true, .bold = true};
constexpr Style kMessage{.text = 1.5, .height = 2.9, .trimmed = false, .boxed = true, .wrapped = true};
constexpr Style kHint{.text = 0.9, .bold = true, .trimmed = false};
constexpr Style kDupes{.text = 1.15, .height = 4.1, .data = true, .trimmed = false, .boxed = true, .wrapped = true};
constexpr Style kKnownCalls{.height = 2.9, .data = true, .boxed = true, .wrapped = true, .keepsRoom = false};
constexpr Style kBigClock{.text = 2.6, .height = 3.3, .data = true, .bold = true};
constexpr Style kClock{.text = 1.9, .height = 3.3, .data = true};
constexpr Style kAmPm{.text = 1.2, .height = 3.3, .data = true};
constexpr Style kDuration{.text = 1.6, .height = 2.1, .data = true};
constexpr Style kBand{.text = 2.4, .height = 2.9, .data = true, .bold = true};
constexpr Style kMode{.text = 1.6, .height = 2.9, .data = true};
constexpr Style kOffTimeCaption{.height = 1.35, .quiet = true};
constexpr Style kOffTime{.text = 1.1, .height = 1.35, .data = true};
constexpr Style kRigLine{.text = 1.15, .height = 1.6, .data = true};
constexpr Style kClockState{.text = 0.95, .height = 1.6, .bold = true, .boxed = true};
constexpr Style kLegend{.text = 0.9, .height = 1.3, .data = true};
constexpr Style kContacts{.height = 0, .data = true};
constexpr Style kGridHeading{.height = 0, .bold = true, .quiet = true};
constexpr Style kSection{.height = 0, .data = true};
constexpr Style kScoreCaption{.height = 0};
constexpr Style kScore{.text = 1.15, .height = 0, .data = true, .right = true};
constexpr Style kTotalScore{.text = 1.15, .height = 0, .data = true, .bold = true, .right = true};
constexpr Style kSpot{.height = 0, .data = true};
constexpr Style kSpotLabel{.height = 0, .data = true, .right = true};
constexpr Style kUnknown{.text = 1, .height = 2};

/// Where a control stands in its part, and how.
struct Row {
    std::string_view name;
    Part part;
    int row;
    int column;
    int columns;
    const Style& style;
    double width = 0;  ///< at least, in units of plain text's size
    const char* spokenName = "";
    const char* placeholder = "";  ///< the format that an empty field wants
};

constexpr std::array kRows{
    // What the station sends stands over the fields for what it hears, each behind what it is.
    Row{"lblSending", Part::Entry, 0, 0, 1, kCaption, 4.6},
    Row{"lblNumCurCon", Part::Entry, 0, 1, 1, kSending, 4.9},
    Row{"lblStation(0)", Part::Entry, 0, 2, 1, kCaption, 1.5},
    Row{"Label1", Part::Entry, 0, 3, 1, kSending, 2},
    Row{"lblStation(1)", Part::Entry, 0, 4, 1, kCaption, 2.3},
    Row{"Label2", Part::Entry, 0, 5, 1, kSending, 15.1},
    Row{"lblStation(2)", Part::Entry, 0, 6, 1, kCaption, 1.5},
    Row{"Label3", Part::Entry, 0, 7, 1, kSending, 2.2},
    Row{"lblStation(3)", Part::Entry, 0, 8, 1, kCaption, 2},
    Row{"Label4", Part::Entry, 0, 9, 1, kSending, 4.4},
    Row{"lblEntryHeading(1)", Part::Entry, 1, 0, 2, kCaption},
    Row{"lblEntryHeading(2)", Part::Entry, 1, 2, 2, kCaption},
    Row{"lblEntryHeading(3)", Part::Entry, 1, 4, 2, kCaption},
    Row{"lblEntryHeading(4)", Part::Entry, 1, 6, 2, kCaption},
    Row{"lblEntryHeading(5)", Part::Entry, 1, 8, 2, kCaption},
    Row{"txtNum", Part::Entry, 2, 0, 2, kField, 0, "Number"},
    Row{"txtPre", Part::Entry, 2, 2, 2, kField, 0, "Precedence"},
    Row{"txtCall", Part::Entry, 2, 4, 2, kField, 0, "Call"},
    Row{"txtCK", Part::Entry, 2, 6, 2, kField, 0, "Check"},
    Row{"txtSec", Part::Entry, 2, 8, 2, kField, 0, "Section"},
    Row{"cmdClear", Part::Entry, 2, 10, 1, kClear, 4.5},

    Row{"lblDialog", Part::Message, 0, 0, 7, kMessage, 0, "Message"},
    Row{"lblPossDup", Part::Message, 1, 0, 1, kCaption, 10.6},
    Row{"lblHint", Part::Message, 1, 1, 1, kHint},
    Row{"lblPostConTime", Part::Message, 1, 2, 1, kCaption, 2.8},
    Row{"txtPostConTime", Part::Message, 1, 3, 1, kSmallField, 4.8, "", "hh:mm"},
    Row{"lblPostConDate", Part::Message, 1, 4, 1, kCaption, 2.8},
    Row{"txtPostConDate", Part::Message, 1, 5, 1, kSmallField, 8.4, "", "yyyy/mm/dd"},
    Row{"cmdDup", Part::Message, 1, 6, 1, kSmallButton, 4.5},
    Row{"lblDupe", Part::Message, 2, 0, 7, kDupes},
    Row{"lblScp", Part::Message, 3, 0, 7, kKnownCalls, 0, "Known calls"},

    Row{"Label11", Part::Clock, 0, 0, 1, kCaption},
    Row{"lblLocalTime", Part::Clock, 0, 1, 3, kCaption},
    Row{"lblutctime", Part::Clock, 1, 0, 1, kBigClock, 13},
    Row{"lblCurTime", Part::Clock, 1, 1, 2, kClock},
    Row{"Label16", Part::Clock, 1, 3, 1, kAmPm, 2.5},
    Row{"Label12", Part::Clock, 2, 0, 1, kCaption},
    Row{"lblttrack", Part::Clock, 3, 0, 1, kDuration, 8},
    Row{"Label14", Part::Clock, 2, 1, 3, kCaption},
    Row{"lbltimeon", Part::Clock, 3, 1, 3, kDuration},
    Row{"lblClockState", Part::Clock, 4, 0, 1, kClockState, 4, "Operating time"},
    Row{"lblBandSwitch", Part::Clock, 4, 1, 3, kCaption},
    Row{"cmdLogOn", Part::Clock, 5, 0, 1, kBigButton, 9},
    Row{"Label30", Part::Clock, 5, 1, 1, kBand, 4.6},
    Row{"lblMode", Part::Clock, 5, 2, 1, kMode, 4.3, "Contest"},
    Row{"lblRig", Part::Clock, 6, 1, 3, kRigLine, 0, "Radio"},
    Row{"lblLeftCaption", Part::OffTime, 0, 0, 1, kOffTimeCaption, 8.2},
    Row{"lblLeft", Part::OffTime, 0, 1, 1, kOffTime, 4},
    Row{"lblOffCaption", Part::OffTime, 0, 2, 1, kOffTimeCaption, 11.6},
    Row{"lblOff", Part::OffTime, 0, 3, 1, kOffTime, 4, "Silence"},

    Row{"lblRecentContacts", Part::ContactsHead, 0, 0, 1, kTitle, 11},
    Row{"cmdEdit", Part::ContactsHead, 0, 2, 1, kButton, 7},
    Row{"cmdDelete", Part::ContactsHead, 0, 3, 1, kButton, 8},
    Row{"cmdList", Part::ContactsHead, 0, 4, 1, kButton, 5},
    Row{"ListView1", Part::Contacts, 0, 0, 1, kContacts},

    Row{"lblSecWkd", Part::SectionsHead, 0, 0, 1, kTitle, 8},
    Row{"lblLegend(0)", Part::Legend, 0, 0, 1, kLegend, 5},
    Row{"lblLegend(1)", Part::Legend, 0, 1, 1, kLegend, 5},
    Row{"lblSecOne", Part::Sections, 0, 0, 1, kGridHeading},
    Row{"lblSecTwo", Part::Sections, 0, 1, 1, kGridHeading},
    Row{"lblSecThre", Part::Sections, 0, 2, 1, kGridHeading},
    Row{"lblSecFour", Part::Sections, 0, 3, 1, kGridHeading},
    Row{"lblSecFive", Part::Sections, 0, 4, 1, kGridHeading},
    Row{"lblSecSix", Part::Sections, 0, 5, 1, kGridHeading},
    Row{"lblSecSeven", Part::Sections, 0, 6, 1, kGridHeading},
    Row{"lblSecEight", Part::Sections, 0, 7, 1, kGridHeading},
    Row{"lblSecNine", Part::Sections, 0, 8, 1, kGridHeading},
    Row{"lblSecZero", Part::Sections, 0, 9, 1, kGridHeading},
    Row{"lblSecCA", Part::Sections, 0, 10, 1, kGridHeading},

    // Two halves side by side: a value stands near its caption.
    Row{"lblScoreCaption(1)", Part::Score, 0, 0, 1, kScoreCaption, 12.6},
    Row{"lblScoreCaption(2)", Part::Score, 1, 0, 1, kScoreCaption, 12.6},
    Row{"lblScoreCaption(3)", Part::Score, 2, 0, 1, kScoreCaption, 12.6},
    Row{"lblScoreCaption(4)", Part::Score, 0, 3, 1, kScoreCaption, 12.6},
    Row{"lblScoreCaption(5)", Part::Score, 1, 3, 1, kScoreCaption, 12.6},
    Row{"lblScoreCaption(6)", Part::Score, 2, 3, 1, kScoreCaption, 12.6},
    Row{"lblTotCon", Part::Score, 0, 1, 1, kScore, 5},
    Row{"lblTotSec", Part::Score, 1, 1, 1, kScore, 5},
    Row{"lblsectogo", Part::Score, 2, 1, 1, kScore, 5},
    Row{"lblTotScore", Part::Score, 0, 4, 1, kTotalScore, 5},
    Row{"lblAQSO60", Part::Score, 1, 4, 1, kScore, 5},
    Row{"lblAQSO20", Part::Score, 2, 4, 1, kScore, 5},
};

/// Captions, and what they stand beside or above.
struct CaptionOf {
    std::string_view caption;
    std::string_view control;
};

constexpr std::array kCaptions{
    CaptionOf{"lblSending", "lblNumCurCon"},
    CaptionOf{"lblStation(0)", "Label1"},
    CaptionOf{"lblStation(1)", "Label2"},
    CaptionOf{"lblStation(2)", "Label3"},
    CaptionOf{"lblStation(3)", "Label4"},
    CaptionOf{"lblPostConTime", "txtPostConTime"},
    CaptionOf{"lblPostConDate", "txtPostConDate"},
    CaptionOf{"lblEntryHeading(1)", "txtNum"},
    CaptionOf{"lblEntryHeading(2)", "txtPre"},
    CaptionOf{"lblEntryHeading(3)", "txtCall"},
    CaptionOf{"lblEntryHeading(4)", "txtCK"},
    CaptionOf{"lblEntryHeading(5)", "txtSec"},
    CaptionOf{"lblPossDup", "lblDupe"},
    CaptionOf{"lblPossDup", "cmdDup"},
    CaptionOf{"Label11", "lblutctime"},
    CaptionOf{"lblLocalTime", "lblCurTime"},
    CaptionOf{"lblLocalTime", "Label16"},
    CaptionOf{"Label12", "lblttrack"},
    CaptionOf{"Label14", "lbltimeon"},
    CaptionOf{"lblBandSwitch", "Label30"},
    CaptionOf{"lblLeftCaption", "lblLeft"},
    CaptionOf{"lblRecentContacts", "ListView1"},
    CaptionOf{"lblRecentContacts", "cmdList"},
    CaptionOf{"lblScoreCaption(1)", "lblTotCon"},
    CaptionOf{"lblScoreCaption(2)", "lblTotSec"},
    CaptionOf{"lblScoreCaption(3)", "lblsectogo"},
    CaptionOf{"lblScoreCaption(4)", "lblTotScore"},
    CaptionOf{"lblScoreCaption(5)", "lblAQSO60"},
    CaptionOf{"lblScoreCaption(6)", "lblAQSO20"},
};

/// What a screen reader speaks as soon as it changes.
constexpr std::array<std::string_view, 2> kAnnounced{"lblDialog", "lblHint"};

/// The picture of the spots, or their list.
constexpr std::array<std::string_view, 6> kSpotControls{"lblDX",    "LineDX",    "lblFreqSpot",
                                                        "LineSpot", "lblDXSpot", "txtDX"};
constexpr std::string_view kSpotMap = "lblDX";
constexpr std::string_view kSpotOnMap = "lblDXSpot";
constexpr std::string_view kSpotList = "txtDX";

/// How the columns of a part share the room that is over.
struct Stretch {
    Part part;
    int column;
    int share;
};

constexpr std::array kStretches{
    Stretch{Part::Entry, 1, 110},      Stretch{Part::Entry, 3, 60},    Stretch{Part::Entry, 5, 290},
    Stretch{Part::Entry, 7, 80},       Stretch{Part::Entry, 9, 120},   Stretch{Part::Entry, 10, 62},
    Stretch{Part::Message, 1, 1},      Stretch{Part::Clock, 0, 55},    Stretch{Part::Clock, 2, 20},
    Stretch{Part::Clock, 3, 25},       Stretch{Part::OffTime, 0, 262}, Stretch{Part::OffTime, 1, 193},
    Stretch{Part::OffTime, 2, 375},    Stretch{Part::OffTime, 3, 170}, Stretch{Part::ContactsHead, 1, 1},
    Stretch{Part::SectionsHead, 0, 1}, Stretch{Part::Legend, 2, 1},    Stretch{Part::Score, 0, 3},
    Stretch{Part::Score, 1, 2},        Stretch{Part::Score, 2, 1},     Stretch{Part::Score, 3, 3},
    Stretch{Part::Score, 4, 2},
};

constexpr std::string_view kSectionLabels = "Label10";
constexpr double kLastHeadingWidth = 4.6;  ///< a word, where the others are a figure

const Row* RowOf(const Control& control) {
    const std::string name = control.FullName();
    const auto* const found = std::ranges::find(kRows, std::string_view{name}, &Row::name);
    return found == kRows.end() ? nullptr : &*found;
}

bool HasNameOfItsOwn(std::string_view control) {
    const auto* const found = std::ranges::find(kRows, control, &Row::name);
    return found != kRows.end() && *found->spokenName != '\0';
}

bool IsSection(const Control& control) {
    return control.name == kSectionLabels && control.index >= 0;
}

bool IsSpotControl(const Control& control) {
    return std::ranges::find(kSpotControls, control.name) != kSpotControls.end();
}

/// What stands before a control's own text for those who do not see where it is.
QString SpokenName(const Control& control) {
    const ControlState& state = control.State();
    if (IsSection(control)) {
        const char* kind = state.underlined ? ", needed and spotted: " : state.bold ? ", needed: " : ", worked: ";
        return ToQt(state.toolTip) + kind;
    }
    const Row* row = RowOf(control);
    if (row != nullptr && *row->spokenName != '\0') {
        return row->spokenName;
    }
    const std::string name = control.FullName();
    const auto* const found = std::ranges::find(kCaptions, std::string_view{name}, &CaptionOf::control);
    const Control* caption = found == kCaptions.end() ? nullptr : control.form.Find(found->caption);
    return caption == nullptr ? QString{} : CaptionText(caption->State().text);
}

Part PartOf(const Control& control) {
    if (IsSection(control)) {
        return Part::Sections;
    }
    if (IsSpotControl(control)) {
        return Part::Spots;
    }
    const Row* row = RowOf(control);
    return row == nullptr ? Part::Extra : row->part;
}

const Style& StyleOf(const Control& control) {
    if (IsSection(control)) {
        return kSection;
    }
    if (IsSpotControl(control)) {
        return control.name == kSpotOnMap ? kSpotLabel : kSpot;
    }
    const Row* row = RowOf(control);
    return row == nullptr ? kUnknown : row->style;
}

Look PlainLookOf(const Control& control, double base) {
    const Style& style = StyleOf(control);
    Look look;
    look.pixels = style.text * base;
    look.data = style.data;
    look.bold = style.bold;
    look.quiet = style.quiet;
    look.trimmed = style.trimmed;
    look.boxed = style.boxed;
    look.wrapped = style.wrapped;
    look.alignment = (style.right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    look.spokenName = SpokenName(control);
    if (const Row* row = RowOf(control)) {
        look.placeholder = row->placeholder;
    }
    look.announced = std::ranges::find(kAnnounced, control.name) != kAnnounced.end();
    return look;
}

/// Of the strip with the spots.
constexpr double kSpotMapWidth = 15;
constexpr double kSpotListWidth = 24;

constexpr QSize kSmallestWindow{300, 176};  // 30 percent of a small screen

/// The window's size in units of plain text's: what all of the form takes.
constexpr double kWidthInText = 98;
constexpr double kHeightInText = 61;

/// What the present controls ask of the columns of their parts.
std::map<std::pair<Part, int>, double> ColumnWidths(const std::vector<ControlWidget*>& widgets) {
    std::map<std::pair<Part, int>, double> widths;
    for (const ControlWidget* widget : widgets) {
        const Row* row = RowOf(widget->Logical());
        if (row != nullptr && row->columns == 1) {
            double& width = widths[{row->part, row->column}];
            width = std::max(width, row->width);
        }
    }
    return widths;
}

/// A sheet that holds what belongs together.
class Panel : public QWidget {
public:
    explicit Panel(QWidget* parent) : QWidget{parent} {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Theme theme = ThemeOf(palette());
        QPainter painter{this};
        DrawBox(painter, rect(), theme.panel, theme.edge);
    }
};

/// Holds the controls of a part; painted where it has a ground of its own.
class PartHolder : public QWidget {
public:
    explicit PartHolder(QWidget* parent) : QWidget{parent} {}

    std::function<void()> resized;

    void SetGround(const QColor& ground) {
        ground_ = ground;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (ground_.isValid()) {
            QPainter painter{this};
            DrawBox(painter, rect(), ground_, ground_, {.edge = 0});
        }
    }
    void resizeEvent(QResizeEvent* /*event*/) override {
        if (resized) {
            resized();
        }
    }

private:
    QColor ground_;
};

}  // namespace

std::vector<std::string_view> NamesPlacedOnMainForm() {
    std::vector<std::string_view> names;
    std::ranges::transform(kRows, std::back_inserter(names), &Row::name);
    return names;
}

std::vector<std::string_view> NamesSpokenOfOnMainForm() {
    std::vector<std::string_view> names{kAnnounced.begin(), kAnnounced.end()};
    std::ranges::transform(kCaptions, std::back_inserter(names), &CaptionOf::caption);
    std::ranges::transform(kCaptions, std::back_inserter(names), &CaptionOf::control);
    return names;
}

Form1Layout::Form1Layout(QWidget& window, FormMenus& menus) : window_{window}, menus_{menus} {
    window_.setMinimumSize(kSmallestWindow);
    Build();
}

void Form1Layout::Build() {
    auto* root = new QVBoxLayout{&window_};
    root->setSizeConstraint(QLayout::SetNoConstraint);
    if (menus_.Bar() != nullptr) {
        root->setMenuBar(menus_.Bar());
    }
    const auto panel = [this](QBoxLayout& into, int stretch) {
        auto* sheet = new Panel{&window_};
        into.addWidget(sheet, stretch);
        auto* box = new QVBoxLayout{sheet};
        panels_.push_back(sheet);
        boxes_.push_back(box);
        return box;
    };
    auto* top = new QHBoxLayout;
    root->addLayout(top);
    auto* bottom = new QHBoxLayout;
    root->addLayout(bottom, 1);
    QVBoxLayout* entry = panel(*top, 63);
    AddGrid(Part::Entry, *entry->parentWidget(), *entry, 0);
    AddGrid(Part::Message, *entry->parentWidget(), *entry, 1);
    QVBoxLayout* clock = panel(*top, 37);
    clockPanel_ = clock->parentWidget();
    AddGrid(Part::Clock, *clockPanel_, *clock, 1);
    AddGrid(Part::OffTime, *clockPanel_, *clock, 0);
    QVBoxLayout* contacts = panel(*bottom, 49);
    AddGrid(Part::ContactsHead, *contacts->parentWidget(), *contacts, 0);
    AddGrid(Part::Contacts, *contacts->parentWidget(), *contacts, 1);
    auto* right = new QVBoxLayout;
    bottom->addLayout(right, 51);
    QVBoxLayout* spots = panel(*bottom, 0);
    spotsPanel_ = spots->parentWidget();
    auto* room = new PartHolder{spotsPanel_};
    room->SetGround(DarkSheet());
    room->resized = [this] { PlaceSpots(); };
    spots->addWidget(room, 1);
    spotsRoom_ = room;
    QVBoxLayout* sections = panel(*right, 82);
    AddGrid(Part::SectionsHead, *sections->parentWidget(), *sections, 0);
    AddGrid(Part::Sections, *sections->parentWidget(), *sections, 1);
    AddGrid(Part::Legend, *sections->parentWidget(), *sections, 0);
    QVBoxLayout* score = panel(*right, 18);
    AddGrid(Part::Score, *score->parentWidget(), *score, 1);
    QVBoxLayout* extra = panel(*root, 0);
    extraPanel_ = extra->parentWidget();
    AddGrid(Part::Extra, *extraPanel_, *extra, 0);
    for (QBoxLayout* box : {static_cast<QBoxLayout*>(root), static_cast<QBoxLayout*>(top),
                            static_cast<QBoxLayout*>(bottom), static_cast<QBoxLayout*>(right)}) {
        boxes_.push_back(box);
    }
    for (const Stretch& stretch : kStretches) {
        grids_.at(stretch.part)->setColumnStretch(stretch.column, stretch.share);
    }
}

void Form1Layout::AddGrid(Part part, QWidget& panel, QBoxLayout& into, int stretch) {
    auto* holder = new PartHolder{&panel};
    auto* grid = new QGridLayout{holder};
    grid->setContentsMargins(0, 0, 0, 0);
    into.addWidget(holder, stretch);
    grids_[part] = grid;
}

QWidget& Form1Layout::ParentOf(const Control& control) {
    if (IsSpotControl(control)) {
        return *spotsRoom_;
    }
    return *grids_.at(PartOf(control))->parentWidget();
}

void Form1Layout::Add(ControlWidget& widget) {
    widgets_.push_back(&widget);
    const Control& control = widget.Logical();
    parts_[PartOf(control)].push_back(&widget);
    QWidget& shown = widget.Widget();
    const bool fills = StyleOf(control).height <= 0;
    QSizePolicy policy{QSizePolicy::Ignored, fills ? QSizePolicy::Ignored : QSizePolicy::Fixed};
    policy.setRetainSizeWhenHidden(StyleOf(control).keepsRoom);
    shown.setSizePolicy(policy);
    if (const Row* row = RowOf(control)) {
        grids_.at(row->part)->addWidget(&shown, row->row, row->column, 1, row->columns);
    } else if (IsSpotControl(control)) {
        if (control.name == kSpotMap) {
            shown.lower();
        }
    } else if (!IsSection(control)) {
        QGridLayout& extra = *grids_.at(Part::Extra);
        constexpr int kInARow = 8;
        extra.addWidget(&shown, extra.count() / kInARow, extra.count() % kInARow);
    }
    sectionsStale_ = sectionsStale_ || IsSection(control);
}

void Form1Layout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
    std::erase(parts_[PartOf(widget.Logical())], &widget);
    sectionPlaces_.erase(&widget.Logical());
}

void Form1Layout::Changed(ControlWidget& widget) {
    const Control& control = widget.Logical();
    if (IsSpotControl(control)) {
        spotsStale_ = true;
    }
    if (IsSection(control)) {
        widget.SetLook(LookOf(control, Base()));  // the spoken name may be another
        const auto known = sectionPlaces_.find(&control);
        const bool isPlaced = known != sectionPlaces_.end();
        const bool hasMoved = isPlaced && known->second != control.State().place;
        sectionsStale_ = sectionsStale_ || hasMoved || isPlaced != control.IsShown();
    }
}

/// Screen readers are told which caption belongs to which control. They call a control by its caption then; where the
/// caption is but a sign ("#"), the control has a name of its own to be called by.
void Form1Layout::TieCaptions() {
    const auto widgetOf = [this](std::string_view name) -> QWidget* {
        const auto found = std::ranges::find_if(
            widgets_, [name](const ControlWidget* widget) { return widget->Logical().FullName() == name; });
        return found == widgets_.end() ? nullptr : &(*found)->Widget();
    };
    for (const CaptionOf& row : kCaptions) {
        if (HasNameOfItsOwn(row.control)) {
            continue;
        }
        auto* caption = qobject_cast<QLabel*>(widgetOf(row.caption));
        if (caption != nullptr && caption->buddy() == nullptr) {
            caption->setBuddy(widgetOf(row.control));
        }
    }
}

void Form1Layout::Settle() {
    if (!std::exchange(captionsTied_, true)) {
        TieCaptions();
    }
    if (sectionsStale_) {
        PlaceSections();
    }
    ShowPartsInUse();
    if (spotsStale_ && !spotsPanel_->isHidden()) {
        PlaceSpots();
    }
}

/// The picture of the spots is drawn to the logical size of its frame; here the frame fills the strip, and all else
/// stands in it as it does in the picture. The list fills the strip.
void Form1Layout::PlaceSpots() {
    spotsStale_ = false;
    const std::vector<ControlWidget*>& spots = parts_[Part::Spots];
    const auto map =
        std::ranges::find_if(spots, [](const ControlWidget* widget) { return widget->Logical().name == kSpotMap; });
    const Place frame = map == spots.end() ? Place{} : (*map)->Logical().State().place;
    for (ControlWidget* widget : spots) {
        const Control& control = widget->Logical();
        widget->SetLook(LookOf(control, Base()));
        const bool fills = control.name == kSpotMap || control.name == kSpotList;
        widget->Widget().setGeometry(fills ? spotsRoom_->rect() : BoxInPicture(control, frame, spotsRoom_->rect()));
    }
}

/// The log puts each section's label below the heading of its call area, the columns by the left edge and the rows by
/// the top. Where a heading has several columns it spans them.
void Form1Layout::PlaceSections() {
    sectionsStale_ = false;
    sectionPlaces_.clear();
    QGridLayout& grid = *grids_.at(Part::Sections);
    const auto leftOf = [](const ControlWidget* widget) { return widget->Logical().State().place.left; };
    std::vector<ControlWidget*> headings;
    std::vector<ControlWidget*> sections;
    std::set<double> lefts;
    for (ControlWidget* widget : parts_[Part::Sections]) {
        const Control& control = widget->Logical();
        if (!control.IsShown()) {
            grid.removeWidget(&widget->Widget());
            continue;
        }
        lefts.insert(leftOf(widget));
        if (IsSection(control)) {
            sections.push_back(widget);
            sectionPlaces_[&control] = control.State().place;
        } else {
            headings.push_back(widget);
        }
    }
    const auto columnOf = [&](const ControlWidget* widget) {
        return static_cast<int>(std::distance(lefts.begin(), lefts.find(leftOf(widget))));
    };
    sectionColumns_ = static_cast<int>(lefts.size());
    std::ranges::stable_sort(headings, {}, leftOf);
    columnsOfLastHeading_ = headings.empty() ? 1 : sectionColumns_ - columnOf(headings.back());
    int end = sectionColumns_;
    std::ranges::reverse(headings);
    for (ControlWidget* heading : headings) {
        const int column = columnOf(heading);
        grid.addWidget(&heading->Widget(), 0, column, 1, std::max(end - column, 1));
        end = column;
    }
    std::ranges::stable_sort(sections, {},
                             [](const ControlWidget* widget) { return widget->Logical().State().place.top; });
    std::vector<int> used(lefts.size());
    for (ControlWidget* widget : sections) {
        const int column = columnOf(widget);
        grid.addWidget(&widget->Widget(), ++used.at(static_cast<std::size_t>(column)), column);
    }
    SizeSectionColumns();
}

void Form1Layout::SizeSectionColumns() {
    QGridLayout& grid = *grids_.at(Part::Sections);
    for (int column = 0; column < grid.columnCount(); ++column) {
        const bool inUse = column < sectionColumns_;
        const bool ofLast = inUse && column >= sectionColumns_ - columnsOfLastHeading_;
        grid.setColumnStretch(column, ofLast && columnsOfLastHeading_ == 1 ? 13 : (inUse ? 10 : 0));
        grid.setColumnMinimumWidth(column, ofLast ? qRound(kLastHeadingWidth * Base() / columnsOfLastHeading_) : 0);
    }
}

Look Form1Layout::LookOf(const Control& control, double base) {
    Look look = PlainLookOf(control, base);
    if (PartOf(control) == Part::Spots) {
        look.ground = DarkSheet();
        look.spokenName = control.name == kSpotMap ? QStringLiteral("Band map") : look.spokenName;
    }
    return look;
}

void Form1Layout::ShowPartsInUse() {
    const auto isShown = [](const ControlWidget* widget) { return widget->Logical().IsShown(); };
    const auto inUse = [this, &isShown](Part part) { return std::ranges::any_of(parts_[part], isShown); };
    clockPanel_->setVisible(inUse(Part::Clock));
    grids_.at(Part::OffTime)->parentWidget()->setVisible(inUse(Part::OffTime));
    extraPanel_->setVisible(inUse(Part::Extra));
    const bool list = std::ranges::any_of(parts_[Part::Spots], [](const ControlWidget* widget) {
        return widget->Logical().name == kSpotList && widget->Logical().IsShown();
    });
    spotsPanel_->setFixedWidth(qRound(Base() * (list ? kSpotListWidth : kSpotMapWidth)));
    spotsPanel_->setVisible(inUse(Part::Spots));
}

double Form1Layout::Base() const {
    return std::min(window_.width() / kWidthInText, window_.height() / kHeightInText);
}

void Form1Layout::Arrange() {
    const double base = Base();
    const int space = qRound(base * 0.6);
    for (QBoxLayout* box : boxes_) {
        box->setSpacing(space);
        const bool inPanel = std::ranges::find(panels_, box->parentWidget()) != panels_.end();
        const bool outermost = box == window_.layout();
        const int margin = inPanel ? qRound(base * 0.8) : (outermost ? space : 0);
        box->setContentsMargins(margin, margin, margin, margin);
        if (inPanel) {
            box->setSpacing(qRound(base * 0.35));
        }
    }
    for (const auto& [part, grid] : grids_) {
        const bool tight = part == Part::Score || part == Part::Sections;
        if (part == Part::Sections || part == Part::Legend) {
            grid->setContentsMargins(qRound(base * 0.4), 0, 0, 0);
        }
        grid->setVerticalSpacing(tight ? 0 : qRound(base * 0.2));
        grid->setHorizontalSpacing(qRound(base * 0.6));
    }
    menus_.SetTextSize(base);
    spotsStale_ = true;
    for (const auto& [column, width] : ColumnWidths(widgets_)) {
        grids_.at(column.first)->setColumnMinimumWidth(column.second, qRound(width * base));
    }
    SizeSectionColumns();
    for (ControlWidget* widget : widgets_) {
        const Control& control = widget->Logical();
        const Style& style = StyleOf(control);
        widget->SetLook(LookOf(control, base));
        QWidget& shown = widget->Widget();
        if (style.height > 0) {
            shown.setFixedHeight(qRound(style.height * base));
        } else {
            shown.setMinimumHeight(qRound(base * 1.2));
        }
        if (auto* rows = dynamic_cast<RowsWidget*>(&shown)) {
            constexpr int kContactsShown = 20;
            rows->SetRowsInView(kContactsShown);
        }
    }
    Settle();
}

}  // namespace tallyhut
