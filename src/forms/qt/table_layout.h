#pragma once

#include <vector>

#include "forms/qt/canvas.h"
#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"
#include "forms/qt/table_measures.h"

namespace tallyhut {

/// Lays a form out as its table says: columns of panels, in them lines of controls with common edges, and a bar with
/// the buttons. Text has three sizes, which grow with the form and are a little less where it would not fit; distances
/// are multiples of one unit. What is too small even so scrolls. A control that is hidden keeps its room, unless all of
/// its column is hidden; one that the table does not name stands on a panel at the end.
class TableLayout : public FormLayout {
public:
    TableLayout(Form& form, FormTable table, QWidget& window, FormMenus& menus);
    ~TableLayout() override;
    TableLayout(const TableLayout&) = delete;
    TableLayout& operator=(const TableLayout&) = delete;
    TableLayout(TableLayout&&) = delete;
    TableLayout& operator=(TableLayout&&) = delete;

    QWidget& ParentOf(const Control& control) override;
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& widget) override;
    void Settle() override;
    void Arrange() override;

private:
    class Panel;

    void Build();
    void LowerFrames();
    /// Takes in which columns have something to show; false where that is as it was.
    bool ColumnsChange();

    void TellLooks();
    void TellLook(const TablePiece& piece, const TableLine& line);
    void TellSheetLook(const TablePiece& piece, const TableLine& line);
    void TellTitles();

    /// Gives all controls this size of plain text, in pixels, and returns the room that the form needs then in a window
    /// of this width.
    QSize Measure(double text, int width);

    void Place(const QSize& room);
    void PlaceColumn(const TableColumn& column, const QRect& room);
    void PlaceLine(const TableLine& line, const QRect& room, const TableColumn& column);
    void PlacePieces(const TableLine& line, const QRect& room);
    void PlaceCells(const TableLine& line, const QRect& room);
    /// A line that has moved follows at once, beside the picture of its sheet.
    void FollowLine(const ControlWidget& widget);
    void PlaceBar(const QRect& room);

    Form& form_;
    FormTable table_;
    QWidget& window_;
    FormMenus& menus_;
    Canvas canvas_;
    std::vector<ControlWidget*> widgets_;
    TableParts parts_;
    std::vector<QWidget*> panels_;  ///< those of ours
    TableMeasures measures_;
    bool built_ = false;
    bool stale_ = true;
    QSize fitted_;  ///< of the window, as long as nothing has changed since it was arranged
    bool namesStale_ = false;
};

}  // namespace tallyhut
