#include "tests/peers/adif_reader.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <stdexcept>
#include <utility>

namespace tallyhut::peers {
namespace {

std::string Upper(std::string_view text) {
    std::string upper{text};
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return upper;
}

/// "CALL" and 4 of "Call:4"; no length where there is no colon.
struct Specifier {
    std::string name;
    std::size_t length = 0;
};

Specifier ParseSpecifier(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        return {Upper(text)};
    }
    Specifier specifier{Upper(text.substr(0, colon))};
    const std::string_view rest = text.substr(colon + 1);
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), specifier.length);
    const bool typed = end != rest.data() + rest.size() && *end == ':';
    if (error != std::errc{} || (end != rest.data() + rest.size() && !typed)) {
        throw std::runtime_error{"no length in <" + std::string{text} + ">"};
    }
    return specifier;
}

bool MayFollowData(std::string_view rest) {
    return rest.empty() || rest.front() == '<' || std::isspace(static_cast<unsigned char>(rest.front())) != 0;
}

}  // namespace

AdifFile ReadAdif(std::string_view text) {
    AdifFile file;
    bool inHead = !text.starts_with('<');
    std::map<std::string, std::string> fields;
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
        const std::size_t end = text.find('>', at);
        if (end == std::string_view::npos) {
            throw std::runtime_error{"an item is not closed"};
        }
        const Specifier specifier = ParseSpecifier(text.substr(at + 1, end - at - 1));
        at = end + 1;
        if (specifier.name == "EOH" && inHead) {
            file.head = std::exchange(fields, {});
            inHead = false;
        } else if (specifier.name == "EOR" && !inHead) {
            file.records.push_back(std::exchange(fields, {}));
        } else {
            if (specifier.length > text.size() - at || !MayFollowData(text.substr(at + specifier.length))) {
                throw std::runtime_error{"the length of " + specifier.name + " is not that of its data"};
            }
            fields[specifier.name] = text.substr(at, specifier.length);
            at += specifier.length;
        }
    }
    if (inHead || !fields.empty()) {
        throw std::runtime_error{"the file ends within a record"};
    }
    return file;
}

}  // namespace tallyhut::peers
