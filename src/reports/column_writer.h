#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// Writes lines by columns, counted from 1, with blanks in the gaps.
class ColumnWriter {
public:
    ColumnWriter& Text(std::string_view text);
    /// Moves to a column; one that the line has already passed is that column of the next line. A column before the
    /// first is the first.
    ColumnWriter& To(std::ptrdiff_t column);
    /// The text from a column on.
    ColumnWriter& At(std::ptrdiff_t column, std::string_view text) { return To(column).Text(text); }
    /// The text so that it ends at a column.
    ColumnWriter& EndingAt(std::ptrdiff_t column, std::string_view text);
    ColumnWriter& EndLine();
    /// A line of its own.
    ColumnWriter& Line(std::string_view text) { return Text(text).EndLine(); }

    /// The lines that are ended.
    const std::vector<std::string>& Lines() const { return lines_; }

private:
    std::vector<std::string> lines_;
    std::string line_;
};

/// The lines, each with its line end, CR LF.
std::string FileText(const std::vector<std::string>& lines);

}  // namespace tallyhut
