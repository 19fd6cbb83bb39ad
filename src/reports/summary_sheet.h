#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "contest/preferences.h"
#include "contest/section_table.h"

namespace tallyhut {

/// The answers on the sheet that the station and the log do not know. A class is "Novice", "Technician", "Other" or
/// empty.
struct SummaryAnswers {
    std::string_view licenseClass;
    std::string operatorCall;
    std::string_view operatorClass;
    bool singleOperator = false;
    std::string operators;
    bool clubParticipation = false;
    std::string club;
    std::string rigs;
    std::string antennas;
    std::string power;
    std::string name;
    std::string addressLine1;
    std::string addressLine2;
    std::string eMail;
};

/// The two places where the printed sheet has other blanks than the file.
struct SummaryLiterals {
    std::string_view name;
    std::string_view call;
};

inline constexpr SummaryLiterals kFileLiterals{.name = "Name: ", .call = "     Call:"};
inline constexpr SummaryLiterals kPrintLiterals{.name = "Name:     ", .call = "     Call: "};

/// Where the sponsor takes entries of this kind.
struct Sponsor {
    std::string_view phoneEMail;
    std::string_view cwEMail;
    std::string_view contestDepartment;  ///< with the postal address
    std::string_view ftpHost;
    std::string_view webHost;
};

/// As operators know them. A new address is a change of this table alone.
inline constexpr Sponsor kSponsor{
    .phoneEMail = "SSPhone@arrl.org",
    .cwEMail = "SSCW@arrl.org",
    .contestDepartment = "ARRL Contest Branch, 225 Main St, Newington, CT 06111",
    .ftpHost = "ftp.arrl.org",
    .webHost = "www.arrl.org",
};

/// The lines of the sheet; the first is its head.
///
/// @param contacts  how many are logged
/// Throws ValueError when the claimed score is beyond 32 bits.
std::vector<std::string> SummarySheet(const SummaryAnswers& answers, const Preferences& station,
                                      const SectionTable& sections, std::int32_t contacts,
                                      const SummaryLiterals& literals);

/// A text of words cut at blanks into lines of at most 65 characters, the blank being the last of a line that is cut.
std::vector<std::string> WrappedLines(std::string text);

}  // namespace tallyhut
