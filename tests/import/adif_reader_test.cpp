#include "import/adif_reader.h"

#include <gtest/gtest.h>

#include "tests/import/import_fixture.h"

namespace tallyhut {
namespace {

using Texts = std::vector<std::string>;

const std::string kRecord =
    "<CALL:4>W1XX <QSO_DATE:8>20261107 <TIME_ON:6>210433 <BAND:3>40m <FREQ:5>7.025 <MODE:2>CW <STX:3>137 <SRX:2>88 "
    "<PRECEDENCE:1>A <CHECK:2>72 <ARRL_SECT:3>MDC <EOR>\r\n";
const std::string kShown = "137 88 A W1XX 72 MDC 2026/11/07 21:04:33 40 7.025";

/// The record with a part of it otherwise.
std::string With(const std::string& part, const std::string& other) {
    std::string record = kRecord;
    const std::size_t at = record.find(part);
    return at == std::string::npos ? "no such part" : record.replace(at, part.size(), other);
}

Texts Contacts(const std::string& text) {
    return Shown(ReadAdif(text).contacts);
}

Texts Notes(const std::string& text) {
    return Shown(ReadAdif(text).notes);
}

TEST(AdifReader, TakesRecordsBehindAHeadAndWithoutOne) {
    EXPECT_EQ(Contacts("A head <with:3>abc\r\n<adif_ver:5>3.1.6 <eoh>\r\n" + kRecord), Texts{"3: " + kShown});
    EXPECT_EQ(Contacts(kRecord + kRecord), (Texts{"1: " + kShown, "2: " + kShown}));
}

TEST(AdifReader, NamesTypesAndTextBetweenFieldsAreAsTheFormatHasThem) {
    EXPECT_EQ(Contacts(With("<CALL:4>W1XX", "some text <call:4:S>w1xx <br> ")), Texts{"1: " + kShown});
    EXPECT_EQ(Contacts(With("<EOR>", "<COMMENT:9>1 < 2 > 1 <eor>")), Texts{"1: " + kShown});
}

TEST(AdifReader, TheFrequencySaysTheBandWhereNoneIsTold) {
    EXPECT_EQ(Contacts(With("<BAND:3>40m ", "")), Texts{"1: " + kShown});
    EXPECT_EQ(Contacts(With("<FREQ:5>7.025 ", "")), Texts{"1: 137 88 A W1XX 72 MDC 2026/11/07 21:04:33 40 "});
}

TEST(AdifReader, TheExchangeAsATextFillsInForFieldsThatAreNotThere) {
    const std::string string = "<STX_STRING:11>137 A 72 IL <SRX_STRING:11>88 A 72 MDC ";
    EXPECT_EQ(Contacts(With("<STX:3>137 <SRX:2>88 <PRECEDENCE:1>A <CHECK:2>72 <ARRL_SECT:3>MDC ", string)),
              Texts{"1: " + kShown});
    EXPECT_EQ(Contacts(With("<PRECEDENCE:1>A <CHECK:2>72 <ARRL_SECT:3>MDC", "<SRX_STRING:8>A 72 MDC")),
              Texts{"1: " + kShown});
    EXPECT_EQ(Contacts(With("<EOR>", "<SRX_STRING:10>99 B 11 CT<EOR>")), Texts{"1: " + kShown});
}

TEST(AdifReader, IncompleteRecordsAreReportedAndNotImported) {
    const ImportedLog log = ReadAdif("<call:4>W1XX <qso_date:8>20261107 <eor>\n" + With("<CHECK:2>72", "") +
                                     With("<BAND:3>40m <FREQ:5>7.025", ""));
    EXPECT_TRUE(log.contacts.empty());
    EXPECT_EQ(Shown(log.notes),
              (Texts{"1: Incomplete, not imported: it lacks TIME_ON, STX, SRX, PRECEDENCE, CHECK, "
                     "ARRL_SECT, BAND",
                     "2: Incomplete, not imported: it lacks CHECK", "3: Incomplete, not imported: it lacks BAND"}));
    EXPECT_EQ(log.incomplete.size(), 3U);
}

TEST(AdifReader, LengthsThatCannotBeTrueCostTheirRecordAlone) {
    for (const std::string length :
         {"-1", "+4", "4x", "", "99999999999999999999999", "18446744073709551615", "9223372036854775807", "5000"}) {
        const ImportedLog log = ReadAdif(With("<CALL:4>", "<CALL:" + length + ">") + kRecord);
        EXPECT_EQ(Shown(log.contacts), Texts{"2: " + kShown}) << length;
        EXPECT_EQ(log.notes.count, 1U) << length;
    }
}

TEST(AdifReader, ALengthThatSwallowsAFieldIsSeenByWhatIsMissing) {
    EXPECT_EQ(Notes(With("<CALL:4>W1XX", "<COMMENT:17>W1XX <CALL:4>W1XX") + kRecord),
              (Texts{"1: Incomplete, not imported: it lacks CALL"}));
}

TEST(AdifReader, ALengthNeverReachesIntoTheNextRecord) {
    const std::string text = With("<CALL:4>W1XX", "<COMMENT:300>W1XX") + With("<CALL:4>W1XX", "<CALL:4>K1AB");
    EXPECT_EQ(Contacts(text), Texts{"2: 137 88 A K1AB 72 MDC 2026/11/07 21:04:33 40 7.025"});
    EXPECT_EQ(Notes(text), Texts{"1: Not understood: the length of COMMENT reaches beyond the record"});
}

TEST(AdifReader, FilesThatWereJoinedGiveAllTheirContacts) {
    const ImportedLog log = ReadAdif("\n" + kRecord + "second program\n<adif_ver:5>3.1.6 <eoh>\n" +
                                     With("<CALL:4>W1XX", "<CALL:4>K1AB") + "third <a <eoh> " + kRecord);
    EXPECT_EQ(Shown(log.contacts),
              (Texts{"2: " + kShown, "5: 137 88 A K1AB 72 MDC 2026/11/07 21:04:33 40 7.025", "6: " + kShown}));
    EXPECT_EQ(Shown(log.notes), Texts{});
}

TEST(AdifReader, AContactWithoutAnEndBeforeALaterHeadIsNamed) {
    EXPECT_EQ(Notes(kRecord + "<CALL:4>K1AB second\n<adif_ver:5>3.1.6 <eoh>\n" + kRecord),
              Texts{"2: Not understood: the record has no end"});
}

TEST(AdifReader, EndsMayHoldBlanks) {
    EXPECT_EQ(Contacts("head <EOH >\n" + With("<EOR>", "<eor >") + With("<EOR>", "< EOR\t>")),
              (Texts{"2: " + kShown, "3: " + kShown}));
}

TEST(AdifReader, AnEndOfARecordInsideDataEndsNothing) {
    const Texts both{"1: " + kShown, "2: " + kShown};
    for (const std::string data : {"<COMMENT:7>a<EOR>b", "<COMMENT:5><EOR>", "<COMMENT:12>a<eor>b<eor>"}) {
        EXPECT_EQ(Contacts(With("<CALL:4>W1XX", "<CALL:4>W1XX " + data) + kRecord), both) << data;
        EXPECT_EQ(Contacts(With("<EOR>", data + " <EOR>") + kRecord), both) << data;
        EXPECT_EQ(Contacts(data + kRecord + kRecord), both) << data;
    }
}

TEST(AdifReader, ALengthThatEndsRightBehindTheEndOfItsRecordCostsThatAlone) {
    for (const std::string length : {"7", "9"}) {
        const std::string text = With("<EOR>", "<COMMENT:" + length + ">73<EOR>") + kRecord;
        EXPECT_EQ(Contacts(text), Texts{"2: " + kShown}) << length;
        EXPECT_EQ(Notes(text), Texts{"1: Not understood: the length of COMMENT reaches beyond the record"}) << length;
    }
}

TEST(AdifReader, TextGluedToDataThatDoesNotMatterCostsNothing) {
    EXPECT_EQ(Contacts(With("<EOR>", "<COMMENT:2>73s <EOR>")), Texts{"1: " + kShown});
}

TEST(AdifReader, AFrequencyOfNoUseIsLeftOutWhereTheBandIsTold) {
    for (const std::string frequency : {"0.000000", "seven", "7.5", "14.025", "7,0,3"}) {
        const ImportedLog log =
            ReadAdif(With("<FREQ:5>7.025", "<FREQ:" + std::to_string(frequency.size()) + ">" + frequency));
        EXPECT_EQ(Shown(log.contacts), Texts{"1: 137 88 A W1XX 72 MDC 2026/11/07 21:04:33 40 "});
        EXPECT_EQ(Shown(log.notes), Texts{});
        EXPECT_EQ(Shown(log.remarks),
                  Texts{"1: Kept without its frequency: \"" + frequency + "\" is no frequency of the band"});
    }
    EXPECT_EQ(Contacts(With("<FREQ:5>7.025", "<FREQ:5>7,025")), Texts{"1: " + kShown});
}

TEST(AdifReader, FieldsThatAreNoneAreNamed) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {With("<QSO_DATE:8>20261107", "<QSO_DATE:8>20261307"), "\"20261307\" is no date"},
        {With("<TIME_ON:6>210433", "<TIME_ON:3>210"), "\"210\" is no time"},
        {With("<BAND:3>40m", "<BAND:2>40"), "\"40\" is no band of the contest"},
        {With("<BAND:3>40m", "<BAND:3>30m"), "\"30m\" is no band of the contest"},
        {With("<BAND:3>40m <FREQ:5>7.025", "<FREQ:6>10.125"), "\"10.125\" is no frequency of the contest"},
        {With("<CALL:4>W1XX", "<CALL:3>W1XX"), "the length of CALL is too short"},
        {With("<SRX:2>88", "<SRX:2>8B"), "\"8B\" is no serial number"},
        {With("<CALL:4>W1XX", "<CALL:4>W1XX <CALL:4>K1AB"), "CALL stands there twice"},
        {With("<CALL:4>W1XX", "<CALL:4>W1XX <" + std::string(200, 'x')), "a field has no end"},
        {With("<EOR>", "<COMMENT <EOR>"), "a field has no end"},
    };
    for (const auto& [record, why] : rows) {
        EXPECT_EQ(Notes(record + kRecord), Texts{"1: Not understood: " + why}) << record;
        EXPECT_EQ(Contacts(record + kRecord).size(), 1U) << record;
    }
}

