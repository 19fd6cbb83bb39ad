#include "reports/log_check.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/reports/report_fixture.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr int kYear = 2026;

/// A log that nobody objects to: five contacts, a minute apart.
std::vector<Contact> Clean() {
    const std::array<std::array<const char*, 2>, 5> kWorked{
        {{"W1XX", "CT"}, {"VE3ABC", "ONS"}, {"KH6LC", "PAC"}, {"KP4AA", "PR"}, {"W1AW/7", "WWA"}}};
    std::vector<Contact> contacts;
    for (const auto& [call, section] : kWorked) {
        Contact contact = Usual();
        contact.Call = call;
        contact.Sec = section;
        contact.Ns = std::to_string(contacts.size() + 1);
        contact.Time = "21:0" + contact.Ns + ":30";
        contacts.push_back(contact);
    }
    return contacts;
}

SectionTable Counted(const std::vector<Contact>& contacts) {
    SectionTable sections;
    sections.Fill();
    for (const Contact& contact : contacts) {
        if (const int section = sections.Find(contact.Sec); section != 0) {
            sections.Count(section);
        }
    }
    return sections;
}

KnownCalls Known(const std::vector<std::string_view>& calls) {
    std::vector<CallKey> keys;
    for (const std::string_view call : calls) {
        keys.push_back(*KeyOfCall(call));
    }
    return KnownCalls{std::move(keys)};
}

struct Beside {
    std::vector<std::string_view> known = {};
    std::optional<std::string_view> entry = {};
};

/// "3 Call no call" for each finding.
std::vector<std::string> Findings(const std::vector<Contact>& contacts, const Beside& beside = {}) {
    const ContactLog log = LogOf(contacts);
    const SectionTable sections = Counted(contacts);
    const Preferences station = CwStation();
    const KnownCalls known = Known(beside.known);
    std::vector<std::string> found;
    for (const Finding& finding : FindingsIn({.log = log,
                                  .station = station,
                                  .sections = sections,
                                  .known = known,
                                  .entry = beside.entry,
                                  .presentYear = kYear})) {
        found.push_back(std::to_string(finding.row) + ' ' + finding.field + ' ' + finding.text);
    }
    return found;
}

using Found = std::vector<std::string>;

TEST(LogCheck, FindsNothingInALogThatIsRight) {
    EXPECT_EQ(Findings(Clean()), Found{});
    EXPECT_EQ(Findings({}), Found{});
    EXPECT_EQ(Findings({Usual()}), Found{}) << "the first serial number may be any";
}

struct Case {
    const char* what;
    std::function<void(std::vector<Contact>&)> change;
    Found found;
};

