#include "reports/list_text.h"

#include "values/text.h"

namespace tallyhut {

std::string ListAsText(const ListView& list) {
    const std::vector<ListColumn>& columns = list.State().columns;
    std::string text;
    const auto writeLine = [&text, &columns](const auto& cellText) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            text += column == 0 ? "" : "\t";
            text += cellText(column);
        }
        text += kLineEnd;
    };
    writeLine([&columns](std::size_t column) { return columns[column].caption; });
    for (std::size_t row = list.RowCount(); row-- > 0;) {
        writeLine([&list, row](std::size_t column) { return list.Cell(row, column); });
    }
    return text;
}

}  // namespace tallyhut
