#pragma once

#include <cstddef>
#include <string_view>

namespace tallyhut {

/// Without blanks, tabs and line ends around it. Refers to the text.
std::string_view Bare(std::string_view text);

/// The lines of a text from any editor, one after the other. CR LF, LF and a lone CR end a line.
class TextLines {
public:
    explicit TextLines(std::string_view text) : text_{text} { FindLineFeed(); }

    bool AtEnd() const { return at_ == text_.size(); }
    /// Where the next line begins.
    std::size_t At() const { return at_; }
    /// Of the line taken last, counted from 1.
    std::size_t Number() const { return number_; }
    /// The next line, bare.
    std::string_view Take();

private:
    void FindLineFeed();

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t lineFeed_ = 0;  ///< the first one from there on; the text's end where there is none
    std::size_t number_ = 0;
};

}  // namespace tallyhut
