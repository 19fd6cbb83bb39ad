#include "forms/qt/table_layout.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <numeric>

#include "forms/qt/program_style.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/text_codec.h"
#include "toolkit/controls.h"

namespace tallyhut {
namespace {

// The three sizes of text, in units of plain text's.
constexpr double kSmall = 0.87;
constexpr double kPlain = 1;
constexpr double kLarge = 1.7;

/// Plain text in pixels, where the form is drawn in its design's own size.
constexpr double kDesignText = 9;
/// A form with room to spare has larger text than others by at most this much, one with too little by that much
/// smaller.
constexpr double kMostText = 1.15;
constexpr double kLeastText = 0.6;
constexpr double kTextStep = 0.97;

// In units of plain text's size.
constexpr double kUnit = 0.55;  ///< all distances are multiples of it
constexpr double kFieldHeight = 2.1;
constexpr double kChoiceHeight = 1.7;
constexpr double kTextHeight = 1.45;
constexpr double kSmallestButton = 5.5;
constexpr int kMostOfAValue = 24;             // characters: a value of any length must not push the form apart
constexpr std::size_t kRowsOfAShortList = 5;  ///< all of which can be seen at once
constexpr double kRowHeight = 2.1;
constexpr double kColumnOfText = 15;  ///< no narrower
constexpr double kSmallestSheet = 15;
constexpr int kKeepsProportions = 1;
constexpr double kMostLineGap = 0.7;  ///< lines move apart by this where there is room

using Kind = TableRow::Kind;

constexpr std::string_view kAll = "(*)";

/// Whether another button of the form says the same.
bool HasTwin(const Control& control) {
    return std::ranges::any_of(control.form.Controls(), [&control](const Control* other) {
        return other != &control && other->kind == control.kind && other->State().text == control.State().text;
    });
}

bool IsFrame(const ControlWidget* widget) {
    return widget != nullptr && widget->Logical().kind == ControlKind::Frame;
}

/// It takes whatever room it is given.
bool IsSheet(const Control& control) {
    return control.kind == ControlKind::List || control.kind == ControlKind::ListView ||
           control.kind == ControlKind::Raster || (control.kind == ControlKind::TextBox && control.State().multiLine);
}

/// What the control takes of its form's design.
QRectF OnForm(const Control& control) {
    const ControlState& state = control.State();
    if (control.kind == ControlKind::Line) {
        return QRectF{QPointF{state.x1, state.y1}, QPointF{state.x2, state.y2}}.normalized();
    }
    return {state.place.left, state.place.top, state.place.width, state.place.height};
}

bool Wraps(Kind kind) {
    return kind == Kind::Text;
}

/// What stands of a device beside its number: "/dev/ttyUSB0, Acme Cable" is "ttyUSB0"; nothing where there is none.
QString DeviceIn(const std::string& toolTip) {
    return toolTip.starts_with('/') ? ToQt(toolTip).section(',', 0, 0).section('/', -1) : QString{};
}

/// A line of a sheet, over all else.
void PlaceBesidePicture(ControlWidget& line, ControlWidget& picture) {
    const QRectF inPixels = picture.Widget().geometry();
    const QRectF onForm = OnForm(picture.Logical());
    const QRectF place = OnForm(line.Logical());
    if (onForm.isEmpty()) {
        return;
    }
    const auto toPixels = [&](const QPointF& at) {
        return QPoint{qRound(inPixels.left() + (at.x() - onForm.left()) * inPixels.width() / onForm.width()),
                      qRound(inPixels.top() + (at.y() - onForm.top()) * inPixels.height() / onForm.height())};
    };
    line.Widget().setGeometry(
        QRect{toPixels(place.topLeft()), toPixels(place.bottomRight()) - QPoint{1, 1}}.adjusted(-1, -1, 1, 1));
    line.Widget().raise();
}

int ShareOfHeight(const TableRow& row) {
    return row.kind == Kind::Fill ? row.number : row.kind == Kind::Sheet ? 1 : 0;
}

/// The text of a label or of the part of a frame that stands in a line.
int WidthOfCaption(const ControlWidget& caption) {
    if (!IsFrame(&caption)) {
        return caption.Needed(0).width();
    }
    const QFontMetrics metrics{caption.Font()};
    return metrics.horizontalAdvance(CaptionText(caption.Logical().State().text)) + 1;
}

}  // namespace

/// What lies under the controls of a group that has no frame of its own.
class TableLayout::Panel : public QWidget {
public:
    using QWidget::QWidget;

