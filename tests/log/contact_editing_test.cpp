#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kAreYouSure = "message \"Are you sure?\" \"Are you sure?\" YesNo Question";
constexpr const char* kInvalidTime =
    "message \"Invalid Time Format!\" \"You have entered an invalid time format!\" OK Exclamation";
constexpr const char* kInvalidDate =
    "message \"Invalid Date Format!\" \"You have entered an invalid date format!\" OK Exclamation";

struct ContactEditingTest : EditingFixture {
    bool EditButtonsShown() { return Main().cmdEdit.State().visible && Main().cmdDelete.State().visible; }

    /// Opens the edit form on a row of the list, runs the steps in it, and closes it unless they did.
    void Edit(int row, const std::function<void()>& steps) {
        ClickRow(row);
        Meanwhile([this, steps] {
            steps();
            if (EditForm().IsLoaded()) {
                EditForm().RequestClose();
            }
        });
        Click(Main().cmdEdit);
        EXPECT_FALSE(EditForm().IsLoaded());
    }
    void Delete(int row, Answer answer = Answer::Yes) {
        ClickRow(row);
        dialogs.answers.push_back(answer);
        Click(Main().cmdDelete);
    }
    std::string FocusInDialog() { return EditForm().Focus() == nullptr ? "" : EditForm().Focus()->FullName(); }
    void TypeOver(TextBox& field, std::string_view text) {
        Focus(field);
        field.SetText("");
        Type(text);
    }
};

TEST_F(ContactEditingTest, EditFormSaysWhatItsFieldsAre) {
    StartOnDesk();
    std::vector<std::string> captions;
    for (int i = EditForm().lblField.First(); i <= EditForm().lblField.Last(); ++i) {
        captions.push_back(EditForm().lblField(i).Caption());
    }
    EXPECT_EQ(captions,
              (Lines{"Num Sent", "Num Rec", "Precedence", "Callsign", "Check", "Section", "Date", "Time", "Band"}));
    EXPECT_EQ(EditForm().Caption(), "Edit Contact Entry");
    EXPECT_EQ(EditForm().Label1.Caption(), " Dupe!");
    EXPECT_EQ(EditForm().Label2.Caption(), "   Invalid!");
    EXPECT_EQ(EditForm().cmdDeleteDupe.Caption(), "Delete Dupe");
    EXPECT_EQ(EditForm().cmdDone.Caption(), "Done");
    for (const Control* hidden : {static_cast<Control*>(&EditForm().Label1), static_cast<Control*>(&EditForm().Label2),
                                  static_cast<Control*>(&EditForm().cmdDeleteDupe)}) {
        EXPECT_FALSE(hidden->State().visible) << hidden->FullName();
    }
}

TEST_F(ContactEditingTest, TabRunsThroughTheFieldsInTheOrderOfTheForm) {
    StartOnDesk(ManyContacts(1));
    std::string order;
    Edit(0, [&] {
        for (const Control* stop : EditForm().TabStops()) {
            order += stop->FullName() + ' ';
        }
    });
    EXPECT_EQ(order,
              "txtEditNumSent txtEditNum txtEditPre txtEditCall txtEditCk txtEditSec txtEditDate txtEditTime "
              "txtEditBnd cmdDone ");
}

TEST_F(ContactEditingTest, ButtonsForARowAreHiddenUntilARowIsClicked) {
    StartOnDesk(ManyContacts(3));
    EXPECT_FALSE(Main().cmdEdit.State().visible);
    EXPECT_FALSE(Main().cmdDelete.State().visible);
    ClickRow(1);
    EXPECT_TRUE(EditButtonsShown());
}

TEST_F(ContactEditingTest, EnterInTheListEditsTheSelectedContactAndComesBack) {
    StartOnDesk(ManyContacts(5));
    ClickRow(2);
    Meanwhile([this] {
        EXPECT_EQ(EditForm().txtEditCall.Text(), program->log.Row(3).Call);
        TypeOver(EditForm().txtEditNum, "999");
        Press("Enter");
    });
    Press("Enter");
    EXPECT_EQ(program->log.Row(3).Nr, "999");
    EXPECT_TRUE(Main().ListView1.HasFocus());
    EXPECT_EQ(Main().ListView1.Row(), 2);
    EXPECT_TRUE(EditButtonsShown());
}

