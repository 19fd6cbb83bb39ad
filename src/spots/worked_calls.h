#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "contest/contact_log.h"

namespace tallyhut {

/// Which of the calls on a map are in the log. The map is drawn for each post, and from one to the next all calls but
/// one stay: a call is looked for once, and all of them anew when the log has changed.
class WorkedCalls {
public:
    /// Finds out about these calls, in one pass over the log, and forgets all others.
    void Learn(const ContactLog& log, const std::vector<std::string_view>& calls);
    /// To the letter. False for a call that nobody has asked about.
    bool Has(std::string_view call) const;

private:
    std::map<std::string, bool, std::less<>> known_;
    std::uint64_t rowsLent_ = 0;
    std::int32_t count_ = 0;
};

}  // namespace tallyhut