    void SetTitle(const QString& title, const QRect& room) {
        title_ = title;
        room_ = room;
        setAccessibleName(title);
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        DrawPanel(painter, *this, title_, room_);
    }

private:
    QString title_;
    QRect room_;
};

TableLayout::TableLayout(Form& form, FormTable table, QWidget& window, FormMenus& menus)
    : form_{form}, table_{table}, window_{window}, menus_{menus}, canvas_{window} {}

TableLayout::~TableLayout() = default;

QWidget& TableLayout::ParentOf(const Control& /*control*/) {
    return canvas_.Sheet();
}

void TableLayout::Add(ControlWidget& widget) {
    widgets_.push_back(&widget);
    built_ = false;
    stale_ = true;
    fitted_ = {};
}

void TableLayout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
    built_ = false;
    stale_ = true;
    fitted_ = {};
}

void TableLayout::Changed(ControlWidget& widget) {
    fitted_ = {};
    const ControlKind kind = widget.Logical().kind;
    if (kind != ControlKind::Frame && kind != ControlKind::Line) {
        const QSize size = widget.Widget().size();
        const QSize need = widget.Needed(size.width());
        stale_ = stale_ || need.width() > size.width() || need.height() > size.height() + 1;
    } else if (kind == ControlKind::Line && built_) {
        FollowLine(widget);
    }
    namesStale_ = true;
}

bool TableLayout::IsInUse(const PlacedColumn& column) {
    const auto isShown = [](const Piece& piece) { return piece.widget->Logical().IsShown(); };
    return std::ranges::any_of(column.panels, [&isShown](const PlacedPanel& panel) {
        return std::ranges::any_of(
            panel.lines, [&isShown](const PlacedLine& line) { return std::ranges::any_of(line.pieces, isShown); });
    });
}

bool TableLayout::ColumnsChange() {
    bool changed = false;
    for (PlacedColumn& column : columns_) {
        const bool inUse = IsInUse(column);
        changed = changed || inUse != column.inUse;
        column.inUse = inUse;
        for (const PlacedPanel& panel : column.panels) {
            if (!IsFrame(panel.frame)) {
                panel.widget->setVisible(inUse);
            }
        }
    }
    return changed;
}

void TableLayout::Settle() {
    if (stale_ || ColumnsChange()) {
        Arrange();
    } else if (namesStale_) {
        TellLooks();
        TellTitles();
    }
}

ControlWidget* TableLayout::Take(std::string_view name, std::vector<ControlWidget*>& rest) {
    const auto found = std::ranges::find_if(
        rest, [name](const ControlWidget* widget) { return widget->Logical().FullName() == name; });
    if (found == rest.end()) {
        return nullptr;
    }
    ControlWidget* widget = *found;
    rest.erase(found);
    return widget;
}

std::vector<TableLayout::Piece> TableLayout::TakeAll(std::string_view controls, std::vector<ControlWidget*>& rest) {
    std::vector<Piece> pieces;
    for (const ToldControl& told : ControlsIn(controls)) {
        if (told.name.ends_with(kAll)) {
            const std::string_view family = std::string_view{told.name}.substr(0, told.name.size() - kAll.size());
            const auto first = std::stable_partition(rest.begin(), rest.end(), [family](const ControlWidget* widget) {
                return widget->Logical().name != family;
            });
            std::for_each(first, rest.end(),
                          [&pieces](ControlWidget* widget) { pieces.push_back({.widget = widget}); });
            rest.erase(first, rest.end());
        } else if (ControlWidget* widget = Take(told.name, rest)) {
            pieces.push_back({widget, told.characters, told.fills});
        }
    }
    return pieces;
}

TableLayout::PlacedPanel& TableLayout::LastPanel() {
    if (columns_.empty()) {
        columns_.push_back({.share = 1});
    }
    if (columns_.back().panels.empty()) {
        columns_.back().panels.emplace_back();
    }
    return columns_.back().panels.back();
}

