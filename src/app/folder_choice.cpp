#include "app/folder_choice.h"

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kKey = "ContestFolder";
constexpr const char* kFirstFolder = "/Tallyhut Log";

std::string ParentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

}  // namespace

std::optional<std::string> FolderChoice::Choose() {
    const std::string offered = Offered();
    const std::optional<std::string> chosen = dialogs.ChooseFolder(
        {.title = "Choose the folder of the contest", .folder = ParentOf(offered), .name = offered});
    if (!chosen) {
        return std::nullopt;
    }
    const std::string folder = chosen->starts_with('/') ? *chosen : files.CurrentFolder() + '/' + *chosen;
    MakeIfMissing(folder);
    Remember(folder);
    return folder;
}

/// The dialog can only offer a folder that is there.
std::string FolderChoice::Offered() {
    std::string last = settings.Get(kSection, kKey);
    if (!last.empty() && IsThere(last)) {
        return last;
    }
    const std::string documents = environment.DocumentsFolder();
    std::string first = (IsThere(documents) ? documents : environment.Variable("HOME")) + kFirstFolder;
    MakeIfMissing(first);
    return first;
}

/// A folder that cannot be looked at, on a drive that is gone for example, cannot be offered either.
bool FolderChoice::IsThere(const std::string& folder) const {
    try {
        return files.FolderExists(folder);
    } catch (const PlatformError&) {  // the operator chooses another one
        return false;
    }
}

void FolderChoice::MakeIfMissing(const std::string& folder) {
    try {
        if (!files.FolderExists(folder)) {
            files.MakeFolder(folder);
        }
    } catch (const PlatformError&) {  // the start tells of a folder that cannot be used
    }
}

void FolderChoice::Remember(const std::string& folder) {
    try {
        settings.Set(kSection, kKey, folder);
    } catch (const PlatformError&) {  // it is asked for anew the next time: no reason not to log
    }
}

}  // namespace tallyhut