TEST(LogCheck, FindsWhatIsWrongInAContact) {
    const Case cases[] = {
        {"a serial that is no number", [](auto& log) { log[2].Ns = "x"; }, {"3 Ns \"x\": no number"}},
        {"an empty one", [](auto& log) { log[0].Ns = ""; }, {"1 Ns \"\": no number"}},
        {"a serial left out", [](auto& log) { log[3].Ns = "5", log[4].Ns = "6"; }, {"4 Ns \"5\" follows \"3\""}},
        {"a serial twice", [](auto& log) { log[4].Ns = "4"; }, {"5 Ns \"4\" follows \"4\""}},
        {"zeros in front of it", [](auto& log) { log[2].Ns = "0003"; }, {}},
        {"a number beyond all numbers", [](auto& log) { log[2].Ns = std::string(400, '9'); }, {}},
        {"a number with the letter O",
         [](auto& log) { log[1].Nr = "1O2"; },
         {"2 Nr \"1O2\": the letter O where a zero belongs"}},
        {"a number that is none", [](auto& log) { log[1].Nr = "1A"; }, {"2 Nr \"1A\": no number"}},
        {"an empty number", [](auto& log) { log[1].Nr = ""; }, {"2 Nr \"\": no number"}},
        {"zeros in front of it", [](auto& log) { log[1].Nr = "0012"; }, {}},
        {"a precedence", [](auto& log) { log[1].P = "X"; }, {"2 P \"X\": none of Q, A, B, U, M and S"}},
        {"no precedence", [](auto& log) { log[1].P = ""; }, {"2 P \"\": none of Q, A, B, U, M and S"}},
        {"two of them", [](auto& log) { log[1].P = "QA"; }, {"2 P \"QA\": none of Q, A, B, U, M and S"}},
        {"each precedence", [](auto& log) { log[0].P = "Q", log[1].P = "S", log[2].P = "M", log[3].P = "U"; }, {}},
        {"a call without a digit", [](auto& log) { log[0].Call = "WXX"; }, {"1 Call no call"}},
        {"a call without a letter", [](auto& log) { log[0].Call = "123"; }, {"1 Call no call"}},
        {"a call with a blank", [](auto& log) { log[0].Call = "W1 X"; }, {"1 Call no call"}},
        {"a call in small letters", [](auto& log) { log[0].Call = "w1xx"; }, {"1 Call no call"}},
        {"a short one", [](auto& log) { log[0].Call = "W1"; }, {"1 Call no call"}},
        {"the own call", [](auto& log) { log[0].Call = "W9ZZZ"; }, {"1 Call your own call"}},
        {"a duplicate", [](auto& log) { log[4].Call = "W1XX"; }, {"5 Call duplicate of Rec# 1"}},
        {"on another band",
         [](auto& log) { log[1] = log[0], log[1].Ns = "2", log[1].Bnd = "20", log[1].Time = "21:02"; },
         {"2 Call duplicate of Rec# 1", "2 Bnd \"20\" between \"40\" and \"40\" within 10 minutes"}},
        {"a check with the letter O",
         [](auto& log) { log[1].Ck = "O5"; },
         {"2 Ck \"O5\": the letter O where a zero belongs"}},
        {"a check of one digit", [](auto& log) { log[1].Ck = "5"; }, {"2 Ck \"5\": not two digits"}},
        {"a check of four", [](auto& log) { log[1].Ck = "1972"; }, {"2 Ck \"1972\": not two digits"}},
        {"a check of zeros", [](auto& log) { log[1].Ck = "00"; }, {}},
        {"a section that is none", [](auto& log) { log[0].Sec = "XX"; }, {"1 Sec \"XX\": no section of this contest"}},
        {"one of another list", [](auto& log) { log[1].Sec = "GH"; }, {"2 Sec \"GH\": no section of this contest"}},
        {"a call of Canada beyond the border",
         [](auto& log) { log[1].Sec = "MI"; },
         {"2 Sec \"MI\": a section of the mainland, the call is of Canada"}},
        {"a call of the mainland beyond it",
         [](auto& log) { log[0].Sec = "QC"; },
         {"1 Sec \"QC\": a section of Canada, the call is of the mainland"}},
        {"a call of the Pacific",
         [](auto& log) { log[2].Sec = "LAX"; },
         {"3 Sec \"LAX\": a section of the mainland, the call is of the Pacific"}},
        {"a call of Alaska",
         [](auto& log) { log[2].Call = "KL7AA"; },
         {"3 Sec \"PAC\": a section of the Pacific, the call is of Alaska"}},
        {"a call of the Caribbean",
         [](auto& log) { log[3].Sec = "SFL"; },
         {"4 Sec \"SFL\": a section of the mainland, the call is of the Caribbean"}},
        {"one that moved", [](auto& log) { log[0].Sec = "SCV"; }, {}},
        {"a province beside", [](auto& log) { log[1].Sec = "QC"; }, {}},
        {"a call that is elsewhere", [](auto& log) { log[0].Call = "W1XX/VE2", log[0].Sec = "QC"; }, {}},
        {"a date that is none", [](auto& log) { log[1].Date = "2026/11/31"; }, {"2 Date \"2026/11/31\": no date"}},
        {"a time that is none", [](auto& log) { log[1].Time = "21:61"; }, {"2 Time \"21:61\": no time"}},
        {"neither",
         [](auto& log) { log[1].Time = log[1].Date = ""; },
         {"2 Date \"\": no date", "2 Time \"\": no time"}},
        {"a contact too early",
         [](auto& log) { log[2].Time = "20:59:00"; },
         {"3 Time earlier than the contact before it, Rec# 2"}},
        {"one behind an unreadable one",
         [](auto& log) { log[1].Time = "?", log[2].Time = "21:00"; },
         {"2 Time \"?\": no time", "3 Time earlier than the contact before it, Rec# 1"}},
        {"seconds", [](auto& log) { log[2].Time = "21:02:10"; }, {}},
        {"a band that is none", [](auto& log) { log[4].Bnd = "30"; }, {"5 Bnd \"30\": no band of the contest"}},
        {"no band", [](auto& log) { log[4].Bnd = ""; }, {"5 Bnd \"\": no band of the contest"}},
        {"a hop", [](auto& log) { log[2].Bnd = "20"; }, {"3 Bnd \"20\" between \"40\" and \"40\" within 10 minutes"}},
        {"on three bands",
         [](auto& log) { log[2].Bnd = "20", log[3].Bnd = log[4].Bnd = "15"; },
         {"3 Bnd \"20\" between \"40\" and \"15\" within 10 minutes"}},
        {"a change", [](auto& log) { log[3].Bnd = log[4].Bnd = "20"; }, {}},
        {"two contacts on another band", [](auto& log) { log[2].Bnd = log[3].Bnd = "20"; }, {}},
        {"the first and the last", [](auto& log) { log[0].Bnd = "20", log[4].Bnd = "80"; }, {}},
        {"10 minutes on either side",
         [](auto& log) { log[1].Bnd = "20", log[1].Time = "21:11", log[2].Time = log[3].Time = log[4].Time = "21:21"; },
         {"2 Bnd \"20\" between \"40\" and \"40\" within 10 minutes"}},
        {"11 of them before it",
         [](auto& log) { log[1].Bnd = "20", log[1].Time = "21:12", log[2].Time = log[3].Time = log[4].Time = "21:13"; },
         {}},
        {"11 of them behind it",
         [](auto& log) { log[1].Bnd = "20", log[1].Time = "21:02", log[2].Time = log[3].Time = log[4].Time = "21:13"; },
         {}},
    };
    for (const Case& one : cases) {
        std::vector<Contact> contacts = Clean();
        one.change(contacts);
        EXPECT_EQ(Findings(contacts), one.found) << one.what;
    }
}

