#include "log/section_setup.h"

#include "tests/log/editing_fixture.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kListPath = "/contest/Sections.txt";

constexpr const char* kList2014 =
    "# Those of 2014\r\n"
    R"("CT","Connecticut","1","","","",0,"","","")"
    "\r\n"
    R"("MAR","Maritime","Canada","","","",0,"1970","2022","")"
    "\r\n";
constexpr const char* kList2023 =
    "# Those of 2023\r\n"
    R"("CT","Connecticut","1","K1 W1","CONN","",0,"","","")"
    "\r\n"
    R"("NS","Nova Scotia","Canada","","","",0,"2023","","")"
    "\r\n"
    R"("PE","Prince Edward Island","Canada","","PEI","",0,"2020","","")"
    "\r\n";
constexpr const char* kOwnList = R"("CT","Connecticut","1","","","",0,"","","")"
                                 "\r\n";

struct SectionSetupTest : EditingFixture {
    SectionSetupTest() {
        files.Put("/data/sections/2014.txt", kList2014);
        files.Put("/data/sections/2023.txt", kList2023);
    }

    frmSections& Dialog() { return program->logPart.sectionsForm; }

    /// Opens the dialog from the menu, runs the steps in it, and closes it with Done.
    void Setup(const std::function<void()>& steps) {
        pump.OnWait([this, steps] {
            steps();
            Click(Dialog().cmdDone);
        });
        ChooseMenu(Main().mnuSections);
        EXPECT_FALSE(Dialog().IsLoaded());
    }
    void Pick(int row) {
        TheDesk().PostRowClick(Dialog().lstSections, row, kLeftButton);
        TheDesk().RunPending();
    }
    void UseRow(int row) {
        Pick(row);
        Click(Dialog().cmdUse);
    }
    static std::string RowOf(const ListView& list, std::size_t row) {
        std::string text;
        for (std::size_t column = 0; column < list.State().columns.size(); ++column) {
            text += (column == 0 ? "" : "|") + list.Cell(row, column);
        }
        return text;
    }
    std::string ListOnDisk() { return files.contents.contains(kListPath) ? files.contents.at(kListPath) : "none"; }
    void LogWith(std::string_view section) {
        Type("88aK1XX72");
        Fill(Main().txtSec, section);
        Press("Enter");
    }
    std::string Hint() { return Main().lblHint.IsShown() ? Main().lblHint.Caption() : ""; }
};

TEST_F(SectionSetupTest, EntryStandsInTheSettingsMenu) {
    StartOnDesk();
    EXPECT_EQ(Main().mnuSections.Caption(), "S&ections");
    EXPECT_EQ(Main().mnuSections.Above(), &Main().mnuSettings);
}

TEST_F(SectionSetupTest, ItShowsTheListInForceAndWhatEachHoldsTheNewestFirst) {
    StartOnDesk();
    Setup([&] {
        EXPECT_TRUE(Dialog().IsModal());
        EXPECT_EQ(Dialog().lblSections.Caption(), "2014, 83 sections");
        ASSERT_EQ(Dialog().lstSections.RowCount(), 2U);
        EXPECT_EQ(RowOf(Dialog().lstSections, 0), "2023|3|Those of 2023");
        EXPECT_EQ(RowOf(Dialog().lstSections, 1), "2014|2|Those of 2014");
        EXPECT_EQ(Dialog().lstSections.Row(), 1) << "what is in force";
        Pick(0);
        ASSERT_EQ(Dialog().lstHolds.RowCount(), 3U);
        EXPECT_EQ(RowOf(Dialog().lstHolds, 0), "CT|Connecticut|1|CONN|K1 W1");
        EXPECT_EQ(RowOf(Dialog().lstHolds, 2), "PE|Prince Edward Island|Canada|PEI|");
    });
}

