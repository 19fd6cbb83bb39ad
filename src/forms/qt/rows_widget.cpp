#include "forms/qt/rows_widget.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>
#include <numeric>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "toolkit/controls.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr QChar kFirstPlain{0x20};
constexpr QChar kLastPlain{0x7E};

double WidestPlainCharacter(const QFontMetricsF& metrics) {
    double widest = 0;
    for (QChar character = kFirstPlain; character <= kLastPlain; character = QChar{character.unicode() + 1}) {
        widest = std::max(widest, metrics.horizontalAdvance(character));
    }
    return widest;
}

bool IsPlain(const QString& text) {
    return std::ranges::all_of(text, [](QChar each) { return each >= kFirstPlain && each <= kLastPlain; });
}

/// Of one size for all rows. A contact moves every row of the log on: text that surely fits its cell is drawn without
/// the measuring and shortening that the style does for each, to the same pixels.
class RowDelegate : public QStyledItemDelegate {
public:
    RowDelegate(const RowMeasures& measures, QObject* parent) : QStyledItemDelegate{parent}, measures_{measures} {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize text = QStyledItemDelegate::sizeHint(option, index);
        return {text.width(), measures_.height > 0 ? measures_.height : text.height()};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr QStyle::State kMarked =
            QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus | QStyle::State_Editing;
        const QString text = index.data().toString();
        const int margin =
            option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        const bool fits = static_cast<double>(text.size()) * measures_.widestPlain <= room.width();
        if (!fits || !IsPlain(text) || (option.state & kMarked) != 0 || !option.state.testFlag(QStyle::State_Enabled)) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        const bool active = option.state.testFlag(QStyle::State_Active);
        painter->setFont(option.font);
        painter->setPen(option.palette.color(active ? QPalette::Normal : QPalette::Inactive, QPalette::Text));
        const int top = room.top() + room.height() / 2 - measures_.lineHeight / 2;
        painter->drawText(QPointF{static_cast<qreal>(room.left()), top + measures_.ascent}, text);
    }

private:
    const RowMeasures& measures_;
};

/// Of a list whose rows are not spread over it, in units of its text.
constexpr double kLooseRow = 1.7;

const ListView* AsListView(const Control& control) {
    return control.kind == ControlKind::ListView ? static_cast<const ListView*>(&control) : nullptr;
}

}  // namespace

int RowsModel::PresentRows() const {
    const ListView* view = AsListView(control_);
    return static_cast<int>(view == nullptr ? control_.State().items.size() : view->RowCount());
}

int RowsModel::PresentColumns() const {
    return AsListView(control_) == nullptr ? 1 : static_cast<int>(control_.State().columns.size());
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int RowsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    // The control may have lost rows since it was last looked at.
    if (role != Qt::DisplayRole || index.row() >= PresentRows() || index.column() >= PresentColumns()) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    const ListView* view = AsListView(control_);
    return ToQt(view == nullptr ? control_.State().items[row]
                                : view->Cell(row, static_cast<std::size_t>(index.column())));
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const std::vector<ListColumn>& columns = control_.State().columns;
    const auto at = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || at >= columns.size()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant{ToQt(columns[at].caption)} : QVariant{};
}

void RowsModel::Refresh(int firstShown, int lastShown) {
    if (rows_ != PresentRows() || columns_ != PresentColumns()) {
        beginResetModel();
        rows_ = PresentRows();
        columns_ = PresentColumns();
        endResetModel();
    } else if (rows_ > 0 && columns_ > 0) {
        emit dataChanged(index(firstShown, 0), index(lastShown, columns_ - 1));
    }
}

RowsWidget::RowsWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : WidgetOf{control, input, parent}, model_{control} {
    setModel(&model_);
    setItemDelegate(new RowDelegate{measures_, this});
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::TabFocus);
    setProperty(kFocusMark, false);
    header()->setVisible(AsListView(control) != nullptr);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(1);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        auto* list = static_cast<ListView*>(&Logical());
        Input().DoWhileThere(this, [this, list, section] {
            Desk& desk = Input().TheDesk();
            if (list->IsShown() && list->State().enabled && !desk.IsBlockedByModal(list->form)) {
                desk.Call(list->ColumnClick, section + 1);
            }
        });
    });
}

void RowsWidget::SetRowsInView(int count) {
    rowsInView_ = count;
    SpreadRows();
}

