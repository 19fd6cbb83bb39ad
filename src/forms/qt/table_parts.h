#pragma once

#include <QString>
#include <vector>

#include "forms/qt/control_widget.h"
#include "forms/qt/form_table.h"

namespace tallyhut {

/// A control in its line.
struct TablePiece {
    ControlWidget* widget = nullptr;
    int characters = 0;  ///< 0: what the caption needs
    bool fills = false;
    SheetText text = SheetText::Centred;  ///< on a sheet
};

struct TableLine {
    TableRow row;
    ControlWidget* caption = nullptr;
    std::vector<TablePiece> pieces = {};
};

struct TablePanel {
    QWidget* widget = nullptr;       ///< a frame's, or one that the layout gives it
    ControlWidget* frame = nullptr;  ///< or what else bears the panel's name
    ControlWidget* list = nullptr;   ///< its selected row stands in the title
    QString title = {};
    int insteadOf = 0;  ///< so many panels before it
    std::vector<TableLine> lines = {};

    /// Whether anything on it is shown.
    bool HoldsSomethingShown() const;
};

struct TableColumn {
    int share = 0;
    std::vector<TablePanel> panels = {};
    int captionWidth = 0;
    int width = 0;  ///< of the panels
    bool inUse = true;

    /// Whether anything in it is shown.
    bool HoldsSomethingShown() const;
};

/// The controls of a form as its table sorts them.
struct TableParts {
    std::vector<TableColumn> columns = {};
    // The bar below all columns.
    TableLine left{Left("")};
    TableLine right{Right("")};
};

/// Each control at its place in the table; what the table does not name stands behind all else on the last panel.
TableParts SortIntoTable(FormTable table, const std::vector<ControlWidget*>& widgets);

/// Whether it is the frame of a group; none is no frame.
bool IsFrame(const ControlWidget* widget);
/// Whether it takes whatever room it is given.
bool IsSheet(const Control& control);

}  // namespace tallyhut
