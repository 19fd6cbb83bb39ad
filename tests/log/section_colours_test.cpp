#include "log/section_colours.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr int kCt = 1;
constexpr int kMdc = 16;

struct SectionColoursTest : ProgramFixture {
    SectionColoursTest() {
        stored.gColorWorked = 0x112233;
        stored.gColorNeeded = 0x445566;
    }
    Form6& Dialog6() { return program->colourForm; }
    Colour ColourOf(int section) { return Main().Label10(section).State().foreColor; }
    std::string Stored() const { return files.contents.at(kPreferencesPath); }
    /// Opens the dialog and runs the steps while it is open.
    void WithDialog(const std::function<void()>& steps) {
        pump.OnWait(steps);
        ChooseMenu(Main().mnuColors);
    }
    void Close() { TheDesk().PostClick(Dialog6().Command6, kLeftButton); }
};

TEST_F(SectionColoursTest, DialogShowsBothTextsInTheirColours) {
    Start();
    std::vector<Colour> shown;
    WithDialog([&] {
        shown = {Dialog6().Label1.State().foreColor, Dialog6().Label2.State().foreColor};
        Close();
    });
    EXPECT_EQ(shown, (std::vector<Colour>{0x112233, 0x445566}));
    EXPECT_EQ(Dialog6().Caption(), " Modify Multiplier Color Selections");
    EXPECT_EQ(Dialog6().Label1.Caption(), "Appearance of multiplier worked");
    EXPECT_EQ(Dialog6().Label2.Caption(), "Appearance of multiplier remaining");
    EXPECT_EQ(Dialog6().Command3.Caption(), "Change \"Worked\" Color");
    EXPECT_EQ(Dialog6().Command1.Caption(), "Change \"Remaining\" Color");
}

TEST_F(SectionColoursTest, ChosenColourIsStoredAndShownAtOnceAndReachesTheGridByTheReload) {
    StartWith({Worked("W1XX", "MDC")});
    dialogs.colours = {0xABCDEF, 0x010203};
    std::vector<Colour> whileOpen;
    WithDialog([&] {
        TheDesk().PostClick(Dialog6().Command3, kLeftButton);
        TheDesk().PostClick(Dialog6().Command1, kLeftButton);
        TheDesk().PostAction([&] {
            whileOpen = {program->preferences.gColorWorked,
                         program->preferences.gColorNeeded,
                         Dialog6().Label1.State().foreColor,
                         Dialog6().Label2.State().foreColor,
                         ColourOf(kMdc),
                         ColourOf(kCt)};
        });
        Close();
    });
    EXPECT_EQ(whileOpen, (std::vector<Colour>{0xABCDEF, 0x010203, 0xABCDEF, 0x010203, 0x112233, 0x445566}));
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{"colour 1122867", "colour 4478310"}));
    EXPECT_EQ(ColourOf(kMdc), 0xABCDEF);
    EXPECT_EQ(ColourOf(kCt), 0x010203);
    EXPECT_EQ(Main().lblLegend(0).State().foreColor, 0x010203) << "needed";
    EXPECT_EQ(Main().lblLegend(1).State().foreColor, 0xABCDEF) << "worked";
    EXPECT_TRUE(Main().lblLegend(0).State().bold);
    EXPECT_FALSE(Main().lblLegend(1).State().bold);
    EXPECT_EQ(Stored(), WritePreferences(program->preferences));
    EXPECT_FALSE(Dialog6().IsLoaded());
}

TEST_F(SectionColoursTest, CancelledColourDialogChangesNothing) {
    Start();
    dialogs.colours = {std::nullopt};
    WithDialog([&] {
        TheDesk().PostClick(Dialog6().Command3, kLeftButton);
        Close();
    });
    EXPECT_EQ(program->preferences.gColorWorked, 0x112233);
    EXPECT_EQ(ColourOf(kMdc), 0x445566);
}

TEST_F(SectionColoursTest, CloseBoxKeepsWhatWasChosen) {
    StartWith({Worked("W1XX", "MDC")});
    dialogs.colours = {0xABCDEF};
    WithDialog([&] {
        TheDesk().PostClick(Dialog6().Command3, kLeftButton);
        TheDesk().PostAction([this] { Dialog6().RequestClose(); });
    });
    EXPECT_EQ(ColourOf(kMdc), 0xABCDEF);
    EXPECT_EQ(Stored(), WritePreferences(program->preferences));
}

}  // namespace
}  // namespace tallyhut
