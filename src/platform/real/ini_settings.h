#pragma once

#include "platform/settings_store.h"

namespace tallyhut {

/// The settings in `Q7ZZQ_Software/tallyhut.ini` under the user's configuration folder, XDG_CONFIG_HOME or ~/.config.
///
/// A value is any text of bytes. One that is UTF-8 stands in the file as it is, another as @ByteArray(...) with the
/// bytes beyond ASCII as \xe9, so that both can be read and changed in an editor. Every call looks at the file anew; a
/// value is on the disk when Set returns. Works before there is an application object.
struct IniSettings : SettingsStore {
    std::string Get(const std::string& section, const std::string& key) const override;
    /// After a failure the former value stands.
    void Set(const std::string& section, const std::string& key, const std::string& value) override;
};

}  // namespace tallyhut
