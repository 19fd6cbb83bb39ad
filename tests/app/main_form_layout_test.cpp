#include "app/main_form_layout.h"

#include "app/about.h"
#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kPercentBox =
    "input \"Please enter screen percentage.\" \"Enter the % of the screen you would like the form to cover.  Try "
    "between 90 and 100 for best results.  Values below 75 do not display well.\" \"100\"";
constexpr const char* kRestartBoxLine =
    "message \"For this setting to take effect please restart this program.\" \"This program must be closed and "
    "restarted for this setting to take effect.\" OK Information";

struct MainFormLayoutTest : ProgramFixture {
    void SetScreen(ScreenSize whole, ScreenSize workArea) {
        screen.whole = whole;
        screen.workArea = workArea;
    }
    std::string Stored() const { return files.contents.at(kPreferencesPath); }
    void AnswerFormSize(const std::string& percent) {
        dialogs.inputs = {percent};
        dialogs.boxes.clear();
        ChooseMenu(Main().mnuFormSize);
    }
};

TEST_F(MainFormLayoutTest, OnTheDesignScreenEveryControlIsAsDesigned) {
    Start();
    EXPECT_EQ(Main().FormPlace(), (Place{0, 0, 9600, 7200}));
    for (const Control* control : Main().Controls()) {
        EXPECT_EQ(control->State().place, control->Design()->place) << control->FullName();
        EXPECT_EQ(control->State().fontSize, control->Design()->fontSize) << control->FullName();
        EXPECT_EQ(control->State().columns, control->Design()->columns) << control->FullName();
    }
}

TEST_F(MainFormLayoutTest, OnAScreenTwiceAsLargePlacesDoubleAndTextGrowsByHalf) {
    SetScreen({19200, 14400}, {19200, 13800});
    Start();
    EXPECT_EQ(Main().FormPlace(), (Place{0, 0, 19200, 14400}));
    EXPECT_EQ(Main().txtCall.State().place, (Place{3150, 1680, 4380, 960}));
    EXPECT_EQ(Main().txtCall.State().fontSize, 27);
    EXPECT_EQ(Main().ListView1.State().columns.front().width, 1040);
    const Place& section = Main().Label10(1).State().place;
    EXPECT_EQ(section.left, Main().lblSecOne.State().place.left);
    EXPECT_EQ(section.top, 2 * Main().Label10(1).Design()->place.top);
}

TEST_F(MainFormLayoutTest, PercentIsOfTheWholeScreen) {
    stored.gFormScale = 90;
    stored.gTaskbar = 1;  // speaks of a form of 100 percent alone
    SetScreen({20000, 10000}, {20000, 9000});
    Start();
    EXPECT_EQ(Main().FormPlace(), (Place{1000, 330, 18000, 9000}));
    EXPECT_EQ(Main().txtNum.State().place.left, 180 * 18000.0 / 9600);
}

TEST_F(MainFormLayoutTest, TaskbarOptionLeavesTheTaskbarOut) {
    stored.gTaskbar = 1;
    SetScreen({19200, 14400}, {19200, 13800});
    Start();
    EXPECT_EQ(Main().FormPlace(), (Place{0, 0, 19200, 13800}));
    EXPECT_TRUE(Main().mnuTaskbar.Checked());
}

TEST_F(MainFormLayoutTest, TaskbarEntryTogglesStoresAndLaysOutAnew) {
    SetScreen({19200, 14400}, {19200, 13800});
    Start();
    EXPECT_FALSE(Main().mnuTaskbar.Checked());
    for (const int value : {1, 0}) {
        ChooseMenu(Main().mnuTaskbar);
        EXPECT_EQ(program->preferences.gTaskbar, value);
        EXPECT_EQ(Main().mnuTaskbar.Checked(), value == 1);
        EXPECT_EQ(Stored(), WritePreferences(program->preferences));
        EXPECT_EQ(Main().FormPlace().height, value == 1 ? 13800 : 14400);
        EXPECT_EQ(Main().txtCall.State().fontSize, 27) << "laid out from the design, not from the last layout";
    }
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

TEST_F(MainFormLayoutTest, FormSizeOtherThan100RefusesTheTaskbarOption) {
    stored.gFormScale = 90;
    Start();
    ChooseMenu(Main().mnuTaskbar);
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{"message \"Please set your form size to 100% to use this option.\" \"The form "
                                       "size must be set to 100% to use the taskbar display option.\" OK Exclamation"});
    EXPECT_EQ(program->preferences.gTaskbar, 0);
    EXPECT_FALSE(Main().mnuTaskbar.Checked());
    EXPECT_EQ(Operations(), 0);
}

TEST_F(MainFormLayoutTest, AnswersOfFormSizeStayWithinTheirLimits) {
    Start();
    const std::pair<const char*, float> cases[] = {{"20", 30},   {"150", 100}, {"90", 90}, {"87.5", 87.5},
                                                   {" 95 ", 95}, {"-5", 30},   {"0", 30},  {"1e30", 100}};
    for (const auto& [answer, percent] : cases) {
        program->preferences.gFormScale = 100;
        AnswerFormSize(answer);
        EXPECT_EQ(program->preferences.gFormScale, percent) << answer;
        EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kPercentBox, kRestartBoxLine})) << answer;
        EXPECT_EQ(Stored(), WritePreferences(program->preferences)) << answer;
    }
}

TEST_F(MainFormLayoutTest, NewFormSizeIsTakenByTheNextStart) {
    Start();
    AnswerFormSize("50");
    EXPECT_EQ(Main().FormPlace().width, 9600);
    program.reset();
    StartContinuing();
    EXPECT_EQ(Main().FormPlace().width, 4800);
    EXPECT_EQ(Main().txtCall.State().fontSize, 9);
}

