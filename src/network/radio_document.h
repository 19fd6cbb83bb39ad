#pragma once

#include <string>
#include <string_view>

#include "network/contact_documents.h"

namespace tallyhut {

/// A radio as other programs are told of it.
struct RadioFacts {
    std::string tensOfHertz;
    std::string mode;  ///< CW, USB, LSB, or as the radio said
    std::string name;  ///< of the radio

    bool operator==(const RadioFacts&) const = default;
};

/// The facts of a reading.
///
/// @param megahertz  as the radio said
/// @param mode       as the radio said: "PH" is the sideband of the band; where it is empty the contest decides
RadioFacts FactsOfRadio(float megahertz, std::string_view mode, bool isPhoneContest, std::string_view name);

std::string RadioInfo(const RadioFacts& facts, const NewsOrigin& origin, const std::string& ownCall);

}  // namespace tallyhut
