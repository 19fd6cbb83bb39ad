#pragma once

#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// Asks the operator for the folder of the contest, for a start from a menu, where no folder is the obvious one.
struct FolderChoice {
    Files& files;
    Dialogs& dialogs;
    SettingsStore& settings;
    Environment& environment;

    /// Offers the folder that was chosen last or, the first time or when that is gone, one under the documents. A
    /// folder that is not there is made, if that can be.
    ///
    /// @return a whole path; nothing when the operator chose none
    std::optional<std::string> Choose();

private:
    std::string Offered();
    bool IsThere(const std::string& folder) const;
    void MakeIfMissing(const std::string& folder);
    void Remember(const std::string& folder);
};

}  // namespace tallyhut
