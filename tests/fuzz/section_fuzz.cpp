#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "contest/section_list.h"
#include "values/value_error.h"

namespace {

/// One that a contest can have: 1 to 100 sections, each found by its code, no alias a code.
bool IsWhole(const tallyhut::SectionList& list) {
    bool whole = list.Count() >= 1 && list.Count() <= static_cast<std::int32_t>(tallyhut::SectionList::kMostSections);
    for (int i = 1; i <= list.Count(); ++i) {
        const tallyhut::ListedSection& section = list.Section(i);
        whole = whole && list.Find(section.code) == i && section.heading < tallyhut::kSectionHeadings &&
                std::ranges::all_of(section.aliases, [&](const std::string& alias) {
                    return list.Find(alias) == 0 && list.CodeOf(alias) == section.code;
                });
    }
    return whole;
}

}  // namespace

/// A file of any bytes is refused, or is a whole list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        if (!IsWhole(tallyhut::ReadSectionList({reinterpret_cast<const char*>(data), size}))) {
            std::abort();
        }
    } catch (const tallyhut::ValueError&) {  // refused
    }
    return 0;
}
