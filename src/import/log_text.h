#pragma once

#include <cstddef>
#include <string_view>

namespace tallyhut {

/// The manners in which files hold contacts.
enum class LogFormat { None, Cabrillo, Adif, Records };

/// What the text is by whichever comes first: a line of Cabrillo, an end of ADIF, a whole record of Log.txt.
LogFormat FormatOf(std::string_view text);

/// Whether the text begins so, letters in either case; the beginning in upper case.
bool BeginsWith(std::string_view text, std::string_view beginning);

/// The length of the ADIF tag with which the text begins, with blanks in it or not, if it is the one of that name
/// without data ("EOR"); 0 if it is not.
std::size_t LengthOfEnd(std::string_view text, std::string_view name);

}  // namespace tallyhut
