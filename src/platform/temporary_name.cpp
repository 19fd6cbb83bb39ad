#include "platform/temporary_name.h"

#include <algorithm>

namespace tallyhut {
namespace {

constexpr std::string_view kOurs = ".tallyhut-";
constexpr std::size_t kLongestName = 200;  // leaves room for the rest where names end at 255 bytes

bool IsLetterOrDigit(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

}  // namespace

std::string TemporaryName(std::string_view name, std::string_view suffix) {
    std::string temporary = ".";
    temporary += name.substr(0, kLongestName);
    temporary += kOurs;
    temporary += suffix;
    return temporary;
}

bool IsTemporaryName(std::string_view name) {
    const std::size_t rest = kOurs.size() + kTemporarySuffix;
    if (name.size() < 2 + rest || name.front() != '.') {
        return false;
    }
    const std::string_view end = name.substr(name.size() - rest);
    return end.starts_with(kOurs) && std::ranges::all_of(end.substr(kOurs.size()), IsLetterOrDigit);
}

}  // namespace tallyhut
