#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

const std::string kOldFormatLine =
    "message \"This traditional log submission format may not be valid after 1999!\" \"In my last correspondence with "
    "the ARRL, they indicated that the traditional summary format will not be accepted after the 1999 contest.  In "
    "addition, they only want contest submissions as files (no computer generated printed logs). To write the new "
    "Cabrillo format (ASCIICab.txt) which incorporates the summary and log files, click Write Cabrillo Fmt.\" OK "
    "Information";

struct EntryFormTest : ProgramFixture {
    Form2& form2() { return program->form2; }

    void Start(const std::string& call = "W9ZZZ") {
        stored.gOwnCall = call;
        stored.gOwnPrec = "A";
        stored.gOwnCheck = "72";
        stored.gOwnSection = "IL";
        ProgramFixture::Start();
    }
    /// Opens the form, does the steps there, and closes it if they did not.
    void InForm(const std::function<void()>& steps) {
        pump.OnWait([this, steps] {
            steps();
            TheDesk().RunPending();
            if (form2().IsLoaded()) {
                TheDesk().PostClick(form2().Command3, kLeftButton);
            }
        });
        ChooseMenu(Main().mnuCabrillo);
    }
    void ClickInForm(Button& button) {
        TheDesk().PostClick(button, kLeftButton);
        TheDesk().RunPending();
    }
    void WriteCabrillo(const std::optional<std::string>& path) {
        dialogs.files.emplace_back(path);
        InForm([this] { ClickInForm(form2().Command4); });
    }
    std::string Content(const std::string& name) {
        const std::string path = std::string{kFolder} + '/' + name;
        return files.contents.contains(path) ? files.contents.at(path) : "no file";
    }
};

TEST_F(EntryFormTest, BothMenuEntriesOpenTheFormModal) {
    Start();
    for (MenuEntry* entry : {&Main().mnuCabrillo, &Main().mnuSummary}) {
        bool modal = false;
        pump.OnWait([&] {
            modal = form2().IsModal();
            TheDesk().PostClick(form2().Command3, kLeftButton);
        });
        ChooseMenu(*entry);
        EXPECT_TRUE(modal);
        EXPECT_FALSE(form2().IsLoaded());
    }
    EXPECT_EQ(form2().Caption(), "Summary Sheet Information");
}

TEST_F(EntryFormTest, LoadFillsTheFiveBoxesFromTheSettingsAndNamesTheCall) {
    Start();
    settings.Set("Settings", "UserAddressName", "Ren\xE9");
    settings.Set("Settings", "UserAddressLine1", "1 Main St");
    settings.Set("Settings", "UserAddressLine2", "Newington");
    settings.Set("Settings", "UserEMail", "rene@example.net");
    settings.Set("Settings", "UserClubName", "Sultans");
    InForm([this] {
        EXPECT_EQ(form2().Text5.Text(), "Ren\xE9");
        EXPECT_EQ(form2().Text6.Text(), "1 Main St");
        EXPECT_EQ(form2().Text7.Text(), "Newington");
        EXPECT_EQ(form2().Text8.Text(), "rene@example.net");
        EXPECT_EQ(form2().Text10.Text(), "Sultans");
        EXPECT_EQ(form2().Frame1.Caption(), "W9ZZZ's License Class:");
    });
}

TEST_F(EntryFormTest, OptionsAndTextsStartAtTheirDefaultsWithEveryLoad) {
    Start();
    InForm([this] {
        form2().Option16.SetValue(true);
        form2().Option20.SetValue(true);
        form2().OptCatYes.SetValue(true);
        form2().Text2.SetText("K1AA");
        form2().Text11.SetText("Fun");
    });
    InForm([this] {
        EXPECT_TRUE(form2().Option11.Value());
        EXPECT_TRUE(form2().Option19.Value());
        EXPECT_TRUE(form2().optCatNo.Value());
        EXPECT_FALSE(form2().Option16.Value());
        EXPECT_EQ(form2().Text2.Text(), "");
        EXPECT_EQ(form2().Text11.Text(), "");
        EXPECT_EQ(form2().Text5.Text(), "");
    });
}

/// Done and Esc, the two ways out of the form.
struct EntryFormsEndTest : EntryFormTest, testing::WithParamInterface<bool> {
    void End() {
        if (GetParam()) {
            PressKeys("Esc");
        } else {
            ClickInForm(form2().Command3);
        }
    }
    void PressKeys(const std::string& key) {
        PostNamed(key);
        TheDesk().RunPending();
    }
};

