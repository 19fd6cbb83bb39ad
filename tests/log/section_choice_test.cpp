#include "log/section_choice.h"

#include <set>

#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kListPath = "/contest/Sections.txt";

std::string Line(const std::string& code, const std::string& heading = "1", const std::string& aliases = "") {
    return '"' + code + R"(","Name of )" + code + R"(",")" + heading + R"(","",")" + aliases + R"(","",0,"","","")" +
           "\r\n";
}

std::string Lines(int count, const std::string& heading) {
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += Line("S" + std::to_string(i), heading);
    }
    return text;
}

struct SectionChoiceTest : EditingFixture {
    void StartWithList(const std::string& text, const std::vector<Contact>& contacts = {}) {
        files.Put(kListPath, text);
        StartOnDesk(contacts);
    }
    /// Starts on a list that is refused, and gives the first box of the start.
    std::string BoxOfStart(const std::string& text) {
        files.Put(kListPath, text);
        files.Put(kPreferencesPath, WritePreferences(stored));
        files.Put(kLogPath, "");
        MakeProgram();
        pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
        dialogs.answers = {Answer::OK, Answer::Yes};
        program->Start();
        program->desk.RunPending();
        return dialogs.boxes.front();
    }
    SectionTable& Sections() { return program->sections; }
    const Place& PlaceOf(int i) { return Main().Label10(i).State().place; }
    void LogWith(std::string_view section) {
        Type("88aK1XX72");
        Fill(Main().txtSec, section);
        Press("Enter");
    }
};

TEST_F(SectionChoiceTest, AFolderWithoutAListHasTheToldSections) {
    StartOnDesk();
    EXPECT_EQ(Sections().Chosen(), nullptr);
    EXPECT_EQ(Sections().gSectionCount, 83);
    EXPECT_TRUE(Main().Label10(83).IsShown());
    for (int i = 84; i <= 100; ++i) {
        EXPECT_FALSE(Main().Label10(i).IsShown()) << i;
    }
}

TEST_F(SectionChoiceTest, TheListOfTheFolderIsTheListOfTheContest) {
    StartWithList(Line("NS", "Canada") + Line("CT"), {Worked("W1XX", "NS"), Worked("W2XX", "MDC")});
    EXPECT_EQ(Sections().gSectionCount, 2);
    EXPECT_EQ(Sections().gSectionsWorked, 1);
    EXPECT_EQ(Main().lblsectogo.Caption(), "  1");
    EXPECT_EQ(Main().Label10(1).Caption(), "NS");
    EXPECT_EQ(Main().Label10(1).State().toolTip, "Name of NS");
    EXPECT_EQ(Main().Label10(1).State().foreColor, stored.gColorWorked);
    EXPECT_EQ(Main().Label10(2).State().foreColor, stored.gColorNeeded);
    EXPECT_FALSE(Main().Label10(3).IsShown());
    LogWith("MDC");
    EXPECT_EQ(Dialog(), "Invalid Section");
    Fill(Main().txtSec, "CT");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 3U);
    EXPECT_EQ(Main().lblsectogo.Caption(), "0");
    EXPECT_EQ(Main().lblTotScore.Caption(), "12");  // 2 sections, 3 contacts, 2 points
}

TEST_F(SectionChoiceTest, ADamagedListIsToldWithLineAndReasonAndTheToldSectionsStand) {
    EXPECT_EQ(BoxOfStart(Line("CT") + Line("CT")),
              "message \"Sections\" \"The sections of this contest cannot be taken from /contest/Sections.txt.\n\n"
              "line 2: the code CT stands in line 1 already\n\n"
              "Until that is put right the contest has the sections of 2014.\" OK Exclamation");
    EXPECT_EQ(Sections().Chosen(), nullptr);
    EXPECT_EQ(Sections().gSectionCount, 83);
    EXPECT_EQ(files.contents.at(kListPath), Line("CT") + Line("CT")) << "the file is the operator's";
}

