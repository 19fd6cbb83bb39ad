#pragma once

#include <vector>

#include "forms/qt/canvas.h"
#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"
#include "forms/qt/form_table.h"

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
    /// A control in its line.
    struct Piece {
        ControlWidget* widget = nullptr;
        int characters = 0;  ///< 0: what the caption needs
        bool fills = false;
        SheetText text = SheetText::Centred;  ///< on a sheet
    };
    struct PlacedLine {
        TableRow row;
        ControlWidget* caption = nullptr;
        std::vector<Piece> pieces = {};
    };
    struct PlacedPanel {
        QWidget* widget = nullptr;  ///< a frame's, or one of ours
        ControlWidget* frame = nullptr;
        ControlWidget* list = nullptr;  ///< its selected row stands in the title
        QString title;
        std::vector<PlacedLine> lines;
    };
    struct PlacedColumn {
        int share = 0;
        std::vector<PlacedPanel> panels = {};
        int captionWidth = 0;
        int width = 0;  ///< of the panels
        bool inUse = true;
    };

    void Build();
    void AddRow(const TableRow& row, std::vector<ControlWidget*>& rest);
    void LowerFrames();
    static ControlWidget* Take(std::string_view name, std::vector<ControlWidget*>& rest);
    static std::vector<Piece> TakeAll(std::string_view controls, std::vector<ControlWidget*>& rest);
    PlacedPanel& LastPanel();
    static bool IsInUse(const PlacedColumn& column);
    /// Takes in which columns have something to show; false where that is as it was.
    bool ColumnsChange();

    void TellLooks();
    void TellLook(const Piece& piece, const PlacedLine& line);
    void TellSheetLook(const Piece& piece, const PlacedLine& line);
    void TellTitles();

    int Unit() const;
    int TitleHeight(const PlacedPanel& panel) const;
    int PieceWidth(const Piece& piece) const;
    int PieceHeight(const Piece& piece, int width) const;
    int CellWidth(const PlacedLine& line) const;
    int CaptionWidth(const PlacedLine& line) const;
    int LineWidth(const PlacedLine& line, int captionWidth) const;
    /// What all on a sheet takes of its form's design.
    static QRectF SheetOnForm(const std::vector<Piece>& pieces);
    /// The room that what lies on a sheet asks for.
    QSize SheetNeed(const PlacedLine& line) const;
    int LineHeight(const PlacedLine& line, const PlacedColumn& column) const;
    int HeightOf(const PlacedPanel& panel, const PlacedColumn& column) const;
    int HeightOf(const PlacedColumn& column) const;
    int BarHeight() const;
    /// Gives all controls this size of plain text, in pixels, and returns the room that the form needs then in a window
    /// of this width.
    QSize Measure(double text, int width);

    void Place(const QSize& room);
    void PlaceColumn(const PlacedColumn& column, const QRect& room);
    void PlaceLine(const PlacedLine& line, const QRect& room, const PlacedColumn& column);
    void PlacePieces(const PlacedLine& line, const QRect& room);
    void PlaceCells(const PlacedLine& line, const QRect& room);
    /// A line that has moved follows at once, beside the picture of its sheet.
    void FollowLine(const ControlWidget& widget);
    static void PlaceSheet(const PlacedLine& line, const QRect& room);
    void PlaceBar(const QRect& room);

    Form& form_;
    FormTable table_;
    QWidget& window_;
    FormMenus& menus_;
    Canvas canvas_;
    std::vector<ControlWidget*> widgets_;
    std::vector<PlacedColumn> columns_;
    PlacedLine left_{Left("")};
    PlacedLine right_{Right("")};
    std::vector<QWidget*> panels_;  ///< those of ours
    double text_ = 0;               ///< pixels of plain text
    bool built_ = false;
    bool stale_ = true;
    QSize fitted_;  ///< of the window, as long as nothing has changed since it was arranged
    bool namesStale_ = false;
};

}  // namespace tallyhut
