#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// The manners in which files hold contacts.
enum class LogFormat { None, Cabrillo, Adif, Records };

/// What a file holds behind a mark of its coding: UTF-16 as Latin-1, with '?' for what does not fit there, any other as
/// its bytes stand.
std::string WithoutMark(std::string fileBytes);

/// What the text is by whichever comes first: a line of Cabrillo, an end of ADIF, a whole record of Log.txt.
LogFormat FormatOf(std::string_view text);

/// The lines of a text, one after the other. CR LF, LF and a lone CR end a line.
struct TextLines {
    std::string_view rest;
    std::size_t number = 0;  ///< of the line taken last, counted from 1

    bool AtEnd() const { return rest.empty(); }
    /// Without its end.
    std::string_view Take();
};

/// Blanks and tabs around it removed.
std::string_view Stripped(std::string_view text);

/// Whether the text begins so, letters in either case; the beginning in upper case.
bool BeginsWith(std::string_view text, std::string_view beginning);

}  // namespace tallyhut
