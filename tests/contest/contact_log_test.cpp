#include "contest/contact_log.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "values/value_error.h"

namespace tallyhut {
namespace {

Contact ContactWith(const std::string& call) {
    Contact contact;
    contact.Call = call;
    return contact;
}

/// A log of one contact with this serial number sent.
ContactLog LastSent(const std::string& serial) {
    Contact contact;
    contact.Ns = serial;
    ContactLog log;
    log.Add(contact);
    return log;
}

TEST(ContactLog, BeginsEmpty) {
    const ContactLog log;
    EXPECT_EQ(log.gContactCount(), 0);
    EXPECT_EQ(log.gSavedCount, 0);
    EXPECT_EQ(log.gFrq, "");
    EXPECT_EQ(log.NextSerial(), 1);
}

TEST(ContactLog, HasRowsFrom1To11000) {
    ContactLog log;
    EXPECT_EQ(log.Row(1), Contact{});
    EXPECT_EQ(log.Row(11'000), Contact{});
    for (const std::int32_t row : {-1, 0, 11'001, 2'147'483'647}) {
        EXPECT_THROW(log.Row(row), LogFullError) << row;
    }
}

TEST(ContactLog, RowIsTheIdentityOfAContact) {
    ContactLog log;
    for (const char* call : {"W1XX", "W2XX", "W3XX"}) {
        log.Add(ContactWith(call));
    }
    EXPECT_EQ(log.Last().Call, "W3XX");
    log.Remove(2);
    EXPECT_EQ(log.Row(2).Call, "W3XX");
    log.Change(2, [](Contact& contact) { contact.Call = "W4XX"; });
    EXPECT_EQ(log.Row(1).Call + log.Last().Call, "W1XXW4XX");
    EXPECT_EQ(log.gContactCount(), 2);
}

TEST(ContactLog, ARowWithoutAContactIsNeitherChangedNorTakenOut) {
    ContactLog log = LastSent("1");
    for (const std::int32_t row : {-1, 0, 2, 11'000, 11'001}) {
        EXPECT_THROW(log.Change(row, [](Contact&) {}), LogFullError) << row;
        EXPECT_THROW(log.Remove(row), LogFullError) << row;
    }
    EXPECT_EQ(log.MomentOf(2, 2026), std::nullopt);
    EXPECT_THROW(log.MomentOf(11'001, 2026), LogFullError);
    EXPECT_EQ(log.gContactCount(), 1);
}

TEST(ContactLog, AStepThatThrowsChangesNothing) {
    ContactLog log;
    log.Add(ContactWith("W1XX"));
    const auto step = [](Contact& contact) {
        contact.Call = "W2XX";
        throw ValueError{"no"};
    };
    EXPECT_THROW(log.Change(1, step), ValueError);
    EXPECT_EQ(log.Row(1).Call, "W1XX");
    EXPECT_EQ(log.CallsOf("W1XX").size(), 1U);
}

TEST(ContactLog, HoldsElevenThousandAndNoMore) {
    ContactLog log;
    for (int n = 0; n < ContactLog::kMostContacts; ++n) {
        log.Add({});
    }
    EXPECT_THROW(log.Add(ContactWith("W1XX")), LogFullError);
    EXPECT_EQ(log.gContactCount(), 11'001) << "the one refused counts";
    EXPECT_TRUE(log.CallsOf("W1XX").empty());
    log.Clear();
    EXPECT_EQ(log.gContactCount(), 0);
}

/// Adds so many contacts; the source then throws, if it is to, in the middle of another.
void AddAll(ContactLog& log, int contacts, bool throwsBehind = false) {
    int n = 0;
    log.AddAll([&] { return n < contacts || throwsBehind; },
               [&](Contact& contact) {
                   contact = ContactWith("K" + std::to_string(n));
                   if (n++ == contacts) {
                       throw ValueError{"damaged"};
                   }
               });
}

TEST(ContactLog, AllThatASourceHasAreAdded) {
    ContactLog log;
    log.Add(ContactWith("W1XX"));
    AddAll(log, 3);
    EXPECT_EQ(log.gContactCount(), 4);
    EXPECT_EQ(log.CallsBeginning("K").size(), 3U);
    AddAll(log, ContactLog::kMostContacts - 4);
    EXPECT_EQ(log.gContactCount(), 11'000);
}

TEST(ContactLog, TheContactThatASourceThrowsAtCountsAndIsNone) {
    ContactLog log;
    EXPECT_THROW(AddAll(log, 3, true), ValueError);
    EXPECT_EQ(log.gContactCount(), 4);
    EXPECT_EQ(log.Contacts().size(), 3U);
    EXPECT_EQ(log.Row(4), Contact{});
    EXPECT_EQ(log.MomentOf(4, 2026), std::nullopt);
    EXPECT_EQ(log.CallsBeginning("K").size(), 3U);
}

TEST(ContactLog, AContactBeyondTheTablesIsNotTaken) {
    ContactLog log;
    AddAll(log, ContactLog::kMostContacts - 1);
    int taken = 0;
    EXPECT_THROW(log.AddAll([] { return true; }, [&](Contact&) { ++taken; }), LogFullError);
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(log.gContactCount(), 11'001);
    EXPECT_EQ(log.Contacts().size(), 11'000U);
    EXPECT_THROW(static_cast<void>(log.MomentOf(11'001, 2026)), LogFullError);
}

TEST(ContactLog, EachContactThatChangesIsAChange) {
    ContactLog log;
    std::uint64_t before = log.Changes();
    const auto changes = [&] { return log.Changes() - std::exchange(before, log.Changes()); };
    AddAll(log, 3);
    EXPECT_EQ(changes(), 3U);
    log.Add({});
    EXPECT_EQ(changes(), 1U);
    log.Change(2, [](Contact&) {});
    EXPECT_EQ(changes(), 1U);
    log.Remove(1);
    EXPECT_EQ(changes(), 1U);
    EXPECT_EQ(log.Row(1).Call, "K1");
    EXPECT_EQ(changes(), 0U) << "reading changes nothing";
    log.Clear();
    EXPECT_EQ(changes(), 3U);
}

TEST(ContactLog, NextSerialIsThatOfTheLastContactPlus1) {
    struct Case {
        const char* last;
        double next;
    };
    for (const auto& [last, next] :
         {Case{"137", 138}, Case{"500", 501}, Case{" 7 ", 8}, Case{"007", 8}, Case{"0", 1}, Case{"-3", -2}}) {
        EXPECT_EQ(LastSent(last).NextSerial(), next) << last;
    }
}

TEST(ContactLog, NextSerialDoesNotCountRows) {
    ContactLog log = LastSent("12");
    log.Add(LastSent("40").Last());
    EXPECT_EQ(log.NextSerial(), 41);
}

TEST(ContactLog, SerialThatIsNoNumberIsRefused) {
    for (const char* last : {"", " ", "A", "12A", "1 2", "1,2"}) {
        EXPECT_THROW(LastSent(last).NextSerial(), ValueError) << last;
    }
}

}  // namespace
}  // namespace tallyhut
