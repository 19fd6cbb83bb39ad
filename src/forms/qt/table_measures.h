#pragma once

#include "forms/qt/table_parts.h"

namespace tallyhut {

/// How much room the controls of a table ask for, in pixels, with a size of plain text. Distances are multiples of one
/// unit.
struct TableMeasures {
    double text = 0;  ///< pixels of plain text

    int Unit() const;
    /// One line of text.
    int TextHeight() const;
    int TitleHeight(const TablePanel& panel) const;
    int PieceWidth(const TablePiece& piece) const;
    int PieceHeight(const TablePiece& piece, int width) const;
    /// Of all cells of a line of kind Grid.
    int CellWidth(const TableLine& line) const;
    /// Of a caption beside its controls, with the distance to them.
    int CaptionWidth(const TableLine& line) const;
    int LineWidth(const TableLine& line, int captionWidth) const;
    int LineHeight(const TableLine& line, const TableColumn& column) const;
    int HeightOf(const TablePanel& panel, const TableColumn& column) const;
    int HeightOf(const TableColumn& column) const;
    /// Of the bar below the columns; 0 for none.
    int BarHeight(const TableParts& parts) const;
};

}  // namespace tallyhut
