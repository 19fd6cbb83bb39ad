#include "forms/qt/table_layout.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "forms/qt/program_style.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/table_sheet.h"
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

constexpr double kMostLineGap = 0.7;  ///< in units of plain text's: lines move apart by this where there is room

using Kind = TableRow::Kind;

/// Whether another button of the form says the same.
bool HasTwin(const Control& control) {
    return std::ranges::any_of(control.form.Controls(), [&control](const Control* other) {
        return other != &control && other->kind == control.kind && other->State().text == control.State().text;
    });
}

bool Wraps(Kind kind) {
    return kind == Kind::Text;
}

/// What stands of a device beside its number: "/dev/ttyUSB0, Acme Cable" is "ttyUSB0"; nothing where there is none.
QString DeviceIn(const std::string& toolTip) {
    return toolTip.starts_with('/') ? ToQt(toolTip).section(',', 0, 0).section('/', -1) : QString{};
}

int ShareOfHeight(const TableRow& row) {
    return row.kind == Kind::Fill ? row.number : row.kind == Kind::Sheet ? 1 : 0;
}

/// Whether a panel that stands in the place of this one has something to show.
bool IsReplaced(const TableColumn& column, std::size_t place) {
    for (std::size_t i = place + 1; i < column.panels.size(); ++i) {
        const TablePanel& panel = column.panels[i];
        if (panel.insteadOf > 0 && place + static_cast<std::size_t>(panel.insteadOf) >= i &&
            panel.HoldsSomethingShown()) {
            return true;
        }
    }
    return false;
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

bool TableLayout::ColumnsChange() {
    bool changed = false;
    for (TableColumn& column : parts_.columns) {
        const bool inUse = column.HoldsSomethingShown();
        changed = changed || inUse != column.inUse;
        column.inUse = inUse;
        for (std::size_t i = 0; i < column.panels.size(); ++i) {
            if (!IsFrame(column.panels[i].frame)) {
                column.panels[i].widget->setVisible(inUse && !IsReplaced(column, i));
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

void TableLayout::Build() {
    built_ = true;
    parts_ = SortIntoTable(table_, widgets_);
    std::size_t ours = 0;
    for (TableColumn& column : parts_.columns) {
        for (TablePanel& panel : column.panels) {
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
    for (const TableColumn& column : parts_.columns) {
        for (const TablePanel& panel : column.panels) {
            panel.widget->lower();
        }
    }
}

void TableLayout::TellLooks() {
    namesStale_ = false;
    for (const TableColumn& column : parts_.columns) {
        for (const TablePanel& panel : column.panels) {
            for (const TableLine& line : panel.lines) {
                if (line.caption != nullptr && !IsFrame(line.caption)) {
                    Look look;
                    look.pixels = std::max(measures_.text * kSmall, canvas_.SmallestText());
                    look.quiet = true;
                    look.trimmed = true;
                    look.wrapped = line.row.kind == Kind::Below || line.row.kind == Kind::Fill;
                    line.caption->SetLook(look);
                }
                for (const TablePiece& piece : line.pieces) {
                    if (line.row.kind == Kind::Sheet) {
                        TellSheetLook(piece, line);
                    } else {
                        TellLook(piece, line);
                    }
                }
            }
        }
    }
    for (const TableLine* side : {&parts_.left, &parts_.right}) {
        for (const TablePiece& piece : side->pieces) {
            TellLook(piece, *side);
        }
    }
}

void TableLayout::TellLook(const TablePiece& piece, const TableLine& line) {
    const Control& control = piece.widget->Logical();
    const bool label = control.kind == ControlKind::Label;
    const bool value = IsValue(control);
    const bool reading = line.row.look == RowLook::Reading && value;
    const bool aside = label && !value && control.State().foreColor < 0;  // a hint, or a caption within the line
    Look look;
    look.pixels = std::max(measures_.text * (reading ? kLarge : aside ? kSmall : kPlain), canvas_.SmallestText());
    look.data = reading || (line.row.look == RowLook::Data && (control.kind == ControlKind::TextBox || value));
    look.bold = reading;
    look.quiet = aside;
    look.wrapped = label && Wraps(line.row.kind);
    look.trimmed = label && !look.wrapped;
    look.alignment = Qt::AlignLeft | (look.wrapped ? Qt::AlignTop : Qt::AlignVCenter);
    look.accented = !table_.empty() && table_.back().kind == Kind::Main && &line == &parts_.right &&
                    piece.widget == parts_.right.pieces.back().widget;
    if (line.row.look == RowLook::Devices) {
        look.aside = DeviceIn(control.State().toolTip);
    }

    // What is filled in or read is called by the label before it; what is pressed, by its frame, or where the line has
    // a twin in another, by what heads the line.
    ControlWidget* namer = line.caption;
    for (const TablePiece& other : line.pieces) {
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
void TableLayout::TellSheetLook(const TablePiece& piece, const TableLine& line) {
    Look look;
    look.pixels = std::max(measures_.text * kSmall, canvas_.SmallestText());
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
    for (const TableColumn& column : parts_.columns) {
        for (const TablePanel& panel : column.panels) {
            const int pad = 2 * measures_.Unit();
            const QRect room{pad, pad - measures_.Unit() / 2, panel.widget->width() - 2 * pad,
                             measures_.TitleHeight(panel) - measures_.Unit() / 2};
            if (IsFrame(panel.frame)) {
                Look look;
                look.pixels = std::max(measures_.text * kSmall, canvas_.SmallestText());
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
            look.pixels = std::max(measures_.text * kSmall, canvas_.SmallestText());
            panel.widget->setFont(FontOf(look));
            static_cast<Panel*>(panel.widget)->SetTitle(title, room);
        }
    }
}

QSize TableLayout::Measure(double text, int width) {
    measures_.text = text;
    TellTitles();
    TellLooks();
    const int outer = 2 * measures_.Unit();
    int needed = outer;
    int shares = 0;
    for (TableColumn& column : parts_.columns) {
        column.captionWidth = 0;
        column.width = 0;
        if (!column.inUse) {
            continue;
        }
        for (const TablePanel& panel : column.panels) {
            for (const TableLine& line : panel.lines) {
                column.captionWidth = std::max(column.captionWidth, measures_.CaptionWidth(line));
            }
        }
        for (const TablePanel& panel : column.panels) {
            for (const TableLine& line : panel.lines) {
                column.width = std::max(column.width, measures_.LineWidth(line, column.captionWidth) + 2 * outer);
            }
        }
        needed += column.width + outer;
        shares += column.share;
    }
    const int over = std::max(width - needed, 0);
    int height = 0;
    for (TableColumn& column : parts_.columns) {
        if (!column.inUse) {
            continue;
        }
        column.width += shares == 0 ? over / static_cast<int>(parts_.columns.size()) : over * column.share / shares;
        height = std::max(height, measures_.HeightOf(column));
    }
    int bar = 2 * outer;
    for (const TableLine* side : {&parts_.left, &parts_.right}) {
        bar += measures_.LineWidth(*side, 0) + 2 * measures_.Unit();
    }
    return {std::max(needed, bar), height + measures_.BarHeight(parts_) + 2 * outer};
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
    const int outer = 2 * measures_.Unit();
    const int bar = measures_.BarHeight(parts_);
    int left = outer;
    for (const TableColumn& column : parts_.columns) {
        if (!column.inUse) {
            continue;
        }
        PlaceColumn(column, {left, outer, column.width, room.height() - 2 * outer - bar});
        left += column.width + outer;
    }
    PlaceBar({outer, room.height() - outer - bar + 2 * measures_.Unit(), room.width() - 2 * outer,
              bar - 2 * measures_.Unit()});
}

/// What a column leaves over goes to what fills it, or else between its lines, and below the last one.
void TableLayout::PlaceColumn(const TableColumn& column, const QRect& room) {
    int lines = 0;
    int weights = 0;
    for (const TablePanel& panel : column.panels) {
        if (panel.insteadOf > 0) {
            continue;
        }
        for (const TableLine& line : panel.lines) {
            weights += ShareOfHeight(line.row);
            ++lines;
        }
    }
    const int over = std::max(room.height() - measures_.HeightOf(column), 0);
    const int apart = weights > 0 || lines == 0 ? 0 : std::min(over / lines, qRound(measures_.text * kMostLineGap));
    const int pad = 2 * measures_.Unit();
    int top = room.top();
    std::vector<int> tops;
    for (const TablePanel& panel : column.panels) {
        tops.push_back(top);
        const bool replaces = panel.insteadOf > 0;
        const int next = top;
        if (replaces) {
            top = tops.at(tops.size() - 1 - static_cast<std::size_t>(panel.insteadOf));
        }
        int below = top + pad + measures_.TitleHeight(panel);
        for (const TableLine& line : panel.lines) {
            const int share = ShareOfHeight(line.row);
            const int more = share > 0 ? over * share / weights : 0;
            const QRect place{room.left() + pad, below, room.width() - 2 * pad,
                              measures_.LineHeight(line, column) + more};
            PlaceLine(line, place, column);
            below = place.bottom() + 1 + measures_.Unit() + apart;
        }
        const bool last = &panel == &column.panels.back();
        const int bottom = replaces ? next - 2 * measures_.Unit()
                           : last   ? room.bottom() + 1
                                    : below - measures_.Unit() + pad;
        panel.widget->setGeometry(room.left(), top, room.width(), bottom - top);
        top = bottom + 2 * measures_.Unit();
    }
}

void TableLayout::PlaceLine(const TableLine& line, const QRect& room, const TableColumn& column) {
    QRect inside = room;
    if (line.row.kind == Kind::Sheet) {
        PlaceSheet(line, room);
        return;
    }
    if (line.row.kind == Kind::Text) {
        for (const TablePiece& piece : line.pieces) {
            inside.setHeight(measures_.PieceHeight(piece, room.width()));
            piece.widget->Widget().setGeometry(inside);
            inside.translate(0, inside.height() + measures_.Unit());
        }
        return;
    }
    if (line.caption != nullptr) {
        const bool beside = line.row.kind == Kind::Line || line.row.kind == Kind::Grid;
        QRect caption = room;
        if (beside) {
            caption.setWidth(column.captionWidth - 2 * measures_.Unit());
            inside.setLeft(room.left() + column.captionWidth);
            const int firstLine = line.row.kind == Kind::Grid && !line.pieces.empty()
                                      ? measures_.PieceHeight(line.pieces.front(), measures_.CellWidth(line))
                                      : room.height();
            caption.setHeight(firstLine);
        } else {
            const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(room.width()).height();
            caption.setHeight(std::max(need, measures_.TextHeight()));
            inside.setTop(caption.bottom() + 1 + measures_.Unit() / 4);
        }
        if (IsFrame(line.caption)) {
            Look look;
            look.pixels = std::max(measures_.text * kSmall, canvas_.SmallestText());
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
    for (const TableColumn& column : parts_.columns) {
        for (const TablePanel& panel : column.panels) {
            for (const TableLine& line : panel.lines) {
                const auto piece = std::ranges::find(line.pieces, &widget, &TablePiece::widget);
                if (line.row.kind == Kind::Sheet && piece != line.pieces.end()) {
                    PlaceBesidePicture(*piece->widget, *line.pieces.front().widget);
                }
            }
        }
    }
}

void TableLayout::PlaceCells(const TableLine& line, const QRect& room) {
    const int columns = std::max(line.row.number, 1);
    const bool even = line.row.look == RowLook::Devices;
    const int cell = even ? (room.width() - (columns - 1) * measures_.Unit()) / columns : measures_.CellWidth(line);
    for (std::size_t i = 0; i < line.pieces.size(); ++i) {
        const int height = measures_.PieceHeight(line.pieces[i], cell);
        const int row = static_cast<int>(i) / columns;
        const int column = static_cast<int>(i) % columns;
        line.pieces[i].widget->Widget().setGeometry(room.left() + column * (cell + measures_.Unit()),
                                                    room.top() + row * (height + measures_.Unit() / 2), cell, height);
    }
}

void TableLayout::PlacePieces(const TableLine& line, const QRect& room) {
    const int gap = 2 * measures_.Unit();
    int over = room.width() - (static_cast<int>(line.pieces.size()) - 1) * gap;
    int filling = 0;
    for (const TablePiece& piece : line.pieces) {
        over -= measures_.PieceWidth(piece);
        filling += piece.fills || line.row.kind == Kind::Fill ? 1 : 0;
    }
    int left = room.left();
    for (const TablePiece& piece : line.pieces) {
        const bool fills = piece.fills || line.row.kind == Kind::Fill;
        const int width = measures_.PieceWidth(piece) + (fills ? std::max(over, 0) / filling : 0);
        const int height = line.row.kind == Kind::Fill ? room.height() : measures_.PieceHeight(piece, width);
        piece.widget->Widget().setGeometry(left, room.top() + (room.height() - height) / 2, width, height);
        left += width + gap;
    }
}

void TableLayout::PlaceBar(const QRect& room) {
    PlacePieces(parts_.left, room);
    PlacePieces(parts_.right, room.adjusted(room.width() - measures_.LineWidth(parts_.right, 0), 0, 0, 0));
}

}  // namespace tallyhut