void TableLayout::Build() {
    built_ = true;
    columns_.clear();
    left_.pieces.clear();
    right_.pieces.clear();
    std::vector<ControlWidget*> rest = widgets_;
    for (const TableRow& row : table_) {
        AddRow(row, rest);
    }
    for (ControlWidget* widget : rest) {  // what no row names
        if (!IsFrame(widget)) {
            LastPanel().lines.push_back({OneLine("", ""), nullptr, {{.widget = widget}}});
        }
    }
    std::size_t ours = 0;
    for (PlacedColumn& column : columns_) {
        for (PlacedPanel& panel : column.panels) {
            if (IsFrame(panel.frame)) {
                panel.widget = &panel.frame->Widget();
            } else {
                if (ours == panels_.size()) {
                    panels_.push_back(new Panel{&canvas_.Sheet()});
                    panels_.back()->show();
                }
                panel.widget = panels_[ours++];
            }
        }
    }
    LowerFrames();
    while (panels_.size() > ours) {
        delete panels_.back();
        panels_.pop_back();
    }
}

/// Panels lie under everything, frames that stand in a line on them.
void TableLayout::LowerFrames() {
    for (ControlWidget* widget : widgets_) {
        if (IsFrame(widget)) {
            widget->Widget().lower();
        }
    }
    for (const PlacedColumn& column : columns_) {
        for (const PlacedPanel& panel : column.panels) {
            panel.widget->lower();
        }
    }
}

void TableLayout::AddRow(const TableRow& row, std::vector<ControlWidget*>& rest) {
    switch (row.kind) {
        case Kind::Column:
            columns_.push_back({.share = row.number});
            return;
        case Kind::Group: {
            if (columns_.empty()) {
                columns_.push_back({.share = 1});
            }
            PlacedPanel panel;
            panel.frame = Take(row.caption, rest);
            panel.title = panel.frame == nullptr ? ToQt(row.caption) : QString{};
            const auto list = std::ranges::find_if(
                widgets_, [&row](const ControlWidget* widget) { return widget->Logical().FullName() == row.controls; });
            panel.list = list == widgets_.end() ? nullptr : *list;
            columns_.back().panels.push_back(std::move(panel));
            return;
        }
        case Kind::Left:
        case Kind::Right:
        case Kind::Main: {
            PlacedLine& side = row.kind == Kind::Left ? left_ : right_;
            std::ranges::move(TakeAll(row.controls, rest), std::back_inserter(side.pieces));
            return;
        }
        case Kind::OnSheet:
            for (Piece piece : TakeAll(row.controls, rest)) {
                piece.text = static_cast<SheetText>(row.number);
                LastPanel().lines.back().pieces.push_back(piece);
            }
            return;
        case Kind::Line:
        case Kind::Under:
        case Kind::Grid:
        case Kind::Below:
        case Kind::Text:
        case Kind::Fill:
        case Kind::Sheet: {
            PlacedLine line{row, Take(row.caption, rest), TakeAll(row.controls, rest)};
            if (line.caption != nullptr || !line.pieces.empty()) {
                LastPanel().lines.push_back(std::move(line));
            }
            return;
        }
    }
}

void TableLayout::TellLooks() {
    namesStale_ = false;
    for (const PlacedColumn& column : columns_) {
        for (const PlacedPanel& panel : column.panels) {
            for (const PlacedLine& line : panel.lines) {
                if (line.caption != nullptr && !IsFrame(line.caption)) {
                    Look look;
                    look.pixels = std::max(text_ * kSmall, canvas_.SmallestText());
                    look.quiet = true;
                    look.trimmed = true;
                    look.wrapped = line.row.kind == Kind::Below || line.row.kind == Kind::Fill;
                    line.caption->SetLook(look);
                }
                for (const Piece& piece : line.pieces) {
                    if (line.row.kind == Kind::Sheet) {
                        TellSheetLook(piece, line);
                    } else {
                        TellLook(piece, line);
                    }
                }
            }
        }
    }
    for (const PlacedLine* side : {&left_, &right_}) {
        for (const Piece& piece : side->pieces) {
            TellLook(piece, *side);
        }
    }
}

