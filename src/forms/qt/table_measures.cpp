#include "forms/qt/table_measures.h"

#include <QFontMetrics>
#include <algorithm>
#include <numeric>

#include "forms/qt/table_sheet.h"
#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

// In units of plain text's size.
constexpr double kUnit = 0.55;
constexpr double kFieldHeight = 2.1;
constexpr double kChoiceHeight = 1.7;
constexpr double kTextHeight = 1.45;
constexpr double kSmallestButton = 5.5;
constexpr double kRowHeight = 2.1;
constexpr double kColumnOfText = 15;  ///< no narrower
constexpr double kSmallestSheet = 15;

constexpr int kMostOfAValue = 24;             // characters: a value of any length must not push the form apart
constexpr std::size_t kRowsOfAShortList = 5;  ///< all of which can be seen at once

using Kind = TableRow::Kind;

/// The text of a label or of the part of a frame that stands in a line.
int WidthOfCaption(const ControlWidget& caption) {
    if (!IsFrame(&caption)) {
        return caption.Needed(0).width();
    }
    const QFontMetrics metrics{caption.Font()};
    return metrics.horizontalAdvance(CaptionText(caption.Logical().State().text)) + 1;
}

}  // namespace

int TableMeasures::Unit() const {
    return std::max(qRound(text * kUnit), 2);
}

int TableMeasures::TextHeight() const {
    return qRound(text * kTextHeight);
}

int TableMeasures::TitleHeight(const TablePanel& panel) const {
    const bool titled = IsFrame(panel.frame) || !panel.title.isEmpty();
    return titled ? TextHeight() + Unit() / 2 : 0;
}

int TableMeasures::PieceWidth(const TablePiece& piece) const {
    const Control& control = piece.widget->Logical();
    const QSize need = piece.widget->Needed(0);
    if (piece.characters > 0) {
        const QFontMetrics metrics{piece.widget->Font()};
        const int asked = metrics.horizontalAdvance('N') * piece.characters + qRound(text);
        return std::max(asked, control.kind == ControlKind::Label ? asked : need.width());
    }
    if (piece.fills || IsSheet(control)) {
        const int most = QFontMetrics{piece.widget->Font()}.horizontalAdvance('N') * kMostOfAValue;
        const int asked = control.kind == ControlKind::Label ? std::min(need.width(), most) : need.width();
        return std::max(asked, qRound(text * kSmallestButton));
    }
    if (control.kind == ControlKind::Button) {
        return std::max(need.width() + 3 * Unit(), control.State().text.empty() ? 0 : qRound(text * kSmallestButton));
    }
    return need.width() + 1;
}

int TableMeasures::PieceHeight(const TablePiece& piece, int width) const {
    const Control& control = piece.widget->Logical();
    const int need = piece.widget->Needed(width).height();
    switch (control.kind) {
        case ControlKind::TextBox:
        case ControlKind::Button:
            return std::max(need, qRound(text * (IsSheet(control) ? 2 * kFieldHeight : kFieldHeight)));
        case ControlKind::Option:
        case ControlKind::CheckBox:
            return std::max(need, qRound(text * kChoiceHeight));
        case ControlKind::List: {
            const auto rows = static_cast<int>(std::min(control.State().items.size(), kRowsOfAShortList));
            return std::max({need, qRound(text * 3 * kFieldHeight), qRound(text * kRowHeight * rows)});
        }
        case ControlKind::ListView:
            return std::max(need, qRound(text * 3 * kFieldHeight));
        default:
            return std::max(need, TextHeight());
    }
}

int TableMeasures::CellWidth(const TableLine& line) const {
    int widest = 0;
    for (const TablePiece& piece : line.pieces) {
        widest = std::max(widest, PieceWidth(piece));
    }
    return line.row.look == RowLook::Devices ? widest + qRound(text * 3 * kTextHeight) : widest;
}

int TableMeasures::CaptionWidth(const TableLine& line) const {
    const bool beside = line.row.kind == Kind::Line || line.row.kind == Kind::Grid;
    return beside && line.caption != nullptr ? WidthOfCaption(*line.caption) + 2 * Unit() : 0;
}

int TableMeasures::LineWidth(const TableLine& line, int captionWidth) const {
    const int gap = 2 * Unit();
    const int before = line.caption == nullptr ? 0 : captionWidth;
    const auto count = static_cast<int>(line.pieces.size());
    switch (line.row.kind) {
        case Kind::Grid: {
            const int cells = std::min(line.row.number, count);
            return before + cells * CellWidth(line) + (cells - 1) * Unit();
        }
        case Kind::Text:
            return qRound(text * kColumnOfText);
        case Kind::Sheet:
            return NeedOfSheet(line, text * kSmallestSheet).width();
        default: {
            const int own =
                std::accumulate(line.pieces.begin(), line.pieces.end(), 0,
                                [this](int sum, const TablePiece& piece) { return sum + PieceWidth(piece); });
            const bool beside = line.row.kind == Kind::Line;
            return (beside                         ? before
                    : line.row.kind == Kind::Under ? captionWidth
                                                   : 0) +
                   own + std::max(count - 1, 0) * gap;
        }
    }
}

int TableMeasures::LineHeight(const TableLine& line, const TableColumn& column) const {
    const int width = column.width - 4 * Unit();
    const auto tallest = [&](int pieceWidth) {
        int most = 0;
        for (const TablePiece& piece : line.pieces) {
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
            return NeedOfSheet(line, text * kSmallestSheet).height();
        case Kind::Text: {
            int height = 0;
            for (const TablePiece& piece : line.pieces) {
                height += (height > 0 ? Unit() : 0) + PieceHeight(piece, width);
            }
            return height;
        }
        case Kind::Below:
        case Kind::Fill: {
            int above = 0;
            if (line.caption != nullptr) {
                const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(width).height();
                above = std::max(need, TextHeight());
            }
            return above + (above > 0 ? Unit() / 4 : 0) + tallest(width);
        }
        default: {
            if (line.caption == nullptr) {
                return tallest(width);
            }
            const int need = IsFrame(line.caption) ? 0 : line.caption->Needed(0).height();  // an option is one, too
            return std::max({tallest(width), need, TextHeight()});
        }
    }
}

int TableMeasures::HeightOf(const TablePanel& panel, const TableColumn& column) const {
    int height = 4 * Unit() + TitleHeight(panel);
    for (const TableLine& line : panel.lines) {
        height += LineHeight(line, column) + (&line == &panel.lines.front() ? 0 : Unit());
    }
    return height;
}

int TableMeasures::HeightOf(const TableColumn& column) const {
    int height = 0;
    for (const TablePanel& panel : column.panels) {
        if (panel.insteadOf == 0) {
            height += HeightOf(panel, column) + (height > 0 ? 2 * Unit() : 0);
        }
    }
    return height;
}

int TableMeasures::BarHeight(const TableParts& parts) const {
    return parts.left.pieces.empty() && parts.right.pieces.empty() ? 0 : qRound(text * kFieldHeight) + 2 * Unit();
}

}  // namespace tallyhut
