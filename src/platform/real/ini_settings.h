#pragma once

#include <functional>
#include <string>

#include "platform/files.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// The settings in `Q7ZZQ_Software/tallyhut.ini` under the user's configuration folder, XDG_CONFIG_HOME or ~/.config,
/// in the format of ini_text.h.
///
/// Every call looks at the file anew. A value is on the disk when Set returns, in one step, and what else the file
/// holds stays as it is. Programs that set different keys at the same time lose none: a Set holds a lock on the file's
/// folder.
struct IniSettings : SettingsStore {
    explicit IniSettings(Files& theFiles);

    /// Empty where the file cannot be read, too; a Set then says why.
    std::string Get(const std::string& section, const std::string& key) const override;
    /// After a failure the former value stands. Fails after about a second if another program holds the lock; a file
    /// that cannot be read is never replaced.
    void Set(const std::string& section, const std::string& key, const std::string& value) override;

    Files& files;
    std::string path;             ///< of the file
    std::function<void()> pause;  ///< waits between two attempts to get the lock; a hundredth of a second
};

}  // namespace tallyhut
