#include <gtest/gtest.h>

#include "forms/qt/desktop_look.h"
#include "forms/qt/theme.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

struct LookTest : testing::Test {
    LookTest() {
        program.look.show = [this](WindowLook look) { desktop.Show(look); };
    }
    ~LookTest() override { QApplication::setPalette(before); }
    LookTest(const LookTest&) = delete;
    LookTest& operator=(const LookTest&) = delete;
    LookTest(LookTest&&) = delete;
    LookTest& operator=(LookTest&&) = delete;

    void Choose(MenuEntry& entry) {
        program.desk.PostMenu(entry);
        shown.Settle();
    }
    bool IsDark() { return ThemeOf(shown.WindowOf(program.form1).palette()).dark; }
    /// In the middle of the edge between the panels.
    QColor Ground() { return shown.WindowOf(program.form1).grab().toImage().pixelColor(2, 300); }
    std::string Marked() {
        std::string marked;
        for (const MenuEntry* entry : program.form1.mnuLook.Entries()) {
            marked += entry->Checked() ? entry->name : "";
        }
        return marked;
    }

    QPalette before = QApplication::palette();
    ShownProgram shown;
    ProgramUnits& program = shown.program;
    DesktopLook desktop;
};

TEST_F(LookTest, DarkWindowsAreDrawnDarkAndLightOnesLightAtOnce) {
    Choose(program.form1.mnuLookDark);
    EXPECT_TRUE(IsDark());
    EXPECT_LT(Ground().lightness(), 64);
    Choose(program.form1.mnuLookLight);
    EXPECT_FALSE(IsDark());
    EXPECT_GT(Ground().lightness(), 192);
}

TEST_F(LookTest, TheChoiceIsStoredForThisMachineAndMarkedAtTheNextStart) {
    EXPECT_EQ(Marked(), "");
    program.look.ShowStored();
    EXPECT_EQ(Marked(), "mnuLookDesktop");
    Choose(program.form1.mnuLookDark);
    EXPECT_EQ(shown.settings.Get("Machine", "Look"), "Dark");
    EXPECT_EQ(Marked(), "mnuLookDark");
    shown.settings.Set("Machine", "Look", "Light");
    program.look.ShowStored();
    EXPECT_EQ(Marked(), "mnuLookLight");
    shown.Settle();
    EXPECT_FALSE(IsDark());
}

TEST_F(LookTest, AChoiceThatIsNoneIsTheDesktops) {
    shown.settings.Set("Machine", "Look", "Pink");
    program.look.ShowStored();
    EXPECT_EQ(Marked(), "mnuLookDesktop");
}

}  // namespace
}  // namespace tallyhut
