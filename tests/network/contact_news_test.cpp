#include "network/contact_news.h"

#include "platform/tcp_socket.h"
#include "tests/network/network_fixture.h"

namespace tallyhut {
namespace {

struct ContactNewsTest : NetworkFixture {
    /// The IDs of the datagrams since the last call, one behind the other.
    std::string TakeIds() {
        std::string ids;
        for (const sim::SentDatagram& sent : TakeSent()) {
            ids += (ids.empty() ? "" : " ") + ElementOf(sent.bytes, "ID");
        }
        return ids;
    }
    void LogAfterwards(const std::string& call, const std::string& time) {
        if (!Main().mnuPostContest.Checked()) {
            ChooseMenu(Main().mnuPostContest);
        }
        Main().txtPostConDate.SetText("2026/11/08");
        Main().txtPostConTime.SetText(time);
        Log(call);
    }
    /// Of the contact at the top of the list.
    void EditField(TextBox& field, const std::string& text) {
        Edit(0, [&field, text, this] {
            field.SetText(text);
            EditForm().cmdDone.Click();
        });
    }
    static std::string Twice(const std::string& id) { return id + ' ' + id; }
};

TEST_F(ContactNewsTest, NothingIsSentAndNoSocketMadeUntilItIsChosen) {
    StartOnDesk(ManyContacts(3));
    Log("K2YY");
    Edit(0, [this] {
        EditForm().txtEditNumSent.SetText("77");
        EditForm().cmdDone.Click();
    });
    Delete(0);
    EXPECT_EQ(datagramSockets.made, 0);
    EXPECT_EQ(TakeNews(), "");
    EXPECT_FALSE(files.contents.contains(kIdsPath));
}

TEST_F(ContactNewsTest, ALoggedContactIsSentAsItStandsOnTheDisk) {
    stored.gOwnCall = "W1AW";
    stored.gOwnPrec = "B";
    stored.gOwnCheck = "14";
    stored.gOwnSection = "CT";
    StartSending();
    program->log.gFrq = "7.035";
    Log("K2YY", "NLI");
    ASSERT_EQ(datagramSockets.sent.size(), 1U);
    const sim::SentDatagram sent = TakeSent().at(0);
    EXPECT_EQ(sent.to, kHere);
    EXPECT_EQ(RootOf(sent.bytes), "contactinfo");
    std::string told;
    for (const char* element : {"app", "mycall", "timestamp", "band", "rxfreq", "mode", "call", "sntnr", "rcvnr",
                                "section", "prec", "ck", "points", "ismultiplier1", "oldcall", "SentExchange"}) {
        told += ElementOf(sent.bytes, element) + '|';
    }
    EXPECT_EQ(told,
              std::string{kUsualApp} + "|W1AW|2026-11-07 21:04:33|7|703500|CW|K2YY|1|88|NLI|A|72|2|1|K2YY|# B 14 CT|");
    EXPECT_EQ(ElementOf(sent.bytes, "StationName"), "SHACK");
}

TEST_F(ContactNewsTest, ASectionIsNewOnce) {
    StartSending();
    Log("K2YY", "MDC");
    Log("K3ZZ", "MDC");
    Log("K4AA", "NLI");
    std::string isNew;
    for (const sim::SentDatagram& sent : TakeSent()) {
        isNew += ElementOf(sent.bytes, "ismultiplier1");
    }
    EXPECT_EQ(isNew, "101");
}

TEST_F(ContactNewsTest, ItIsSentBehindTheFlushAndBeforeAnythingElseRuns) {
    StartSending();
    bool wasOnDisk = false;
    program->commit.logged = [this, told = program->commit.logged, &wasOnDisk](std::int32_t row) {
        wasOnDisk = LogOnDisk().find("K2YY") != std::string::npos && datagramSockets.sent.empty();
        told(row);
        EXPECT_EQ(datagramSockets.sent.size(), 1U);
        EXPECT_EQ(Main().lblTotCon.Caption(), "") << "the screen comes later";
    };
    Main().lblTotCon.SetCaption("");
    Log("K2YY");
    EXPECT_TRUE(wasOnDisk);
}

TEST_F(ContactNewsTest, AContactThatTheDiskRefusesIsNoNews) {
    StartSending();
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] { Log("K2YY"); }), 1);
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, NorIsOneThatMayNotOutlastALossOfPower) {
    StartSending();
    files.FailBehind(1, "Input/output error");
    EXPECT_EQ(EndStatusOf([this] { Log("K2YY"); }), 1);
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, NorOneForALogThatAnotherHandHasChanged) {
    StartSending(ManyContacts(2));
    files.Put(kLogPath, LogText(ManyContacts(3)));
    dialogs.answers = {Answer::Yes};
    Log("K2YY");
    EXPECT_EQ(TakeNews(), "");
    Log("K2YY");
    EXPECT_EQ(TakeNews(), "contactinfo K2YY");
}

