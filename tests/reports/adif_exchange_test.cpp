#include "reports/adif_exchange.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "contest/told_sections.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

const AdifExchange kDetails{.title = "Q7ZZQ's Tallyhut Log 4.7",
                            .writtenAt = "20261107 210433",
                            .power = "100",
                            .comment = "November Sweepstakes Contest"};

std::string RecordOf(const Contact& contact, const AdifExchange& details = kDetails,
                     const Preferences& station = CwStation()) {
    const std::string text = AdifExchangeText(details, station, LogOf({contact}), ToldSections(), 2026);
    return text.substr(text.find("<EOH>\r\n") + 7);
}

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(AdifExchange, HeadTellsVersionProgramAndMoment) {
    EXPECT_EQ(AdifExchangeText(kDetails, CwStation(), LogOf({}), ToldSections(), 2026),
              "The log of the contest, with the exchange\r\n"
              "<ADIF_VER:5>3.1.6 <CREATED_TIMESTAMP:15>20261107 210433 <PROGRAMID:20>Q7ZZQ's Tallyhut Log "
              "<PROGRAMVERSION:3>4.7 <EOH>\r\n");
}

TEST(AdifExchange, RecordHoldsTheWholeExchange) {
    EXPECT_EQ(RecordOf(Usual()),
              "<CALL:4>W1XX <QSO_DATE:8>20261107 <TIME_ON:6>210433 <BAND:3>40m <FREQ:5>7.025 <MODE:2>CW "
              "<CONTEST_ID:10>ARRL-SS-CW <STX:3>137 <STX_STRING:7>A 72 IL <SRX:2>88 <SRX_STRING:8>A 72 MDC "
              "<PRECEDENCE:1>A <CHECK:2>72 <ARRL_SECT:3>MDC <DXCC:3>291 <STATE:2>MD <STATION_CALLSIGN:5>W9ZZZ "
              "<OPERATOR:5>W9ZZZ <MY_ARRL_SECT:2>IL <TX_PWR:3>100 <COMMENT:28>November Sweepstakes Contest <EOR>\r\n");
}

TEST(AdifExchange, PhoneIsSsbOfThePhoneContest) {
    EXPECT_TRUE(Holds(RecordOf(Usual(), kDetails, PhoneStation()), "<MODE:3>SSB <CONTEST_ID:11>ARRL-SS-SSB "));
}

TEST(AdifExchange, PowerThatIsNoNumberIsLeftOut) {
    for (const std::string power : {"", "LOW", "100W", "1e3", "+5", "-5", ".", "5."}) {
        AdifExchange details = kDetails;
        details.power = power;
        EXPECT_FALSE(Holds(RecordOf(Usual(), details), "TX_PWR")) << power;
    }
    AdifExchange details = kDetails;
    details.power = " 1500 ";
    EXPECT_TRUE(Holds(RecordOf(Usual(), details), "<TX_PWR:4>1500 "));
}

TEST(AdifExchange, WhatAStrictReaderRefusesIsLeftOut) {
    Contact odd = Usual();
    odd.Ns = "12A";
    odd.Nr = "";
    odd.Date = "2/30/2026";
    odd.Time = "25:00";
    odd.Bnd = "7";
    odd.Frq = "seven";
    odd.Sec = "XYZ";
    EXPECT_EQ(RecordOf(odd),
              "<CALL:4>W1XX <MODE:2>CW <CONTEST_ID:10>ARRL-SS-CW <STX_STRING:7>A 72 IL <SRX_STRING:8>A 72 XYZ "
              "<PRECEDENCE:1>A <CHECK:2>72 <STATION_CALLSIGN:5>W9ZZZ <OPERATOR:5>W9ZZZ <MY_ARRL_SECT:2>IL "
              "<TX_PWR:3>100 <COMMENT:28>November Sweepstakes Contest <EOR>\r\n");
}

TEST(AdifExchange, SerialsHaveNoZerosBeforeThemAndTimesKeepTheirSeconds) {
    Contact contact = Usual();
    contact.Ns = "0012";
    contact.Nr = "000";
    contact.Time = "21:04";
    EXPECT_TRUE(Holds(RecordOf(contact), "<STX:2>12 "));
    EXPECT_TRUE(Holds(RecordOf(contact), "<SRX:1>0 "));
    EXPECT_TRUE(Holds(RecordOf(contact), "<TIME_ON:4>2104 "));
}

TEST(AdifExchange, TheFileIsPlainAscii) {
    AdifExchange details = kDetails;
    details.comment = "Andr\xE9\r\nand\tPat";
    const std::string text = AdifExchangeText(details, CwStation(), LogOf(OddContacts()), ToldSections(), 2026);
    EXPECT_TRUE(Holds(text, "<COMMENT:14>Andr???and?Pat "));
    EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return (c >= ' ' && c <= '~') || c == '\r' || c == '\n'; }));
}

