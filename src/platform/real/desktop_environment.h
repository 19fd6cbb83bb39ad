#pragma once

#include "platform/environment.h"

namespace tallyhut {

/// The user's folders by the desktop's own rules: XDG_DATA_HOME, and XDG_DOCUMENTS_DIR in user-dirs.dirs. Works before
/// there is an application object. Folder names that are not UTF-8 are not found.
struct DesktopEnvironment : Environment {
    std::string Variable(const std::string& name) const override;
    std::string DocumentsFolder() const override;
    std::string UserDataFolder() const override;
    std::string ShortDatePicture() const override;
};

}  // namespace tallyhut