void TableLayout::TellLook(const Piece& piece, const PlacedLine& line) {
    const Control& control = piece.widget->Logical();
    const bool label = control.kind == ControlKind::Label;
    const bool value = IsValue(control);
    const bool reading = line.row.look == RowLook::Reading && value;
    const bool aside = label && !value && control.State().foreColor < 0;  // a hint, or a caption within the line
    Look look;
    look.pixels = std::max(text_ * (reading ? kLarge : aside ? kSmall : kPlain), canvas_.SmallestText());
    look.data = reading || (line.row.look == RowLook::Data && (control.kind == ControlKind::TextBox || value));
    look.bold = reading;
    look.quiet = aside;
    look.wrapped = label && Wraps(line.row.kind);
    look.trimmed = label && !look.wrapped;
    look.alignment = Qt::AlignLeft | (look.wrapped ? Qt::AlignTop : Qt::AlignVCenter);
    look.accented = !table_.empty() && table_.back().kind == Kind::Main && &line == &right_ &&
                    piece.widget == right_.pieces.back().widget;
    if (line.row.look == RowLook::Devices) {
        look.aside = DeviceIn(control.State().toolTip);
    }

    // What is filled in or read is called by the label before it; what is pressed, by its frame, or where the line has
    // a twin in another, by what heads the line.
    ControlWidget* namer = line.caption;
    for (const Piece& other : line.pieces) {
        if (&other == &piece || other.widget == piece.widget) {
            break;
        }
        if (other.widget->Logical().kind == ControlKind::Label && !IsValue(other.widget->Logical())) {
            namer = other.widget;
        }
    }
    if (IsCalledByCaption(control) && namer != nullptr) {
        look.spokenName = CaptionText(namer->Logical().State().text);
        auto* caption = qobject_cast<QLabel*>(&namer->Widget());
        if (caption != nullptr && !value && caption->buddy() == nullptr) {
            caption->setBuddy(&piece.widget->Widget());
        }
    } else if (IsCalledByCaption(control) && control.Frame() != nullptr) {
        look.spokenName = CaptionText(control.Frame()->State().text);
    } else if (IsPressed(control)) {
        const Control* frame = control.Frame();
        const bool isHeaded = line.caption != nullptr && !IsFrame(line.caption);
        if (frame != nullptr) {
            look.spokenName = CaptionText(frame->State().text);
        } else if (isHeaded && (line.row.kind == Kind::Grid || HasTwin(control))) {
            look.spokenName = CaptionText(line.caption->Logical().State().text);
        }
    }
    piece.widget->SetLook(look);
}

/// What lies on a picture has the picture's ground under it.
void TableLayout::TellSheetLook(const Piece& piece, const PlacedLine& line) {
    Look look;
    look.pixels = std::max(text_ * kSmall, canvas_.SmallestText());
    look.trimmed = true;
    look.alignment = (piece.text == SheetText::Heads ? Qt::AlignTop : Qt::AlignVCenter) |
                     (piece.text == SheetText::Begins || piece.text == SheetText::Heads ? Qt::AlignLeft
                      : piece.text == SheetText::Ends                                   ? Qt::AlignRight
                                                                                        : Qt::AlignHCenter);
    const Control& picture = line.pieces.front().widget->Logical();
    if (const Drawing* drawing = static_cast<const Raster&>(picture).Shapes();
        drawing != nullptr && drawing->ground >= 0) {
        look.ground = ToQColor(drawing->ground, ThemeOf(window_.palette()));
    }
    piece.widget->SetLook(look);
}

void TableLayout::TellTitles() {
    for (const PlacedColumn& column : columns_) {
        for (const PlacedPanel& panel : column.panels) {
            const int pad = 2 * Unit();
            const QRect room{pad, pad - Unit() / 2, panel.widget->width() - 2 * pad, TitleHeight(panel) - Unit() / 2};
            if (IsFrame(panel.frame)) {
                Look look;
                look.pixels = std::max(text_ * kSmall, canvas_.SmallestText());
                look.frame = FrameLook::Panel;
                look.captionRoom = room;
                panel.frame->SetLook(look);
                continue;
            }
            QString title = panel.title;
            if (panel.list != nullptr) {
                const ControlState& list = panel.list->Logical().State();
                const bool chosen = list.row >= 0 && list.row < static_cast<int>(list.items.size());
                title += chosen ? ": " + ToQt(list.items[static_cast<std::size_t>(list.row)]) : QString{};
            }
            Look look;
            look.pixels = std::max(text_ * kSmall, canvas_.SmallestText());
            panel.widget->setFont(FontOf(look));
            static_cast<Panel*>(panel.widget)->SetTitle(title, room);
        }
    }
}

