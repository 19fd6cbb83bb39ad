#include "import/imported_log.h"

#include <algorithm>

#include "values/utf8.h"

namespace tallyhut {
namespace {

constexpr std::size_t kShownText = 100;

}  // namespace

void ImportNotes::Add(std::size_t line, std::string_view text, std::string finding) {
    ++count;
    if (kept.size() == kMostKept) {
        return;
    }
    std::string shown = Latin1Of(text.substr(0, kShownText));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
    kept.push_back({line, std::move(shown), std::move(finding)});
}

}  // namespace tallyhut
