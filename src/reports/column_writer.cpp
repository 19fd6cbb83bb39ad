#include "reports/column_writer.h"

#include <algorithm>

#include "values/text.h"

namespace tallyhut {

ColumnWriter& ColumnWriter::Text(std::string_view text) {
    line_ += text;
    return *this;
}

ColumnWriter& ColumnWriter::To(std::ptrdiff_t column) {
    const auto before = static_cast<std::size_t>(std::max<std::ptrdiff_t>(column, 1) - 1);
    if (line_.size() > before) {
        EndLine();
    }
    line_.resize(before, ' ');
    return *this;
}

ColumnWriter& ColumnWriter::EndingAt(std::ptrdiff_t column, std::string_view text) {
    return At(column + 1 - static_cast<std::ptrdiff_t>(text.size()), text);
}

ColumnWriter& ColumnWriter::EndLine() {
    lines_.push_back(std::move(line_));
    line_.clear();
    return *this;
}

std::string FileText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text.append(line).append(kLineEnd);
    }
    return text;
}

}  // namespace tallyhut
