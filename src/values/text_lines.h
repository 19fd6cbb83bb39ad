#pragma once

#include <string_view>

namespace tallyhut {

/// Without blanks, tabs and line ends around it. Refers to the text.
std::string_view Bare(std::string_view text);

/// The lines of a text from any editor, one after the other: they end in LF or CR LF, or where neither is, in CR.
class TextLines {
public:
    explicit TextLines(std::string_view text)
        : rest_{text}, end_{text.find('\n') == std::string_view::npos ? '\r' : '\n'} {}

    bool AtEnd() const { return rest_.empty(); }
    /// The next line, bare.
    std::string_view Take();

private:
    std::string_view rest_;
    char end_;
};

}  // namespace tallyhut
