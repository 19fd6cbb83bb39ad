#include "contest/contact_counts.h"

#include <algorithm>

namespace tallyhut {

void ContactCounts::Clear() {
    all_ = {};
    sections_.clear();
}

BandCounts ContactCounts::OfSection(std::string_view section) const {
    const auto found = sections_.find(section);
    return found == sections_.end() ? BandCounts{} : found->second;
}

void ContactCounts::Count(const Contact& contact, std::int32_t change) {
    const auto* const band = std::ranges::find(kCountedBands, contact.Bnd);
    if (band == kCountedBands.end()) {
        return;
    }
    const auto place = static_cast<std::size_t>(band - kCountedBands.begin());
    all_.at(place) += change;
    sections_[contact.Sec].at(place) += change;
}

}  // namespace tallyhut
