#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "import/imported_log.h"

namespace tallyhut {

/// Takes what a file says of its station and its contest: of each the first that can be used, in the form that the
/// settings have it in. Calls that are none and other contests have a remark, at the line of the file.
struct StationFields {
    ImportNotes& remarks;
    ImportedStation station = {};
    std::string refusedCall = {};   ///< the last one that has a remark
    std::string otherContest = {};  ///< so too
    bool isContestTold = false;

    void TakeCall(std::string_view call, std::size_t line);
    void TakePrecedence(std::string_view precedence);
    /// Two digits, or a year of four whose last two are the check.
    void TakeCheck(std::string_view check);
    /// All are kept; the list that decides is not known here.
    void TakeSection(std::string_view section, std::size_t line);
    /// "ARRL-SS-CW"; one that says neither CW nor SSB leaves the mode to the contacts.
    void TakeContest(std::string_view contest, std::size_t line);
    /// What this station lacks.
    void FillIn(const ImportedStation& other);
};

/// Where the contest does not say the mode, the more frequent one of the contacts does. Each of the other mode has a
/// remark.
void SettleMode(ImportedLog& log);

}  // namespace tallyhut