TEST_F(SectionSetupTest, UseWritesTheListAndItsSectionsCountAtOnce) {
    StartOnDesk({Worked("W1XX", "CT"), Worked("VE1XX", "NS")});
    EXPECT_EQ(program->sections.gSectionsWorked, 1);
    Setup([&] {
        UseRow(0);
        EXPECT_EQ(Dialog().lblSections.Caption(), "2023, 3 sections");
        EXPECT_EQ(Dialog().lstSections.RowCount(), 3U) << "that of the folder";
    });
    EXPECT_EQ(ListOnDisk(), kList2023);
    EXPECT_EQ(program->sections.gSectionCount, 3);
    EXPECT_EQ(program->sections.gSectionsWorked, 2);
    EXPECT_EQ(Main().lblsectogo.Caption(), "  1");
    EXPECT_EQ(Main().Label10(2).Caption(), "NS");
    EXPECT_EQ(Main().Label10(2).State().foreColor, stored.gColorWorked);
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(SectionSetupTest, UsingTheSectionsOf2014RemovesTheFile) {
    files.Put(kListPath, kList2023);
    StartOnDesk();
    Setup([&] {
        EXPECT_EQ(Dialog().lblSections.Caption(), "2023, 3 sections");
        UseRow(1);
        EXPECT_EQ(Dialog().lblSections.Caption(), "2014, 83 sections");
    });
    EXPECT_EQ(ListOnDisk(), "none");
    EXPECT_EQ(program->sections.Chosen(), nullptr);
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(SectionSetupTest, ContactsThatTheNewListLacksAreNamedAndNoneIsChanged) {
    std::vector<Contact> contacts{Worked("W1XX", "CT")};
    for (int n = 0; n < 22; ++n) {
        contacts.push_back(Worked("VE" + std::to_string(n) + "X", n == 0 ? "GTA" : "MAR"));
    }
    StartOnDesk(contacts);
    const std::string before = LogOnDisk();
    Setup([&] { UseRow(0); });
    const Lines boxes = TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes.front().starts_with(
        "message \"Sections\" \"The list in force lacks the sections of these contacts, by Rec#. None was changed."))
        << boxes.front();
    EXPECT_NE(boxes.front().find("2  GTA"), std::string::npos) << boxes.front();
    EXPECT_NE(boxes.front().find("21  MAR"), std::string::npos);
    EXPECT_EQ(boxes.front().find("22  MAR"), std::string::npos);
    EXPECT_NE(boxes.front().find("and 2 more"), std::string::npos);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(program->log.gContactCount(), 23);
}

TEST_F(SectionSetupTest, AListOfAnybodysMakingIsLostOnlyIfTheOperatorSaysSo) {
    files.Put(kListPath, kOwnList);
    StartOnDesk();
    dialogs.answers = {Answer::No, Answer::Yes};
    Setup([&] {
        EXPECT_EQ(Dialog().lblSections.Caption(), "Sections.txt, 1 sections");
        EXPECT_EQ(RowOf(Dialog().lstSections, 2), "Sections.txt|1|In the folder of this contest");
        EXPECT_EQ(Dialog().lstSections.Row(), 2);
        UseRow(1);
        EXPECT_EQ(ListOnDisk(), kOwnList);
        EXPECT_EQ(program->sections.gSectionCount, 1);
        UseRow(0);
    });
    EXPECT_EQ(ListOnDisk(), kList2023);
    EXPECT_EQ(TakeBoxes().size(), 2U);
}

TEST_F(SectionSetupTest, UsingTheFileOfTheFolderReadsItAgain) {
    files.Put(kListPath, kOwnList);
    StartOnDesk({Worked("W1XX", "NS")});
    Setup([&] {
        files.Put(kListPath, kList2023);
        UseRow(2);
        EXPECT_EQ(Dialog().lblSections.Caption(), "2023, 3 sections");
    });
    EXPECT_EQ(program->sections.gSectionsWorked, 1);
}

TEST_F(SectionSetupTest, ADamagedFileOfTheFolderIsShownWithItsReasonAndCannotBeUsed) {
    StartOnDesk();
    files.Put(kListPath, "\"CT\"\r\n");
    Setup([&] {
        EXPECT_EQ(Dialog().lblSections.Caption(), "2014, 83 sections");
        Pick(2);
        EXPECT_EQ(RowOf(Dialog().lstSections, 2), "Sections.txt||Damaged");
        EXPECT_TRUE(Dialog().lblNote.Caption().starts_with("This list cannot be used. line 1: "))
            << Dialog().lblNote.Caption();
        EXPECT_FALSE(Dialog().cmdUse.State().enabled);
    });
}

TEST_F(SectionSetupTest, AFolderThatCannotBeWrittenIsToldAndTheSectionsStay) {
    StartOnDesk({Worked("W1XX", "MAR")});
    Setup([&] {
        Pick(0);
        files.FailAt(1, "No space left on device");
        Click(Dialog().cmdUse);
        EXPECT_EQ(Dialog().lblSections.Caption(), "2014, 83 sections");
    });
    EXPECT_EQ(TakeBoxes(),
              Lines{"message \"Sections\" \"/contest/Sections.txt: No space left on device\" OK Exclamation"});
    EXPECT_EQ(program->sections.gSectionsWorked, 1);
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(SectionSetupTest, EnterInTheListUsesIt) {
    StartOnDesk();
    Setup([&] {
        Pick(0);
        Press("Enter");
        EXPECT_EQ(Dialog().lblSections.Caption(), "2023, 3 sections");
    });
}

TEST_F(SectionSetupTest, ACodeOfAnotherShippedListIsTakenNoteOfBesideTheMessage) {
    StartOnDesk();
    LogWith("NS");
    EXPECT_EQ(Dialog().lblSections.Caption(), "");
    EXPECT_EQ(Main().lblDialog.Caption(), "Invalid Section");
    EXPECT_EQ(Hint(), "NS: a section since 2023. Settings, Sections.");
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(SectionSetupTest, ACodeOfFormerYearsIsTakenNoteOfTheSame) {
    files.Put(kListPath, kList2023);
    StartOnDesk();
    LogWith("MAR");
    EXPECT_EQ(Hint(), "MAR: a section until 2022. Settings, Sections.");
}

TEST_F(SectionSetupTest, ACodeThatAnyYearHasIsTakenNoteOfByTheListsName) {
    files.Put(kListPath, R"("NLI","Long Island","2","","","",0,"","","")");
    StartOnDesk();
    LogWith("CT");
    EXPECT_EQ(Hint(), "CT: a section of 2023. Settings, Sections.");
}

TEST_F(SectionSetupTest, TheHintGoesWhereTheMessageGoes) {
    StartOnDesk();
    LogWith("NS");
    EXPECT_NE(Hint(), "");
    Click(Main().cmdClear);
    EXPECT_EQ(Hint(), "");
    LogWith("NS");
    Fill(Main().txtSec, "CT");
    Press("Enter");
    EXPECT_EQ(Hint(), "");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(SectionSetupTest, AHintThatIsFollowedGoesWithItsMessage) {
    StartOnDesk();
    LogWith("NS");
    Setup([&] { UseRow(0); });
    EXPECT_EQ(Hint(), "");
    EXPECT_EQ(Main().lblDialog.Caption(), "");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(SectionSetupTest, AContactOfAnotherListCanBeEditedButForItsSection) {
    files.Put(kListPath, kList2023);
    StartOnDesk({Worked("VE1XX", "MAR")});
    ClickRow(0);
    Meanwhile([this] {
        Fill(EditForm().txtEditCk, "73");
        Fill(EditForm().txtEditSec, "GTA");
        Click(EditForm().cmdDone);
        EXPECT_TRUE(EditForm().Label2.State().visible);
        Fill(EditForm().txtEditSec, "MAR");
        Click(EditForm().cmdDone);
    });
    Click(Main().cmdEdit);
    EXPECT_NE(LogOnDisk().find(R"("73","MAR",)"), std::string::npos) << LogOnDisk();
}

TEST_F(SectionSetupTest, AFolderUnderTheListsNameIsTold) {
    StartOnDesk();
    files.AddFolder(kListPath);
    Setup([&] {
        Pick(2);
        EXPECT_EQ(RowOf(Dialog().lstSections, 2), "Sections.txt||Damaged");
    });
}

TEST_F(SectionSetupTest, WhatNoShippedListKnowsHasNoHint) {
    StartOnDesk();
    LogWith("XYZ");
    EXPECT_EQ(Main().lblDialog.Caption(), "Invalid Section");
    EXPECT_EQ(Hint(), "");
}

/// The start of a folder that is chosen by hand.
struct NewContestTest : SectionSetupTest {
    std::vector<std::string> formsShown;

    /// Answers the form for the sections with a row (none: Done alone), then the station form.
    void StartIn(const std::optional<int>& row, const char* option = nullptr) {
        MakeProgram();
        if (option != nullptr) {
            program->TakeSections(option);
        }
        dialogs.files = {kFolder};
        program->ChooseDirectory();
        pump.OnWait([this, row] { TakeForm(row); });
        dialogs.answers = {Answer::Yes};
        program->Start();
        program->desk.RunPending();
    }
    void TakeForm(const std::optional<int>& row) {
        Form* form = TheDesk().Active();
        formsShown.push_back(form->name);
        if (form == &Dialog()) {
            pump.OnWait([this] { TakeForm({}); });
            EXPECT_EQ(Dialog().lstSections.Row(), 0) << "today's first";
            if (row) {
                UseRow(*row);
            }
            Click(Dialog().cmdDone);
        } else {
            Click(program->stationForm.Command1);
        }
    }
};

TEST_F(NewContestTest, AFreshFolderIsAskedForItsSectionsBeforeTheStation) {
    StartIn(0);
    EXPECT_EQ(formsShown, (Lines{"frmSections", "frmStationID"}));
    EXPECT_EQ(ListOnDisk(), kList2023);
    EXPECT_EQ(program->sections.gSectionCount, 3);
    EXPECT_EQ(Main().lblsectogo.Caption(), "  3");
}

TEST_F(NewContestTest, DoneAloneKeepsTheSectionsOf2014) {
    StartIn({});
    EXPECT_EQ(ListOnDisk(), "none");
    EXPECT_EQ(program->sections.gSectionCount, 83);
}

TEST_F(NewContestTest, AFolderWithALogOrAListIsNotAsked) {
    files.Put(kPreferencesPath, WritePreferences(stored));
    files.Put(kWavesPath, kNoWaves);
    PutLog({Worked("W1XX")});
    StartIn(0);
    EXPECT_EQ(formsShown, Lines{"frmStationID"});
    for (const char* path : {kPreferencesPath, kLogPath}) {
        files.Remove(path);
    }
    files.Put(kListPath, kOwnList);
    formsShown.clear();
    StartIn(0);
    EXPECT_EQ(formsShown, Lines{"frmStationID"});
    EXPECT_EQ(ListOnDisk(), kOwnList);
}

TEST_F(NewContestTest, SectionsToldOnTheCommandLineAreNotAskedFor) {
    StartIn(0, "2014");
    EXPECT_EQ(formsShown, Lines{"frmStationID"});
    EXPECT_EQ(ListOnDisk(), "none");
}

struct SectionsOptionTest : SectionSetupTest {
    void StartWithOption(const std::string& nameOrPath, const std::vector<Contact>& contacts = {}) {
        files.Put(kPreferencesPath, WritePreferences(stored));
        PutLog(contacts);
        files.Put(kWavesPath, kNoWaves);
        MakeProgram();
        program->TakeSections(nameOrPath);
        pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
        dialogs.answers = {Answer::Yes};
        program->Start();
        program->desk.RunPending();
    }
    std::string Refusal(const std::string& nameOrPath) {
        MakeProgram();
        const auto before = files.contents;
        try {
            program->TakeSections(nameOrPath);
        } catch (const ValueError& error) {
            EXPECT_EQ(files.contents, before);
            return error.what();
        }
        return "taken";
    }
};

TEST_F(SectionsOptionTest, AShippedListIsGivenByItsName) {
    StartWithOption("2023");
    EXPECT_EQ(ListOnDisk(), kList2023);
    EXPECT_EQ(program->sections.gSectionCount, 3);
}

TEST_F(SectionsOptionTest, ContactsThatItLacksAreNamed) {
    StartWithOption("2023", {Worked("W1XX", "CT"), Worked("VE1XX", "MAR")});
    EXPECT_NE(dialogs.boxes.back().find("2  MAR"), std::string::npos) << dialogs.boxes.back();
}

TEST_F(SectionsOptionTest, AFileIsGivenByItsPath) {
    files.Put("/lists/mine.txt", kOwnList);
    StartWithOption("/lists/mine.txt");
    EXPECT_EQ(ListOnDisk(), kOwnList);
}

TEST_F(SectionsOptionTest, TheSectionsOf2014NeedNoFile) {
    StartWithOption("2014");
    EXPECT_EQ(ListOnDisk(), "none");
}

TEST_F(SectionsOptionTest, AListThatTheFolderHasWins) {
    files.Put(kListPath, kOwnList);
    StartWithOption("2023");
    EXPECT_EQ(ListOnDisk(), kOwnList);
    EXPECT_EQ(program->sections.gSectionCount, 1);
}

TEST_F(SectionsOptionTest, WhatIsNoListIsRefusedInOneLineAndNothingIsWritten) {
    EXPECT_EQ(Refusal("1999"), "--sections: 1999: No such file or directory");
    files.Put("/lists/bad.txt", "\"CT\"\r\n");
    const std::string damaged = Refusal("/lists/bad.txt");
    EXPECT_TRUE(damaged.starts_with("--sections: /lists/bad.txt: line 1: ")) << damaged;
    EXPECT_EQ(damaged.find('\n'), std::string::npos);
}

}  // namespace
}  // namespace tallyhut
