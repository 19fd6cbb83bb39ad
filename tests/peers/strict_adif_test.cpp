// The exported file as a parser takes it that refuses what the format does not list. It is from elsewhere:
// tools/adif-parser fetches it.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "contest/section_list.h"
#include "contest/told_sections.h"
#include "reports/adif_exchange.h"
#include "tests/platform/temporary_folder.h"
#include "tests/reports/report_fixture.h"
#include "values/date_time.h"

namespace tallyhut {
namespace {

/// The sections of 2023, as the program ships them.
SectionList SectionsOfToday() {
    std::ifstream file{TALLYHUT_DATA "/sections/2023.txt", std::ios::binary};
    return ReadSectionList(std::string{std::istreambuf_iterator<char>{file}, {}});
}

struct StrictAdifTest : testing::Test {
    TemporaryFolder folder;

    void SetUp() override {
        if (!std::filesystem::exists(TALLYHUT_ADIF_PARSER) || std::system("command -v node >/dev/null") != 0) {
            GTEST_SKIP() << "the strict parser is not here: tools/adif-parser fetches it where there is npm";
        }
    }
    /// The records as the parser takes them, or its refusal as a text.
    nlohmann::json Parsed(const std::string& text) const {
        const std::string path = folder.At("export.adi");
        std::ofstream{path, std::ios::binary} << text;
        const std::string command =
            std::string{"node '"} + TALLYHUT_PEERS + "/read_adif.js' '" + TALLYHUT_ADIF_PARSER + "' '" + path + '\'';
        FILE* pipe = popen(command.c_str(), "r");
        std::string output;
        std::array<char, 4'096> chunk{};
        for (std::size_t count = 1; count > 0;) {
            count = fread(chunk.data(), 1, chunk.size(), pipe);
            output.append(chunk.data(), count);
        }
        pclose(pipe);
        return nlohmann::json::parse(output, nullptr, false);
    }
    nlohmann::json Exported(const std::vector<Contact>& contacts, const SectionList& sections,
                            const Preferences& station = CwStation()) const {
        const AdifExchange details{.title = "Q7ZZQ's Tallyhut Log 4.7",
                                   .writtenAt = "20261107 210433",
                                   .power = "100W",
                                   .comment = "November\tSweepstakes \xE9"};
        return Parsed(AdifExchangeText(details, station, LogOf(contacts), sections, 2026));
    }
};

TEST_F(StrictAdifTest, RefusesWhatTheFormatDoesNotHave) {
    EXPECT_TRUE(Parsed("<CALL:4>W1XX <BAND:2>20 <MODE:2>CW <EOR>").is_string());
    EXPECT_TRUE(Parsed("<CALL:4>W1XX <BAND:3>20m <MODE:2>CW <TX_PWR:4>100W <EOR>").is_string());
    EXPECT_TRUE(Parsed("<CALL:4>W1XX <BAND:3>20m <MODE:2>CW <ARRL_SECT:3>XYZ <EOR>").is_string());
}

TEST_F(StrictAdifTest, TakesTheExchangeOfBothStations) {
    for (const Preferences& station : {CwStation(), PhoneStation()}) {
        const nlohmann::json records = Exported({Usual()}, ToldSections(), station);
        ASSERT_TRUE(records.is_array() && records.size() == 1) << records;
        const nlohmann::json& record = records[0];
        const bool phone = station.gContestMode == 1;
        EXPECT_EQ(record["CONTEST_ID"], phone ? "ARRL-SS-SSB" : "ARRL-SS-CW");
        EXPECT_EQ(record["MODE"], phone ? "SSB" : "CW");
        EXPECT_EQ(record["STX"], "137");
        EXPECT_EQ(record["STX_STRING"], "A 72 IL");
        EXPECT_EQ(record["SRX"], "88");
        EXPECT_EQ(record["SRX_STRING"], "A 72 MDC");
        EXPECT_EQ(record["PRECEDENCE"], "A");
        EXPECT_EQ(record["CHECK"], "72");
        EXPECT_EQ(record["ARRL_SECT"], "MDC");
        EXPECT_EQ(record["STATION_CALLSIGN"], "W9ZZZ");
        EXPECT_EQ(record["OPERATOR"], "W9ZZZ");
        EXPECT_FALSE(record.contains("TX_PWR"));
    }
}

TEST_F(StrictAdifTest, TakesEverySectionOfBothLists) {
    const SectionList today = SectionsOfToday();
    for (const SectionList* list : {&ToldSections(), &today}) {
        std::vector<Contact> contacts;
        for (const ListedSection& section : list->sections) {
            contacts.push_back(Usual());
            contacts.back().Sec = section.code;
        }
        const nlohmann::json records = Exported(contacts, *list);
        ASSERT_TRUE(records.is_array()) << records;
        ASSERT_EQ(records.size(), contacts.size());
        for (std::size_t at = 0; at < contacts.size(); ++at) {
            EXPECT_EQ(records[at]["ARRL_SECT"], contacts[at].Sec);
            EXPECT_EQ(records[at]["DXCC"], std::to_string(list->sections[at].dxcc)) << contacts[at].Sec;
        }
    }
}

TEST_F(StrictAdifTest, TakesOddContactsThatHaveWhatEveryRecordMust) {
    std::vector<Contact> contacts = OddContacts();
    std::erase_if(contacts, [](const Contact& contact) {
        const bool hasMoment = ParseDate(contact.Date, 2026) && ParseTime(contact.Time);
        return contact.Call.empty() || contact.Bnd.empty() || !hasMoment;
    });
    ASSERT_GT(contacts.size(), 4U);
    const nlohmann::json records = Exported(contacts, ToldSections());
    ASSERT_TRUE(records.is_array()) << records;
    EXPECT_EQ(records.size(), contacts.size());
}

}  // namespace
}  // namespace tallyhut