TEST(LogCheck, FindingsStandByContactAndThenByField) {
    std::vector<Contact> contacts = Clean();
    contacts[3].Ck = "O5";
    contacts[1].Bnd = "";
    contacts[1].Nr = "";
    EXPECT_EQ(Findings(contacts, {.entry = ""}), (Found{"2 Nr \"\": no number", "2 Bnd \"\": no band of the contest",
                                                        "4 Ck \"O5\": the letter O where a zero belongs",
                                                        "0 START-OF-LOG the entry file does not begin with it"}));
}

TEST(LogCheck, TheSectionOfAnAliasIsNamed) {
    const ContactLog log = LogOf({Usual()});
    SectionTable sections;
    ListedSection mdc;
    mdc.code = "MX";
    mdc.aliases = {"MDC"};
    SectionList list;
    list.Add(mdc);
    sections.Choose(list);
    const std::vector<Finding> found = FindingsIn(
        {.log = log, .station = CwStation(), .sections = sections, .known = Known({}), .presentYear = kYear});
    EXPECT_EQ(found, (std::vector<Finding>{{1, "Sec", "\"MDC\": the section is MX"}}));
}

TEST(LogCheck, ACallThatIsOneLetterFromAKnownOneIsFound) {
    EXPECT_EQ(Findings(Clean(), {.known = {"W1XY", "VE3ABC", "KH6LCC", "PK4AA", "N1AW"}}),
              (Found{"1 Call one letter from W1XY, a known call", "3 Call one letter from KH6LCC, a known call",
                     "4 Call one letter from PK4AA, a known call"}));
}

