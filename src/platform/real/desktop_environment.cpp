#include "platform/real/desktop_environment.h"

#include <QFile>
#include <QStandardPaths>
#include <cstdlib>

namespace tallyhut {

namespace {

std::string Folder(QStandardPaths::StandardLocation location) {
    return QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString();
}

}  // namespace

std::string DesktopEnvironment::Variable(const std::string& name) const {
    const char* value = std::getenv(name.c_str());
    return value != nullptr ? value : "";
}

std::string DesktopEnvironment::DocumentsFolder() const {
    return Folder(QStandardPaths::DocumentsLocation);
}

std::string DesktopEnvironment::UserDataFolder() const {
    return Folder(QStandardPaths::GenericDataLocation);
}

}  // namespace tallyhut