TEST_F(ContactEditingTest, EnterInTheListComesBackFromAnEditGivenUp) {
    StartOnDesk(ManyContacts(5));
    ClickRow(4);
    Meanwhile([this] { Press("Esc"); });
    Press("Enter");
    EXPECT_TRUE(Main().ListView1.HasFocus());
    EXPECT_EQ(Main().ListView1.Row(), 4);
}

TEST_F(ContactEditingTest, DeleteInTheListAsksAndStaysAtItsPlace) {
    StartOnDesk(ManyContacts(5));
    ClickRow(1);
    dialogs.answers.push_back(Answer::Yes);
    Press("Delete");
    EXPECT_EQ(TakeBoxes(), Lines{kAreYouSure});
    EXPECT_EQ(SerialsOnDisk(), "1 2 3 5");
    EXPECT_TRUE(Main().ListView1.HasFocus());
    EXPECT_EQ(Main().ListView1.Row(), 1);
    Press("End");
    dialogs.answers.push_back(Answer::Yes);
    Press("Delete");
    EXPECT_EQ(SerialsOnDisk(), "2 3 5");
    EXPECT_EQ(Main().ListView1.Row(), 2) << "the last row that is left";
}

TEST_F(ContactEditingTest, DeleteInTheListAnsweredNoStaysThere) {
    StartOnDesk(ManyContacts(2));
    ClickRow(1);
    dialogs.answers.push_back(Answer::No);
    Press("Delete");
    EXPECT_EQ(SerialsOnDisk(), "1 2");
    EXPECT_TRUE(Main().ListView1.HasFocus());
    EXPECT_EQ(Main().ListView1.Row(), 1);
}

TEST_F(ContactEditingTest, DeletingTheOnlyContactFromTheListLeadsToTheEntryRow) {
    StartOnDesk(ManyContacts(1));
    ClickRow(0);
    dialogs.answers.push_back(Answer::Yes);
    Press("Delete");
    EXPECT_EQ(SerialsOnDisk(), "");
    EXPECT_TRUE(Main().txtNum.HasFocus());
}

TEST_F(ContactEditingTest, ComingBackToTheListLeavesNoFieldAndLooksForNoDuplicate) {
    const std::vector<Contact> contacts = ManyContacts(3);
    StartOnDesk(contacts, 2);
    Main().txtCall.SetText(contacts[0].Call);
    ClickRow(1);
    TakeBoxes();
    Main().txtCall.SetText(contacts[0].Call);
    Meanwhile([this] { Press("Esc"); });
    Press("Enter");
    EXPECT_EQ(Main().txtCall.Text(), contacts[0].Call);
}

TEST_F(ContactEditingTest, EnterAndDeleteDoNothingWhereNoRowIsSelected) {
    StartOnDesk(ManyContacts(2));
    Main().ListView1.SetFocus();
    TheDesk().RunPending();
    Press("Enter");
    Press("Delete");
    EXPECT_EQ(TakeBoxes(), Lines{});
    EXPECT_EQ(SerialsOnDisk(), "1 2");
}

TEST_F(ContactEditingTest, ListButtonSwitchesBetweenLast20AndAll) {
    StartOnDesk(ManyContacts(500), 2);
    Focus(Main().txtSec);
    Click(Main().cmdList);
    EXPECT_EQ(Main().cmdList.Caption(), "All");
    EXPECT_EQ(Main().ListView1.RowCount(), 500U);
    EXPECT_EQ(FocusedField(), "txtCall");
    Click(Main().cmdList);
    EXPECT_EQ(Main().cmdList.Caption(), "Last 20");
    EXPECT_EQ(Main().ListView1.RowCount(), 20U);
}

TEST_F(ContactEditingTest, ColumnSortsOnceAsText) {
    StartOnDesk(ManyContacts(11));
    program->editing.ListView1_ColumnClick(2);
    EXPECT_EQ(Column(1), "1 10 11 2 3 4 5 6 7 8 9");
    program->list.ListContacts();
    EXPECT_EQ(Column(1), "11 10 9 8 7 6 5 4 3 2 1");
}

TEST_F(ContactEditingTest, SortedListEditsAndDeletesTheContactThatItShows) {
    StartOnDesk(ManyContacts(11));
    Main().ListView1.ColumnClick(2);
    std::string call;
    Edit(1, [&] { call = EditForm().txtEditCall.Text(); });
    EXPECT_EQ(call, "W10X");
    Main().ListView1.ColumnClick(2);
    Delete(2);
    EXPECT_EQ(SerialsOnDisk(), "1 2 3 4 5 6 7 8 9 10");
}

