#include "platform/sim/settings_store.h"

#include "platform/platform_error.h"

namespace tallyhut::sim {

std::string SettingsStore::Get(const std::string& section, const std::string& key) const {
    const auto found = values.find({section, key});
    return found != values.end() ? found->second : "";
}

void SettingsStore::Set(const std::string& section, const std::string& key, const std::string& value) {
    if (!failure.empty()) {
        throw PlatformError(failure);
    }
    values[{section, key}] = value;
}

}  // namespace tallyhut::sim