TEST(LogCheck, ACallThatIsKnownItselfIsNot) {
    EXPECT_EQ(Findings(Clean(), {.known = {"W1XY", "W1XX", "K9ZZ"}}), Found{});
}

/// Contacts in each minute from 21:00 on, so many of them.
std::vector<Contact> EachMinute(int count) {
    std::vector<Contact> contacts;
    for (int i = 0; i < count; ++i) {
        const DateTime at = AddSeconds({2026, 11, 7, 21, 0, 0}, 60 * i);
        Contact contact = Usual();
        contact.Ns = std::to_string(i + 1);
        contact.Call =
            "W" + std::to_string(i % 10) + static_cast<char>('A' + i / 10 % 26) + static_cast<char>('A' + i / 260 % 26);
        contact.Date = FormatDateTime(at, "yyyy/mm/dd");
        contact.Time = FormatDateTime(at, "hh:mm:ss");
        contacts.push_back(contact);
    }
    return contacts;
}

TEST(LogCheck, ContactsBehindThe24thHourAreFound) {
    EXPECT_EQ(Findings(EachMinute(1440)), Found{});
    EXPECT_EQ(Findings(EachMinute(1442)),
              (Found{"1441 Time after the 24th hour of operating", "1442 Time after the 24th hour of operating"}));
    std::vector<Contact> withOffTime = EachMinute(1471);
    withOffTime.erase(withOffTime.begin() + 100, withOffTime.begin() + 130);
    for (std::size_t i = 100; i < withOffTime.size(); ++i) {
        withOffTime[i].Ns = std::to_string(i + 1);
    }
    EXPECT_EQ(Findings(withOffTime), (Found{"1441 Time after the 24th hour of operating"}));
}

constexpr std::string_view kEntry =
    "START-OF-LOG: 3.0\r\nCONTEST: ARRL-SS-CW\r\nLOCATION: IL\r\nCATEGORY-MODE: CW\r\nCLAIMED-SCORE: 50\r\n"
    "QSO: 7000 CW\r\n";

TEST(LogCheck, TheClaimedScoreIsThatOfTheLog) {
    EXPECT_EQ(Findings(Clean(), {.entry = kEntry}), Found{}) << "5 contacts, 5 sections";
    std::vector<Contact> contacts = Clean();
    contacts.pop_back();
    EXPECT_EQ(Findings(contacts, {.entry = kEntry}), Found{"0 CLAIMED-SCORE the score of the log is 32"});
    for (const std::string claimed : {"", "5O", "50.0", "fifty"}) {
        EXPECT_EQ(Findings(Clean(), {.entry = "START-OF-LOG: 3.0\nCLAIMED-SCORE: " + claimed}),
                  Found{"0 CLAIMED-SCORE the score of the log is 50"})
            << claimed;
    }
    EXPECT_EQ(Findings(Clean(), {.entry = "START-OF-LOG: 3.0\n"}), Found{}) << "nothing is claimed";
}

TEST(LogCheck, TheHeadIsHeldAgainstTheListsOfCabrillo3) {
    EXPECT_EQ(Findings(Clean(), {.entry = "START-OF-LOG: 3.0\nCATEGORY-MODE: PH\nARRL-SECTION: IL\nQSO: 1\n"}),
              (Found{"0 CATEGORY-MODE \"PH\" is in no list of Cabrillo 3",
                     "0 ARRL-SECTION Cabrillo 3 has LOCATION instead"}));
    EXPECT_EQ(Findings(Clean(), {.entry = "W1XX was here"}),
              Found{"0 START-OF-LOG the entry file does not begin with it"});
}

TEST(LogCheck, OddLogsAreWalkedToTheirEnd) {
    EXPECT_FALSE(Findings(OddContacts()).empty());
}

}  // namespace
}  // namespace tallyhut
