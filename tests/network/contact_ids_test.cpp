#include "network/contact_ids.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/sim/files.h"

namespace tallyhut {
namespace {

constexpr const char* kPath = "/contest/ContactIDs.txt";

struct ContactIdsTest : testing::Test {
    sim::Files files{"/contest"};
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    ContactIds ids{files, directories};
    Contact contact{.Ns = "12",
                    .Nr = "902",
                    .P = "A",
                    .Call = "K9ZO",
                    .Ck = "69",
                    .Sec = "IL",
                    .Date = "2026/11/07",
                    .Time = "21:04:33",
                    .Bnd = "40",
                    .Frq = ""};

    Contact With(std::string Contact::*field, const std::string& value) const {
        Contact changed = contact;
        changed.*field = value;
        return changed;
    }
    std::string OnDisk() const { return files.contents.contains(kPath) ? files.contents.at(kPath) : ""; }
};

TEST_F(ContactIdsTest, AnIdIs32HexadecimalDigitsOfSerialDateAndTime) {
    const std::string id = IdOfCommit(contact);
    EXPECT_EQ(id, "4930457509287839e49b2116f914ab72") << "another one would be another contact to whoever has it";
    EXPECT_EQ(IdOfCommit(With(&Contact::Call, "W1XX")), id);
    EXPECT_EQ(IdOfCommit(With(&Contact::Bnd, "20")), id);
    EXPECT_NE(IdOfCommit(With(&Contact::Ns, "13")), id);
    EXPECT_NE(IdOfCommit(With(&Contact::Date, "2026/11/08")), id);
    EXPECT_NE(IdOfCommit(With(&Contact::Time, "21:04:34")), id);
}

TEST_F(ContactIdsTest, NoTwoContactsOfALogHaveOne) {
    std::set<std::string> all;
    for (int n = 1; n <= 11'000; ++n) {
        Contact each = With(&Contact::Ns, std::to_string(n));
        each.Time = "21:" + std::to_string(10 + n % 50);
        all.insert(IdOfCommit(each));
    }
    EXPECT_EQ(all.size(), 11'000U);
}

TEST_F(ContactIdsTest, AnEditOfAnythingElseNeedsNoFile) {
    ids.Keep(contact, With(&Contact::Call, "W1XX"));
    EXPECT_EQ(OnDisk(), "");
    EXPECT_EQ(ids.IdOf(With(&Contact::Call, "W1XX")), IdOfCommit(contact));
}

TEST_F(ContactIdsTest, AnIdOutlivesEditsOfWhatItIsMadeOf) {
    const std::string id = ids.IdOf(contact);
    Contact edited = With(&Contact::Ns, "21");
    ids.Keep(contact, edited);
    EXPECT_EQ(OnDisk(), "\"21\",\"K9ZO\",\"2026/11/07\",\"21:04:33\",\"" + id + "\"\r\n");
    EXPECT_EQ(ids.IdOf(edited), id);
    Contact again = edited;
    again.Call = "W1XX";
    again.Time = "22:00:00";
    ids.Keep(edited, again);
    EXPECT_EQ((ContactIds{files, directories}.IdOf(again)), id) << "also in another run";
    ids.Keep(again, contact);
    EXPECT_EQ(ids.IdOf(contact), id);
    EXPECT_EQ(OnDisk(), "") << "it follows from the log again";
    const Contact other = With(&Contact::Call, "K2YY");
    EXPECT_EQ(ids.IdOf(other), IdOfCommit(other));
}

TEST_F(ContactIdsTest, AContactThatTakesTheSerialOfAnotherLeavesThatOneItsId) {
    const Contact other{.Ns = "13",
                        .Nr = "1",
                        .P = "A",
                        .Call = "K2YY",
                        .Ck = "01",
                        .Sec = "CT",
                        .Date = contact.Date,
                        .Time = contact.Time,
                        .Bnd = "40",
                        .Frq = ""};
    const std::string id = ids.IdOf(contact);
    const Contact edited = With(&Contact::Ns, "13");
    ids.Keep(contact, edited);
    EXPECT_EQ(ids.IdOf(edited), id);
    EXPECT_EQ(ids.IdOf(other), IdOfCommit(other));
}

TEST_F(ContactIdsTest, ANewContactThatMakesTheNameOfAnotherHasTheNextOneAndKeepsIt) {
    ids.Keep(contact, With(&Contact::Ns, "0"));
    ContactLog log;
    std::set<std::string> all{ids.IdOf(With(&Contact::Ns, "0"))};
    for (const char* call : {"K2YY", "K3ZZ", "K4AA"}) {
        log.Add(With(&Contact::Call, call));
        ids.Add(log, log.gContactCount());
        all.insert(ids.IdOf(log.Last()));
    }
    EXPECT_EQ(all.size(), 4U);
    const std::string id = ids.IdOf(log.Row(1));
    ids.Keep(With(&Contact::Ns, "0"), contact);
    EXPECT_EQ(ids.IdOf(contact), IdOfCommit(contact));
    ids.Forget(contact);
    EXPECT_EQ(ids.IdOf(log.Row(1)), id) << "though the one before it is free now";
}

TEST_F(ContactIdsTest, SoHasOneEnteredAfterwardsWhoseSerialComesASecondTimeBehindAnEdit) {
    ContactLog log;
    for (const auto& [serial, call] : {std::pair{"12", "K9ZO"}, {"11", "K2YY"}, {"12", "K3ZZ"}}) {
        Contact each = With(&Contact::Time, "21:04");
        each.Ns = serial;
        each.Call = call;
        log.Add(each);
    }
    ids.Add(log, 3);
    EXPECT_EQ(ids.IdOf(log.Row(1)), IdOfCommit(log.Row(1)));
    EXPECT_NE(ids.IdOf(log.Row(3)), ids.IdOf(log.Row(1)));
}

TEST_F(ContactIdsTest, ARowLeavesWithItsContact) {
    const Contact edited = With(&Contact::Ns, "21");
    ids.Keep(contact, edited);
    ids.Forget(edited);
    EXPECT_EQ(OnDisk(), "");
    EXPECT_EQ(ids.IdOf(edited), IdOfCommit(edited));
}

TEST_F(ContactIdsTest, OfAnotherLogOnlyItsOwnContactsKeepTheirRows) {
    const Contact edited = With(&Contact::Ns, "21");
    ids.Keep(contact, edited);
    const std::string id = ids.IdOf(edited);
    ids.Keep(With(&Contact::Time, "22:00:00"), With(&Contact::Time, "22:00:01"));
    ContactLog log;
    log.Add(edited);
    ids.ForgetAllBut(log);
    EXPECT_EQ(OnDisk(), "\"21\",\"K9ZO\",\"2026/11/07\",\"21:04:33\",\"" + id + "\"\r\n");
    log.Clear();
    ids.ForgetAllBut(log);
    EXPECT_EQ(OnDisk(), "");
}

TEST_F(ContactIdsTest, WithoutARowNothingIsWritten) {
    ContactLog log;
    log.Add(contact);
    ids.Add(log, 1);
    ids.Forget(contact);
    ids.ForgetAllBut(log);
    EXPECT_FALSE(files.contents.contains(kPath));
}

TEST_F(ContactIdsTest, WhatStandsBeforeADamagedLineCounts) {
    files.Put(kPath, "\"21\",\"K9ZO\",\"2026/11/07\",\"21:04:33\",\"kept\"\r\n\"22\",\"K9");
    EXPECT_EQ(ids.IdOf(With(&Contact::Ns, "21")), "kept");
    EXPECT_EQ(ids.IdOf(With(&Contact::Ns, "22")), IdOfCommit(With(&Contact::Ns, "22")));
}

TEST_F(ContactIdsTest, AFileThatCannotBeReadOrWrittenIsAFailureOfTheEditAlone) {
    files.unreachable[kPath] = "Input/output error";
    EXPECT_EQ(ids.IdOf(contact), IdOfCommit(contact));
    EXPECT_THROW(ids.Keep(contact, With(&Contact::Ns, "21")), PlatformError);
    files.unreachable.clear();
    files.FailAt(1, "No space left on device");
    EXPECT_THROW(ids.Keep(contact, With(&Contact::Ns, "21")), PlatformError);
    EXPECT_EQ(OnDisk(), "");
}

}  // namespace
}  // namespace tallyhut