TEST_F(ContactEditingTest, EditFormShowsTheContactOfTheRow) {
    StartOnDesk({Worked("W1XX"), Worked("K2YY", "ENY"), Worked("N3ZZ")});
    Edit(1, [&] {
        EXPECT_TRUE(EditForm().IsModal());
        EXPECT_EQ(FocusInDialog(), "txtEditNumSent");
        EXPECT_EQ(EditForm().txtEditNumSent.Text(), "137");
        EXPECT_EQ(EditForm().txtEditNum.Text(), "88");
        EXPECT_EQ(EditForm().txtEditPre.Text(), "A");
        EXPECT_EQ(EditForm().txtEditCall.Text(), "K2YY");
        EXPECT_EQ(EditForm().txtEditCk.Text(), "72");
        EXPECT_EQ(EditForm().txtEditSec.Text(), "ENY");
        EXPECT_EQ(EditForm().txtEditDate.Text(), "2026/11/07");
        EXPECT_EQ(EditForm().txtEditTime.Text(), "21:04:33");
        EXPECT_EQ(EditForm().txtEditBnd.Text(), "40");
    });
}

TEST_F(ContactEditingTest, EditChangesTheContactOnDiskAndLeavesItsFrequency) {
    std::vector<Contact> contacts = ManyContacts(2);
    contacts[0].Frq = "7.123";
    StartOnDesk(contacts);
    Edit(1, [&] {
        TypeOver(EditForm().txtEditNum, "99");
        TypeOver(EditForm().txtEditCall, "k2yy");
        Press("Enter");
    });
    contacts[0].Nr = "99";
    contacts[0].Call = "K2YY";
    EXPECT_EQ(LogOnDisk(), LogText(contacts));
    EXPECT_EQ(Row(1), "1|1|99|A|K2YY|72|MDC|11/07|21:04|40");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_FALSE(EditButtonsShown());
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(ContactEditingTest, EditedSectionChangesSectionCountAndScore) {
    StartOnDesk(ManyContacts(2));
    EXPECT_EQ(Main().lblTotSec.Caption(), "  1");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  4");
    Edit(0, [&] {
        TypeOver(EditForm().txtEditSec, "eny");
        Click(EditForm().cmdDone);
    });
    EXPECT_EQ(Main().lblTotSec.Caption(), "  2");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  8");
}

TEST_F(ContactEditingTest, AbandonedEditRewritesTheFileUnchanged) {
    StartOnDesk(ManyContacts(3), 2);
    const std::string before = LogOnDisk();
    const int operations = files.Operations();
    Edit(0, [&] { TypeOver(EditForm().txtEditCall, "XX"); });
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(files.Operations(), operations + 1);
    EXPECT_EQ(FocusedField(), "txtCall");
    EXPECT_FALSE(EditButtonsShown());
}

TEST_F(ContactEditingTest, EscClosesTheFormFromEveryField) {
    StartOnDesk(ManyContacts(1));
    Edit(0, [&] { EXPECT_TRUE(EditForm().IsLoaded()); });
    for (const char* field : {"txtEditNumSent", "txtEditCall", "txtEditDate", "txtEditTime"}) {
        Edit(0, [&] {
            EditForm().Find(field)->SetFocus();
            Press("Esc");
            EXPECT_FALSE(EditForm().IsLoaded()) << field;
        });
    }
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(ContactEditingTest, CallLoggedBeforeIsADupeAndNothingIsStored) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    Edit(0, [&] {
        TypeOver(EditForm().txtEditCall, "W1X");
        Press("Enter");
        EXPECT_TRUE(EditForm().IsLoaded());
        EXPECT_TRUE(EditForm().Label1.State().visible);
        EXPECT_TRUE(EditForm().cmdDeleteDupe.State().visible);
        EXPECT_FALSE(EditForm().Label2.State().visible);
    });
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_FALSE(EditForm().Label1.State().visible);
}

TEST_F(ContactEditingTest, EachMatchOfADupeBeeps) {
    StartOnDesk({Worked("W1XX"), Worked("W1XX"), Worked("K2YY")});
    Edit(0, [&] {
        TypeOver(EditForm().txtEditCall, "W1XX");
        Press("Enter");
    });
    EXPECT_EQ(dialogs.beeps, 2);
}

TEST_F(ContactEditingTest, UnknownSectionIsInvalidAndNothingIsStored) {
    StartOnDesk(ManyContacts(1));
    const std::string before = LogOnDisk();
    Edit(0, [&] {
        TypeOver(EditForm().txtEditSec, "XX");
        Press("Enter");
        EXPECT_TRUE(EditForm().IsLoaded());
        EXPECT_TRUE(EditForm().Label2.State().visible);
        EXPECT_FALSE(EditForm().cmdDeleteDupe.State().visible);
    });
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(LogOnDisk(), before);
}

TEST_F(ContactEditingTest, DupeThatIsCorrectedIsStored) {
    StartOnDesk(ManyContacts(2));
    Edit(0, [&] {
        TypeOver(EditForm().txtEditCall, "W1X");
        Press("Enter");
        TypeOver(EditForm().txtEditCall, "W9X");
        Press("Enter");
        EXPECT_FALSE(EditForm().IsLoaded());
    });
    EXPECT_EQ(Column(4), "W9X W1X");
}

TEST_F(ContactEditingTest, DeleteDupeOffersTheContactBeingEdited) {
    StartOnDesk(ManyContacts(3));
    Edit(1, [&] {
        TypeOver(EditForm().txtEditCall, "W1X");
        Press("Enter");
        dialogs.answers.push_back(Answer::Yes);
        Click(EditForm().cmdDeleteDupe);
    });
    EXPECT_EQ(TakeBoxes(), Lines{kAreYouSure});
    EXPECT_EQ(SerialsOnDisk(), "1 3");
    EXPECT_EQ(Column(0), "2 1");
}

TEST_F(ContactEditingTest, DeleteDupeAnsweredNoKeepsTheContactAsItWas) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    Edit(1, [&] {
        TypeOver(EditForm().txtEditCall, "W1X");
        Press("Enter");
        dialogs.answers.push_back(Answer::No);
        Click(EditForm().cmdDeleteDupe);
    });
    EXPECT_EQ(LogOnDisk(), before);
}

