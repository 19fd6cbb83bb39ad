#include <csignal>
#include <filesystem>
#include <utility>

#include "tests/window/window_fixture.h"

namespace tallyhut {
namespace {

/// Where the first rows of the contacts are on a screen of 1280 by 800.
struct Area {
    int x, y, width, height;
};
constexpr Area kList{20, 352, 580, 60};
/// In the message line, behind its text.
constexpr int kMessageX = 780;
constexpr int kMessageY = 167;

struct EntryWindowTest : WindowTest {};

TEST_F(EntryWindowTest, KeysFindTheirFieldsAndEnterLogsTheContact) {
    window.Type("88aw1xx72mdc");
    EXPECT_EQ(Log(), "");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
    window.Type("89bk1ab73ct");
    window.Press("KP_Enter");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("2","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, ADuplicateTurnsTheMessageLineRed) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    ASSERT_TRUE(Eventually([this] { return LogHolds("W1XX"); }));
    const auto ground = [this] { return window.PixelAt(kMessageX, kMessageY); };
    EXPECT_NE(ground(), "#FF0000");
    window.Type("5bw1xx7");
    EXPECT_TRUE(Eventually([&] { return ground() == "#FF0000"; })) << ground();
}

TEST_F(EntryWindowTest, AContactIsSeenInTheListOfRecentOnes) {
    const auto firstRow = [this] { return window.PictureOf(kList.x, kList.y, kList.width, kList.height); };
    std::string empty;
    EXPECT_TRUE(Eventually([&] { return std::exchange(empty, firstRow()) == empty; }));  // the window is drawn
    window.Type("88aw1xx72mdc");
    EXPECT_EQ(firstRow(), empty);
    window.Press("Return");
    EXPECT_TRUE(Eventually([&] { return firstRow() != empty; }));
}

TEST_F(EntryWindowTest, ARightClickInTheListEditsTheContact) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    ASSERT_TRUE(Eventually([this] { return LogHolds("W1XX"); }));
    window.Click(kList.x + 20, kList.y + 10, 3);
    window.AnswerWindow("Edit Contact Entry", "Tab Tab Tab");
    window.Press("End BackSpace z Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XZ","72","MDC",)"); })) << Log();
    window.AnswerWindow("Q7ZZQ", "");
    window.Type("89bk1ab73ct");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("2","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, TheFormFollowsTheSizeOfItsWindow) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    window.Type("5bw1xx7");
    ASSERT_TRUE(Eventually([this] { return window.CountPixels("#ff0000") > 10'000; }));
    const int wide = window.CountPixels("#ff0000");
    window.ResizeWindow("Q7ZZQ", 800, 500);
    EXPECT_TRUE(Eventually([&] {
        const int narrow = window.CountPixels("#ff0000");
        return narrow > wide / 4 && narrow < wide * 2 / 3;
    }));
    window.Type("89bk1ab73ct");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("2","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, TheCloseBoxMakesABackupAndEnds) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    ASSERT_TRUE(Eventually([this] { return LogHolds("W1XX"); }));
    window.CloseWindow("Q7ZZQ");
    EXPECT_EQ(window.Wait(), 0);
    int backups = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{folder}) {
        backups += entry.path().parent_path().filename() == "BACKUP" && ContentOf(entry.path()) == Log() ? 1 : 0;
    }
    EXPECT_EQ(backups, 1);
}

TEST_F(EntryWindowTest, TheTabOrderMenuOpensByKeyboard) {
    window.Press("alt+t");
    window.Press("Down Down Return");
    window.Type("w1xx88a72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(EntryWindowTest, AltCClearsTheFields) {
    window.Type("88aw1x");
    window.Press("alt+c");
    window.Type("89bk1ab73ct");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, CutAndPasteByKeysFollowTheFields) {
    window.Type("88aw1xx");
    window.Press("shift+Home shift+Delete");
    window.Press("shift+Insert");
    window.Type("72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(EntryWindowTest, ASignalToTerminateClosesTheProgram) {
    window.Signal(SIGTERM);
    EXPECT_EQ(window.Wait(), 0);
}

TEST_F(EntryWindowTest, ASignalToTerminateCancelsABoxThatIsOpenAndClosesTheProgram) {
    window.Press("alt+a f");
    ASSERT_TRUE(Eventually([this] { return window.Shows("Please enter screen percentage"); }));
    window.Signal(SIGTERM);
    EXPECT_EQ(window.Wait(), 0);
}

TEST_F(EntryWindowTest, AWriteThatNobodyReadsDoesNotEndTheProgram) {
    window.Signal(SIGPIPE);
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(EntryWindowTest, AltAloneAndF10OpenTheFirstMenu) {
    for (const char* key : {"Alt_L", "F10"}) {
        window.Press(key);
        window.Press("n");  // New
        window.AnswerWindow("WARNING", "Escape");
        window.AnswerWindow("Q7ZZQ", "");
    }
    window.Press("alt+c");
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

}  // namespace
}  // namespace tallyhut