TEST_P(EntryFormsEndTest, WhatWasTypedIsFilledInAgainWhenAsked) {
    Start();
    InForm([this] {
        EXPECT_FALSE(form2().cmdKept.State().visible) << "nothing was typed yet";
        form2().Option16.SetValue(true);
        form2().OptCatYes.SetValue(true);
        form2().Text2.SetText("K1AA");
        form2().Text5.SetText("Ren");
        form2().Text11.SetText("Fun");
        End();
    });
    EXPECT_TRUE(dialogs.boxes.empty()) << "neither way out asks";
    InForm([this] {
        EXPECT_TRUE(form2().Option11.Value());
        EXPECT_EQ(form2().Text5.Text(), "");
        EXPECT_TRUE(form2().cmdKept.State().visible);
        ClickInForm(form2().cmdKept);
        EXPECT_TRUE(form2().Option16.Value());
        EXPECT_TRUE(form2().OptCatYes.Value());
        EXPECT_EQ(form2().Text2.Text(), "K1AA");
        EXPECT_EQ(form2().Text5.Text(), "Ren");
        EXPECT_EQ(form2().Text11.Text(), "Fun");
        EXPECT_FALSE(form2().cmdKept.State().visible) << "it has nothing more to fill in";
        End();
    });
}

TEST_P(EntryFormsEndTest, WhatOnlyTheSheetTakesStaysWithoutAsking) {
    Start();
    InForm([this] {
        form2().Text1.SetText("K1AA");
        form2().Text3.SetText("A rig");
        form2().Text4.SetText("A dipole");
        form2().Text9.SetText("100");
        End();
    });
    InForm([this] {
        EXPECT_EQ(form2().Text1.Text(), "K1AA");
        EXPECT_EQ(form2().Text3.Text(), "A rig");
        EXPECT_EQ(form2().Text4.Text(), "A dipole");
        EXPECT_EQ(form2().Text9.Text(), "100");
        EXPECT_FALSE(form2().cmdKept.State().visible);
        End();
    });
}

INSTANTIATE_TEST_SUITE_P(WaysOut, EntryFormsEndTest, testing::Bool(),
                         [](const auto& way) { return way.param ? "Esc" : "Done"; });

