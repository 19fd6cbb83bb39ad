#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "contest/contact_log.h"

namespace tallyhut {

/// Which of the calls on a map are in the log. The map is drawn for each post, and from one to the next all calls but
/// one stay: a call is looked for once, among the hashes of the log's calls, and all of them anew when the log has
/// changed.
class WorkedCalls {
public:
    /// Finds out about these calls and forgets all others.
    void Learn(const ContactLog& log, const std::vector<std::string_view>& calls);
    /// To the letter. False for a call that nobody has asked about.
    bool Has(std::string_view call) const;

private:
    bool IsIn(const ContactLog& log, std::string_view call) const;

    std::map<std::string, bool, std::less<>> known_;
    std::vector<std::size_t> hashes_;  ///< of the call of row 1 and on
    std::uint64_t rowsLent_ = 0;
    std::int32_t count_ = 0;
};

}  // namespace tallyhut
