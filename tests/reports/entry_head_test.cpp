#include "reports/entry_head.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "contest/told_sections.h"
#include "reports/cabrillo.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

using Head = std::vector<HeadLine>;

TEST(EntryHead, IsTheLinesInFrontOfTheContacts) {
    EXPECT_EQ(ReadEntryHead("START-OF-LOG: 3.0\r\n\r\nclub :  A B \r\nQSO: 14000 CW\r\nNAME: Pat\r\n"),
              (Head{{"START-OF-LOG", "3.0"}, {"CLUB", "A B"}}));
    EXPECT_EQ(ReadEntryHead("A: 1\nB:2\rC: a:b\nX-QSO: 1\nD: 4"), (Head{{"A", "1"}, {"B", "2"}, {"C", "a:b"}}));
    EXPECT_EQ(ReadEntryHead("A: 1\nEND-OF-LOG:\nB: 2"), (Head{{"A", "1"}}));
}

TEST(EntryHead, TellsATagOnceAndPassesOverWhatIsNone) {
    EXPECT_EQ(ReadEntryHead("SOAPBOX: one\nno tag\nSOAPBOX: two\nCLUB:\n"), (Head{{"SOAPBOX", "one"}, {"CLUB", ""}}));
    EXPECT_EQ(ReadEntryHead(""), Head{});
    EXPECT_EQ(ReadEntryHead(std::string(100'000, '\0')), Head{});
}

TEST(EntryHead, OfAnyBytesIsTagsWithoutLineEnds) {
    constexpr std::string_view kPieces = "AQSO-X:\r\n \t\xFF:";
    std::mt19937 random{7};
    for (int round = 0; round < 2'000; ++round) {
        std::string bytes;
        for (int i = 0; i < 60; ++i) {
            bytes += kPieces[random() % kPieces.size()];
        }
        std::set<std::string> tags;
        for (const auto& [tag, value] : ReadEntryHead(bytes)) {
            EXPECT_TRUE(tags.insert(tag).second) << bytes;
            EXPECT_EQ((tag + value).find_first_of("\r\n"), std::string::npos) << bytes;
            EXPECT_NE(tag, "QSO") << bytes;
        }
    }
}

std::string Objection(const std::string& tag, const std::string& value) {
    return ObjectionTo({tag, value}, ToldSections()).value_or("");
}

TEST(EntryHead, ValuesThatCabrillo3ListsAreTaken) {
    for (const auto& [tag, value] : Head{{"START-OF-LOG", "3.0"},
                                         {"CONTEST", "ARRL-SS-SSB"},
                                         {"CATEGORY-OPERATOR", "MULTI-OP"},
                                         {"CATEGORY-ASSISTED", "NON-ASSISTED"},
                                         {"CATEGORY-BAND", "ALL"},
                                         {"CATEGORY-MODE", "SSB"},
                                         {"CATEGORY-POWER", "QRP"},
                                         {"CATEGORY-STATION", "SCHOOL"},
                                         {"CATEGORY-TRANSMITTER", "UNLIMITED"},
                                         {"CATEGORY-TIME", "24-HOURS"},
                                         {"CATEGORY-OVERLAY", "ROOKIE"},
                                         {"CERTIFICATE", "no"},
                                         {"LOCATION", "IL"},
                                         {"SOAPBOX", "anything"},
                                         {"X-OWN", "anything"}}) {
        EXPECT_EQ(Objection(tag, value), "") << tag;
    }
}

TEST(EntryHead, OthersAreObjectedTo) {
    for (const auto& [tag, value] : Head{{"START-OF-LOG", "2.0"},
                                         {"CONTEST", "ARRL-SS"},
                                         {"CATEGORY-OPERATOR", "SINGLE-OP-ASSISTED"},
                                         {"CATEGORY-ASSISTED", "YES"},
                                         {"CATEGORY-BAND", "20"},
                                         {"CATEGORY-MODE", "PH"},
                                         {"CATEGORY-POWER", ""},
                                         {"CATEGORY-STATION", "HOME"},
                                         {"CATEGORY-TRANSMITTER", "ONE TWO"},
                                         {"CATEGORY-TIME", "30-HOURS"},
                                         {"CATEGORY-OVERLAY", "NONE"},
                                         {"CERTIFICATE", "MAYBE"}}) {
        EXPECT_EQ(Objection(tag, value), '"' + value + "\" is in no list of Cabrillo 3") << tag;
    }
    EXPECT_EQ(Objection("LOCATION", "ON"), "\"ON\" is no section");
    EXPECT_EQ(Objection("ARRL-SECTION", "IL"), "Cabrillo 3 has LOCATION instead");
    EXPECT_EQ(Objection("CATEGORY-MODE", std::string(60'000, 'X')),
              '"' + std::string(24, 'X') + "...\" is in no list of Cabrillo 3");
}

}  // namespace
}  // namespace tallyhut
