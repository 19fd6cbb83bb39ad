#pragma once

#include <string>

namespace tallyhut {

/// The operator's settings on this machine, outside of any contest's folder: text by section and key. The sections are
/// "Settings" for what the program's forms remember and "Machine" for ports, engines and folders.
struct SettingsStore {
    virtual ~SettingsStore() = default;

    /// Empty where nothing is stored.
    virtual std::string Get(const std::string& section, const std::string& key) const = 0;
    /// Throws PlatformError when the store cannot be written.
    virtual void Set(const std::string& section, const std::string& key, const std::string& value) = 0;
};

}  // namespace tallyhut
