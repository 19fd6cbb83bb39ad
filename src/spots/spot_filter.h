#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "contest/contest.h"
#include "forms/PacketSpotfrm.h"

namespace tallyhut {

/// Who has posted it, as the post says behind "de", without what a node hangs on ("-#", "-3").
///
/// @param post  in capitals, from "DE" on
std::string SpotterOf(std::string_view post);

/// The call is operated from the United States, their islands and Alaska included, or from Canada, as far as its prefix
/// tells: of W1AW/VE3 the prefix is VE3, of W1AW/P it is W1.
///
/// @param call  in capitals
bool IsNear(std::string_view call);

/// Which posts maps and list show. What is kept, marked and offered is no matter of it.
class SpotFilter {
public:
    /// Shows all.
    SpotFilter() = default;
    /// As the operator wants it, of the sections that are needed now.
    SpotFilter(const PacketSpotfrm& form, const Contest& contest);

    /// @param text     of the spot, each word between blanks
    /// @param spotter  as SpotterOf has it
    bool Shows(std::string_view text, std::string_view spotter) const;

    bool operator==(const SpotFilter&) const = default;

private:
    bool OffersNeeded(std::string_view text) const;

    bool neededOnly_ = false;
    bool nearOnly_ = false;
    std::vector<std::string> needed_;  ///< in ascending order
};

}  // namespace tallyhut
