#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

using Texts = std::vector<std::string>;

const std::string kFile = "/elsewhere/w9zzz.log";
const std::string kTarget = "/contests/imported";

const std::string kEntry =
    "START-OF-LOG: 3.0\n"
    "CALLSIGN: W9ZZZ\n"
    "LOCATION: IL\n"
    "CONTEST: ARRL-SS-SSB\n"
    "QSO: 7250 PH 2026-11-21 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n"
    "QSO: 7250 PH 2026-11-21 2106 W9ZZZ 2 A 72 IL K1AB 12 B 63 CT\n"
    "QSO: 14250 PH 2026-11-21 2108 W9ZZZ 3 A 72 IL W1XX 89 A 72 MDC\n"
    "X-QSO: 14250 PH 2026-11-21 2108 W9ZZZ 3 A 72 IL W1XX 89 A 72 MDC\n"
    "QSO: 14250 PH 2026-11-21 2109 W9ZZZ 4 A 72 IL VE1XX 89 A 72 NS\n"
    "QSO: a line that is none\n"
    "END-OF-LOG:\n";

const std::string kImported = R"("1","88","A","W1XX","72","MDC","2026/11/21","21:04","40","7.250")"
                              "\r\n"
                              R"("2","12","B","K1AB","63","CT","2026/11/21","21:06","40","7.250")"
                              "\r\n"
                              R"("3","89","A","W1XX","72","MDC","2026/11/21","21:08","20","14.250")"
                              "\r\n"
                              R"("4","89","A","VE1XX","72","NS","2026/11/21","21:09","20","14.250")"
                              "\r\n";

const std::string kList =
    "\"MDC\",\"Maryland-DC\",\"3\",\"\",\"MD\",\"\",291,\"\",\"\",\"\"\r\n"
    "\"NS\",\"Nova Scotia\",\"Canada\",\"\",\"\",\"NS\",1,\"\",\"\",\"\"\r\n";

struct LogImportTest : ProgramFixture {
    std::string summary;  ///< of the report that was shown last
    Texts rows;

    void SetUp() override {
        stored.gOwnCall = "K9OLD";
        stored.gUtcOffset = 5;
        files.AddFolder("/contests");
        StartWith({Worked("N0AA")});
    }
    frmImport& Report() { return program->importPart.importForm; }
    std::string Content(const std::string& path) const {
        return files.contents.contains(path) ? files.contents.at(path) : "no file";
    }
    Texts Rows() {
        Texts shown;
        for (std::size_t row = 0; row < Report().lstReport.RowCount(); ++row) {
            shown.push_back(Report().lstReport.Cell(row, 0) + ": " + Report().lstReport.Cell(row, 1));
        }
        return shown;
    }
    /// Imports the text from a file into a folder. Keeps what the report says before it is closed.
    void Import(const std::string& text, const std::optional<std::string>& folder = kTarget) {
        files.Put(kFile, text);
        dialogs.files = {kFile, folder};
        dialogs.boxes.clear();
        summary.clear();
        rows.clear();
        program->importPart.importForm.Form_Activate = [this] {
            summary = Report().lblReport.Caption();
            rows = Rows();
            TheDesk().PostClick(Report().cmdDone, kLeftButton);
        };
        ChooseMenu(Main().mnuImport);
    }
    /// The last box.
    std::string Told() const { return dialogs.boxes.empty() ? "" : dialogs.boxes.back(); }
    void EraseTarget() {
        std::erase_if(files.contents, [](const auto& file) { return file.first.starts_with(kTarget + '/'); });
    }
};

TEST_F(LogImportTest, WritesLogAndSettingsIntoAFolderThatItMakes) {
    Import(kEntry);
    EXPECT_EQ(Content(kTarget + "/Log.txt"), kImported);
    Preferences written;
    ReadPreferences(Content(kTarget + "/nspref.txt"), written);
    EXPECT_EQ(written.gOwnCall, "W9ZZZ");
    EXPECT_EQ(written.gOwnPrec, "A");
    EXPECT_EQ(written.gOwnCheck, "72");
    EXPECT_EQ(written.gOwnSection, "IL");
    EXPECT_EQ(written.gContestMode, 1);
    EXPECT_EQ(written.gUtcOffset, 5);
    EXPECT_NE(Content(kTarget + "/wave2.txt"), "no file");
    EXPECT_FALSE(Report().IsLoaded());
}

