#include "import/new_contest.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "log/section_choice.h"
#include "platform/platform_error.h"
#include "support/directories.h"
#include "support/fresh_installation.h"
#include "values/text_file.h"

namespace tallyhut {
namespace {

constexpr const char* kLogFile = "/Log.txt";
constexpr std::array kFreshFiles{kLogFile, "/wave2.txt", "/BandPlan.txt", "/readns.txt", "/nspref.txt"};

/// What some files held, to be put back unless all that was to be written is.
struct FilesBefore {
    Files& files;
    bool isDone = false;
    std::vector<std::pair<std::string, std::optional<std::string>>> contents;

    void Remember(const std::string& path) {
        contents.emplace_back(path, files.FileExists(path) ? std::optional{files.Read(path)} : std::nullopt);
    }

    explicit FilesBefore(Files& writable) : files{writable} {}
    FilesBefore(const FilesBefore&) = delete;
    FilesBefore& operator=(const FilesBefore&) = delete;
    ~FilesBefore() {
        if (isDone) {
            return;
        }
        for (const auto& [path, content] : contents) {
            try {
                PutBack(path, content);
            } catch (const PlatformError&) {  // the failure that came first is told
            }
        }
    }

private:
    void PutBack(const std::string& path, const std::optional<std::string>& content) {
        if (content) {
            files.Replace(path, *content);
        } else if (files.FileExists(path)) {
            files.Remove(path);
        }
    }
};

void Write(Files& files, const NewContest& contest, const std::string& dataFolder) {
    const std::string sections = contest.folder + '/' + kSectionsFile;
    FilesBefore before{files};
    before.Remember(sections);
    for (const char* file : kFreshFiles) {
        before.Remember(contest.folder + file);
    }
    if (!contest.sections.empty() && !files.FileExists(sections)) {
        files.Replace(sections, contest.sections);
    }
    files.Replace(contest.folder + kLogFile, contest.log);
    const Directories directories{.WorkingDirectory = contest.folder, .DataDirectory = {}, .SharedDirectory = {}};
    MakeFreshInstallation(files, directories, dataFolder, WritePreferences(contest.preferences));
    before.isDone = true;
}

}  // namespace

void CheckHoldsNoContacts(const Files& files, const std::string& folder) {
    const std::string log = folder + kLogFile;
    if (files.FolderExists(folder) && files.FileExists(log) && !FieldReader{files.Read(log)}.AtEnd()) {
        throw PlatformError{log + ": This folder holds contacts. Choose one without, or make a new one."};
    }
}

void WriteNewContest(Files& files, const NewContest& contest, const std::string& dataFolder) {
    if (!files.FolderExists(contest.folder)) {
        files.MakeFolder(contest.folder);
    }
    files.CheckWritable(contest.folder);
    const std::unique_ptr<Files::FolderLock> lock = files.Lock(contest.folder);
    if (!lock) {
        throw PlatformError{contest.folder + ": A Tallyhut Log is running in this folder."};
    }
    CheckHoldsNoContacts(files, contest.folder);
    Write(files, contest, dataFolder);
}

}  // namespace tallyhut
