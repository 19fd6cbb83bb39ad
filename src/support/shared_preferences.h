#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

namespace tallyhut {

/// SharedUserPreferences.xml: what a family of programs tells each other of the station. One element a line, an opening
/// tag in upper case, the value as it stands and a closing tag; no root element, nothing escaped.
///
/// The text is handled whole, so elements of other programs stay. Nothing is locked: of two programs that change the
/// file, the later one puts back what it read.
struct SharedPreferences {
    explicit SharedPreferences(Files& machineFiles) : files{machineFiles} {}

    Files& files;

    std::string SharedXmlText = {};  ///< the whole file without the line end at its end
    std::string SharedXmlPath = {};

    /// Reads the file; without one, the text is its first line. Throws PlatformError when there is a file that cannot
    /// be read; saving is then refused, so that what others wrote in it is not lost.
    void Load(const std::string& path);
    /// Throws PlatformError; the file is then as it was.
    void Save(const std::string& path);
    /// Sets one element, the key in either case. Throws PlatformError when saving fails; the text has the value then.
    void SetSharedPreference(std::string_view key, std::string_view value, bool saveNow);

    std::string unreadable = {};  ///< the path of the file that could not be read
};

}  // namespace tallyhut