TEST(AdifExchange, CanadaIsDxccOneWhateverTheList) {
    for (const std::string section : {"ONN", "ONS", "ONE", "NT", "GTA", "MAR", "QC", "NB", "NS", "PE", "GH", "TER"}) {
        Contact contact = Usual();
        contact.Sec = section;
        EXPECT_TRUE(Holds(RecordOf(contact), "<DXCC:1>1 ")) << section;
    }
    Contact ontario = Usual();
    ontario.Sec = "ONN";
    EXPECT_TRUE(Holds(RecordOf(ontario), "<DXCC:1>1 <STATE:2>ON "));
}

TEST(AdifExchange, EntitiesAreThoseOfTheSectionOrOfTheIsland) {
    struct Row {
        std::string_view call, section;
        std::int32_t entity;
    };
    for (const Row& row : std::vector<Row>{{"W1XX", "MDC", 291},
                                           {"KP4XX", "PR", 202},
                                           {"KP2XX", "VI", 285},
                                           {"KL7AA", "AK", 6},
                                           {"KH6XX", "PAC", 110},
                                           {"W1XX", "PAC", 110},
                                           {"KH2XX", "PAC", 103},
                                           {"AH0A", "PAC", 166},
                                           {"W1XX/KH8", "PAC", 9},
                                           {"KH2/W1XX", "PAC", 103},
                                           {"KH2XX/KH6", "PAC", 110},
                                           {"KH6/KH2XX", "PAC", 110},
                                           {"KH0XX/KH2", "PAC", 103},
                                           {"AH6X/KH8", "PAC", 9},
                                           {"WA1AA/KH8/P", "PAC", 9},
                                           {"KH2XX/QRP", "PAC", 103},
                                           {"KH7K", "PAC", 138},
                                           {"W1XX/KH7K", "PAC", 138},
                                           {"KH7KA", "PAC", 110},
                                           {"KH7XX", "PAC", 110},
                                           {"CY0XX/VE1", "NS", 1},
                                           {"VE1XX/CY9", "NS", 252},
                                           {"/", "PAC", 110},
                                           {"KH2XX//", "PAC", 103},
                                           {"KH2XX", "CA", 0},
                                           {"KH2XX", "SCV", 291},
                                           {"CY0X", "MAR", 211},
                                           {"W", "PAC", 110},
                                           {"", "XYZ", 0}}) {
        EXPECT_EQ(EntityOf(row.call, row.section, ToldSections()), row.entity) << row.call << ' ' << row.section;
    }
}

TEST(AdifExchange, ATerritoryIsTheStateThatTheCallTells) {
    for (const std::string section : {"TER", "NT"}) {
        for (const auto& [call, state] : std::vector<std::pair<std::string, std::string>>{
                 {"VE8AA", "NT"}, {"VY0AA", "NU"}, {"VY1AA", "YT"}, {"VE3XX/VY0", "NU"}}) {
            Contact contact = Usual();
            contact.Call = call;
            contact.Sec = section;
            EXPECT_TRUE(Holds(RecordOf(contact), "<DXCC:1>1 <STATE:2>" + state + ' ')) << call << section;
        }
    }
    Contact visitor = Usual();
    visitor.Call = "VE3XX";
    visitor.Sec = "TER";
    EXPECT_FALSE(Holds(RecordOf(visitor), "<STATE"));
}

TEST(AdifExchange, AnExchangeThatLacksAPartIsNotToldAsOneText) {
    Contact contact = Usual();
    contact.Ck = "";
    EXPECT_FALSE(Holds(RecordOf(contact), "SRX_STRING"));
    EXPECT_TRUE(Holds(RecordOf(contact), "<STX_STRING"));
    Preferences station = CwStation();
    station.gOwnCheck = " ";
    EXPECT_FALSE(Holds(RecordOf(Usual(), kDetails, station), "STX_STRING"));
}

TEST(AdifExchange, AnIslandWithAnEntityOfItsOwnHasNoState) {
    Contact guam = Usual();
    guam.Call = "KH2XX";
    guam.Sec = "PAC";
    EXPECT_TRUE(Holds(RecordOf(guam), "<DXCC:3>103 <STATION_CALLSIGN"));
    guam.Call = "KH7K";
    EXPECT_TRUE(Holds(RecordOf(guam), "<DXCC:3>138 <STATION_CALLSIGN"));
    guam.Call = "KH6XX";
    EXPECT_TRUE(Holds(RecordOf(guam), "<DXCC:3>110 <STATE:2>HI "));
}

}  // namespace
}  // namespace tallyhut
