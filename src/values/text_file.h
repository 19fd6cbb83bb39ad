#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "values/number.h"

namespace tallyhut {

// The text of settings files (one value a line) and of comma-separated records: text in double quotes, numbers bare,
// lines ended by CR LF. Opening, reading and writing the files is the platform's.

/// The longest field that is read or written, in bytes.
inline constexpr std::size_t kLongestField = 32'767;

/// Takes one field after the other from the text of a file.
///
/// A field ends at a comma or at the end of its line; CR LF, LF, a lone CR and the end of the text end a line. A quoted
/// field is what stands between its quotes, on one line; a bare field loses the blanks around it. Blanks before an
/// opening quote and behind a closing one do not count. A line that ends in a comma has an empty last field. An empty
/// line is one empty field, except at the end of the text, where empty lines are nothing.
///
/// What is refused throws ValueError with the number of the line: a quote that is not closed, text behind a closing
/// quote, a quote in a bare field, a NUL byte, a field longer than kLongestField, and taking a field when none is left.
/// The rest of a line with a refused field is passed over, so a reader of one value a line can go on with the next
/// value.
class FieldReader {
public:
    /// The text must outlive the reader.
    explicit FieldReader(std::string_view text);

    /// True when nothing, or nothing but empty lines, is left.
    bool AtEnd() const { return rest_.empty() && !isBehindComma_; }

    /// True when the next field is the first of its line.
    bool AtLineStart() const { return !isBehindComma_; }

    /// The line of the next field, counted from 1.
    std::size_t Line() const { return line_; }

    std::string Take() { return std::string{TakeView()}; }
    /// The same as a part of the text.
    std::string_view TakeView();
    /// Passes over the next field and what stands behind it on its line.
    void PassLine();

    // A field that is numeric, quoted or bare, halves to the even whole number. They throw ValueError with the line
    // when it is not numeric, an empty one included, or beyond the range of the type; the field is taken in either
    // case.
    double TakeNumber();
    float TakeFloat();
    std::uint8_t TakeByte();
    std::int16_t TakeInt16();
    std::int32_t TakeInt32();

    /// A field of #TRUE# or #FALSE#, in either case; throws ValueError for any other.
    bool TakeTruth();

private:
    std::string_view TakeQuoted();
    std::string_view TakeBare();
    void EndField();
    void PassLineEnd();
    void SkipBlanks();
    [[noreturn]] void RefuseLine(std::string_view why);
    [[noreturn]] void RefuseValue(std::string_view why) const;
    template <typename Convert>
    auto TakeConverted(Convert convert);

    std::string_view rest_;
    bool holdsNul_;               ///< somewhere in the text
    bool isBehindComma_ = false;  ///< the field that the comma promised is still to take
    std::size_t line_ = 1;
    std::size_t lineOfField_ = 1;  ///< of the field taken last
};

/// The text in double quotes. Double quotes, line ends and NUL bytes are left out, and what goes beyond kLongestField:
/// a reader takes every item that is written.
std::string QuotedItem(std::string_view text);

/// Builds lines of items with commas between them. One value a line is EndLine after each item.
class RecordWriter {
public:
    /// A quoted item.
    RecordWriter& Text(std::string_view text);

    /// A bare number in plain text. Throws ValueError when it is infinite or no number.
    template <typename T>
    RecordWriter& Number(T value) {
        return Bare(PlainText(value));
    }

    /// #TRUE# or #FALSE#, bare.
    RecordWriter& Truth(bool value);

    /// Nothing between its commas. Alone on the last line of a file it is no field for a reader.
    RecordWriter& Empty();

    /// CR LF.
    RecordWriter& EndLine();

    /// Makes room for a text of so many bytes.
    void Reserve(std::size_t bytes) { text_.reserve(bytes); }

    /// All that has been written so far.
    const std::string& Result() const& { return text_; }
    std::string Result() && { return std::move(text_); }

private:
    RecordWriter& Bare(std::string_view item);
    void Begin();

    std::string text_;
    bool atLineStart_ = true;
};

}  // namespace tallyhut
