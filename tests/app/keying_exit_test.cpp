#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

/// The ends of the program while Morse is being sent.
struct KeyingExitTest : KeyingFixture {
    void StartSending(std::string_view message) {
        StartKeying();
        Cw().Text1.SetText(message);
    }
    std::optional<int> PressF1() {
        return EndStatusOf([this] { Press("F1"); });
    }
    void RepeatEvery(const char* seconds) {
        Cw().txtCWLoop.SetText(seconds);
        program->keyingPart.setup.txtCWLoop_LostFocus();
    }
    std::optional<int> EventsEnd() {
        return EndStatusOf([this] { TheDesk().RunPending(); });
    }
};

TEST_F(KeyingExitTest, CloseBoxWhileSendingIsRefusedAndEndsTheMessage) {
    StartSending("CQ TEST");
    bool refused = false;
    TheDesk().outlets.formChanged = [&](Form& form, DeskOutlets::FormEvent event) {
        refused = refused || (&form == &Main() && event == DeskOutlets::FormEvent::Refused);
    };
    Behind(2, [this] { TheDesk().PostAction([this] { Main().RequestClose(); }); });
    EXPECT_EQ(PressF1(), std::nullopt);
    EXPECT_TRUE(refused);
    EXPECT_EQ(Keyed(), Elements("CQ"));
    EXPECT_TRUE(Main().IsLoaded());
    EXPECT_FALSE(IsKeyDown());
    EXPECT_EQ(EndStatusOf([this] { Main().RequestClose(); }), 0) << "it closes when nothing is sent any more";
    EXPECT_FALSE(serialPorts.Line(1).isOpen);
}

TEST_F(KeyingExitTest, CloseBoxWhileARepeatWaitsCloses) {
    StartSending("E");
    RepeatEvery("5");
    EXPECT_EQ(PressF1(), std::nullopt);
    ASSERT_TRUE(Cw().tmrRepeat.Enabled());
    EXPECT_EQ(EndStatusOf([this] { Main().RequestClose(); }), 0);
    EXPECT_FALSE(IsKeyDown());
    EXPECT_FALSE(serialPorts.Line(1).isOpen);
}

TEST_F(KeyingExitTest, FileExitWhileSendingEndsAtOnceWithTheKeyUp) {
    StartSending("CQ TEST");
    Behind(2, [this] { TheDesk().PostMenu(Main().mnuExit); });
    EXPECT_EQ(PressF1(), 0);
    EXPECT_EQ(Keyed(), Elements("CQ"));
    EXPECT_FALSE(IsKeyDown());
    EXPECT_EQ(Sender().gCWSending, 0);
    EXPECT_FALSE(clock.isPrecise);
}

TEST_F(KeyingExitTest, FileExitWhileARepeatWaitsEndsAtOnce) {
    StartSending("E");
    RepeatEvery("5");
    EXPECT_EQ(PressF1(), std::nullopt);
    EXPECT_EQ(EndStatusOf([this] { ChooseMenu(Main().mnuExit); }), 0);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(KeyingExitTest, SignalToTerminateWhileSendingClosesBehindTheCharacter) {
    StartSending("CQ TEST");
    Behind(2, [this] { program->RequestClose(); });
    std::optional<int> status = PressF1();
    if (!status) {
        status = EventsEnd();
    }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Keyed(), Elements("CQ"));
    EXPECT_FALSE(IsKeyDown());
    EXPECT_FALSE(serialPorts.Line(1).isOpen);
}

TEST_F(KeyingExitTest, SignalToTerminateInsideAnInnerMessageClosesToo) {
    StartSending("CQ TEST");
    Cw().Text2.SetText("TU TU");
    Behind(1, [this] { PostNamed("F2"); });
    Behind(3, [this] { program->RequestClose(); });
    std::optional<int> status = PressF1();
    if (!status) {
        status = EventsEnd();
    }
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(KeyingExitTest, SignalToTerminateWhileARepeatWaitsCloses) {
    StartSending("E");
    RepeatEvery("5");
    EXPECT_EQ(PressF1(), std::nullopt);
    program->RequestClose();
    EXPECT_EQ(EventsEnd(), 0);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(KeyingExitTest, RefusedCloseBoxIsNoSignal) {
    StartSending("CQ");
    Behind(1, [this] { TheDesk().PostAction([this] { Main().RequestClose(); }); });
    EXPECT_EQ(PressF1(), std::nullopt);
    EXPECT_EQ(EventsEnd(), std::nullopt);
    EXPECT_EQ(PressF1(), std::nullopt);
    EXPECT_EQ(EventsEnd(), std::nullopt);
}

}  // namespace
}  // namespace tallyhut