int TableLayout::Unit() const {
    return std::max(qRound(text_ * kUnit), 2);
}

int TableLayout::TitleHeight(const PlacedPanel& panel) const {
    const bool titled = IsFrame(panel.frame) || !panel.title.isEmpty();
    return titled ? qRound(text_ * kTextHeight) + Unit() / 2 : 0;
}

int TableLayout::PieceWidth(const Piece& piece) const {
    const Control& control = piece.widget->Logical();
    const QSize need = piece.widget->Needed(0);
    if (piece.characters > 0) {
        const QFontMetrics metrics{piece.widget->Font()};
        const int asked = metrics.horizontalAdvance('N') * piece.characters + qRound(text_);
        return std::max(asked, control.kind == ControlKind::Label ? asked : need.width());
    }
    if (piece.fills || IsSheet(control)) {
        const int most = QFontMetrics{piece.widget->Font()}.horizontalAdvance('N') * kMostOfAValue;
        const int asked = control.kind == ControlKind::Label ? std::min(need.width(), most) : need.width();
        return std::max(asked, qRound(text_ * kSmallestButton));
    }
    if (control.kind == ControlKind::Button) {
        return std::max(need.width() + 3 * Unit(), control.State().text.empty() ? 0 : qRound(text_ * kSmallestButton));
    }
    return need.width() + 1;
}

int TableLayout::PieceHeight(const Piece& piece, int width) const {
    const Control& control = piece.widget->Logical();
    const int need = piece.widget->Needed(width).height();
    switch (control.kind) {
        case ControlKind::TextBox:
        case ControlKind::Button:
            return std::max(need, qRound(text_ * (IsSheet(control) ? 2 * kFieldHeight : kFieldHeight)));
        case ControlKind::Option:
        case ControlKind::CheckBox:
            return std::max(need, qRound(text_ * kChoiceHeight));
        case ControlKind::List: {
            const auto rows = static_cast<int>(std::min(control.State().items.size(), kRowsOfAShortList));
            return std::max({need, qRound(text_ * 3 * kFieldHeight), qRound(text_ * kRowHeight * rows)});
        }
        case ControlKind::ListView:
            return std::max(need, qRound(text_ * 3 * kFieldHeight));
        default:
            return std::max(need, qRound(text_ * kTextHeight));
    }
}

int TableLayout::CellWidth(const PlacedLine& line) const {
    int widest = 0;
    for (const Piece& piece : line.pieces) {
        widest = std::max(widest, PieceWidth(piece));
    }
    return line.row.look == RowLook::Devices ? widest + qRound(text_ * 3 * kTextHeight) : widest;
}

/// Of a caption beside its controls.
int TableLayout::CaptionWidth(const PlacedLine& line) const {
    const bool beside = line.row.kind == Kind::Line || line.row.kind == Kind::Grid;
    return beside && line.caption != nullptr ? WidthOfCaption(*line.caption) + 2 * Unit() : 0;
}

int TableLayout::LineWidth(const PlacedLine& line, int captionWidth) const {
    const int gap = 2 * Unit();
    const int before = line.caption == nullptr ? 0 : captionWidth;
    const auto count = static_cast<int>(line.pieces.size());
    switch (line.row.kind) {
        case Kind::Grid: {
            const int cells = std::min(line.row.number, count);
            return before + cells * CellWidth(line) + (cells - 1) * Unit();
        }
        case Kind::Text:
            return qRound(text_ * kColumnOfText);
        case Kind::Sheet:
            return SheetNeed(line).width();
        default: {
            const int own = std::accumulate(line.pieces.begin(), line.pieces.end(), 0,
                                            [this](int sum, const Piece& piece) { return sum + PieceWidth(piece); });
            const bool beside = line.row.kind == Kind::Line;
            return (beside                         ? before
                    : line.row.kind == Kind::Under ? captionWidth
                                                   : 0) +
                   own + std::max(count - 1, 0) * gap;
        }
    }
}

QRectF TableLayout::SheetOnForm(const std::vector<Piece>& pieces) {
    QRectF whole;
    for (const Piece& piece : pieces) {
        const QRectF place = OnForm(piece.widget->Logical());
        if (piece.widget->Logical().IsShown()) {  // a line takes no room in one direction
            whole =
                whole.isNull()
                    ? place
                    : QRectF{QPointF{std::min(whole.left(), place.left()), std::min(whole.top(), place.top())},
                             QPointF{std::max(whole.right(), place.right()), std::max(whole.bottom(), place.bottom())}};
        }
    }
    return whole;
}

