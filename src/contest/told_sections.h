#pragma once

#include "contest/section_list.h"

namespace tallyhut {

/// The list of a contest that has chosen none: the 83 sections of 2014 to 2019, without aliases. The same rows lie in
/// data/sections/2014.txt.
const SectionList& ToldSections();

}  // namespace tallyhut