TEST(AdifReader, ARecordWithoutAnEndIsNamed) {
    EXPECT_EQ(Notes(kRecord + "<CALL:4>W1XX"), Texts{"2: Not understood: the record has no end"});
    EXPECT_EQ(Notes(kRecord + "<APP_LoTW_EOF>\r\n"), Texts{});
}

TEST(AdifReader, TellsTheStation) {
    const ImportedStation station = ReadAdif(With("<EOR>",
                                                  "<STATION_CALLSIGN:5>w9zzz <OPERATOR:4>K1AB <MY_ARRL_SECT:2>WI "
                                                  "<STX_STRING:7>B 83 IL <CONTEST_ID:11>ARRL-SS-SSB<EOR>"))
                                        .station;
    EXPECT_EQ(station.call, "W9ZZZ");
    EXPECT_EQ(station.precedence, "B");
    EXPECT_EQ(station.check, "83");
    EXPECT_EQ(Shown(station.sections), (Texts{"WI", "IL"}));
    EXPECT_EQ(station.phone, true);
    EXPECT_EQ(ReadAdif(kRecord).station.phone, false);
    EXPECT_EQ(ReadAdif(With("<MODE:2>CW", "<MODE:3>USB")).station.phone, true);
}

TEST(AdifReader, TheOwnCheckOfAYearIsItsLastTwoDigits) {
    EXPECT_EQ(ReadAdif(With("<EOR>", "<STX_STRING:10>B 1974 SCV<EOR>")).station.check, "74");
}

