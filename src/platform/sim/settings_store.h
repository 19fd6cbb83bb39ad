#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/settings_store.h"

namespace tallyhut::sim {

struct SettingsStore : tallyhut::SettingsStore {
    std::map<std::pair<std::string, std::string>, std::string> values;  ///< by section and key
    std::string failure;  ///< while it is not empty every Set fails with it and changes nothing

    std::string Get(const std::string& section, const std::string& key) const override;
    void Set(const std::string& section, const std::string& key, const std::string& value) override;
};

}  // namespace tallyhut::sim