TEST_F(EntryFormTest, EnterGoesFromFieldToFieldAndInTheLastOneNowhere) {
    Start();
    const std::vector<TextBox*> fields{&form2().Text2, &form2().Text5,  &form2().Text6,  &form2().Text7,
                                       &form2().Text8, &form2().Text10, &form2().Text11, &form2().Text1,
                                       &form2().Text3, &form2().Text4,  &form2().Text9};
    InForm([&] {
        fields.front()->SetFocus();
        TheDesk().RunPending();
        for (const TextBox* field : fields) {
            EXPECT_EQ(form2().Focus(), field);
            PostNamed("Enter");
            TheDesk().RunPending();
        }
        EXPECT_EQ(form2().Focus(), fields.back());
        EXPECT_TRUE(form2().IsLoaded());
        EXPECT_EQ(fields.back()->Text(), "");
    });
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(EntryFormTest, EnterOnAButtonClicksIt) {
    Start();
    InForm([this] {
        form2().Command3.SetFocus();
        TheDesk().RunPending();
        PostNamed("Enter");
        TheDesk().RunPending();
        EXPECT_FALSE(form2().IsLoaded());
    });
}

TEST_F(EntryFormTest, WhatTheStationLacksIsToldBeforeAnythingIsWritten) {
    struct Case {
        const char *call, *precedence, *check, *section, *told;
    };
    const Case cases[] = {
        {"W9ZZZ", "A", "72", "IL", ""},
        {"", "A", "72", "IL", "The entry will lack your call. It is typed in Settings, Setup."},
        {"W9ZZZ", "", "72", "IL", "The entry will lack your precedence. It is typed in Settings, Setup."},
        {"W9ZZZ", "A", " ", "", "The entry will lack your check, section. It is typed in Settings, Setup."},
        {"", "", "", "", "The entry will lack your call, precedence, check, section. It is typed in Settings, Setup."},
    };
    Start();
    for (const Case& one : cases) {
        Preferences& station = program->preferences;
        station.gOwnCall = one.call;
        station.gOwnPrec = one.precedence;
        station.gOwnCheck = one.check;
        station.gOwnSection = one.section;
        InForm([&] { EXPECT_EQ(form2().lblMissing.Caption(), one.told); });
    }
}

TEST_F(EntryFormTest, OperatorsAreTypedInCapitals) {
    Start();
    InForm([this] {
        form2().Text2.SetFocus();
        Type("k1aa w2/bb");
        EXPECT_EQ(form2().Text2.Text(), "K1AA W2/BB");
    });
}

TEST_F(EntryFormTest, CabrilloGoesToTheChosenFileAndIsTold) {
    Start();
    WriteCabrillo("/contest/entry.log");
    EXPECT_EQ(dialogs.boxes,
              (std::vector<std::string>{
                  R"(save "" "LOG Files (*.log) | *.log" "/contest" "/contest/W9ZZZ.log" prompt)",
                  "message \"File Written Successfully.\" \"The file was successfully written to the "
                  "directory:\r\n\r\n/contest/entry.log.\r\n\r\nAttach this file to an e-mail addressed for contest "
                  "submission.  If you wish to print this file, you can open it with Notepad or Wordpad to print.\" OK "
                  "Information",
                  "message \"  Thanks!\" \"Thanks for using Tallyhut Log, and good luck in the contest!\" OK None",
              }));
    EXPECT_TRUE(Content("entry.log").starts_with("START-OF-LOG: 3.0\r\nCREATED-BY: Q7ZZQ's Tallyhut Log 4.7\r\n"));
    EXPECT_TRUE(Content("entry.log").ends_with("SOAPBOX: \r\nEND-OF-LOG:\r\n"));
}

TEST_F(EntryFormTest, CategoriesGoByTheOptions) {
    Start();
    struct Row {
        Option Form2::*option;
        std::string line;
    };
    const std::vector<Row> rows{
        {&Form2::Option11, "CATEGORY-OPERATOR: SINGLE-OP\r\n"},
        {&Form2::Option12, "CATEGORY-OPERATOR: SINGLE-OP-ASSISTED\r\n"},
        {&Form2::Option13, "CATEGORY-OPERATOR: MULTI-OP\r\n"},
        {&Form2::Option14, "CATEGORY-OPERATOR: MULTI-TWO\r\n"},
        {&Form2::Option15, "CATEGORY-OPERATOR: MULTI-MULTI\r\n"},
        {&Form2::Option16, "CATEGORY-OPERATOR: MULTI-OP\r\n"},
        {&Form2::Option16, "CATEGORY-STATION: SCHOOL\r\n"},
        {&Form2::Option17, "CATEGORY-OPERATOR: CHECKLOG\r\n"},
        {&Form2::Option17, "CATEGORY-STATION: FIXED\r\n"},
        {&Form2::Option18, "CATEGORY-POWER: HIGH\r\n"},
        {&Form2::Option19, "CATEGORY-POWER: LOW\r\n"},
        {&Form2::Option20, "CATEGORY-POWER: QRP\r\n"},
        {&Form2::OptCatYes, "CATEGORY-ASSISTED: ASSISTED\r\n"},
        {&Form2::optCatNo, "CATEGORY-ASSISTED: NON-ASSISTED\r\n"},
    };
    for (const Row& row : rows) {
        dialogs.files.emplace_back("/contest/entry.log");
        InForm([&] {
            (form2().*row.option).SetValue(true);
            ClickInForm(form2().Command4);
        });
        EXPECT_NE(Content("entry.log").find(row.line), std::string::npos) << row.line;
    }
}

TEST_F(EntryFormTest, TextsOfTheFormStandInTheFileAndAreKeptTrimmedInBothStores) {
    Start();
    dialogs.files.emplace_back("/contest/entry.log");
    InForm([this] {
        form2().Text2.SetText("K1AA K1BB");
        form2().Text5.SetText(" Ren\xE9 ");
        form2().Text6.SetText("1 Main St ");
        form2().Text7.SetText(" Newington");
        form2().Text8.SetText("rene@example.net");
        form2().Text10.SetText("Sultans");
        form2().Text11.SetText("Fun!");
        ClickInForm(form2().Command4);
        EXPECT_TRUE(form2().Command3.HasFocus());
    });
    EXPECT_NE(Content("entry.log")
                  .find("OPERATORS: K1AA K1BB\r\nCLUB: Sultans\r\nNAME:  Ren\xE9 \r\nADDRESS: 1 Main St \r\n"
                        "ADDRESS:  Newington\r\nADDRESS: (e-mail) rene@example.net\r\nSOAPBOX: Fun!\r\n"),
              std::string::npos);
    EXPECT_EQ(settings.Get("Settings", "UserAddressName"), "Ren\xE9");
    EXPECT_EQ(settings.Get("Settings", "UserAddressLine1"), "1 Main St");
    EXPECT_EQ(settings.Get("Settings", "UserAddressLine2"), "Newington");
    EXPECT_EQ(settings.Get("Settings", "UserEMail"), "rene@example.net");
    EXPECT_EQ(settings.Get("Settings", "UserClubName"), "Sultans");
    const std::string shared = files.Read(program->shared.SharedXmlPath);
    for (const char* element :
         {"<OWN_ADDRESS_NAME>Ren\xE9</", "<OWN_ADDRESS_LINE1>1 Main St</", "<OWN_ADDRESS_LINE2>Newington</",
          "<OWN_EMAIL>rene@example.net</", "<OWN_CLUB_NAME>Sultans</"}) {
        EXPECT_NE(shared.find(element), std::string::npos) << element << '\n' << shared;
    }
}

TEST_F(EntryFormTest, SuggestedNameIsTheCallUpToItsFirstOddCharacter) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"W1AW/3", "W1AW"}, {"  K1AA ", "K1AA"}, {"", "YourCall"}, {"/P", "YourCall"}, {"W1aw", "W1"},
    };
    for (const auto& [call, stem] : rows) {
        Start(call);
        WriteCabrillo(std::nullopt);
        EXPECT_EQ(dialogs.boxes.back(),
                  "save \"\" \"LOG Files (*.log) | *.log\" \"/contest\" \"/contest/" + stem + ".log\" prompt");
    }
}