TEST_F(MainFormLayoutTest, PresentFormSizeIsOffered) {
    stored.gFormScale = 92.5;
    Start();
    AnswerFormSize("92.5");
    EXPECT_EQ(dialogs.boxes.front().substr(dialogs.boxes.front().size() - 7), " \"92.5\"");
}

TEST_F(MainFormLayoutTest, AnswerThatIsNoNumberIsToldAndChangesNothing) {
    Start();
    for (const char* answer : {"", "large", "90%"}) {
        AnswerFormSize(answer);
        EXPECT_EQ(dialogs.boxes,
                  (std::vector<std::string>{
                      kPercentBox, R"(message "Numeric Values Required" "Please enter only numeric values." OK )"
                                   "Exclamation"}))
            << answer;
        EXPECT_EQ(program->preferences.gFormScale, 100) << answer;
    }
    EXPECT_EQ(Operations(), 0);
}

TEST_F(MainFormLayoutTest, ACancelIsNoErrorAndChangesNothing) {
    Start();
    dialogs.boxes.clear();
    dialogs.inputs.clear();
    program->layout.mnuFormSize_Click();
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kPercentBox}));
    EXPECT_EQ(program->preferences.gFormScale, 100);
}

TEST_F(MainFormLayoutTest, StoredSizeBeyondTheLimitsIsNotFollowed) {
    stored.gFormScale = 1;
    Start();
    EXPECT_EQ(Main().FormPlace().width, 2880);
}

TEST_F(MainFormLayoutTest, ScreenWithoutASizeIsToldAndTheFormStaysAsDesigned) {
    SetScreen({0, 0}, {0, 0});
    MakeProgram();
    program->layout.LayOutMainForm();
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{"message \"Form Resize Error\" \"A form cannot be scaled from 9600 by 7200 to 0 "
                                       "by 0.\" OK Exclamation"});
    EXPECT_EQ(Main().FormPlace(), (Place{0, 0, 9600, 7200}));
}

TEST_F(MainFormLayoutTest, RoomForSpotsIsLaidOutBehindTheRest) {
    Start();
    double formWidth = 0;
    program->layout.PacketResize = [&] { formWidth = Main().FormPlace().width; };
    SetScreen({19200, 14400}, {19200, 13800});
    ChooseMenu(Main().mnuTaskbar);
    EXPECT_EQ(formWidth, 19200);
}

TEST_F(MainFormLayoutTest, FormsTakeTheirShareOfTheScreenAtEachLoad) {
    SetScreen({19200, 14400}, {19200, 14400});
    StartWith({Worked("W1XX")});
    for (int time = 1; time <= 2; ++time) {
        program->editForm.Load();
        EXPECT_EQ(program->editForm.FormPlace(), (Place{5040, 2530, 9120, 9000})) << time;
        EXPECT_EQ(program->editForm.txtEditCall.State().fontSize, 16.5) << time;
        program->editForm.Unload();
    }
    program->stationForm.Load();
    EXPECT_EQ(program->stationForm.FormPlace().width, 13440);
    EXPECT_EQ(program->logo.FormPlace().width, 7200);
}

TEST_F(MainFormLayoutTest, MenusHaveTheirEntriesInOrder) {
    Start();
    const auto entries = [](const MenuEntry& menu) {
        std::string text = menu.Caption();
        for (const MenuEntry* entry : menu.Entries()) {
            text += " | " + entry->name + ' ' + entry->Caption();
        }
        return text;
    };
    EXPECT_EQ(entries(Main().mnuAppearance),
              "&Appearance | mnuFormSize &Form Size | mnuTaskbar &Taskbar | mnuColors &Colors | mnuDXSpotsColor Color "
              "&Needed DX Spots Green | mnuAudioAlert &Audio Alert of Needed Spots | mnuLook &Look");
    EXPECT_EQ(entries(Main().mnuLook), "&Look | mnuLookDesktop &Desktop | mnuLookLight &Light | mnuLookDark D&ark");
    EXPECT_EQ(entries(Main().mnuHelpTitle), "&Help | mnuHelp &Help | mnuAbout &About");
    EXPECT_EQ(Main().Menus().back(), &Main().mnuHelpTitle);
}

TEST_F(MainFormLayoutTest, AboutTellsNameVersionAndLicence) {
    Start();
    ChooseMenu(Main().mnuAbout);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{
                                 "message \"About Tallyhut Log\" \"Tallyhut Log " + std::string{ProgramVersion()} +
                                 "\r\n\r\nA contest logger for the ARRL November Sweepstakes.\r\n\r\nFree "
                                 "software under the MIT licence.\" OK Information"});
}

TEST_F(MainFormLayoutTest, HelpOpensThePageOfTheFolder) {
    files.Put("/contest/readns.txt", "LOG\r\n");
    Start();
    std::string shown;
    pump.OnWait([&] {
        shown = program->helpForm.Text1.Text();
        TheDesk().PostClick(program->helpForm.Command2, kLeftButton);
        TheDesk().PostClick(program->helpForm.Command1, kLeftButton);
    });
    ChooseMenu(Main().mnuHelp);
    EXPECT_EQ(shown, "LOG\r\n");
    EXPECT_EQ(files.contents.at("/contest/HelpSB.txt"), "\"LOG\"\r\n");
    EXPECT_FALSE(program->helpForm.IsLoaded());
}

}  // namespace
}  // namespace tallyhut
