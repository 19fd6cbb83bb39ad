#include "log/super_check_display.h"

#include "tests/log/known_calls_fixture.h"

namespace tallyhut {
namespace {

using SuperCheckDisplayTest = KnownCallsFixture;

constexpr const char* kCalls = "# VER20261101\r\nAK1A\r\nK1AB\r\nK1XX\r\nW1XX\r\n";

TEST_F(SuperCheckDisplayTest, CallsThatHoldWhatIsTypedStandInTheirLine) {
    StartWithCalls(kCalls, {Worked("K1XX")});
    EXPECT_TRUE(Main().lblScp.IsShown());
    Focus(Main().txtCall);
    Type("k");
    EXPECT_EQ(Line(), "");
    Type("1");
    EXPECT_EQ(Line(), "K1AB [K1XX] AK1A");
    Type("a");
    EXPECT_EQ(Line(), "K1AB AK1A");
    Press("Backspace");
    EXPECT_EQ(Line(), "K1AB [K1XX] AK1A");
    Main().txtCall.ReplaceByPaste("1XX");
    EXPECT_EQ(Line(), "[K1XX] W1XX");
}

TEST_F(SuperCheckDisplayTest, TheLineGoesWithTheCall) {
    StartWithCalls(kCalls);
    for (const char* end : {"Esc", "Enter"}) {
        Type("88ak1ab");
        EXPECT_EQ(Line(), "K1AB");
        Type(" 72ct");
        EXPECT_EQ(Line(), "K1AB") << "it stays while the exchange is typed";
        Press(end);
        EXPECT_EQ(Line(), "") << end;
    }
    Type("88ak1ab ");
    EXPECT_TRUE(Dialog().starts_with("Duplicate K1AB"));
    EXPECT_EQ(Line(), "");
}

TEST_F(SuperCheckDisplayTest, ItDoesNotDependOnTheListOfPossibleDuplicates) {
    StartWithCalls(kCalls);
    Click(Main().cmdDup);
    EXPECT_EQ(Main().cmdDup.Caption(), "Off");
    Focus(Main().txtCall);
    Type("k1a");
    EXPECT_EQ(Line(), "K1AB AK1A");
}

TEST_F(SuperCheckDisplayTest, WithoutAFileThereIsNoLine) {
    StartOnDesk();
    Focus(Main().txtCall);
    Type("k1a");
    EXPECT_EQ(Line(), "");
    EXPECT_FALSE(Main().lblScp.IsShown());
}

TEST_F(SuperCheckDisplayTest, SwitchedOffThereIsNoLine) {
    settings.values[{"Machine", "ShowSuperCheck"}] = "0";
    StartWithCalls(kCalls);
    Focus(Main().txtCall);
    Type("k1a");
    EXPECT_EQ(Line(), "");
    EXPECT_FALSE(Main().lblScp.IsShown());
}

}  // namespace
}  // namespace tallyhut