TEST_F(EntryFormTest, CancelSaysNothingAndStoresNothing) {
    Start();
    dialogs.files.emplace_back(std::nullopt);
    InForm([this] {
        form2().Text5.SetText("Rene");
        ClickInForm(form2().Command4);
        EXPECT_TRUE(form2().IsVisible());
    });
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(settings.Get("Settings", "UserAddressName"), "");
    EXPECT_EQ(Operations(), 0);
}

TEST_F(EntryFormTest, FullDiskLeavesThePartialFileAndStoresNothing) {
    Start();
    files.FailAt(1, "No space left on device");
    dialogs.files.emplace_back("/contest/entry.log");
    InForm([this] {
        form2().Text5.SetText("Rene");
        ClickInForm(form2().Command4);
        EXPECT_TRUE(form2().IsVisible());
    });
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"/contest/entry.log: No space left on device\" OK Exclamation");
    EXPECT_TRUE(Content("entry.log").starts_with("START-OF-LOG: 3.0\r\n"));
    EXPECT_EQ(Content("entry.log").find("END-OF-LOG:"), std::string::npos);
    EXPECT_EQ(settings.Get("Settings", "UserAddressName"), "");
}

TEST_F(EntryFormTest, PathThatCannotBeOpenedIsTold) {
    Start();
    WriteCabrillo("/nowhere/entry.log");
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"/nowhere/entry.log: No such file or directory\" OK Exclamation");
}

TEST_F(EntryFormTest, LogItselfIsNotWrittenOver) {
    PutLog({Worked("W1XX")});
    Start();
    WriteCabrillo("/contest/../contest/Log.txt");
    EXPECT_EQ(LogOnDisk(), LogText({Worked("W1XX")}));
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"/contest/../contest/Log.txt: This is the contest's own Log.txt. "
              "Choose another name.\" OK Exclamation");
}

TEST_F(EntryFormTest, FilesOfTheContestAreNotWrittenOver) {
    Start();
    files.Put("/contest/nsonoff.txt", "");
    for (const std::string name : {"nspref.txt", "nsonoff.txt"}) {
        const std::string before = Content(name);
        WriteCabrillo("/contest/" + name);
        EXPECT_EQ(Content(name), before);
        EXPECT_EQ(dialogs.boxes.back(), "message \"Unable to write file.\" \"/contest/" + name +
                                            ": This is the contest's own " + name +
                                            ". Choose another name.\" OK Exclamation");
    }
}

TEST_F(EntryFormTest, AnswersThatCannotBeKeptAreToldAndTheEntryIsWhole) {
    Start();
    settings.failure = "tallyhut.ini: The settings cannot be written";
    WriteCabrillo("/contest/entry.log");
    EXPECT_TRUE(Content("entry.log").ends_with("END-OF-LOG:\r\n"));
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"tallyhut.ini: The settings cannot be written\" OK Exclamation");
}

