#include "reports/check_log.h"

#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

struct CheckLogTest : EditingFixture {
    /// Contacts 1 to 4; the checks of 2 and 3 and the section of 3 are to be found.
    static std::vector<Contact> Flawed() {
        std::vector<Contact> contacts = ManyContacts(4);
        contacts[1].Ck = "O5";
        contacts[2].Ck = "7";
        contacts[2].Sec = "QC";
        return contacts;
    }

    frmCheckLog& Form() { return program->reportsPart.checkForm; }
    /// Opens the form, runs a script in it and closes it.
    void Check(const std::function<void()>& script) {
        Meanwhile([this, script] {
            script();
            Click(Form().cmdDone);
        });
        ChooseMenu(Main().mnuCheckLog);
        EXPECT_FALSE(Form().IsLoaded());
    }
    /// "2 W2X Ck text" for each row.
    Lines Rows() {
        Lines rows;
        for (std::size_t row = 0; row < Form().lstFindings.RowCount(); ++row) {
            std::string text;
            for (std::size_t column = 0; column < 4; ++column) {
                text += (column == 0 ? "" : "|") + Form().lstFindings.Cell(row, column);
            }
            rows.push_back(text);
        }
        return rows;
    }
    /// Corrects a field of the contact that is opened next, and ends with Done.
    void CorrectNext(TextBox& field, const std::string& text) {
        Meanwhile([this, &field, text] {
            opened = EditForm().txtEditCall.Text();
            Fill(field, text);
            Click(EditForm().cmdDone);
        });
    }

    std::string opened;  ///< the call of the contact that was opened last
};

const Lines kFound{"2|W2X|Ck|\"O5\": the letter O where a zero belongs", "3|W3X|Ck|\"7\": not two digits",
                   "3|W3X|Sec|\"QC\": a section of Canada, the call is of the mainland"};

