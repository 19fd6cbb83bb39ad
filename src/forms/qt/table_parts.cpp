#include "forms/qt/table_parts.h"

#include <algorithm>
#include <iterator>

#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

using Kind = TableRow::Kind;

constexpr std::string_view kAll = "(*)";

ControlWidget* Named(std::string_view name, const std::vector<ControlWidget*>& widgets) {
    const auto found = std::ranges::find_if(
        widgets, [name](const ControlWidget* widget) { return widget->Logical().FullName() == name; });
    return found == widgets.end() ? nullptr : *found;
}

ControlWidget* Take(std::string_view name, std::vector<ControlWidget*>& rest) {
    ControlWidget* widget = Named(name, rest);
    std::erase(rest, widget);
    return widget;
}

std::vector<TablePiece> TakeAll(std::string_view controls, std::vector<ControlWidget*>& rest) {
    std::vector<TablePiece> pieces;
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

TablePanel& LastPanel(std::vector<TableColumn>& columns) {
    if (columns.empty()) {
        columns.push_back({.share = 1});
    }
    if (columns.back().panels.empty()) {
        columns.back().panels.emplace_back();
    }
    return columns.back().panels.back();
}

void AddRow(TableParts& parts, const TableRow& row, std::vector<ControlWidget*>& rest, ControlWidget* listOfTitle) {
    switch (row.kind) {
        case Kind::Column:
            parts.columns.push_back({.share = row.number});
            return;
        case Kind::Group: {
            if (parts.columns.empty()) {
                parts.columns.push_back({.share = 1});
            }
            TablePanel panel;
            panel.frame = Take(row.caption, rest);
            panel.title = panel.frame == nullptr ? ToQt(row.caption) : QString{};
            panel.list = listOfTitle;
            panel.insteadOf = row.number;
            parts.columns.back().panels.push_back(std::move(panel));
            return;
        }
        case Kind::Left:
        case Kind::Right:
        case Kind::Main: {
            TableLine& side = row.kind == Kind::Left ? parts.left : parts.right;
            std::ranges::move(TakeAll(row.controls, rest), std::back_inserter(side.pieces));
            return;
        }
        case Kind::OnSheet:
            for (TablePiece piece : TakeAll(row.controls, rest)) {
                piece.text = static_cast<SheetText>(row.number);
                LastPanel(parts.columns).lines.back().pieces.push_back(piece);
            }
            return;
        case Kind::Line:
        case Kind::Under:
        case Kind::Grid:
        case Kind::Below:
        case Kind::Text:
        case Kind::Fill:
        case Kind::Sheet: {
            TableLine line{row, Take(row.caption, rest), TakeAll(row.controls, rest)};
            if (line.caption != nullptr || !line.pieces.empty()) {
                LastPanel(parts.columns).lines.push_back(std::move(line));
            }
            return;
        }
    }
}

}  // namespace

bool TablePanel::HoldsSomethingShown() const {
    const auto isShown = [](const TablePiece& piece) { return piece.widget->Logical().IsShown(); };
    return std::ranges::any_of(lines,
                               [&isShown](const TableLine& line) { return std::ranges::any_of(line.pieces, isShown); });
}

bool TableColumn::HoldsSomethingShown() const {
    return std::ranges::any_of(panels, &TablePanel::HoldsSomethingShown);
}

TableParts SortIntoTable(FormTable table, const std::vector<ControlWidget*>& widgets) {
    TableParts parts;
    std::vector<ControlWidget*> rest = widgets;
    for (const TableRow& row : table) {
        AddRow(parts, row, rest, row.kind == Kind::Group ? Named(row.controls, widgets) : nullptr);
    }
    for (ControlWidget* widget : rest) {
        if (!IsFrame(widget)) {
            LastPanel(parts.columns).lines.push_back({OneLine("", ""), nullptr, {{.widget = widget}}});
        }
    }
    return parts;
}

bool IsFrame(const ControlWidget* widget) {
    return widget != nullptr && widget->Logical().kind == ControlKind::Frame;
}

bool IsSheet(const Control& control) {
    return control.kind == ControlKind::List || control.kind == ControlKind::ListView ||
           control.kind == ControlKind::Raster || (control.kind == ControlKind::TextBox && control.State().multiLine);
}

}  // namespace tallyhut
