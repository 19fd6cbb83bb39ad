#pragma once

#include <string>
#include <string_view>

#include "contest/contact_record.h"

namespace tallyhut {

/// Takes the fields of a contact as other programs write them, each into the form that the log has it in. The first
/// that cannot be taken is told in `refused`.
struct ContactFields {
    Contact contact = {};
    std::string refused = {};  ///< empty while all could be taken
    std::string remark = {};   ///< on a frequency that was left out; empty for none
    bool phone = false;        ///< by the mode

    /// The serial numbers: digits, without zeros before them.
    void TakeSent(std::string_view serial);
    void TakeReceived(std::string_view serial);
    void TakePrecedence(std::string_view precedence);
    void TakeCall(std::string_view call);
    /// Two digits, or a year of four whose last two are the check.
    void TakeCheck(std::string_view check);
    void TakeSection(std::string_view section);
    /// Year, month and day, with or without a stroke of "-" or "/" between them.
    void TakeDate(std::string_view date);
    /// Hours and minutes, with seconds where there are some.
    void TakeTime(std::string_view time);
    /// "40m", in either case.
    void TakeBand(std::string_view band);
    /// Kilohertz; the lower edge of a band says the band alone.
    void TakeKilohertz(std::string_view frequency);
    /// With a point or a comma. One that is of no use is left out where the band is known.
    void TakeMegahertz(std::string_view frequency);
    /// "CW", "PH", "SSB" and so on.
    void TakeMode(std::string_view mode);

private:
    void Refuse(std::string_view what, std::string_view text);
    std::string Serial(std::string_view text);
};

bool IsDigits(std::string_view text);

/// A call as a log may hold it: letters A to Z, digits and strokes.
bool IsCall(std::string_view text);
/// 1 to 4 of A-Z and 0-9.
bool IsSectionCode(std::string_view text);

}  // namespace tallyhut
