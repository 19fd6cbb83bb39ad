#pragma once

#include <string_view>

#include "contest/section_list.h"

namespace tallyhut {

/// The parts of the contest's country that a call cannot be in by itself when it is of another.
enum class CallArea { Unknown, Mainland, Canada, Alaska, Pacific, Caribbean };

/// The words for it, as a sentence has them: "the Pacific".
std::string_view WordsFor(CallArea area);

/// The area that gives out such calls. Unknown for a call with a "/", which may be anywhere, for one of Guantanamo and
/// for those of other countries.
CallArea AreaOfCall(std::string_view call);

/// The area that the section lies in, by its entity; unknown where the list does not tell that.
CallArea AreaOfSection(const ListedSection& section);

}  // namespace tallyhut
