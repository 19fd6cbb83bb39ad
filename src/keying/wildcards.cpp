#include "keying/wildcards.h"

#include <array>

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::string_view kWildcards = "$#*";

struct Wildcard {
    char mark;
    std::string_view MessageData::*data;
};

/// A whole pass over the text each, in this order.
constexpr std::array kPasses{
    Wildcard{'$', &MessageData::call},
    Wildcard{'#', &MessageData::number},
    Wildcard{'*', &MessageData::report},
};

std::string WithoutWildcards(std::string_view data) {
    std::string text = Trim(data);
    std::erase_if(text, [](char character) { return kWildcards.find(character) != std::string_view::npos; });
    return text;
}

std::string Replaced(std::string_view text, char mark, const std::string& replacement) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != mark) {
            result += text[i];
            continue;
        }
        result += replacement;
        if (replacement.empty() && i + 1 < text.size()) {
            result += text[++i];  // it has moved into the place that was looked at
        }
    }
    return result;
}

}  // namespace

std::string ReplaceWildcards(std::string_view message, const MessageData& data) {
    std::string text{message};
    for (const Wildcard& pass : kPasses) {
        text = Replaced(text, pass.mark, WithoutWildcards(data.*pass.data));
    }
    return text;
}

std::string_view SentReport(std::string_view report) {
    return report.empty() || report == "599" ? "5NN" : report;
}

}  // namespace tallyhut
