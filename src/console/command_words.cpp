#include "console/command_words.h"

#include <nlohmann/json.hpp>

#include "console/console_error.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Where the JSON string that begins at `begin` ends, its closing quote included.
std::size_t EndOfString(std::string_view line, std::size_t begin) {
    for (std::size_t i = begin + 1; i < line.size(); ++i) {
        if (line[i] == '\\') {
            ++i;
        } else if (line[i] == '"') {
            return i + 1;
        }
    }
    throw ConsoleError{"a JSON string has no end"};
}

std::string ReadString(std::string_view json) {
    const auto value = nlohmann::json::parse(json, nullptr, false);
    if (!value.is_string()) {
        throw ConsoleError{"no JSON string: " + std::string{json}};
    }
    return value.get<std::string>();
}

}  // namespace

CommandWords::CommandWords(std::string_view line) : line_{line} {
    std::size_t at = 0;
    while ((at = line_.find_first_not_of(kBlanks, at)) != std::string::npos) {
        const bool quoted = line_[at] == '"';
        const std::size_t end =
            quoted ? EndOfString(line_, at) : std::min(line_.find_first_of(kBlanks, at), line_.size());
        const std::string text = line_.substr(at, end - at);
        words_.push_back({.text = quoted ? ReadString(text) : text, .quoted = quoted});
        ends_.push_back(end);
        at = end;
    }
}

const CommandWord& CommandWords::Take(std::string_view what) {
    if (AtEnd()) {
        throw ConsoleError{std::string{what} + " is missing"};
    }
    return words_[next_++];
}

int CommandWords::TakeNumber(std::string_view what) {
    const std::string& text = Take(what).text;
    try {
        const double number = TrimmedNumber(text);
        if (number == RoundHalfEven(number)) {
            return ToInt32(number);
        }
    } catch (const ValueError&) {
        // told below, with the word that was meant
    }
    throw ConsoleError{std::string{what} + " is no whole number: " + text};
}

Tick CommandWords::TakeMilliseconds() {
    const int milliseconds = TakeNumber("milliseconds");
    if (milliseconds < 0) {
        throw ConsoleError{"time does not run backwards"};
    }
    return static_cast<Tick>(milliseconds);
}

void CommandWords::CheckEnd() const {
    if (!AtEnd()) {
        throw ConsoleError{"too many words: " + words_[next_].text};
    }
}

std::string_view CommandWords::Rest() const {
    const std::string_view line{line_};
    return line.substr(next_ == 0 ? 0 : ends_[next_ - 1]);
}

}  // namespace tallyhut