TEST_F(SectionChoiceTest, LabelsThatDoNotFitBelowAHeadingHaveASecondColumn) {
    StartWithList(Lines(14, "Canada") + Line("CT"));
    const double canada = Main().lblSecCA.State().place.left;
    for (int i = 1; i <= 12; ++i) {
        EXPECT_EQ(PlaceOf(i).left, canada) << i;
    }
    EXPECT_GT(PlaceOf(13).left, canada);
    EXPECT_EQ(PlaceOf(14).left, PlaceOf(13).left);
    EXPECT_EQ(PlaceOf(13).top, PlaceOf(1).top);
    EXPECT_EQ(PlaceOf(15).left, Main().lblSecOne.State().place.left);
}

TEST_F(SectionChoiceTest, AHundredSectionsHaveAHundredPlacesOnTheForm) {
    for (const std::string heading : {"1", "5", "0", "Canada"}) {
        StartWithList(Lines(100, heading));
        std::set<std::pair<double, double>> places;
        for (int i = 1; i <= 100; ++i) {
            const Place& place = PlaceOf(i);
            EXPECT_TRUE(Main().Label10(i).IsShown());
            EXPECT_TRUE(places.emplace(place.left, place.top).second) << i;
            EXPECT_LE(place.left + place.width, Main().FormPlace().width) << i;
            EXPECT_LE(place.top + place.height, Main().lblScoreCaption(1).State().place.top) << i;
        }
    }
}

TEST_F(SectionChoiceTest, AListPutInForceAndTakenBackLeavesTheToldPlaces) {
    StartOnDesk({Worked("W1XX")});
    const std::vector<Place> told{PlaceOf(1), PlaceOf(80), PlaceOf(83), Main().lblSecCA.State().place};
    files.Put(kListPath, Lines(100, "1"));
    program->logPart.sectionChoice.TakeFromFolder();
    program->layout.LayOutMainForm();
    EXPECT_NE(PlaceOf(80), told.at(1));
    files.Remove(kListPath);
    program->logPart.sectionChoice.TakeFromFolder();
    program->layout.LayOutMainForm();
    EXPECT_EQ((std::vector{PlaceOf(1), PlaceOf(80), PlaceOf(83), Main().lblSecCA.State().place}), told);
    EXPECT_FALSE(Main().Label10(84).IsShown());
    EXPECT_EQ(Sections().gSectionCount, 83);
}

TEST_F(SectionChoiceTest, AnAliasIsLoggedAsItsCode) {
    StartWithList(Line("MDC", "3", "MD DC"));
    LogWith("DC");
    ASSERT_EQ(LogLines().size(), 1U);
    EXPECT_NE(LogLines().front().find(R"("72","MDC",)"), std::string::npos);
    EXPECT_EQ(Sections().SectionQsos.at(1), 1);
    EXPECT_EQ(Main().lblsectogo.Caption(), "0");
}

TEST_F(SectionChoiceTest, AFieldKeepsItsAliasUntilTheCommit) {
    StartWithList(Line("MDC", "3", "MD DC"));
    FillAll("88", "A", "", "72", "MD");
    Press("Enter");
    EXPECT_EQ(Dialog(), "Need Call Sign!");
    EXPECT_EQ(Fields(), "88|A||72|MD");
}

TEST_F(SectionChoiceTest, AnAliasInTheEditFormIsStoredAsItsCode) {
    StartWithList(Line("CT") + Line("MDC", "3", "MD DC"), {Worked("W1XX", "CT")});
    ClickRow(0);
    Meanwhile([this] {
        Fill(EditForm().txtEditSec, "DC");
        Click(EditForm().cmdDone);
    });
    Click(Main().cmdEdit);
    EXPECT_FALSE(EditForm().IsLoaded());
    EXPECT_NE(LogOnDisk().find(R"("72","MDC",)"), std::string::npos);
    EXPECT_EQ(Sections().SectionQsos.at(2), 1);
}

TEST_F(SectionChoiceTest, TheToldSectionsKnowNoAlias) {
    StartOnDesk();
    LogWith("MD");
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(LogOnDisk(), "");
}

}  // namespace
}  // namespace tallyhut
