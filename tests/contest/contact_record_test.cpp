#include "contest/contact_record.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

const std::string kLine = R"("137","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")"
                          "\r\n";

Contact ReadOne(const std::string& text) {
    FieldReader fields{text};
    return ReadRecord(fields);
}

TEST(ContactRecord, RoundTripsByteForByte) {
    EXPECT_EQ(WriteRecord(ReadOne(kLine)), kLine);
}

TEST(ContactRecord, EveryFieldHasItsPlaceInTheLine) {
    const Contact contact{.Ns = "ns",
                          .Nr = "nr",
                          .P = "p",
                          .Call = "call",
                          .Ck = "ck",
                          .Sec = "sec",
                          .Date = "date",
                          .Time = "time",
                          .Bnd = "bnd",
                          .Frq = "frq"};
    const std::string line = "\"ns\",\"nr\",\"p\",\"call\",\"ck\",\"sec\",\"date\",\"time\",\"bnd\",\"frq\"\r\n";
    EXPECT_EQ(WriteRecord(contact), line);
    EXPECT_EQ(ReadOne(line), contact);
}

TEST(ContactRecord, EmptyContactIsTenEmptyTexts) {
    EXPECT_EQ(WriteRecord({}), "\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(ContactRecord, FieldsStandAsTheyAre) {
    Contact contact;
    contact.Nr = "00088";
    contact.Call = "W1XX/3, AB";
    contact.Sec = " M\xC9 ";
    contact.Frq = "14.2";
    EXPECT_EQ(ReadOne(WriteRecord(contact)), contact);
}

TEST(ContactRecord, TimeOfFiveCharactersIsKept) {
    EXPECT_EQ(ReadOne(R"("1","2","A","W1XX","72","MDC","2026/11/07","21:04","40","")").Time, "21:04");
}

TEST(ContactRecord, BareFieldsLoseTheBlanksAroundThem) {
    const Contact contact = ReadOne(R"(137, 88 ,A,  W1XX,72 ,"MDC" ,2026/11/07,21:04:33,40,)");
    EXPECT_EQ(WriteRecord(contact), kLine);
}

TEST(ContactRecord, WriterLeavesOutWhatItsReaderRefuses) {
    Contact contact = ReadOne(kLine);
    contact.Call = "W\"1X\r\nX\0"s;
    EXPECT_EQ(WriteRecord(contact), kLine);
}

TEST(ContactRecord, RecordsFollowEachOther) {
    const std::string text = kLine + kLine;
    FieldReader fields{text};
    EXPECT_EQ(ReadRecord(fields), ReadRecord(fields));
    EXPECT_TRUE(fields.AtEnd());
}

TEST(ContactRecord, DamagedRecordsAreRefused) {
    const std::string cases[] = {
        "",
        "\r\n",
        R"("137")",
        R"("137","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40")",
        R"("1"37","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")",
        R"("137","88","A","W1"XX","72","MDC","2026/11/07","21:04:33","40","")",
        R"("137","88","A",W1"XX,"72","MDC","2026/11/07","21:04:33","40","")",
        R"("137","88","A","W1XX,"72","MDC","2026/11/07","21:04:33","40","")",
        R"("137","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40",")",
        "\"137\",\"88\",\"A\",\"W1\r\nXX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"",
        "\"137\",\"88\",\"A\",\"W1\0XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\""s,
        "\"137\",\"88\",\"A\",\"" + std::string(1 << 20, 'W') +
            "\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"",
    };
    for (const std::string& text : cases) {
        EXPECT_THROW(ReadOne(text), ValueError) << text.substr(0, 100);
    }
}

TEST(ContactRecord, ExchangeReadsAsItWasHeard) {
    EXPECT_EQ(ExchangeText(ReadOne(kLine)), "88 A W1XX 72 MDC");
}

}  // namespace
}  // namespace tallyhut