TEST_F(ContactEditingTest, EmptySerialNumberIsStoredAsZero) {
    StartOnDesk(ManyContacts(2));
    Edit(0, [&] {
        TypeOver(EditForm().txtEditNumSent, "");
        Press("Enter");
    });
    EXPECT_EQ(SerialsOnDisk(), "1 0");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 1");
}

TEST_F(ContactEditingTest, DoneRefusesABadTimeBeforeABadDate) {
    StartOnDesk(ManyContacts(1));
    const std::string before = LogOnDisk();
    Edit(0, [&] {
        EditForm().txtEditTime.SetText("25:00");
        EditForm().txtEditDate.SetText("2026/13/01");
        Press("Enter");
        EXPECT_EQ(TakeBoxes(), Lines{kInvalidTime});
        EXPECT_EQ(FocusInDialog(), "txtEditTime");
        EditForm().txtEditTime.SetText("9:05");
        Press("Enter");
        EXPECT_EQ(TakeBoxes(), Lines{kInvalidDate});
        EXPECT_EQ(FocusInDialog(), "txtEditDate");
        EXPECT_TRUE(EditForm().IsLoaded());
    });
    EXPECT_EQ(dialogs.beeps, 2);
    EXPECT_EQ(LogOnDisk(), before);
}

TEST_F(ContactEditingTest, LeavingABadDateOrTimeGivesTheFocusBackAfterOneBox) {
    StartOnDesk(ManyContacts(1));
    struct Case {
        const char* field;
        const char* text;
        const char* box;
    };
    for (const Case& c : {Case{"txtEditDate", "11/31/2026", kInvalidDate}, Case{"txtEditDate", "", kInvalidDate},
                          Case{"txtEditTime", "24:00", kInvalidTime}, Case{"txtEditTime", "9", kInvalidTime}}) {
        Edit(0, [&] {
            auto& field = static_cast<TextBox&>(*EditForm().Find(c.field));
            TypeOver(field, c.text);
            Press("Tab");
            EXPECT_EQ(TakeBoxes(), Lines{c.box}) << c.text;
            EXPECT_EQ(FocusInDialog(), c.field);
            Click(EditForm().cmdDone);
            EXPECT_EQ(TakeBoxes(), Lines{c.box}) << c.text;
            EXPECT_EQ(FocusInDialog(), c.field);
            EXPECT_TRUE(EditForm().IsLoaded());
        });
        EXPECT_EQ(TakeBoxes(), Lines{}) << "closing leaves no field";
    }
}

