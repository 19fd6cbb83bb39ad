#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/contact_log.h"
#include "contest/known_calls.h"
#include "contest/preferences.h"
#include "contest/section_table.h"

namespace tallyhut {

/// What the sponsor's robot or a judge would object to.
struct Finding {
    std::int32_t row = 0;  ///< of the contact; 0 for one of the entry
    std::string field;     ///< as the list of contacts heads it, or the tag in the entry
    std::string text;

    bool operator==(const Finding&) const = default;
};

/// What is looked at.
struct CheckedLog {
    const ContactLog& log;
    const Preferences& station;
    const SectionTable& sections;                ///< the list in force, counted
    const KnownCalls& known;                     ///< those in use; may be empty
    std::optional<std::string_view> entry = {};  ///< the entry file or its beginning, where there is one
    int presentYear = 0;                         ///< of a date that has no year
};

/// All findings, by contact and then by field; those of the entry behind them.
std::vector<Finding> FindingsIn(const CheckedLog& checked);

}  // namespace tallyhut