TEST_F(ContactNewsTest, ADuplicateAndAnIncompleteEntryAreNoNews) {
    StartSending(ManyContacts(2));
    Log("W1X");
    FillAll("", "A", "K2YY", "72", "MDC");
    Press("Enter");
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, APostContestContactIsALoggedOne) {
    StartSending();
    ChooseMenu(Main().mnuPostContest);
    Main().txtPostConDate.SetText("2026/11/08");
    Main().txtPostConTime.SetText("0102");
    Log("K2YY");
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "timestamp"), "2026-11-08 01:02:00");
}

TEST_F(ContactNewsTest, AnEditIsADeletionOfTheOldAndThenTheNew) {
    StartSending(ManyContacts(3));
    Edit(1, [this] {
        EditForm().txtEditCall.SetText("K2YY");
        EditForm().txtEditTime.SetText("22:00:00");
        EditForm().cmdDone.Click();
    });
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(RootOf(sent.at(0).bytes), "contactdelete");
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "call"), "W2X");
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "timestamp"), "2026-11-07 21:04:33");
    EXPECT_EQ(RootOf(sent.at(1).bytes), "contactreplace");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "call"), "K2YY");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "timestamp"), "2026-11-07 22:00:00");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "oldcall"), "W2X");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "oldtimestamp"), "2026-11-07 21:04:33");
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "ID"), ElementOf(sent.at(1).bytes, "ID"));
}

TEST_F(ContactNewsTest, AnEditThatChangesNothingOrIsGivenUpIsNoNews) {
    StartSending(ManyContacts(3));
    Edit(0, [this] { EditForm().cmdDone.Click(); });
    Edit(0, [this] { EditForm().txtEditCall.SetText("K2YY"); });
    EXPECT_EQ(TakeNews(), "");
    Edit(0, [this] {
        EditForm().txtEditCall.SetText("W2X");  // worked already
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, AnEditOfAContactThatStandsTwiceIsToldAsADuplicate) {
    std::vector<Contact> twice = ManyContacts(3);
    twice[2].Call = "W1X";
    StartSending(twice);
    Edit(1, [this] {
        EditForm().txtEditSec.SetText("NLI");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(ElementOf(TakeSent().at(1).bytes, "points"), "2");
    program->log.Change(2, [](Contact& contact) { contact.Call = "W1X"; });
    program->networkPart.contacts.Edited(twice[1], 2);
    const std::vector<sim::SentDatagram> sent = TakeSent();
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "points"), "0");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "ismultiplier1"), "1") << "it brings its section all the same";
}

TEST_F(ContactNewsTest, ADeletionIsTold) {
    StartSending(ManyContacts(3));
    Delete(0);
    EXPECT_EQ(TakeNews(), "contactdelete W3X");
    ClickRow(0);
    dialogs.answers.push_back(Answer::No);
    Click(Main().cmdDelete);
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, ADuplicateThatTheEditFormDeletesIsOneDeletion) {
    std::vector<Contact> twice = ManyContacts(3);
    twice[2].Call = "W1X";
    StartSending(twice);
    Edit(0, [this] {
        EditForm().cmdDone.Click();
        dialogs.answers.push_back(Answer::Yes);
        EditForm().cmdDeleteDupe.Click();
    });
    EXPECT_EQ(TakeNews(), "contactdelete W1X");
    EXPECT_EQ(LogLines().size(), 2U);
}