TEST_F(CheckLogTest, ListsTheFindingsAndChangesNothing) {
    StartOnDesk(Flawed());
    const std::string before = LogOnDisk();
    Check([this] {
        EXPECT_EQ(Rows(), kFound);
        EXPECT_EQ(Form().lblFindings.Caption(), "3 findings");
        EXPECT_EQ(Form().lstFindings.Row(), 0);
        EXPECT_EQ(Form().Focus(), &Form().lstFindings);
        EXPECT_TRUE(Form().cmdEdit.State().enabled);
    });
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(CheckLogTest, ALogWithoutFindingsHasNothingToEdit) {
    StartOnDesk(ManyContacts(3));
    Check([this] {
        EXPECT_EQ(Form().lblFindings.Caption(), "0 findings");
        EXPECT_EQ(Form().lstFindings.Row(), -1);
        EXPECT_FALSE(Form().cmdEdit.State().enabled);
        Form().lstFindings.SetFocus();
        Press("Enter");
        EXPECT_FALSE(EditForm().IsLoaded());
    });
}

TEST_F(CheckLogTest, ADoubleClickOpensTheContactAndTheFindingsAreTakenAnew) {
    StartOnDesk(Flawed());
    Check([this] {
        CorrectNext(EditForm().txtEditCk, "05");
        TheDesk().PostRowClick(Form().lstFindings, 0, kLeftButton, true);
        TheDesk().RunPending();
        EXPECT_EQ(opened, "W2X");
        EXPECT_EQ(Rows(), (Lines{kFound[1], kFound[2]}));
        EXPECT_EQ(Form().lblFindings.Caption(), "2 findings");
    });
    EXPECT_NE(LogOnDisk().find("\"W2X\",\"05\""), std::string::npos);
}

TEST_F(CheckLogTest, EnterOpensItTooAndThePlaceIsKept) {
    StartOnDesk(Flawed());
    Check([this] {
        Press("Down");
        CorrectNext(EditForm().txtEditCk, "77");
        Press("Enter");
        EXPECT_EQ(opened, "W3X");
        EXPECT_EQ(Rows(), (Lines{kFound[0], kFound[2]}));
        EXPECT_EQ(Form().lstFindings.Row(), 1);
        EXPECT_EQ(Form().Focus(), &Form().lstFindings);
        CorrectNext(EditForm().txtEditSec, "CT");
        Press("Enter");
        EXPECT_EQ(Rows(), Lines{kFound[0]});
        EXPECT_EQ(Form().lstFindings.Row(), 0) << "the last row there is";
    });
}

TEST_F(CheckLogTest, TheButtonOpensTheSelectedContact) {
    StartOnDesk(Flawed());
    Check([this] {
        TheDesk().PostRowClick(Form().lstFindings, 2, kLeftButton);
        TheDesk().RunPending();
        Meanwhile([this] {
            opened = EditForm().txtEditCall.Text();
            EditForm().RequestClose();
        });
        Click(Form().cmdEdit);
        EXPECT_EQ(opened, "W3X");
        EXPECT_EQ(Rows(), kFound);
        EXPECT_EQ(Form().lstFindings.Row(), 2);
    });
}

TEST_F(CheckLogTest, AContactBeyondThoseThatAreListedIsOpened) {
    std::vector<Contact> contacts = ManyContacts(50);
    contacts[0].Ck = "X";
    StartOnDesk(contacts);
    Check([this] {
        CorrectNext(EditForm().txtEditCk, "55");
        Press("Enter");
        EXPECT_EQ(opened, "W1X");
        EXPECT_EQ(Form().lblFindings.Caption(), "0 findings");
    });
    EXPECT_EQ(LogLines().front().substr(0, 24), R"("1","88","A","W1X","55",)");
}

TEST_F(CheckLogTest, ADuplicateMayBeDeletedFromTheEditForm) {
    std::vector<Contact> contacts = ManyContacts(3);
    contacts[1].Call = "W1X";
    StartOnDesk(contacts);
    Check([this] {
        EXPECT_EQ(Rows(), Lines{"2|W1X|Call|duplicate of Rec# 1"});
        Meanwhile([this] {
            Click(EditForm().cmdDone);  // refuses it
            dialogs.answers = {Answer::Yes};
            Click(EditForm().cmdDeleteDupe);
        });
        Press("Enter");
        EXPECT_EQ(Rows(), Lines{"2|W3X|Ns|\"3\" follows \"1\""});
    });
    EXPECT_EQ(SerialsOnDisk(), "1 3");
}

struct CheckedEntryTest : CheckLogTest {
    void StartWithEntry(const std::string& name, const std::string& text) {
        stored.gOwnCall = "W9ZZZ/7";
        files.Put("/contest/" + name, text);
        StartOnDesk(ManyContacts(2));
    }
};

TEST_F(CheckedEntryTest, TheEntryOfTheFolderIsHeldAgainstTheLog) {
    StartWithEntry("W9ZZZ.log", "START-OF-LOG: 3.0\r\nCATEGORY-OPERATOR: MULTI-TWO\r\nCLAIMED-SCORE: 2\r\nQSO: 1\r\n");
    Check([this] {
        EXPECT_EQ(Rows(), (Lines{"||CATEGORY-OPERATOR|\"MULTI-TWO\" is in no list of Cabrillo 3",
                                 "||CLAIMED-SCORE|the score of the log is 4"}));
        EXPECT_FALSE(Form().cmdEdit.State().enabled) << "it is of no contact";
        Press("Enter");
        EXPECT_FALSE(EditForm().IsLoaded());
    });
}

TEST_F(CheckedEntryTest, AnotherFileIsNoEntry) {
    StartWithEntry("W8ZZZ.log", "START-OF-LOG: 3.0\r\nCATEGORY-OPERATOR: MULTI-TWO\r\n");
    Check([this] { EXPECT_EQ(Rows(), Lines{}); });
}

TEST_F(CheckedEntryTest, AnEntryThatCannotBeReadIsAFindingBesideTheOthers) {
    StartWithEntry("W9ZZZ.log", "");
    files.unreachable["/contest/W9ZZZ.log"] = "Input/output error";
    program->log.Change(1, [](Contact& contact) { contact.Ck = "7"; });
    Check([this] {
        ASSERT_EQ(Rows().size(), 2U);
        EXPECT_EQ(Rows().front(), "1|W1X|Ck|\"7\": not two digits");
        EXPECT_TRUE(Rows().back().starts_with("||Entry|")) << Rows().back();
        EXPECT_NE(Rows().back().find("Input/output error"), std::string::npos) << Rows().back();
    });
    EXPECT_TRUE(TakeBoxes().empty());
}

TEST_F(CheckedEntryTest, OfALongFileTheHeadIsRead) {
    StartWithEntry("W9ZZZ.log", "START-OF-LOG: 3.0\r\nCLAIMED-SCORE: 4\r\n" + std::string(1'000'000, '\0') +
                                    "\r\nCATEGORY-MODE: PH\r\n");
    Check([this] { EXPECT_EQ(Rows(), Lines{}); });
}

TEST_F(CheckLogTest, KnownCallsAreThoseThatAreInUse) {
    StartOnDesk(ManyContacts(2));
    program->reportsPart.check.knownCalls = [] { return KnownCalls{{*KeyOfCall("W1XX")}}; };
    Check([this] { EXPECT_EQ(Rows(), Lines{"1|W1X|Call|one letter from W1XX, a known call"}); });
}

TEST_F(CheckLogTest, ALogThatTheStartCouldNotReadIsOpenedFirst) {
    StartOnDesk(ManyContacts(2));
    program->reload.opened = false;
    program->log.Clear();
    PutLog(Flawed());
    Check([this] { EXPECT_EQ(Rows(), kFound); });
}

}  // namespace
}  // namespace tallyhut
