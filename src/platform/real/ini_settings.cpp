#include "platform/real/ini_settings.h"

#include <QFile>
#include <QStandardPaths>
#include <chrono>
#include <thread>

#include "platform/path_error.h"
#include "platform/real/ini_text.h"

namespace tallyhut {

namespace {

constexpr std::chrono::milliseconds kPause{10};
constexpr int kAttempts = 100;

std::string ConfigurationFolder() {
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).toStdString();
}

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

std::string Content(const Files& files, const std::string& path) {
    return files.FileExists(path) ? files.Read(path) : "";
}

/// With those above it that are missing.
void MakeFolders(Files& files, const std::string& folder) {
    if (folder.empty() || files.FolderExists(folder)) {
        return;
    }
    MakeFolders(files, FolderOf(folder));
    try {
        files.MakeFolder(folder);
    } catch (const PlatformError&) {
        if (!files.FolderExists(folder)) {  // else another program has made it just now
            throw;
        }
    }
}

std::unique_ptr<Files::FolderLock> LockSoon(IniSettings& settings) {
    for (int attempt = 1;; ++attempt) {
        std::unique_ptr<Files::FolderLock> lock = settings.files.Lock(FolderOf(settings.path));
        if (lock) {
            return lock;
        }
        if (attempt == kAttempts) {
            throw PathError(settings.path, "Another program holds the settings");
        }
        settings.pause();
    }
}

}  // namespace

IniSettings::IniSettings(Files& theFiles)
    : files{theFiles}, path{ConfigurationFolder() + "/Q7ZZQ_Software/tallyhut.ini"}, pause{[] {
          std::this_thread::sleep_for(kPause);
      }} {}

std::string IniSettings::Get(const std::string& section, const std::string& key) const {
    try {
        return IniValue(Content(files, path), section, key).value_or("");
    } catch (const PlatformError&) {  // forms begin as on the first day; who sets something is told
        return "";
    }
}

void IniSettings::Set(const std::string& section, const std::string& key, const std::string& value) {
    MakeFolders(files, FolderOf(path));
    const std::unique_ptr<Files::FolderLock> lock = LockSoon(*this);
    const std::string former = Content(files, path);
    if (IniValue(former, section, key) != value) {
        files.Replace(path, WithIniValue(former, section, key, value));
    }
}

}  // namespace tallyhut