QSize RowsWidget::Needed(int /*width*/) const {
    constexpr int kFewest = 2;
    return {0, kFewest * fontMetrics().height() * 7 / 4 + (header()->isHidden() ? 0 : header()->height())};
}

void RowsWidget::SpreadRows() {
    if (rowsInView_ <= 0) {
        return;
    }
    const double text = TheLook().pixels;
    const int height = std::clamp(viewport()->height() / rowsInView_, qRound(text * 1.45), qRound(text * 2.1));
    if (measures_.height != height) {
        measures_.height = height;
        scheduleDelayedItemsLayout();
    }
}

void RowsWidget::ShowState() {
    const int columns = model_.columnCount({});
    const QModelIndex first = indexAt({0, 0});
    const QModelIndex last = indexAt({0, viewport()->height() - 1});
    model_.Refresh(first.isValid() ? first.row() : 0, last.isValid() ? last.row() : model_.rowCount({}) - 1);
    if (columns != model_.columnCount({})) {
        SpreadColumns();
    }
    const int row = Logical().State().row;
    if (row < 0) {
        selectionModel()->clear();
    } else if (currentIndex().row() != row || !selectionModel()->isRowSelected(row, {})) {
        setCurrentIndex(model_.index(row, 0));
    }
    const Theme theme = ThemeOf(parentWidget()->palette());
    QPalette wanted = parentWidget()->palette();
    wanted.setColor(QPalette::Base, AsListView(Logical()) != nullptr ? theme.panel : theme.field);
    wanted.setColor(QPalette::AlternateBase, theme.stripe);
    wanted.setColor(QPalette::Text, theme.text);
    const bool focused = HasLogicalFocus();
    wanted.setColor(QPalette::Highlight, focused ? theme.accent : theme.quietSelection);
    wanted.setColor(QPalette::HighlightedText, focused ? TextOn(theme.accent) : theme.text);
    if (palette() != wanted) {
        setPalette(wanted);
    }
}

void RowsWidget::ShowLook() {
    setFont(FontOf(TheLook()));
    if (rowsInView_ <= 0) {
        measures_.height = qRound(TheLook().pixels * kLooseRow);
        scheduleDelayedItemsLayout();
    }
    Look heading = TheLook();
    heading.data = false;
    header()->setFont(FontOf(heading));
    header()->setFixedHeight(qRound(TheLook().pixels * 1.7));
}

void RowsWidget::SpreadColumns() {
    const std::vector<ListColumn>& columns = Logical().State().columns;
    const double whole = std::accumulate(columns.begin(), columns.end(), 0.0,
                                         [](double sum, const ListColumn& column) { return sum + column.width; });
    if (whole <= 0) {
        return;
    }
    for (int i = 0; i + 1 < header()->count(); ++i) {
        const double share = columns[static_cast<std::size_t>(i)].width / whole;
        header()->resizeSection(i, qRound(share * viewport()->width()));
    }
}

/// As the style lays out a line of text, which is finer than whole pixels.
void RowsWidget::MeasureText() {
    const std::pair now{font(), devicePixelRatioF()};
    if (measuredFor_ == now) {
        return;
    }
    measuredFor_ = now;
    QTextLayout layout{"X", font()};
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    measures_.lineHeight = qCeil(line.height());
    measures_.ascent = line.ascent();
    measures_.widestPlain = WidestPlainCharacter(QFontMetricsF{font()});
}

void RowsWidget::paintEvent(QPaintEvent* event) {
    MeasureText();
    QTreeView::paintEvent(event);
    const Theme theme = ThemeOf(parentWidget()->palette());
    QPainter painter{viewport()};
    if (IsFocusMarked(*this)) {
        DrawFocusEdge(painter, *this, viewport()->rect());
    } else if (AsListView(Logical()) == nullptr) {
        painter.setPen(theme.fieldEdge);
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void RowsWidget::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    SpreadColumns();
    SpreadRows();
}

void RowsWidget::mousePressEvent(QMouseEvent* event) {
    const auto button = ToButton(event->button());
    const QModelIndex index = indexAt(event->position().toPoint());
    if (button && index.isValid()) {
        Input().ClickRow(Logical(), index.row(), *button);
    }
}

void RowsWidget::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
}

void RowsWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void RowsWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && Logical().DblClick) {
        if (indexAt(event->position().toPoint()).isValid()) {
            Input().ClickAgain(Logical(), kLeftButton, this);
        }
    } else {
        mousePressEvent(event);
    }
}

void RowsWidget::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

}  // namespace tallyhut
