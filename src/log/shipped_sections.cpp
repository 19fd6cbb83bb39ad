#include "log/shipped_sections.h"

#include <algorithm>

#include "platform/platform_error.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kExtension = ".txt";

std::string NameOf(const std::string& path) {
    const std::string file = path.substr(path.rfind('/') + 1);
    return file.ends_with(kExtension) ? file.substr(0, file.size() - kExtension.size()) : "";
}

std::optional<ShippedList> ReadShipped(const Files& files, const std::string& path) try {
    std::string text = files.Read(path);
    SectionList list = ReadSectionList(text);
    return ShippedList{.name = NameOf(path), .file = std::move(text), .list = std::move(list)};
} catch (const PlatformError&) {
    return std::nullopt;
} catch (const ValueError&) {
    return std::nullopt;
}

std::string SectionOf(const ShippedList& shipped, const ListedSection& section) {
    if (!section.until.empty()) {
        return "a section until " + section.until;
    }
    return section.since.empty() ? "a section of " + shipped.name : "a section since " + section.since;
}

}  // namespace

std::vector<ShippedList> ShippedSections::Lists() const {
    std::vector<ShippedList> lists;
    for (const std::string& path : files.FilesIn(folder)) {
        std::optional<ShippedList> shipped = ReadShipped(files, path);
        if (shipped && !shipped->name.empty()) {
            lists.push_back(std::move(*shipped));
        }
    }
    std::ranges::sort(lists, std::ranges::greater{}, &ShippedList::name);
    return lists;
}

std::string NameOfFile(const std::vector<ShippedList>& shipped, std::string_view file) {
    const auto found = std::ranges::find(shipped, file, &ShippedList::file);
    return found == shipped.end() ? "" : found->name;
}

std::string HintOn(std::string_view code, const std::vector<ShippedList>& shipped) {
    for (const ShippedList& one : shipped) {
        if (const int section = one.list.Find(code); section != 0) {
            return std::string{code} + ": " + SectionOf(one, one.list.Section(section)) + ". Settings, Sections.";
        }
    }
    return "";
}

std::optional<std::string> SectionsNamed(const Files& files, const std::vector<ShippedList>& shipped,
                                         const std::string& nameOrPath) {
    if (nameOrPath == kToldSectionsName) {
        return std::nullopt;
    }
    if (const auto found = std::ranges::find(shipped, nameOrPath, &ShippedList::name); found != shipped.end()) {
        return found->file;
    }
    try {
        std::string text = files.Read(nameOrPath);
        ReadSectionList(text);
        return text;
    } catch (const PlatformError& failure) {
        throw ValueError{std::string{"--sections: "} + failure.what()};
    } catch (const ValueError& damage) {
        throw ValueError{"--sections: " + nameOrPath + ": " + damage.what()};
    }
}

}  // namespace tallyhut