QSize TableLayout::SheetNeed(const PlacedLine& line) const {
    const QRectF whole = SheetOnForm(line.pieces);
    double width = text_ * kSmallestSheet;
    double height = width;
    for (const Piece& piece : line.pieces) {
        const Control& control = piece.widget->Logical();
        const QRectF place = OnForm(control);
        if (control.kind == ControlKind::Label && piece.text != SheetText::Within && !place.isEmpty()) {
            const QSize need = piece.widget->Needed(0);
            width = std::max(width, (need.width() + 1) * whole.width() / place.width());
            height = std::max(height, (need.height() + 1) * whole.height() / place.height());
        }
    }
    return {qRound(width), qRound(height)};
}

int TableLayout::LineHeight(const PlacedLine& line, const PlacedColumn& column) const {
    const int width = column.width - 4 * Unit();
    const auto tallest = [&](int pieceWidth) {
        int most = 0;
        for (const Piece& piece : line.pieces) {
            most = std::max(most, PieceHeight(piece, pieceWidth));
        }
        return most;
    };
    switch (line.row.kind) {
        case Kind::Grid: {
            const auto count = static_cast<int>(line.pieces.size());
            const int rows = (count + line.row.number - 1) / std::max(line.row.number, 1);
            return rows * tallest(CellWidth(line)) + (rows - 1) * (Unit() / 2);
        }
        case Kind::Sheet:
            return SheetNeed(line).height();
        case Kind::Text: {
            int height = 0;
            for (const Piece& piece : line.pieces) {
                height += (height > 0 ? Unit() : 0) + PieceHeight(piece, width);
            }
            return height;
        }
        case Kind::Below:
        case Kind::Fill: {
            int above = 0;
            if (line.caption != nullptr) {
                const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(width).height();
                above = std::max(need, qRound(text_ * kTextHeight));
            }
            return above + (above > 0 ? Unit() / 4 : 0) + tallest(width);
        }
        default: {
            if (line.caption == nullptr) {
                return tallest(width);
            }
            const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(0).height();  // an option is one, too
            return std::max({tallest(width), need, qRound(text_ * kTextHeight)});
        }
    }
}

int TableLayout::HeightOf(const PlacedPanel& panel, const PlacedColumn& column) const {
    int height = 4 * Unit() + TitleHeight(panel);
    for (const PlacedLine& line : panel.lines) {
        height += LineHeight(line, column) + (&line == &panel.lines.front() ? 0 : Unit());
    }
    return height;
}

int TableLayout::HeightOf(const PlacedColumn& column) const {
    int height = 0;
    for (const PlacedPanel& panel : column.panels) {
        height += HeightOf(panel, column) + (height > 0 ? 2 * Unit() : 0);
    }
    return height;
}

int TableLayout::BarHeight() const {
    return left_.pieces.empty() && right_.pieces.empty() ? 0 : qRound(text_ * kFieldHeight) + 2 * Unit();
}

QSize TableLayout::Measure(double text, int width) {
    text_ = text;
    TellTitles();
    TellLooks();
    const int outer = 2 * Unit();
    int needed = outer;
    int shares = 0;
    for (PlacedColumn& column : columns_) {
        column.captionWidth = 0;
        column.width = 0;
        if (!column.inUse) {
            continue;
        }
        for (const PlacedPanel& panel : column.panels) {
            for (const PlacedLine& line : panel.lines) {
                column.captionWidth = std::max(column.captionWidth, CaptionWidth(line));
            }
        }
        for (const PlacedPanel& panel : column.panels) {
            for (const PlacedLine& line : panel.lines) {
                column.width = std::max(column.width, LineWidth(line, column.captionWidth) + 2 * outer);
            }
        }
        needed += column.width + outer;
        shares += column.share;
    }
    const int over = std::max(width - needed, 0);
    int height = 0;
    for (PlacedColumn& column : columns_) {
        if (!column.inUse) {
            continue;
        }
        column.width += shares == 0 ? over / static_cast<int>(columns_.size()) : over * column.share / shares;
        height = std::max(height, HeightOf(column));
    }
    int bar = 2 * outer;
    for (const PlacedLine* side : {&left_, &right_}) {
        bar += LineWidth(*side, 0) + 2 * Unit();
    }
    return {std::max(needed, bar), height + BarHeight() + 2 * outer};
}

