#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QTreeView>
#include <optional>
#include <utility>

#include "forms/qt/control_widget.h"

namespace tallyhut {

/// The rows of a list or a list view. Asks the control for a cell when it is drawn, never for all of them.
class RowsModel : public QAbstractTableModel {
public:
    explicit RowsModel(const Control& control) : control_{control} {}

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Takes notice of what the control holds now. The cells may be others even where their number is the same; whoever
    /// shows some of the rows is told of those alone.
    void Refresh(int firstShown, int lastShown);

private:
    int PresentRows() const;
    int PresentColumns() const;

    const Control& control_;
    int rows_ = 0;
    int columns_ = 0;
};

/// Pixels of a list's rows.
struct RowMeasures {
    int height = 0;          ///< 0 is what the text needs
    double widestPlain = 0;  ///< the widest ASCII character
    int lineHeight = 0;
    double ascent = 0;  ///< from the top of a line to its letters' feet
};

/// A list or a list view.
class RowsWidget : public WidgetOf<QTreeView> {
public:
    RowsWidget(Control& control, const OperatorInput& input, QWidget* parent);

    /// Sets the rows so far apart that this many fill the list, as far as that can be read well.
    void SetRowsInView(int count);
    /// For two rows and the heading: more of them scroll.
    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void ShowLook() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void SpreadColumns();
    void SpreadRows();
    void MeasureText();

    RowsModel model_;
    int rowsInView_ = 0;
    RowMeasures measures_;
    std::optional<std::pair<QFont, qreal>> measuredFor_;  ///< the font, and the screen's pixels to one of ours
};

}  // namespace tallyhut
