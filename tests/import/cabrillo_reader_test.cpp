#include "import/cabrillo_reader.h"

#include <gtest/gtest.h>

#include "tests/import/import_fixture.h"

namespace tallyhut {
namespace {

using Texts = std::vector<std::string>;

Texts Contacts(const std::string& text) {
    return Shown(ReadCabrillo(text).contacts);
}

Texts Notes(const std::string& text) {
    return Shown(ReadCabrillo(text).notes);
}

TEST(CabrilloReader, TakesContactsInWhateverColumnsTheyStand) {
    EXPECT_EQ(Contacts("QSO: 14042 CW 1997-11-03 0101 N5KO       1211 B 74 SCV KA5WSS/VE3 1071 A 74 ON \r\n"
                       "QSO: 14329 PH 2021-11-20 2103 KI2D          0001 U 20 ENY KV0I          0004 U 61 NE \n"
                       "qso:\t 7000\tcw 2026/11/07 210433 w1xx 1 a 72 mdc k1ab 0 q 1998 ct 1"),
              (Texts{"1: 1211 1071 A KA5WSS/VE3 74 ON 1997/11/03 01:01 20 14.042",
                     "2: 1 4 U KV0I 61 NE 2021/11/20 21:03 20 14.329", "3: 1 0 Q K1AB 98 CT 2026/11/07 21:04:33 40 "}));
}

TEST(CabrilloReader, TheLowerEdgeOfABandSaysTheBandAlone) {
    for (const auto& [kilohertz, band] : std::vector<std::pair<std::string, std::string>>{
             {"1800", "160"}, {"3500", "80"}, {"7000", "40"}, {"14000", "20"}, {"21000", "15"}, {"28000", "10"}}) {
        EXPECT_EQ(Contacts("QSO: " + kilohertz + " CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC"),
                  Texts{"1: 1 88 A W1XX 72 MDC 2026/11/07 21:04 " + band + ' '});
    }
}

TEST(CabrilloReader, TellsTheStationByTheHeadAndElseByTheContacts) {
    const std::string contact = "QSO: 7000 PH 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n";
    const ImportedStation head = ReadCabrillo(
                                     "CALLSIGN: k9zzz\nLOCATION: WI\nARRL-SECTION: OH\n"
                                     "CONTEST: ARRL-SS-CW\n" +
                                     contact)
                                     .station;
    EXPECT_EQ(head.call, "K9ZZZ");
    EXPECT_EQ(Shown(head.sections), (Texts{"WI", "OH", "IL"}));
    EXPECT_EQ(head.precedence, "A");
    EXPECT_EQ(head.check, "72");
    EXPECT_EQ(head.phone, false);
    const ImportedStation lines = ReadCabrillo(contact).station;
    EXPECT_EQ(lines.call, "W9ZZZ");
    EXPECT_EQ(Shown(lines.sections), Texts{"IL"});
    EXPECT_EQ(lines.phone, true);
    EXPECT_EQ(ReadCabrillo("CONTEST: ARRL-SS-SSB\n").station.phone, true);
}

TEST(CabrilloReader, TheOwnCheckOfAYearIsItsLastTwoDigits) {
    EXPECT_EQ(ReadCabrillo("QSO: 7000 CW 2026-11-07 2104 N5KO 1 B 1974 SCV W1XX 88 A 72 MDC").station.check, "74");
    EXPECT_EQ(ReadCabrillo("QSO: 7000 CW 2026-11-07 2104 N5KO 1 B 7O SCV W1XX 88 A 72 MDC").station.check, "");
}

TEST(CabrilloReader, TheContactsSayTheModeWhereTheContestDoesNot) {
    const std::string cw = "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n";
    const std::string phone = "QSO: 7000 PH 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n";
    for (const std::string contest : {"", "CONTEST: ARRL-SS\n", "CONTEST: ARRL-SS-PHONE\n", "CONTEST: CQ-WW-CW\n"}) {
        EXPECT_EQ(ReadCabrillo(contest + phone).station.phone, true) << contest;
        EXPECT_EQ(ReadCabrillo(contest + cw + phone + phone).station.phone, true) << contest;
        EXPECT_EQ(ReadCabrillo(contest + cw + phone).station.phone, false) << contest;
    }
    EXPECT_EQ(ReadCabrillo("CONTEST: ARRL-SS-CW\n" + phone).station.phone, false);
}

TEST(CabrilloReader, TheFirstContestCounts) {
    EXPECT_EQ(ReadCabrillo("CONTEST: ARRL-SS-SSB\nCONTEST: ARRL-SS-CW\n").station.phone, true);
}

TEST(CabrilloReader, HasARemarkOnEachContactOfTheOtherModeAndOnAnotherContest) {
    const std::string begin = "QSO: 7000 PH 2026-11-07 2104 W9ZZZ 1 A 72 IL ";
    const ImportedLog log = ReadCabrillo("CONTEST: CQ-WW-CW\n" + begin + "W1XX 88 A 72 MDC\n" + begin +
                                         "K1AB 8 A 72 CT\n"
                                         "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n");
    EXPECT_EQ(log.contacts.size(), 3U);
    EXPECT_EQ(Shown(log.remarks),
              (Texts{"1: Kept, though the contest is not ARRL-SS", "4: Kept: a CW contact in a log of phone"}));
}

TEST(CabrilloReader, AnOwnCallThatIsNoneGivesWayToThatOfTheContacts) {
    const std::string contact = "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n";
    for (const std::string call : {"W9ZZZ W9YYY", "W9ZZZZZZZZZZZZZZZZZZZ", "W9\"Z"}) {
        const ImportedLog log = ReadCabrillo("CALLSIGN: " + call + "\n" + contact);
        EXPECT_EQ(log.station.call, "W9ZZZ") << call;
        EXPECT_EQ(Shown(log.remarks), Texts{"1: Not taken as the own call: it is none"}) << call;
    }
}

TEST(CabrilloReader, HasANoteOnEachLineThatIsNotUnderstood) {
    const std::string begin = "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL ";
    EXPECT_EQ(
        Notes("START-OF-LOG: 3.0\n"
              "\n"
              "  \t\n"
              "no line\n"
              "FAVOURITE-COLOUR: red\n"
              "X-FAVOURITE-COLOUR: red\n"
              "SOAPBOX: QSO: fun\n" +
              begin + "W1XX 88 A 72\n" +        // 8
              begin + "W1XX 88 A 72 MDC x\n" +  // 9
              "QSO: 10100 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n"
              "QSO: 7000 RY 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n"
              "QSO: 7000 CW 2026-02-30 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n"
              "QSO: 7000 CW 2026-11-07 2460 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n" +
              begin + "W1\"X 88 A 72 MDC\n" +   // 14
              begin + "W1XX 8B A 72 MDC\n" +    // 15
              begin + "W1XX 88 AA 72 MDC\n" +   // 16
              begin + "W1XX 88 A 7O MDC\n" +    // 17
              begin + "W1XX 88 A 72 MARYL\n" +  // 18
              "END-OF-LOG:\n"),
        (Texts{"4: Not understood: no line of Cabrillo", "5: Not understood: unknown tag",
               "8: Not understood: a contact has 14 words", "9: Not understood: a contact has 14 words",
               "10: Not understood: \"10100\" is no frequency of the contest",
               "11: Not understood: \"RY\" is no mode of the contest", "12: Not understood: \"2026-02-30\" is no date",
               "13: Not understood: \"2460\" is no time", "14: Not understood: \"W1\"X\" is no call",
               "15: Not understood: \"8B\" is no serial number", "16: Not understood: \"AA\" is no precedence",
               "17: Not understood: \"7O\" is no check", "18: Not understood: \"MARYL\" is no section"}));
}

TEST(CabrilloReader, LinesThatDoNotCountAreLeftOutAndNamed) {
    const ImportedLog log = ReadCabrillo("X-QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\r\n");
    EXPECT_TRUE(log.contacts.empty());
    EXPECT_EQ(Shown(log.notes), Texts{"1: Left out: marked as not counting (X-QSO)"});
    EXPECT_EQ(log.notes.kept.front().text, "X-QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC");
}

TEST(CabrilloReader, AnEndlessLineIsOneNoteOfBoundedLength) {
    const ImportedLog log = ReadCabrillo("QSO: " + std::string(5'000'000, 'x'));
    EXPECT_EQ(Shown(log.notes), Texts{"1: Not understood: no line of Cabrillo"});
    EXPECT_EQ(log.notes.kept.front().text.size(), 100U);
}

TEST(CabrilloReader, NotesBeyondTheFirstTenThousandAreCountedAlone) {
    std::string text;
    for (int line = 0; line < 12'000; ++line) {
        text += "?\n";
    }
    const ImportedLog log = ReadCabrillo(text);
    EXPECT_EQ(log.notes.count, 12'000U);
    EXPECT_EQ(log.notes.kept.size(), ImportNotes::kMostKept);
}

TEST(CabrilloReader, NumbersBeyondAllBandsAreNoFrequencies) {
    for (const char* frequency : {"1e300", "-7000", "0", "99999999", "7000x", "&H"}) {
        EXPECT_EQ(Contacts(std::string{"QSO: "} + frequency + " CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC"),
                  Texts{})
            << frequency;
    }
}

}  // namespace
}  // namespace tallyhut