void TableLayout::Arrange() {
    if (fitted_ == window_.size()) {
        return;
    }
    stale_ = false;
    if (!built_) {
        Build();
    }
    ColumnsChange();
    const double growth = std::min(window_.width() * kUnitsPerPixel / form_.design.width,
                                   window_.height() * kUnitsPerPixel / form_.design.height);
    const double wanted = kDesignText * growth;
    const QSize room = canvas_.Spread(menus_, std::max(wanted, canvas_.SmallestText()));
    double text = wanted * kMostText;
    QSize need = Measure(text, room.width());
    while ((need.width() > room.width() || need.height() > room.height()) && text * kTextStep > wanted * kLeastText) {
        text *= kTextStep;
        need = Measure(text, room.width());
    }
    canvas_.Sheet().resize(need.expandedTo(room));
    Place(canvas_.Sheet().size());
    TellTitles();
    fitted_ = window_.size();
}

void TableLayout::Place(const QSize& room) {
    const int outer = 2 * Unit();
    const int bar = BarHeight();
    int left = outer;
    for (const PlacedColumn& column : columns_) {
        if (!column.inUse) {
            continue;
        }
        PlaceColumn(column, {left, outer, column.width, room.height() - 2 * outer - bar});
        left += column.width + outer;
    }
    PlaceBar({outer, room.height() - outer - bar + 2 * Unit(), room.width() - 2 * outer, bar - 2 * Unit()});
}

/// What a column leaves over goes to what fills it, or else between its lines, and below the last one.
void TableLayout::PlaceColumn(const PlacedColumn& column, const QRect& room) {
    int lines = 0;
    int weights = 0;
    for (const PlacedPanel& panel : column.panels) {
        for (const PlacedLine& line : panel.lines) {
            weights += ShareOfHeight(line.row);
            ++lines;
        }
    }
    const int over = std::max(room.height() - HeightOf(column), 0);
    const int apart = weights > 0 || lines == 0 ? 0 : std::min(over / lines, qRound(text_ * kMostLineGap));
    const int pad = 2 * Unit();
    int top = room.top();
    for (const PlacedPanel& panel : column.panels) {
        int below = top + pad + TitleHeight(panel);
        for (const PlacedLine& line : panel.lines) {
            const int share = ShareOfHeight(line.row);
            const int more = share > 0 ? over * share / weights : 0;
            const QRect place{room.left() + pad, below, room.width() - 2 * pad, LineHeight(line, column) + more};
            PlaceLine(line, place, column);
            below = place.bottom() + 1 + Unit() + apart;
        }
        const bool last = &panel == &column.panels.back();
        const int bottom = last ? room.bottom() + 1 : below - Unit() + pad;
        panel.widget->setGeometry(room.left(), top, room.width(), bottom - top);
        top = bottom + 2 * Unit();
    }
}

void TableLayout::PlaceLine(const PlacedLine& line, const QRect& room, const PlacedColumn& column) {
    QRect inside = room;
    if (line.row.kind == Kind::Sheet) {
        PlaceSheet(line, room);
        return;
    }
    if (line.row.kind == Kind::Text) {
        for (const Piece& piece : line.pieces) {
            inside.setHeight(PieceHeight(piece, room.width()));
            piece.widget->Widget().setGeometry(inside);
            inside.translate(0, inside.height() + Unit());
        }
        return;
    }
    if (line.caption != nullptr) {
        const bool beside = line.row.kind == Kind::Line || line.row.kind == Kind::Grid;
        QRect caption = room;
        if (beside) {
            caption.setWidth(column.captionWidth - 2 * Unit());
            inside.setLeft(room.left() + column.captionWidth);
            const int firstLine = line.row.kind == Kind::Grid && !line.pieces.empty()
                                      ? PieceHeight(line.pieces.front(), CellWidth(line))
                                      : room.height();
            caption.setHeight(firstLine);
        } else {
            const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(room.width()).height();
            caption.setHeight(std::max(need, qRound(text_ * kTextHeight)));
            inside.setTop(caption.bottom() + 1 + Unit() / 4);
        }
        if (IsFrame(line.caption)) {
            Look look;
            look.pixels = std::max(text_ * kSmall, canvas_.SmallestText());
            look.frame = FrameLook::Line;
            const QRect around = room.adjusted(-2, -2, 2, 2);  // what lies in it lies within its edge
            look.captionRoom = caption.translated(-around.topLeft());
            line.caption->SetLook(look);
            line.caption->Widget().setGeometry(around);
        } else {
            line.caption->Widget().setGeometry(caption);
        }
    }
    if (line.row.kind == Kind::Under) {
        inside.setLeft(room.left() + column.captionWidth);
    }
    if (line.row.kind == Kind::Grid) {
        PlaceCells(line, inside);
    } else {
        PlacePieces(line, inside);
    }
}

