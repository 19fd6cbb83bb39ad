// What the program writes for others, read back.

#include <gtest/gtest.h>

#include "contest/told_sections.h"
#include "import/adif_reader.h"
#include "import/cabrillo_reader.h"
#include "reports/adif.h"
#include "reports/adif_exchange.h"
#include "reports/cabrillo.h"
#include "tests/fuzz/import_inputs.h"
#include "tests/import/import_fixture.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

/// A contact of every band, with everything that an entry tells.
std::vector<Contact> PlainContacts() {
    std::vector<Contact> contacts;
    for (const char* band : {"160", "80", "40", "20", "15", "10"}) {
        Contact contact = Usual();
        contact.Ns = std::to_string(contacts.size() + 1);
        contact.Call = "W" + contact.Ns + "XX/KH6";
        contact.Sec = contacts.size() % 2 == 0 ? "MDC" : "CT";
        contact.Time = "21:0" + contact.Ns;
        contact.Bnd = band;
        contact.Frq = "";
        contacts.push_back(contact);
    }
    return contacts;
}

std::vector<Contact> ContactsOf(const ImportedLog& log) {
    std::vector<Contact> contacts;
    for (const ImportedContact& imported : log.contacts) {
        contacts.push_back(imported.contact);
    }
    return contacts;
}

std::string Cabrillo(const std::vector<Contact>& contacts, const Preferences& station, bool asCabrillo3Lists) {
    ColumnWriter lines;
    const CabrilloEntry entry{.createdBy = "Tallyhut Log",
                              .categoryOperator = "SINGLE-OP",
                              .power = "LOW",
                              .operators = "",
                              .club = "A club: of friends",
                              .name = "Pat",
                              .addressLine1 = "1 Main St",
                              .addressLine2 = "",
                              .eMail = "pat@example.net",
                              .soapbox = "73",
                              .asCabrillo3Lists = asCabrillo3Lists};
    WriteCabrillo(entry, station, LogOf(contacts), 2, 2026, lines);
    return FileText(lines.Lines());
}

TEST(RoundTrip, CabrilloWrittenIsReadBackEqual) {
    for (const bool asCabrillo3Lists : {false, true}) {
        const ImportedLog log = ReadCabrillo(Cabrillo(PlainContacts(), PhoneStation(), asCabrillo3Lists));
        EXPECT_EQ(ContactsOf(log), PlainContacts());
        EXPECT_EQ(Shown(log.notes), std::vector<std::string>{});
        EXPECT_EQ(log.station.call, "W9ZZZ");
        EXPECT_EQ(log.station.precedence, "A");
        EXPECT_EQ(log.station.check, "72");
        EXPECT_EQ(Shown(log.station.sections), std::vector<std::string>{"IL"});
        EXPECT_EQ(log.station.phone, true);
    }
}

TEST(RoundTrip, CabrilloOfAnOddLogGivesWhatIsWholeAndNamesTheRest) {
    const ImportedLog log = ReadCabrillo(Cabrillo(OddContacts(), CwStation(), false));
    std::string calls;
    for (const Contact& contact : ContactsOf(log)) {
        calls += contact.Call + ' ';
    }
    EXPECT_EQ(calls, "W1XX K1MD AA1A ");
    EXPECT_GE(log.contacts.size() + log.notes.count, OddContacts().size());
}

TEST(RoundTrip, AdifWithTheExchangeIsReadBackEqual) {
    std::vector<Contact> contacts = PlainContacts();
    contacts[2].Frq = "7.0421";
    contacts[3].Time = "21:04:33";
    const AdifExchange details{.title = "Tallyhut Log 4.7", .writtenAt = "", .power = "100", .comment = "73"};
    const ImportedLog log = ReadAdif(AdifExchangeText(details, CwStation(), LogOf(contacts), ToldSections(), 2026));
    EXPECT_EQ(ContactsOf(log), contacts);
    EXPECT_EQ(log.station.call, "W9ZZZ");
    EXPECT_EQ(Shown(log.station.sections), std::vector<std::string>{"IL"});
    EXPECT_EQ(log.station.precedence, "A");
    EXPECT_EQ(log.station.check, "72");
    EXPECT_EQ(log.station.phone, false);
}

TEST(RoundTrip, ACommentMayHoldTheEndOfARecord) {
    const AdifExchange details{.title = "Tallyhut Log 4.7", .writtenAt = "", .power = "100", .comment = "a<EOR>b"};
    const ImportedLog log =
        ReadAdif(AdifExchangeText(details, CwStation(), LogOf(PlainContacts()), ToldSections(), 2026));
    EXPECT_EQ(ContactsOf(log), PlainContacts());
    EXPECT_EQ(Shown(log.notes), std::vector<std::string>{});
}

TEST(RoundTrip, AdifWithoutTheExchangeIsIncomplete) {
    const AdifExport details{
        .title = "Tallyhut Log 4.7", .exportedAt = "", .power = "100", .comment = "", .phone = false};
    const ImportedLog log = ReadAdif(AdifText(details, LogOf(PlainContacts()), 2026));
    EXPECT_TRUE(log.contacts.empty());
    EXPECT_EQ(log.incomplete.size(), PlainContacts().size());
}

TEST(RoundTrip, WhateverIsReadIsALogThatTheProgramTakes) {
    const AdifExchange details{.title = "Tallyhut Log 4.7", .writtenAt = "", .power = "100", .comment = "73"};
    for (const std::string& text :
         {Cabrillo(OddContacts(), CwStation(), true),
          AdifExchangeText(details, CwStation(), LogOf(OddContacts()), ToldSections(), 2026)}) {
        for (std::size_t at = 0; at < text.size(); at += 7) {
            std::string damaged = text;
            damaged[at] = static_cast<char>(at * 31);
            EXPECT_TRUE(TakesImportInput(damaged)) << at;
        }
    }
}

}  // namespace
}  // namespace tallyhut
