#include "values/text_file.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {

namespace {

constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kBlanksAndLineEnds = " \r\n";

constexpr std::string_view kTrue = "#TRUE#";
constexpr std::string_view kFalse = "#FALSE#";

bool IsLineEnd(char character) {
    return character == '\r' || character == '\n';
}

bool EndsField(char character) {
    return character == ',' || IsLineEnd(character);
}

bool IsNeverInItem(char character) {
    return character == '"' || IsLineEnd(character) || character == '\0';
}

float ToFloat(double value) {
    if (std::fabs(value) > std::numeric_limits<float>::max()) {
        throw ValueError(PlainText(value) + " is beyond the range of a float");
    }
    return static_cast<float>(value);
}

}  // namespace

FieldReader::FieldReader(std::string_view text)
    : rest_{text.substr(0, text.find_last_not_of(kBlanksAndLineEnds) + 1)},  // nothing found: npos + 1 is 0
      holdsNul_{rest_.find('\0') != std::string_view::npos} {}

std::string_view FieldReader::TakeView() {
    lineOfField_ = line_;
    if (AtEnd()) {
        RefuseLine("no field is left");
    }
    isBehindComma_ = false;
    SkipBlanks();
    const std::string_view field = rest_.starts_with('"') ? TakeQuoted() : TakeBare();
    if (holdsNul_ && field.find('\0') != std::string_view::npos) {
        RefuseLine("a NUL byte stands in a field");
    }
    if (field.size() > kLongestField) {
        RefuseLine("a field is longer than " + PlainText(kLongestField) + " bytes");
    }
    EndField();
    return field;
}

/// Leaves the rest at the comma or line end behind the field.
std::string_view FieldReader::TakeQuoted() {
    // A field is some characters long: a plain look at each is faster than any search.
    const char* const end = rest_.data() + rest_.size();
    const char* at = rest_.data() + 1;
    while (at != end && *at != '"' && !IsLineEnd(*at)) {
        ++at;
    }
    const auto close = static_cast<std::size_t>(at - rest_.data());
    if (close >= rest_.size() || rest_[close] != '"') {
        RefuseLine("a quote is not closed");
    }
    const std::string_view field = rest_.substr(1, close - 1);
    rest_.remove_prefix(close + 1);
    SkipBlanks();
    if (!rest_.empty() && !EndsField(rest_.front())) {
        RefuseLine("text stands behind a closing quote");
    }
    return field;
}

/// Leaves the rest at the comma or line end behind the field.
std::string_view FieldReader::TakeBare() {
    const std::string_view field{rest_.begin(), std::ranges::find_if(rest_, EndsField)};
    if (field.find('"') != std::string_view::npos) {
        RefuseLine("a quote stands in a bare field");
    }
    rest_.remove_prefix(field.size());
    return field.substr(0, field.find_last_not_of(' ') + 1);
}

void FieldReader::EndField() {
    if (rest_.starts_with(',')) {
        rest_.remove_prefix(1);
        isBehindComma_ = true;
    } else {
        PassLineEnd();
    }
}

void FieldReader::PassLineEnd() {
    if (rest_.empty()) {
        return;
    }
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
    ++line_;
}

void FieldReader::SkipBlanks() {
    while (rest_.starts_with(' ')) {
        rest_.remove_prefix(1);
    }
}

void FieldReader::PassLine() {
    isBehindComma_ = false;
    rest_.remove_prefix(std::min(rest_.find_first_of(kLineEnds), rest_.size()));
    PassLineEnd();
}

void FieldReader::RefuseLine(std::string_view why) {
    PassLine();
    RefuseValue(why);
}

void FieldReader::RefuseValue(std::string_view why) const {
    throw ValueError("line " + PlainText(lineOfField_) + ": " + std::string{why});
}

template <typename Convert>
auto FieldReader::TakeConverted(Convert convert) {
    const std::string field = Take();
    try {
        return convert(TrimmedNumber(field));
    } catch (const ValueError& error) {
        RefuseValue(error.what());
    }
}

double FieldReader::TakeNumber() {
    return TakeConverted([](double value) { return value; });
}

float FieldReader::TakeFloat() {
    return TakeConverted(ToFloat);
}

std::uint8_t FieldReader::TakeByte() {
    return TakeConverted(ToByte);
}

std::int16_t FieldReader::TakeInt16() {
    return TakeConverted(ToInt16);
}

std::int32_t FieldReader::TakeInt32() {
    return TakeConverted(ToInt32);
}

bool FieldReader::TakeTruth() {
    const std::string field = Take();
    const std::string truth = UpperCase(field);
    if (truth != kTrue && truth != kFalse) {
        RefuseValue('"' + field + "\" is no truth value");
    }
    return truth == kTrue;
}

std::string QuotedItem(std::string_view text) {
    return std::move(RecordWriter{}.Text(text)).Result();
}

RecordWriter& RecordWriter::Text(std::string_view text) {
    Begin();
    text_ += '"';
    const std::size_t begin = text_.size();
    text_ += text;
    text_.erase(std::remove_if(text_.begin() + static_cast<std::ptrdiff_t>(begin), text_.end(), IsNeverInItem),
                text_.end());
    text_.resize(std::min(text_.size(), begin + kLongestField));
    text_ += '"';
    return *this;
}

RecordWriter& RecordWriter::Truth(bool value) {
    return Bare(value ? kTrue : kFalse);
}

RecordWriter& RecordWriter::Empty() {
    return Bare("");
}

RecordWriter& RecordWriter::EndLine() {
    text_ += "\r\n";
    atLineStart_ = true;
    return *this;
}

RecordWriter& RecordWriter::Bare(std::string_view item) {
    Begin();
    text_ += item;
    return *this;
}

void RecordWriter::Begin() {
    if (!atLineStart_) {
        text_ += ',';
    }
    atLineStart_ = false;
}

}  // namespace tallyhut