void TableLayout::FollowLine(const ControlWidget& widget) {
    for (const PlacedColumn& column : columns_) {
        for (const PlacedPanel& panel : column.panels) {
            for (const PlacedLine& line : panel.lines) {
                const auto piece = std::ranges::find(line.pieces, &widget, &Piece::widget);
                if (line.row.kind == Kind::Sheet && piece != line.pieces.end()) {
                    PlaceBesidePicture(*piece->widget, *line.pieces.front().widget);
                }
            }
        }
    }
}

void TableLayout::PlaceSheet(const PlacedLine& line, const QRect& room) {
    const QRectF whole = SheetOnForm(line.pieces);
    QSizeF size = room.size();
    if (line.row.number == kKeepsProportions) {
        size = whole.size().scaled(size, Qt::KeepAspectRatio);
    }
    const double across = whole.width() > 0 ? size.width() / whole.width() : 0;
    const double down = whole.height() > 0 ? size.height() / whole.height() : 0;
    const double left = room.left() + (room.width() - size.width()) / 2;
    const double top = room.top() + (room.height() - size.height()) / 2;
    for (const Piece& piece : line.pieces) {
        const QRectF place = OnForm(piece.widget->Logical());
        const QPoint from{qRound(left + (place.left() - whole.left()) * across),
                          qRound(top + (place.top() - whole.top()) * down)};
        const QPoint to{qRound(left + (place.right() - whole.left()) * across),
                        qRound(top + (place.bottom() - whole.top()) * down)};
        QWidget& widget = piece.widget->Widget();
        if (piece.widget->Logical().kind == ControlKind::Line) {
            PlaceBesidePicture(*piece.widget, *line.pieces.front().widget);
        } else {
            widget.setGeometry(QRect{from, to - QPoint{1, 1}});
        }
    }
}

void TableLayout::PlaceCells(const PlacedLine& line, const QRect& room) {
    const int columns = std::max(line.row.number, 1);
    const bool even = line.row.look == RowLook::Devices;
    const int cell = even ? (room.width() - (columns - 1) * Unit()) / columns : CellWidth(line);
    for (std::size_t i = 0; i < line.pieces.size(); ++i) {
        const int height = PieceHeight(line.pieces[i], cell);
        const int row = static_cast<int>(i) / columns;
        const int column = static_cast<int>(i) % columns;
        line.pieces[i].widget->Widget().setGeometry(room.left() + column * (cell + Unit()),
                                                    room.top() + row * (height + Unit() / 2), cell, height);
    }
}

void TableLayout::PlacePieces(const PlacedLine& line, const QRect& room) {
    const int gap = 2 * Unit();
    int over = room.width() - (static_cast<int>(line.pieces.size()) - 1) * gap;
    int filling = 0;
    for (const Piece& piece : line.pieces) {
        over -= PieceWidth(piece);
        filling += piece.fills || line.row.kind == Kind::Fill ? 1 : 0;
    }
    int left = room.left();
    for (const Piece& piece : line.pieces) {
        const bool fills = piece.fills || line.row.kind == Kind::Fill;
        const int width = PieceWidth(piece) + (fills ? std::max(over, 0) / filling : 0);
        const int height = line.row.kind == Kind::Fill ? room.height() : PieceHeight(piece, width);
        piece.widget->Widget().setGeometry(left, room.top() + (room.height() - height) / 2, width, height);
        left += width + gap;
    }
}

void TableLayout::PlaceBar(const QRect& room) {
    PlacePieces(left_, room);
    PlacePieces(right_, room.adjusted(room.width() - LineWidth(right_, 0), 0, 0, 0));
}

}  // namespace tallyhut