TEST_F(ContactEditingTest, FromABadDateToABadTimeIsNoEndlessPair) {
    StartOnDesk(ManyContacts(1));
    Edit(0, [&] {
        EditForm().txtEditTime.SetText("x");
        TypeOver(EditForm().txtEditDate, "9");
        Click(EditForm().txtEditTime);
        EXPECT_EQ(TakeBoxes(), Lines{kInvalidDate});
        EXPECT_EQ(FocusInDialog(), "txtEditDate");
    });
}

TEST_F(ContactEditingTest, FieldsTakeTheirCharactersOnly) {
    StartOnDesk(ManyContacts(1));
    struct Case {
        const char* field;
        const char* typed;
        const char* text;
    };
    for (const Case& c : {
             Case{"txtEditNumSent", "a1-2\".3", "123"},
             Case{"txtEditNum", "8\"8b", "88B"},
             Case{"txtEditPre", "\"a", "A"},
             Case{"txtEditCall", "w1\"xx/3", "W1XX/3"},
             Case{"txtEditCk", "7\"x", "7X"},
             Case{"txtEditSec", "m\"dc", "MDC"},
             Case{"txtEditBnd", "4\"0m", "40M"},
             Case{"txtEditDate", "2026/1-1a/0:7", "2026/11/07"},
             Case{"txtEditTime", "2/1:0a4.:33 ", "21:04:33"},
         }) {
        Edit(0, [&] {
            auto& field = static_cast<TextBox&>(*EditForm().Find(c.field));
            TypeOver(field, c.typed);
            EXPECT_EQ(field.Text(), c.text) << c.field;
            Press("Backspace");
            EXPECT_EQ(field.Text(), std::string{c.text}.substr(0, std::string{c.text}.size() - 1)) << c.field;
            if (std::string_view{c.field} == "txtEditDate" || std::string_view{c.field} == "txtEditTime") {
                field.SetText("");
            }
        });
    }
}

TEST_F(ContactEditingTest, PastedDoubleQuotesAreRefusedAsTypedOnes) {
    StartOnDesk(ManyContacts(1));
    Edit(0, [&] {
        for (Control* control : EditForm().Controls()) {
            if (control->kind == ControlKind::TextBox) {
                auto& field = static_cast<TextBox&>(*control);
                field.ReplaceByPaste("1\"2\"");
                EXPECT_EQ(field.Text(), "12") << field.FullName();
            }
        }
        EditForm().txtEditNumSent.ReplaceByPaste("No. 1,234");
        EXPECT_EQ(EditForm().txtEditNumSent.Text(), "1234");
    });
}

TEST_F(ContactEditingTest, LongTextComesBackFromTheFormAsItWas) {
    std::vector<Contact> contacts = ManyContacts(1);
    contacts[0].Call = "VP2E/W1ABCDEF/MM/P";
    contacts[0].Bnd = "40 metres";
    StartOnDesk(contacts);
    Edit(0, [&] { Press("Enter"); });
    EXPECT_EQ(LogOnDisk(), LogText(contacts));
}