TEST_F(LogImportTest, AsksForTheFileAndThenForTheFolder) {
    Import(kEntry);
    ASSERT_EQ(dialogs.boxes.size(), 2U);
    EXPECT_TRUE(dialogs.boxes[0].starts_with("open \"Import a log\" ")) << dialogs.boxes[0];
    EXPECT_TRUE(dialogs.boxes[1].starts_with("folder \"Choose a folder without contacts for the imported log\" "));
}

TEST_F(LogImportTest, ReportNamesEachLineThatWasNotUnderstoodAndWhatCountsOtherwise) {
    Import(kEntry);
    EXPECT_EQ(summary, "4 contacts, 2 sections, score 16, now in /contests/imported. 2 lines were not imported.");
    EXPECT_EQ(rows, (Texts{"7: Kept: a duplicate of contact 1", "8: Left out: marked as not counting (X-QSO)",
                           "9: Kept: NS is no section of the list", "10: Not understood: a contact has 14 words"}));
}

TEST_F(LogImportTest, TheContestThatIsOpenStaysOpenAndAsItIs) {
    const std::string before = LogOnDisk();
    const std::string settingsBefore = Content(kPreferencesPath);
    Import(kEntry);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(Content(kPreferencesPath), settingsBefore);
    EXPECT_EQ(program->directories.WorkingDirectory, kFolder);
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(LogImportTest, TheImportedContestStartsAndCountsAsReported) {
    Import(kEntry);
    MakeProgram();
    program.reset();
    program = std::make_unique<ProgramUnits>(Lend(), kTarget);
    pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
    dialogs.answers = {Answer::Yes};
    program->Start();
    program->desk.RunPending();
    EXPECT_EQ(program->log.gContactCount(), 4);
    EXPECT_EQ(program->sections.gSectionsWorked, 2);
    EXPECT_EQ(Main().lblTotScore.Caption(), "  16");
    EXPECT_EQ(Main().Label2.Caption(), "W9ZZZ");
}

TEST_F(LogImportTest, AFolderThatHoldsContactsIsRefused) {
    files.Put(kTarget + "/Log.txt", "\"1\"\r\n");
    Import(kEntry);
    EXPECT_NE(Told().find("This folder holds contacts"), std::string::npos) << Told();
    EXPECT_EQ(Content(kTarget + "/Log.txt"), "\"1\"\r\n");
    EXPECT_EQ(Content(kTarget + "/nspref.txt"), "no file");
    EXPECT_EQ(summary, "");
}

TEST_F(LogImportTest, AFolderWithAnEmptyLogIsTakenAndItsOtherSettingsStay) {
    Preferences there;
    there.gFormScale = 70;
    there.gOwnCall = "K9OTHER";
    files.Put(kTarget + "/Log.txt", "\r\n");
    files.Put(kTarget + "/nspref.txt", WritePreferences(there));
    Import(kEntry);
    EXPECT_EQ(Content(kTarget + "/Log.txt"), kImported);
    Preferences written;
    ReadPreferences(Content(kTarget + "/nspref.txt"), written);
    EXPECT_EQ(written.gFormScale, 70);
    EXPECT_EQ(written.gOwnCall, "W9ZZZ");
}

TEST_F(LogImportTest, TheFolderOfTheOpenContestIsRefused) {
    const std::string before = LogOnDisk();
    for (const char* folder : {kFolder, "/contest/", "/contest/."}) {
        Import(kEntry, folder);
        EXPECT_NE(Told().find("Nothing was imported."), std::string::npos) << folder;
        EXPECT_EQ(LogOnDisk(), before);
    }
}

TEST_F(LogImportTest, AFolderInUseByAnotherProgramIsRefused) {
    files.AddFolder(kTarget);
    files.lockedFolders.insert(kTarget);
    Import(kEntry);
    EXPECT_NE(Told().find("A Tallyhut Log is running in this folder"), std::string::npos) << Told();
    EXPECT_EQ(Content(kTarget + "/Log.txt"), "no file");
}

TEST_F(LogImportTest, AFolderThatCannotBeWrittenIsToldAndLosesNothing) {
    files.AddFolder(kTarget);
    files.readOnlyFolders.insert(kTarget);
    Import(kEntry);
    EXPECT_TRUE(Told().starts_with("message \"Import\" \"Nothing was imported.")) << Told();
    EXPECT_EQ(Content(kTarget + "/Log.txt"), "no file");
}

TEST_F(LogImportTest, AFailureAtAnyStepLeavesNoHalfContest) {
    constexpr int kSteps = 5;  // the log, three data files, the settings
    files.AddFolder(kTarget);
    for (const bool emptyLogIsThere : {false, true}) {
        for (int step = 1; step <= kSteps; ++step) {
            EraseTarget();
            if (emptyLogIsThere) {
                files.Put(kTarget + "/Log.txt", "");
            }
            files.FailAt(step, "No space left on device");
            Import(kEntry);
            EXPECT_NE(Told().find("No space left on device"), std::string::npos) << step << Told();
            EXPECT_EQ(Content(kTarget + "/Log.txt"), emptyLogIsThere ? "" : "no file") << step;
            EXPECT_EQ(files.FilesIn(kTarget).size(), emptyLogIsThere ? 1U : 0U) << step;
            EXPECT_EQ(summary, "");
        }
    }
    Import(kEntry);
    EXPECT_EQ(Content(kTarget + "/Log.txt"), kImported);
}

TEST_F(LogImportTest, CancelChangesNothing) {
    Import(kEntry, std::nullopt);
    EXPECT_EQ(Operations(), 0);
    EXPECT_EQ(summary, "");
    dialogs.files = {std::nullopt};
    ChooseMenu(Main().mnuImport);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogImportTest, AFileWithoutAContactIsReportedAndNoFolderAskedFor) {
    Import("START-OF-LOG: 3.0\nQSO: none\n");
    EXPECT_EQ(summary, "No contact of /elsewhere/w9zzz.log was imported, and nothing was written.");
    EXPECT_EQ(rows, Texts{"2: Not understood: a contact has 14 words"});
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogImportTest, WhatIsNoLogIsTold) {
    for (const std::string& text : {std::string{}, std::string(100'000, '\0'), std::string(100'000, 'x')}) {
        Import(text);
        EXPECT_NE(Told().find("It holds neither Cabrillo nor ADIF"), std::string::npos) << Told();
    }
    Import(LogOnDisk());
    EXPECT_NE(Told().find("This is a log of this program. File, Restore opens it."), std::string::npos) << Told();
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogImportTest, AFileThatCannotBeReadIsTold) {
    dialogs.files = {"/elsewhere/gone.log"};
    ChooseMenu(Main().mnuImport);
    EXPECT_TRUE(Told().starts_with("message \"Import\" \"Nothing was imported.\r\n\r\n/elsewhere/gone.log: "));
}

TEST_F(LogImportTest, MoreContactsThanALogHoldsAreRefusedAsAWhole) {
    std::string text;
    for (int n = 0; n <= ContactLog::kMostContacts; ++n) {
        text += "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n";
    }
    Import(text);
    EXPECT_NE(Told().find("It holds 11001 contacts, and a log at most 11000."), std::string::npos) << Told();
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogImportTest, AdifIsImportedAndItsIncompleteRecordsReported) {
    Import(
        "<call:4>W1XX <qso_date:8>20261107 <time_on:4>2104 <band:3>40M <mode:2>CW <stx:1>1 <srx:2>88 "
        "<precedence:1>A <check:2>72 <arrl_sect:3>MDC <station_callsign:5>W9ZZZ <eor>\n"
        "<call:4>K1AB <qso_date:8>20261107 <time_on:4>2104 <band:3>40M <mode:2>CW <eor>\n");
    EXPECT_EQ(Content(kTarget + "/Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04\",\"40\",\"\"\r\n");
    EXPECT_EQ(summary, "1 contact, 1 section, score 2, now in /contests/imported. 1 line was not imported.");
    EXPECT_EQ(rows, Texts{"2: Incomplete, not imported: it lacks STX, SRX, PRECEDENCE, CHECK, ARRL_SECT"});
}

TEST_F(LogImportTest, AListOfTheFolderDecidesAndItsAliasesBecomeCodes) {
    files.Put(kTarget + "/Sections.txt", kList);
    std::string entry = kEntry;
    entry.replace(entry.find("MDC"), 3, "MD ");
    Import(entry);
    EXPECT_TRUE(Content(kTarget + "/Log.txt").starts_with(R"("1","88","A","W1XX","72","MDC",)"));
    EXPECT_EQ(summary, "4 contacts, 2 sections, score 16, now in /contests/imported. 2 lines were not imported.");
    ASSERT_GE(rows.size(), 2U);
    EXPECT_EQ(rows[0], "3: Not taken as the own section: it is none of the list");
    EXPECT_EQ(rows[1], "6: Kept: CT is no section of the list");
}

TEST_F(LogImportTest, ADamagedListOfTheFolderIsToldAndNothingWritten) {
    files.Put(kTarget + "/Sections.txt", "\"MDC\"\r\n");
    Import(kEntry);
    EXPECT_NE(Told().find("/contests/imported/Sections.txt: line 1: "), std::string::npos) << Told();
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogImportTest, TheListOfTheOpenContestGoesAlong) {
    files.Put("/contest/Sections.txt", kList);
    program->logPart.sectionChoice.TakeFromFolder();
    Import(kEntry);
    EXPECT_EQ(Content(kTarget + "/Sections.txt"), kList);
    ASSERT_GE(rows.size(), 2U);
    EXPECT_EQ(rows[0], "3: Not taken as the own section: it is none of the list");
    EXPECT_EQ(rows[1], "6: Kept: CT is no section of the list");
}

TEST_F(LogImportTest, TheOwnSectionIsTheFirstThatTheListHolds) {
    for (const std::string location : {"LOCATION: DX", "LOCATION: 12 Main Street, Springfield"}) {
        std::string entry = kEntry;
        entry.replace(entry.find("LOCATION: IL"), 12, location);
        EraseTarget();
        Import(entry);
        Preferences written;
        ReadPreferences(Content(kTarget + "/nspref.txt"), written);
        EXPECT_EQ(written.gOwnSection, "IL") << location;
        ASSERT_FALSE(rows.empty());
        EXPECT_EQ(rows[0], "3: Not taken as the own section: it is none of the list");
    }
}

TEST_F(LogImportTest, AnAliasOfTheOwnSectionBecomesItsCode) {
    files.Put(kTarget + "/Sections.txt", kList);
    std::string entry = kEntry;
    entry.replace(entry.find("LOCATION: IL"), 12, "LOCATION: MD");
    Import(entry);
    Preferences written;
    ReadPreferences(Content(kTarget + "/nspref.txt"), written);
    EXPECT_EQ(written.gOwnSection, "MDC");
}

TEST_F(LogImportTest, TheReportIsModalAndEscClosesIt) {
    files.Put(kFile, kEntry);
    dialogs.files = {kFile, kTarget};
    bool modal = false;
    pump.OnWait([this, &modal] {
        modal = Report().IsModal();
        PostNamed("Esc");
    });
    ChooseMenu(Main().mnuImport);
    EXPECT_TRUE(modal);
    EXPECT_FALSE(Report().IsLoaded());
}

TEST_F(LogImportTest, TheMessageLineTellsOfALongFileWhileItIsRead) {
    const std::string before = Dialog();
    std::string during;
    TheDesk().outlets.controlChanged = [this, &during](Control& control) {
        if (&control == &Main().lblDialog && during.empty()) {
            during = Dialog();
        }
    };
    Import(kEntry + std::string(6'000'000, '\n'));
    EXPECT_EQ(during, "Reading w9zzz.log, 6 MB ...");
    EXPECT_EQ(Dialog(), before);
}

TEST_F(LogImportTest, TheReportIsSpokenOnce) {
    std::vector<std::string> spoken;
    TheDesk().outlets.announced = [&spoken](std::string_view words) { spoken.emplace_back(words); };
    Import(kEntry);
    EXPECT_EQ(spoken, Texts{"4 contacts, 2 sections, score 16, now in /contests/imported. 2 lines were not imported."});
}

}  // namespace
}  // namespace tallyhut
