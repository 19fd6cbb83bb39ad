#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "contest/contact_record.h"

namespace tallyhut {

/// The bands that contacts are counted on, as contacts are stamped with them.
inline constexpr std::array<std::string_view, 6> kCountedBands{"160", "80", "40", "20", "15", "10"};

/// Contacts on each of kCountedBands.
using BandCounts = std::array<std::int32_t, kCountedBands.size()>;

/// How many contacts there are of each section, by the text that they bear, and on each band. A contact on another band
/// counts nowhere.
class ContactCounts {
public:
    void Clear();
    void Add(const Contact& contact) { Count(contact, 1); }
    void Drop(const Contact& contact) { Count(contact, -1); }

    const BandCounts& OfAll() const { return all_; }
    BandCounts OfSection(std::string_view section) const;

private:
    void Count(const Contact& contact, std::int32_t change);

    BandCounts all_{};
    std::map<std::string, BandCounts, std::less<>> sections_;
};

}  // namespace tallyhut
