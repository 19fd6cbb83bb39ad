#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// The present contact's data, which stand in a message as wildcards.
struct MessageData {
    std::string_view call;    ///< "$"
    std::string_view number;  ///< "#"
    std::string_view report;  ///< "*"
};

/// The message with the data in the wildcards' places, without the blanks at their ends. Of two wildcards of a kind
/// side by side the second stays where there is nothing to put in for the first. What looks like a wildcard inside the
/// data is left out of them.
std::string ReplaceWildcards(std::string_view message, const MessageData& data);

/// The report as it is sent: none, and 599, go out as 5NN.
std::string_view SentReport(std::string_view report);

}  // namespace tallyhut
