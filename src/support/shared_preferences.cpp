#include "support/shared_preferences.h"

#include <algorithm>
#include <cstddef>

#include "platform/path_error.h"
#include "values/text.h"

namespace tallyhut {

namespace {
constexpr std::string_view kFirstLine = R"(<?xml version="1.0" encoding="UTF-8" ?>)";
}  // namespace

void SharedPreferences::Load(const std::string& path) {
    SharedXmlPath = path;
    SharedXmlText = kFirstLine;
    unreadable = path;  // until it was read, or is known not to be there
    if (files.FileExists(path)) {
        SharedXmlText = files.Read(path);
        // The line end that saving adds. What stands there is not looked at: every program of the family writes one.
        SharedXmlText.resize(SharedXmlText.size() - std::min(SharedXmlText.size(), kLineEnd.size()));
    }
    unreadable.clear();
}

void SharedPreferences::Save(const std::string& path) {
    SharedXmlPath = path;
    if (!unreadable.empty() && path == unreadable) {
        throw PathError(path, "The file could not be read and is not replaced");
    }
    files.Replace(path, SharedXmlText + std::string{kLineEnd});
}

void SharedPreferences::SetSharedPreference(std::string_view key, std::string_view value, bool saveNow) {
    const std::string name = UpperCase(key);
    const std::string opening = '<' + name + '>';
    const std::string closing = "</" + name + '>';
    const std::size_t openingAt = SharedXmlText.find(opening);
    if (openingAt == std::string::npos) {
        SharedXmlText += std::string{kLineEnd} + opening + std::string{value} + closing;
    } else {
        const std::size_t begin = openingAt + opening.size();
        const std::size_t end = SharedXmlText.find(closing, begin);
        if (end != std::string::npos) {
            SharedXmlText.replace(begin, end - begin, value);
        } else {  // damaged: the value ends with its line, and the element is closed again
            const std::size_t lineEnd = std::min(SharedXmlText.find_first_of(kLineEnd, begin), SharedXmlText.size());
            SharedXmlText.replace(begin, lineEnd - begin, std::string{value} + closing);
        }
    }
    if (saveNow) {
        Save(SharedXmlPath);
    }
}

}  // namespace tallyhut