TEST_F(EntryFormTest, WritingChangesNothingInTheLog) {
    PutLog(ManyContacts(3));
    Start();
    const std::string before = Main().lblTotScore.Caption();
    WriteCabrillo("/contest/entry.log");
    EXPECT_EQ(LogOnDisk(), LogText(ManyContacts(3)));
    EXPECT_EQ(Main().lblTotScore.Caption(), before);
}

TEST_F(EntryFormTest, SummaryFileWarnsWritesAndClosesTheForm) {
    Start();
    bool closed = false;
    const int beeps = dialogs.beeps;
    InForm([&] {
        form2().Option2.SetValue(true);
        ClickInForm(form2().Command1);
        closed = !form2().IsLoaded();
    });
    EXPECT_TRUE(closed);
    EXPECT_EQ(dialogs.beeps, beeps + 1);
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kOldFormatLine}));
    EXPECT_TRUE(Content("ASCIISum.txt")
                    .starts_with("ARRL NOVEMBER SWEEPSTAKES CW CONTEST\r\n\r\n"
                                 "Call Used: W9ZZZ    ARRL Section: IL    License Class: Technician\r\n"));
}

TEST_F(EntryFormTest, SummaryFileThatCannotBeWrittenIsToldAndTheContestGoesOn) {
    Start();
    files.FailAt(1, "No space left on device");
    InForm([this] { ClickInForm(form2().Command1); });
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Tallyhut Log\" \"/contest/ASCIISum.txt: No space left on device\" OK Exclamation");
}

TEST_F(EntryFormTest, PrintedSummaryHasALargeHeadAndTheFormStaysOpen) {
    Start();
    InForm([this] {
        ClickInForm(form2().Command2);
        EXPECT_TRUE(form2().IsVisible());
    });
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kOldFormatLine}));
    ASSERT_EQ(printer.documents.size(), 1U);
    ASSERT_EQ(printer.documents.at(0).pages.size(), 1U);
    const auto& lines = printer.documents.at(0).pages.at(0);
    EXPECT_EQ(lines.at(0), (sim::PrintedLine{"ARRL NOVEMBER SWEEPSTAKES CW CONTEST", 16}));
    EXPECT_EQ(lines.at(2).points, kPrintPoints);
    EXPECT_EQ(lines.at(lines.size() - 4).text, "Name:               Call: W9ZZZ");
}

TEST_F(EntryFormTest, PrinterThatFailsIsToldAndTheContestGoesOn) {
    Start();
    printer.FailAt(1, "Out of paper");
    InForm([this] { ClickInForm(form2().Command2); });
    EXPECT_NE(dialogs.boxes.back().find("Out of paper"), std::string::npos);
    EXPECT_TRUE(dialogs.boxes.back().ends_with("OK Exclamation")) << dialogs.boxes.back();
}

TEST_F(EntryFormTest, CancelledPrintPrintsNothing) {
    Start();
    printer.cancels = true;
    InForm([this] { ClickInForm(form2().Command2); });
    EXPECT_TRUE(printer.documents.empty());
}

TEST_F(EntryFormTest, TheHeadIsThatOfCabrillo3OnlyWhereTheBoxIsTickedAndTheTickIsNotKept) {
    Start();
    dialogs.files = {"/contest/old.log", "/contest/new.log"};
    InForm([this] {
        EXPECT_FALSE(form2().chkCabrillo3.Value());
        form2().Option14.SetValue(true);
        ClickInForm(form2().Command4);
        form2().chkCabrillo3.SetValue(true);
        ClickInForm(form2().Command4);
    });
    EXPECT_NE(Content("old.log").find("\r\nARRL-SECTION: IL\r\n"), std::string::npos);
    EXPECT_NE(Content("old.log").find("\r\nCATEGORY-OPERATOR: MULTI-TWO\r\n"), std::string::npos);
    EXPECT_NE(Content("new.log").find("\r\nLOCATION: IL\r\n"), std::string::npos);
    EXPECT_NE(Content("new.log").find("\r\nCATEGORY-OPERATOR: MULTI-OP\r\nCATEGORY-TRANSMITTER: TWO\r\n"),
              std::string::npos);
    InForm([this] {
        ClickInForm(form2().cmdKept);
        EXPECT_TRUE(form2().Option14.Value());
        EXPECT_FALSE(form2().chkCabrillo3.Value());
    });
}

}  // namespace
}  // namespace tallyhut