TEST_F(ContactEditingTest, RightClickOnARowEditsIt) {
    StartOnDesk(ManyContacts(3));
    std::string call;
    Meanwhile([&] {
        call = EditForm().txtEditCall.Text();
        EditForm().RequestClose();
    });
    ClickRow(2, kRightButton);
    EXPECT_EQ(call, "W1X");
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(ContactEditingTest, EmptyListHasNothingToEditOrToDelete) {
    StartOnDesk();
    program->editing.ListView1_Click();
    EXPECT_FALSE(EditButtonsShown());
    program->editing.ListView1_MouseDown(kRightButton);
    program->editing.cmdEdit_Click();
    program->editing.cmdDelete_Click();
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(ContactEditingTest, SortingKeepsTheContactThatIsSelected) {
    StartOnDesk(ManyContacts(3));
    ClickRow(0);
    Main().ListView1.ColumnClick(1);
    EXPECT_EQ(program->list.LogRowAt(Main().ListView1.Row()), 3);
}

TEST_F(ContactEditingTest, WithoutASelectedRowNothingIsEditedOrDeleted) {
    StartOnDesk(ManyContacts(3));
    const int operations = files.Operations();
    ClickRow(0);
    program->list.ListContacts();  // as the next commit does, which selects none
    Click(Main().cmdEdit);
    Click(Main().cmdDelete);
    program->editing.ListView1_MouseDown(kRightButton);
    EXPECT_EQ(TakeBoxes(), Lines{});
    EXPECT_EQ(files.Operations(), operations);
}

TEST_F(ContactEditingTest, DeleteClosesTheRowsUpAndLeavesAGapInTheSerialNumbers) {
    StartOnDesk(ManyContacts(10));
    Delete(5);
    EXPECT_EQ(TakeBoxes(), Lines{kAreYouSure});
    EXPECT_EQ(Column(0), "9 8 7 6 5 4 3 2 1");
    EXPECT_EQ(Column(1), "10 9 8 7 6 4 3 2 1");
    EXPECT_EQ(SerialsOnDisk(), "1 2 3 4 6 7 8 9 10");
    EXPECT_EQ(Main().lblTotCon.Caption(), "  9");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 11");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_FALSE(EditButtonsShown());
}

TEST_F(ContactEditingTest, DeleteOfTheLastContactRepeatsItsSerialNumber) {
    StartOnDesk(ManyContacts(3), 3);
    Delete(0);
    EXPECT_EQ(SerialsOnDisk(), "1 2");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 3");
    EXPECT_EQ(FocusedField(), "txtCall");
}

TEST_F(ContactEditingTest, DeleteOfTheOnlyContactLeavesAnEmptyLog) {
    StartOnDesk(ManyContacts(1));
    Delete(0);
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "1");
}

TEST_F(ContactEditingTest, DeleteAnsweredNoHidesTheButtonsAndDeletesNothing) {
    StartOnDesk(ManyContacts(3));
    const int operations = files.Operations();
    Delete(1, Answer::No);
    EXPECT_EQ(TakeBoxes(), Lines{kAreYouSure});
    EXPECT_FALSE(EditButtonsShown());
    EXPECT_EQ(program->log.gContactCount(), 3);
    EXPECT_EQ(files.Operations(), operations);
}

TEST_F(ContactEditingTest, FullTableClosesUpOverAnEmptyRow) {
    StartOnDesk(ManyContacts(ContactLog::kMostContacts));
    Delete(1);
    EXPECT_EQ(program->log.gContactCount(), ContactLog::kMostContacts - 1);
    EXPECT_EQ(program->log.Last().Ns, "11000");
    EXPECT_EQ(program->log.Row(ContactLog::kMostContacts), Contact{});
    EXPECT_EQ(LogLines().size(), 10'999U);
}

TEST_F(ContactEditingTest, FailedRewriteOfAnEditIsFatalAndLeavesTheLogAsItWas) {
    StartOnDesk(ManyContacts(2));
    const std::string before = LogOnDisk();
    ClickRow(0);
    files.FailAt(1, "No space left on device");
    Meanwhile([&] {
        TypeOver(EditForm().txtEditCall, "K2YY");
        Press("Enter");
    });
    EXPECT_EQ(EndStatusOf([&] { Click(Main().cmdEdit); }), 1);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(TakeBoxes(),
              Lines{"message \"Tallyhut Log\" \"The program must end.\n\n/contest/Log.txt: No space left on device\n\n"
                    "The change was not saved; the log is as it was before.\n\n/contest/Log.txt holds 2 contacts.\" OK "
                    "Critical"});
}

TEST_F(ContactEditingTest, FailedRewriteOfADeleteIsFatalAndLeavesTheLogAsItWas) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    files.readOnlyFolders.insert(kFolder);
    ClickRow(0);
    dialogs.answers.push_back(Answer::Yes);
    EXPECT_EQ(EndStatusOf([&] { Click(Main().cmdDelete); }), 1);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(
        TakeBoxes(),
        (Lines{kAreYouSure,
               "message \"Tallyhut Log\" \"The program must end.\n\n/contest/Log.txt: Read-only file system\n\n"
               "The change was not saved; the log is as it was before.\n\n/contest/Log.txt holds 3 contacts.\" OK "
               "Critical"}));
}

TEST_F(ContactEditingTest, FailedRewriteBehindDeleteDupeIsFatal) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    ClickRow(0);
    files.FailAt(1, "Input/output error");
    dialogs.answers.push_back(Answer::Yes);
    Meanwhile(
        [&] { program->editing.cmdDone_Click(), TheDesk().PostAction([&] { EditForm().cmdDeleteDupe.Click(); }); });
    program->log.Change(3, [](Contact& contact) { contact.Call = "W1X"; });
    EXPECT_EQ(EndStatusOf([&] { Click(Main().cmdEdit); }), 1);
    EXPECT_EQ(LogOnDisk(), before);
}

}  // namespace
}  // namespace tallyhut