TEST_F(ContactNewsTest, ChangesThatTheDiskRefusesAreNoNews) {
    StartSending(ManyContacts(3));
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] { Delete(0); }), 1);
    StartSending(ManyContacts(3));
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] {
                  Edit(0, [this] {
                      EditForm().txtEditCall.SetText("K2YY");
                      EditForm().cmdDone.Click();
                  });
              }),
              1);
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, ChangesThatComeToNothingByAnotherHandAreNoNews) {
    StartSending(ManyContacts(3));
    files.Put(kLogPath, LogText(ManyContacts(4)));
    ClickRow(0);
    dialogs.answers = {Answer::Yes, Answer::Yes};  // sure; read the file again
    Click(Main().cmdDelete);
    EXPECT_EQ(TakeNews(), "");
    files.Put(kLogPath, LogText(ManyContacts(5)));
    dialogs.answers = {Answer::No};  // go on with the contacts of this program
    Edit(0, [this] {
        EditForm().txtEditCall.SetText("K2YY");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeNews(), "contactdelete W4X, contactreplace K2YY") << "the edit stands";
}

TEST_F(ContactNewsTest, WhatAReloadARestoreOrANewLogBringsIsNoNews) {
    StartSending(ManyContacts(3));
    ChooseMenu(Main().mnuOpen);
    files.Put("/home/operator/old.log", LogText(ManyContacts(7)));
    dialogs.answers = {Answer::OK, Answer::Yes};
    dialogs.files = {"/home/operator/old.log"};
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(program->log.gContactCount(), 7);
    dialogs.inputs = {"YES"};
    ChooseMenu(Main().mnuNew);
    EXPECT_EQ(program->log.gContactCount(), 0);
    StartOnDesk(ManyContacts(2));
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, NorIsAnImport) {
    StartSending(ManyContacts(1));
    files.AddFolder("/contests");
    files.Put("/home/operator/other.log",
              "START-OF-LOG: 3.0\r\nQSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL K2YY 88 A 72 MDC\r\nEND-OF-LOG:\r\n");
    dialogs.files = {"/home/operator/other.log", "/contests/other"};
    Meanwhile([this] { Click(program->importPart.importForm.cmdDone); });
    ChooseMenu(Main().mnuImport);
    EXPECT_NE(files.contents.at("/contests/other/Log.txt").find("K2YY"), std::string::npos);
    EXPECT_EQ(TakeNews(), "");
}

TEST_F(ContactNewsTest, AnIdIsTheSameOverEditsAndAfterARestart) {
    StartSending();
    Log("K2YY");
    const std::string id = TakeIds();
    EXPECT_EQ(id.size(), 32U);
    Edit(0, [this] {
        EditForm().txtEditCall.SetText("K2YX");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeIds(), Twice(id));
    EXPECT_FALSE(files.contents.contains(kIdsPath)) << "it follows from the log";
    StartContinuing();
    Edit(0, [this] {
        EditForm().txtEditNumSent.SetText("9");
        EditForm().txtEditDate.SetText("2026/11/08");
        EditForm().txtEditTime.SetText("00:00:01");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeIds(), Twice(id));
    StartContinuing();
    Edit(0, [this] {
        EditForm().txtEditTime.SetText("00:00:02");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeIds(), Twice(id));
    Delete(0);
    EXPECT_EQ(TakeIds(), id);
}

TEST_F(ContactNewsTest, AContactThatIsLoggedAnewIsToldOfByOneIdToItsEnd) {
    StartSending();
    LogAfterwards("W1XX", "0102");
    EditField(EditForm().txtEditTime, "01:03");
    Delete(0);
    TakeSent();
    LogAfterwards("W1XX", "0103");
    const std::string id = TakeIds();
    EditField(EditForm().txtEditSec, "NLI");
    EXPECT_EQ(TakeIds(), Twice(id));
    Delete(0);
    EXPECT_EQ(TakeIds(), id);
    EXPECT_EQ(files.contents.at(kIdsPath), "");
}

TEST_F(ContactNewsTest, TwoContactsOfOneSerialDateAndTimeHaveTwoIds) {
    StartSending();
    LogAfterwards("W1XX", "0105");
    const std::string first = TakeIds();
    EditField(EditForm().txtEditNumSent, "0");
    TakeSent();
    LogAfterwards("K2YY", "0105");
    const std::vector<sim::SentDatagram> sent = TakeSent();
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "sntnr"), "1");
    const std::string second = ElementOf(sent.at(0).bytes, "ID");
    EXPECT_NE(second, first);
    StartContinuing();
    Delete(0);
    EXPECT_EQ(TakeIds(), second);
    Delete(0);
    EXPECT_EQ(TakeIds(), first);
}

TEST_F(ContactNewsTest, AnEditWhileNothingIsSentKeepsTheIdThatWasToldBefore) {
    StartSending();
    Log("K2YY");
    const std::string id = TakeIds();
    ChooseMenu(Main().mnuNetwork);
    Click(Network().chkContacts);
    EditField(EditForm().txtEditTime, "22:00:00");
    EXPECT_EQ(TakeIds(), "");
    StartContinuing();
    EditField(EditForm().txtEditTime, "22:00:01");
    ChooseMenu(Main().mnuNetwork);
    Click(Network().chkContacts);
    Delete(0);
    EXPECT_EQ(TakeIds(), id);
}

TEST_F(ContactNewsTest, ItIsKeptAlsoWhereTheFolderBringsTheFileFromAnotherMachine) {
    files.Put(kIdsPath, "");
    StartOnDesk(ManyContacts(1));
    EditField(EditForm().txtEditTime, "22:00:00");
    EXPECT_NE(files.contents.at(kIdsPath).find("22:00:00"), std::string::npos);
}

TEST_F(ContactNewsTest, ARestoreBringsAContactItsIdBackAndANewLogKeepsNone) {
    StartSending(ManyContacts(1));
    EditField(EditForm().txtEditNumSent, "9");
    const std::string id = IdOfCommit(ManyContacts(1)[0]);
    EXPECT_EQ(TakeIds(), Twice(id));
    files.Put("/home/operator/old.log", LogText(ManyContacts(1)));
    dialogs.answers = {Answer::OK, Answer::Yes};
    dialogs.files = {"/home/operator/old.log"};
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(files.contents.at(kIdsPath), "");
    EditField(EditForm().txtEditNumSent, "9");
    EXPECT_EQ(TakeIds(), Twice(id));
    EXPECT_NE(files.contents.at(kIdsPath), "");
    dialogs.inputs = {"YES"};
    ChooseMenu(Main().mnuNew);
    EXPECT_EQ(files.contents.at(kIdsPath), "");
}

TEST_F(ContactNewsTest, AnIdIsKeptBeforeItIsSent) {
    StartSending(ManyContacts(2));
    datagramSockets.unsendable[kHere] = kTcpUnreachable;
    bool wasKept = false;
    Part().sender.failuresChanged = [&] { wasKept = files.contents.contains(kIdsPath); };
    EditField(EditForm().txtEditNumSent, "9");
    EXPECT_TRUE(wasKept);
}

TEST_F(ContactNewsTest, AnIdThatCannotBeKeptIsToldBehindWhatWasSent) {
    StartSending(ManyContacts(2));
    files.FailAt(2, "No space left on device");  // the log is the first
    Edit(0, [this] {
        EditForm().txtEditNumSent.SetText("9");
        EditForm().cmdDone.Click();
    });
    EXPECT_EQ(TakeNews(), "contactdelete W2X, contactreplace W2X");
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Tallyhut Log\" \"/contest/ContactIDs.txt: No space left on device\" OK "
                                 "Exclamation"});
    Log("K2YY");
    EXPECT_EQ(TakeNews(), "contactinfo K2YY") << "the contest goes on";
}

TEST_F(ContactNewsTest, AHostThatIsFoundLateGetsWhatWasLoggedMeanwhile) {
    ChooseStored("SendContactsTo", "slow:1, 127.0.0.1:2");
    datagramSockets.slow = {"slow:1"};
    StartSending();
    Log("K2YY");
    Log("K3ZZ");
    EXPECT_EQ(TakeNews(), "contactinfo K2YY, contactinfo K3ZZ") << "to the other";
    datagramSockets.Find("slow:1");
    TheDesk().RunPending();
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(sent.at(0).to, "slow:1");
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "call"), "K2YY");
    EXPECT_EQ(ElementOf(sent.at(1).bytes, "call"), "K3ZZ");
}

}  // namespace
}  // namespace tallyhut
