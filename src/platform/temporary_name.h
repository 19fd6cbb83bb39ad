#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// What tells two temporary files of one name apart: six letters and digits.
inline constexpr std::size_t kTemporarySuffix = 6;

/// The name under which the new content of a file is written beside it: ".NAME.tallyhut-a1B2c3". NAME is cut where the
/// whole would be longer than file systems take.
std::string TemporaryName(std::string_view name, std::string_view suffix);
/// True for the names that TemporaryName makes, and for no other.
bool IsTemporaryName(std::string_view name);

}  // namespace tallyhut
