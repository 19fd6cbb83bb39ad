#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

// A file of settings as the desktop's programs keep them: sections in brackets, lines KEY=VALUE, comments behind ';'.
// Letters, digits, '_', '-' and '.' of a name stand as they are, '/' as '\', any other byte as %E9. A value that is
// UTF-8 stands as it is, but for '\' before what would be misread and double quotes around all where blanks, ';', ','
// or '=' need them; any other value stands as @ByteArray(...) with the bytes beyond ASCII as \xe9. Lines may end with
// LF or CR LF.

/// The value of a key; none where the file does not have it. Of two lines the later one counts. Never fails: what makes
/// no sense is passed over.
std::optional<std::string> IniValue(std::string_view file, std::string_view section, std::string_view key);

/// The file with that value. Every line that does not have the key stays as it is, byte for byte.
std::string WithIniValue(std::string_view file, std::string_view section, std::string_view key, std::string_view value);

}  // namespace tallyhut
