#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "contest/contact_log.h"

namespace tallyhut {

/// The first row whose call is this one, to the letter; a call counts once in the whole contest, whatever the band.
std::optional<std::int32_t> WorkedBefore(const ContactLog& log, std::string_view call);

/// The logged calls that begin so, each with a blank behind it, the newest first. Ends with the call that makes it
/// longer than the line that shows it, 125 characters; calls logged later do not appear then.
std::string PartialCalls(const ContactLog& log, std::string_view begin);

/// Whether the second or third character of a call's first three is a digit (or a "/"): in all call areas one of them
/// is.
bool HasCallAreaDigit(std::string_view firstThree);

}  // namespace tallyhut
