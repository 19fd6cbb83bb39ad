#include "network/radio_news.h"

#include "tests/network/network_fixture.h"
#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

struct RadioNewsTest : RigFixture {
    void StartSending() {
        settings.values[{"Machine", "SendRadio"}] = "1";
        settings.values[{"Machine", "SendRadioTo"}] = "127.0.0.1:12061";
        StartPolling("Kenwood");
    }
    void Hear(const std::string& reply) {
        ReplyAndRead(reply);
        NextTick();
    }
    /// "1420000 CW, 1420100 CW" since the last call.
    std::string TakeNews() {
        std::string news;
        for (const sim::SentDatagram& sent : std::exchange(datagramSockets.sent, {})) {
            EXPECT_EQ(sent.to, "127.0.0.1:12061");
            EXPECT_EQ(RootOf(sent.bytes), "RadioInfo");
            news += (news.empty() ? "" : ", ") + ElementOf(sent.bytes, "Freq") + ' ' + ElementOf(sent.bytes, "Mode");
        }
        return news;
    }
};

TEST_F(RadioNewsTest, NothingIsSentUntilItIsChosenAndNothingWithoutARadio) {
    StartPolling("Kenwood");
    Hear("FA00014200000;MD3;");
    EXPECT_EQ(datagramSockets.made, 0);
    program.reset();
    settings.values[{"Machine", "SendRadio"}] = "1";
    Start();
    LetTimeGoBy(60'000);
    EXPECT_EQ(datagramSockets.made, 1);
    EXPECT_TRUE(datagramSockets.sent.empty());
}

TEST_F(RadioNewsTest, AChangeOfFrequencyOrModeIsToldAtOnce) {
    StartSending();
    EXPECT_EQ(TakeNews(), "");
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(TakeNews(), "1420000 CW");
    NextTick();
    Hear("FA00014200000;MD3;");
    EXPECT_EQ(TakeNews(), "") << "as before";
    Hear("FA00014200010;MD3;");
    EXPECT_EQ(TakeNews(), "1420001 CW");
    Hear("FA00014200010;MD2;");
    EXPECT_EQ(TakeNews(), "1420001 USB");
}

TEST_F(RadioNewsTest, ItIsToldTenSecondsAfterItWasToldLast) {
    StartSending();
    const auto hearFor = [this](int seconds) {
        for (int tick = 0; tick < seconds * 2; ++tick) {
            Hear("FA00007035120;MD3;");
        }
    };
    Hear("FA00007035120;MD3;");
    std::vector<Tick> moments;
    hearFor(25);
    for (const sim::SentDatagram& sent : datagramSockets.sent) {
        moments.push_back(sent.at);
    }
    ASSERT_EQ(moments.size(), 3U);
    EXPECT_EQ(moments[1] - moments[0], 10'000U);
    EXPECT_EQ(moments[2] - moments[1], 10'000U);
    EXPECT_EQ(TakeNews(), "703512 CW, 703512 CW, 703512 CW");
    Hear("FA00007036000;MD3;");
    EXPECT_EQ(TakeNews(), "703600 CW");
    for (int tick = 0; tick < 19; ++tick) {
        Hear("FA00007036000;MD3;");
    }
    EXPECT_EQ(TakeNews(), "") << "counted from the change";
    Hear("FA00007036000;MD3;");
    EXPECT_EQ(TakeNews(), "703600 CW");
}

TEST_F(RadioNewsTest, ARadioThatIsLostIsToldNoMoreAndOnceMoreWhenItIsBack) {
    StartSending();
    Hear("FA00014200000;MD3;");
    TakeNews();
    NextTick(100);
    EXPECT_EQ(Main().lblRig.Caption(), "Radio: no answer");
    EXPECT_EQ(TakeNews(), "");
    while (State().ReadPhase != 1) {
        NextTick();
    }
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(TakeNews(), "1420000 CW");
    Click(Rig().Command2);
    LetTimeGoBy(60'000);
    EXPECT_EQ(TakeNews(), "") << "nothing is polled";
}

TEST_F(RadioNewsTest, SwitchedOnInTheMiddleItIsToldAtOnce) {
    StartPolling("Kenwood");
    Hear("FA00014200000;MD3;");
    ChooseMenu(Main().mnuNetwork);
    frmNetwork& form = program->networkPart.form;
    Focus(form.txtRadio);
    form.txtRadio.ReplaceByPaste("127.0.0.1:12061");
    Click(form.chkRadio);
    EXPECT_EQ(TakeNews(), "1420000 CW");
    Click(form.chkRadio);
    Hear("FA00014300000;MD3;");
    EXPECT_EQ(TakeNews(), "");
}

}  // namespace
}  // namespace tallyhut
