#include "network/contact_documents.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "network/radio_document.h"

namespace tallyhut {
namespace {

struct ContactDocumentsTest : testing::Test {
    NewsOrigin origin{.app = "N1MM", .stationName = "SHACK"};
    Preferences own;
    Contact contact{.Ns = "12",
                    .Nr = "902",
                    .P = "A",
                    .Call = "K9ZO",
                    .Ck = "69",
                    .Sec = "IL",
                    .Date = "2026/11/07",
                    .Time = "21:04:33",
                    .Bnd = "40",
                    .Frq = "7.035"};
    Contact before = contact;
    bool isNewSection = true;
    bool isDuplicate = false;

    ContactDocumentsTest() {
        own.gOwnCall = "W1XX";
        own.gOwnPrec = "A";
        own.gOwnCheck = "83";
        own.gOwnSection = "CT";
    }
    ContactFacts Facts() const {
        return {.origin = origin,
                .preferences = own,
                .contact = contact,
                .before = before,
                .id = "f9ffac4fcd3e479ca86e137df1338531",
                .isNewSection = isNewSection,
                .isDuplicate = isDuplicate,
                .presentYear = 2026};
    }
    /// What an element of the new contact's document says, read by a parser.
    std::string Element(const char* name) const {
        pugi::xml_document parsed;
        EXPECT_TRUE(parsed.load_string(ContactInfo(Facts()).c_str()));
        EXPECT_TRUE(parsed.child("contactinfo").child(name)) << name;
        return parsed.child("contactinfo").child_value(name);
    }
    std::string FrequencyOn(const std::string& band, const std::string& frequency) {
        contact.Bnd = band;
        contact.Frq = frequency;
        EXPECT_EQ(Element("rxfreq"), Element("txfreq"));
        return Element("band") + ' ' + Element("rxfreq");
    }
};

TEST_F(ContactDocumentsTest, ANewContactIsToldInTheseWords) {
    EXPECT_EQ(ContactInfo(Facts()),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<contactinfo><app>N1MM</app><contestname>ARRLSSCW</contestname><contestnr>1</contestnr>"
              "<timestamp>2026-11-07 21:04:33</timestamp><mycall>W1XX</mycall><band>7</band><rxfreq>703500</rxfreq>"
              "<txfreq>703500</txfreq><operator>W1XX</operator><mode>CW</mode><call>K9ZO</call>"
              "<countryprefix></countryprefix><wpxprefix></wpxprefix><stationprefix>W1XX</stationprefix>"
              "<continent></continent><snt>599</snt><sntnr>12</sntnr><rcv>599</rcv><rcvnr>902</rcvnr>"
              "<gridsquare></gridsquare><exchange1></exchange1><section>IL</section><comment></comment><qth></qth>"
              "<name></name><power></power><misctext></misctext><zone>0</zone><prec>A</prec><ck>69</ck>"
              "<ismultiplier1>1</ismultiplier1><ismultiplier2>0</ismultiplier2><ismultiplier3>0</ismultiplier3>"
              "<points>2</points><radionr>1</radionr><run1run2>1</run1run2><RoverLocation></RoverLocation>"
              "<RadioInterfaced>1</RadioInterfaced><NetworkedCompNr>0</NetworkedCompNr><IsOriginal>True</IsOriginal>"
              "<NetBiosName>SHACK</NetBiosName><IsRunQSO>0</IsRunQSO><StationName>SHACK</StationName>"
              "<ID>f9ffac4fcd3e479ca86e137df1338531</ID><IsClaimedQso>1</IsClaimedQso>"
              "<oldtimestamp>2026-11-07 21:04:33</oldtimestamp><oldcall>K9ZO</oldcall>"
              "<SentExchange># A 83 CT</SentExchange></contactinfo>");
}

TEST_F(ContactDocumentsTest, AnEditedOneHasTheSameElementsAndWhatItWasBefore) {
    before.Call = "K9ZOO";
    before.Time = "21:04:30";
    std::string expected = ContactInfo(Facts());
    const auto replace = [&expected](std::string_view from, std::string_view to) {
        for (std::size_t at = expected.find(from); at != std::string::npos; at = expected.find(from, at + to.size())) {
            expected.replace(at, from.size(), to);
        }
    };
    EXPECT_NE(expected.find("<call>K9ZO</call>"), std::string::npos);
    EXPECT_NE(expected.find("<oldtimestamp>2026-11-07 21:04:30</oldtimestamp><oldcall>K9ZOO</oldcall>"),
              std::string::npos);
    replace("contactinfo", "contactreplace");
    EXPECT_EQ(ContactReplace(Facts()), expected);
}

TEST_F(ContactDocumentsTest, ADeletedOneIsToldAsItWas) {
    before.Call = "K9ZOO";
    before.Bnd = "160";
    before.Time = "21:04";
    EXPECT_EQ(ContactDelete(Facts()),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<contactdelete><app>N1MM</app><timestamp>2026-11-07 21:04:00</timestamp><mycall>W1XX</mycall>"
              "<band>1.8</band><call>K9ZOO</call><contestnr>1</contestnr><StationName>SHACK</StationName>"
              "<ID>f9ffac4fcd3e479ca86e137df1338531</ID></contactdelete>");
}

TEST_F(ContactDocumentsTest, FrequenciesAreTensOfHertzAndBandsMegahertz) {
    EXPECT_EQ(FrequencyOn("160", "1.815"), "1.8 181500");
    EXPECT_EQ(FrequencyOn("80", "3.522"), "3.5 352200");
    EXPECT_EQ(FrequencyOn("40", "7.03512"), "7 703512");
    EXPECT_EQ(FrequencyOn("20", "14.0421"), "14 1404210");
    EXPECT_EQ(FrequencyOn("15", "21.300"), "21 2130000");
    EXPECT_EQ(FrequencyOn("10", "28.400"), "28 2840000");
    EXPECT_EQ(FrequencyOn("20", "14.400"), "14 1440000") << "off the contest's bands the radio's word stands";
}

TEST_F(ContactDocumentsTest, WithoutAFrequencyItIsTheLowerEdgeOfTheBand) {
    EXPECT_EQ(FrequencyOn("160", ""), "1.8 180000");
    EXPECT_EQ(FrequencyOn("80", ""), "3.5 350000");
    EXPECT_EQ(FrequencyOn("10", ""), "28 2800000");
    EXPECT_EQ(Element("RadioInterfaced"), "0");
    EXPECT_EQ(FrequencyOn("17", ""), " 0") << "no band of the contest";
    EXPECT_EQ(FrequencyOn("<b>", "-1"), " 0");
    EXPECT_EQ(FrequencyOn("40", "1E+30"), "7 0");
}

TEST_F(ContactDocumentsTest, PhoneIsTheUsualSidebandWithItsReports) {
    own.gContestMode = 1;
    EXPECT_EQ(Element("contestname"), "ARRLSSSSB");
    EXPECT_EQ(Element("snt") + Element("rcv"), "5959");
    std::string modes;
    for (const char* band : {"160", "80", "40", "20", "15", "10"}) {
        contact.Bnd = band;
        modes += Element("mode") + ' ';
    }
    EXPECT_EQ(modes, "LSB LSB LSB USB USB USB ");
}

TEST_F(ContactDocumentsTest, ADuplicateHasNoPoints) {
    isDuplicate = true;
    isNewSection = false;
    EXPECT_EQ(Element("points"), "0");
    EXPECT_EQ(Element("ismultiplier1"), "0");
}

TEST_F(ContactDocumentsTest, DatesAndTimesOfAnyFormAreOne) {
    contact.Date = "11/8/2026";
    contact.Time = "1:02";
    EXPECT_EQ(Element("timestamp"), "2026-11-08 01:02:00");
    contact.Date = "never";
    contact.Time = "&";
    EXPECT_EQ(Element("timestamp"), "never &") << "what is none stands as it is";
}

TEST_F(ContactDocumentsTest, AHostileContactIsTextAndNoMarkup) {
    contact.Call = "</call><ID>0</ID><call>";
    contact.Sec = "A&B;\"'\x01\xE9";
    contact.Ck = "<2>";
    contact.Nr = std::string(20'000, '<');
    EXPECT_EQ(Element("call"), contact.Call);
    EXPECT_EQ(Element("ID"), "f9ffac4fcd3e479ca86e137df1338531");
    EXPECT_EQ(Element("section"), "A&B;\"' \xC3\xA9");
    EXPECT_EQ(Element("ck"), "0") << "a check is a number";
    EXPECT_LT(ContactInfo(Facts()).size(), 3'000U);
}

TEST_F(ContactDocumentsTest, ACheckKeepsItsTwoDigits) {
    contact.Ck = "05";
    EXPECT_EQ(Element("ck"), "05");
    contact.Ck = "";
    EXPECT_EQ(Element("ck"), "0");
}

TEST(RadioDocument, ARadioIsToldInTheseWords) {
    const RadioFacts facts = FactsOfRadio(3.52211F, "CW", false, "Elecraft");
    EXPECT_EQ(RadioInfo(facts, {.app = "N1MM", .stationName = "SHACK"}, "W1XX"),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<RadioInfo><app>N1MM</app><StationName>SHACK</StationName><RadioNr>1</RadioNr><Freq>352211</Freq>"
              "<TXFreq>352211</TXFreq><Mode>CW</Mode><mycall>W1XX</mycall><OpCall>W1XX</OpCall>"
              "<IsRunning>False</IsRunning><FocusEntry>0</FocusEntry><EntryWindowHwnd>0</EntryWindowHwnd>"
              "<Antenna>-1</Antenna><Rotors></Rotors><FocusRadioNr>1</FocusRadioNr><IsStereo>False</IsStereo>"
              "<IsSplit>False</IsSplit><ActiveRadioNr>1</ActiveRadioNr><IsTransmitting>False</IsTransmitting>"
              "<FunctionKeyCaption></FunctionKeyCaption><RadioName>Elecraft</RadioName>"
              "<AuxAntSelected>-1</AuxAntSelected><AuxAntSelectedName></AuxAntSelectedName>"
              "<IsConnected>True</IsConnected></RadioInfo>");
}

TEST(RadioDocument, TheModeIsTheRadiosAndTheSidebandTheBands) {
    EXPECT_EQ(FactsOfRadio(14.2F, "PH", false, "").mode, "USB");
    EXPECT_EQ(FactsOfRadio(7.2F, "PH", false, "").mode, "LSB");
    EXPECT_EQ(FactsOfRadio(1.9F, "PH", false, "").mode, "LSB");
    EXPECT_EQ(FactsOfRadio(5.368F, "PH", false, "").mode, "USB");
    EXPECT_EQ(FactsOfRadio(14.2F, "CW", true, "").mode, "CW");
    EXPECT_EQ(FactsOfRadio(14.2F, "FM", true, "").mode, "FM");
    EXPECT_EQ(FactsOfRadio(14.2F, "", true, "").mode, "USB") << "where the radio says nothing the contest does";
    EXPECT_EQ(FactsOfRadio(14.2F, "", false, "").mode, "CW");
}

TEST(RadioDocument, EveryDigitThatTheRadioSaidIsTold) {
    EXPECT_EQ(FactsOfRadio(14.0421F, "CW", false, "").tensOfHertz, "1404210");
    EXPECT_EQ(FactsOfRadio(28.12345F, "CW", false, "").tensOfHertz, "2812345");
    EXPECT_EQ(FactsOfRadio(1.8F, "CW", false, "").tensOfHertz, "180000");
}

}  // namespace
}  // namespace tallyhut