TEST(AdifReader, TheContactsSayTheModeWhereTheContestDoesNot) {
    for (const std::string contest : {"<CONTEST_ID:7>ARRL-SS<EOR>", "<CONTEST_ID:13>ARRL-SS-PHONE<EOR>"}) {
        std::string phone = With("<EOR>", contest);
        EXPECT_EQ(ReadAdif(phone).station.phone, false);
        phone.replace(phone.find("<MODE:2>CW"), 10, "<MODE:3>SSB");
        EXPECT_EQ(ReadAdif(phone).station.phone, true);
        EXPECT_EQ(ReadAdif(kRecord + phone + phone).station.phone, true);
    }
}

TEST(AdifReader, ContactsOfOtherModesAreNamed) {
    const ImportedLog log = ReadAdif(kRecord + kRecord + With("<MODE:2>CW", "<MODE:3>SSB") +
                                     With("<MODE:2>CW", "<MODE:3>FT8") + With("<MODE:2>CW", "<MODE:4>RTTY"));
    EXPECT_EQ(log.contacts.size(), 3U);
    EXPECT_EQ(Shown(log.remarks), Texts{"3: Kept: a phone contact in a log of CW"});
    EXPECT_EQ(Shown(log.notes), (Texts{"4: Not understood: \"FT8\" is no mode of the contest",
                                       "5: Not understood: \"RTTY\" is no mode of the contest"}));
}

TEST(AdifReader, AnotherContestHasOneRemark) {
    const std::string other = With("<EOR>", "<CONTEST_ID:8>CQ-WW-CW<EOR>");
    EXPECT_EQ(Shown(ReadAdif(kRecord + other + other).remarks), Texts{"2: Kept, though the contest is not ARRL-SS"});
}

TEST(AdifReader, HostileFilesOfMegabytesAreReadInOnePass) {
    EXPECT_EQ(ReadAdif(std::string(5'000'000, '<') + "<eor>").contacts.size(), 0U);
    std::string nested;
    while (nested.size() < 5'000'000) {
        nested += "<A:6000000>";
    }
    EXPECT_EQ(ReadAdif(nested + "<eor>").notes.count, 1U);
    EXPECT_EQ(ReadAdif(std::string(5'000'000, '\0')).notes.count, 0U);
}

}  // namespace
}  // namespace tallyhut
