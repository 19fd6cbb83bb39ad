#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

using sim::ControlLine;
using Words = std::vector<std::string>;

struct MorseSenderTest : KeyingFixture {
    /// The moments of the edges, in microseconds from the first.
    std::vector<Microtick> EdgeMoments() const {
        std::vector<Microtick> moments;
        for (const Edge& edge : edges) {
            moments.push_back(edge.at - edges.front().at);
        }
        return moments;
    }
};

TEST_F(MorseSenderTest, TextIsKeyedUnitByUnit) {
    StartKeying();
    SendAnew("CQ TEST de w1aw/4?");
    EXPECT_EQ(Keyed(), Elements("CQ TEST de w1aw/4?"));
    EXPECT_EQ(Keyed(ControlLine::Dtr).find('1'), std::string::npos);
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_EQ(Sender().gCWSending, 0);
}

TEST_F(MorseSenderTest, AAndBWithABlankTake1680MsAt20Words) {
    StartKeying();
    SendAnew("A B");
    EXPECT_EQ(clock.TickUs() - from, 1'680'000U);
    EXPECT_EQ(Keyed(), Elements("A B"));
}

TEST_F(MorseSenderTest, LowestWordSpaceLeavesTheGapOfALetter) {
    StartKeying();
    Cw().txtSpace.SetText("-8");
    SendAnew("A B");
    EXPECT_EQ(UnitsPassed(), 20);
    Cw().txtSpace.SetText("3");
    SendAnew(" ");
    EXPECT_EQ(UnitsPassed(), 11);
}

TEST_F(MorseSenderTest, UnitKeepsItsFraction) {
    StartKeying();
    Cw().Text11.SetText("13");
    Send(" ");  // opens the port
    SendAnew("H");
    const std::vector<Microtick> moments = EdgeMoments();
    ASSERT_EQ(moments.size(), 8U);
    for (std::size_t i = 0; i < moments.size(); ++i) {
        EXPECT_EQ(moments[i], i * 92'308) << i;  // microseconds of 92.3077 ms
    }
}

TEST_F(MorseSenderTest, GapOfALetterHoldsWhatRunsInIt) {
    StartKeying();
    Send(" ");  // opens the port
    const std::function<void()> takesAMillisecond = [&] {
        clock.SpinUntil(clock.TickUs() + 1'000);
        pump.OnCollect(1, takesAMillisecond);
    };
    pump.OnCollect(1, takesAMillisecond);
    SendAnew("EEEE");
    const std::vector<Microtick> moments = EdgeMoments();
    ASSERT_EQ(moments.size(), 8U);
    Microtick lastUp = 0;
    std::vector<Microtick> gaps;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (!edges[i].on && i > 0 && edges[i - 1].on) {
            lastUp = moments[i];
        } else if (edges[i].on && lastUp > 0) {
            gaps.push_back(moments[i] - lastUp);
        }
    }
    EXPECT_EQ(gaps, (std::vector<Microtick>{3 * kUnitUs + 1'000, 3 * kUnitUs, 3 * kUnitUs}))
        << "the first tells what the next ones will take";
}

TEST_F(MorseSenderTest, GapIsMadeNoShorterForWhatWillNotLastAsLongAgain) {
    StartKeying();
    Send(" ");
    pump.OnCollect(2, [&] { clock.SpinUntil(clock.TickUs() + 20'000); });
    SendAnew("EEE");
    EXPECT_EQ(clock.TickUs() - from, 12 * kUnitUs + 20'000);
}

TEST_F(MorseSenderTest, EachOutputHasItsOwnLine) {
    StartKeying();
    Choose(Cw().Option2);
    SendAnew("E");
    EXPECT_EQ(Keyed(ControlLine::Dtr), "1000");
    EXPECT_EQ(Keyed(ControlLine::Rts).find('1'), std::string::npos);
    Choose(Cw().Option3);
    edges.clear();
    Send("A");
    EXPECT_TRUE(edges.empty());
    std::string values;
    for (const auto& written : parallelPorts.written) {
        EXPECT_EQ(written.address, 0x37A);
        values += written.value == 3 ? '1' : '0';
        EXPECT_TRUE(written.value == 2 || written.value == 3);
    }
    EXPECT_EQ(values, "10111000");
}

TEST_F(MorseSenderTest, PrinterWritesToTheRegisterBehindItsBase) {
    StartKeying();
    Choose(Cw().Option3);
    for (const auto& [base, address] : {std::pair{"&H278", 634}, {"632", 634}, {"&h3BC", 0x3BE}}) {
        Cw().Text14.SetText(base);
        Send("E");
        EXPECT_EQ(parallelPorts.written.back().address, address) << base;
        EXPECT_EQ(parallelPorts.written.back().value, 2) << base;
    }
    EXPECT_EQ(Words(dialogs.boxes), Words{});
}

TEST_F(MorseSenderTest, PrinterWithAnAddressThatIsNoneIsSilent) {
    StartKeying();
    Choose(Cw().Option3);
    for (const char* base : {"", "LPT1", "&HXYZ", "1E20"}) {
        Cw().Text14.SetText(base);
        SendAnew("TEST");
        EXPECT_EQ(UnitsPassed(), 0) << base;
    }
    EXPECT_TRUE(parallelPorts.written.empty());
}

TEST_F(MorseSenderTest, WithNoOutputTheQueueDrainsInNoTime) {
    StartKeying();
    Choose(Cw().Option4);
    SendAnew("CQ TEST");
    EXPECT_EQ(UnitsPassed(), 0);
    EXPECT_TRUE(edges.empty());
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_FALSE(serialPorts.Line(1).isOpen);
}

TEST_F(MorseSenderTest, UnknownCharactersTakeNoTime) {
    StartKeying();
    std::string text{"\t\r\n\x7F$#*@"};
    text += '\0';
    for (int code = 0x80; code <= 0xFF; ++code) {
        text += static_cast<char>(code);
    }
    SendAnew(text);
    EXPECT_EQ(UnitsPassed(), 0);
    SendAnew("A" + text + "N");
    EXPECT_EQ(Keyed(), Elements("AN"));
}

TEST_F(MorseSenderTest, TenThousandCharactersAreSent) {
    StartKeying();
    Cw().Text11.SetText("1000");
    Cw().Check1.SetValue(true);
    std::string text;
    while (text.size() < 10'000) {
        text += std::string("E\0\xFF$ ", 5);
    }
    SendAnew(text);
    EXPECT_EQ(clock.TickUs() - from, 2'000U * (4 + 8) * 1'200);
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_FALSE(IsKeyDown());
}

// The speed.

TEST_F(MorseSenderTest, SpeedThatIsNoneKeysNothingAndLeavesTheKeyUp) {
    StartKeying();
    for (const char* wpm : {"0", "", "fast", "1,000", "0.0001", "1E-200"}) {
        Cw().Text11.SetText(wpm);
        SendAnew("TEST TEST");
        EXPECT_EQ(UnitsPassed(), 0) << wpm;
        EXPECT_FALSE(IsKeyDown()) << wpm;
        EXPECT_EQ(Sender().gCWBuffer, "") << wpm;
        EXPECT_EQ(Sender().gCWSending, 0) << wpm;
        EXPECT_FALSE(clock.isPrecise) << wpm;
    }
    EXPECT_EQ(dialogs.boxes, Words{});
}

TEST_F(MorseSenderTest, NegativeSpeedPassesInNoTime) {
    StartKeying();
    Cw().Text11.SetText("-5");
    for (Option* timing : {&Cw().optTimer, &Cw().OptSleep, &Cw().optLoop}) {
        Choose(*timing);
        SendAnew("TEST");
        EXPECT_EQ(UnitsPassed(), 0);
        EXPECT_FALSE(IsKeyDown());
    }
}

TEST_F(MorseSenderTest, SpeedCountsFromTheNextCharacter) {
    StartKeying();
    Send(" ");  // opens the port
    Listen();
    Behind(1, [this] { PostNamed("Down"); });
    Cw().Text1.SetText("EE");
    Cw().Text11.SetText("21");
    Press("F1");
    const std::vector<Microtick> moments = EdgeMoments();
    ASSERT_EQ(moments.size(), 4U);
    EXPECT_NEAR(static_cast<double>(moments[1]), 1'200'000 / 21.0, 1);
    EXPECT_EQ(moments[3] - moments[2], 60'000U);
    EXPECT_EQ(Dialog(), "20 WPM");
}

// The timing.

TEST_F(MorseSenderTest, SleepTakesWholeMilliseconds) {
    StartKeying();
    Choose(Cw().OptSleep);
    Cw().Text11.SetText("13");
    Send(" ");  // opens the port
    SendAnew("H");
    const std::vector<Microtick> moments = EdgeMoments();
    ASSERT_EQ(moments.size(), 8U);
    EXPECT_EQ(moments[7], 7U * 92'000);
}

TEST_F(MorseSenderTest, LoopIsCalibratedWhenItIsFirstChosen) {
    StartKeying();
    Choose(Cw().optLoop);
    EXPECT_EQ(Sender().gLoopsPer60ms, 1'000'000);
    EXPECT_EQ(Cw().txtLoop.Text(), "1000000");
    SendAnew("A B");
    EXPECT_EQ(Keyed(), Elements("A B"));
    Cw().Text11.SetText("40");
    SendAnew("A B");
    EXPECT_NEAR(UnitsPassed(), 14, 0.001);
}

TEST_F(MorseSenderTest, LoopsThatNobodyCouldCountComeToAnEnd) {
    StartKeying();
    Choose(Cw().optLoop);
    Cw().txtLoop.SetText("1E300");
    SendAnew("E");
    EXPECT_LE(UnitsPassed(), 4 * 200);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(MorseSenderTest, EveryCharacterIsSentPrecisely) {
    StartKeying();
    for (Option* timing : {&Cw().optTimer, &Cw().OptSleep, &Cw().optLoop}) {
        Choose(*timing);
        const int before = clock.preciseBegun;
        bool between = true;
        pump.OnCollect(1, [&] { between = clock.isPrecise; });
        Send("EE");
        EXPECT_EQ(clock.preciseBegun, before + 2);
        EXPECT_EQ(clock.preciseEnded, clock.preciseBegun);
        EXPECT_FALSE(between);
    }
}

// The word space of any length.

TEST_F(MorseSenderTest, EndlessWordSpaceCanBeStopped) {
    StartKeying();
    Cw().txtSpace.SetText("1000000000");
    Cw().Text1.SetText("E E");
    Behind(2, [this] { PostNamed("Esc"); });
    Press("F1");
    EXPECT_EQ(Keyed().substr(0, 4), "1000");
    EXPECT_NEAR(UnitsPassed(), 4 + 8 + 1000, 0.1);
    EXPECT_EQ(Sender().gCWSending, 0);
}

TEST_F(MorseSenderTest, LongWordSpaceIsKeptWhenNobodyStopsIt) {
    StartKeying();
    Cw().txtSpace.SetText("2500");
    SendAnew("E E");
    EXPECT_NEAR(UnitsPassed(), 4 + 8 + 2500 + 4, 0.1);
}

// Between two characters.

TEST_F(MorseSenderTest, EscEndsAMessageBehindTheCharacterInProgress) {
    StartKeying();
    Cw().Text1.SetText("CQ TEST");
    for (int characters = 1; characters <= 7; ++characters) {
        Listen();
        Behind(characters, [this] { PostNamed("Esc"); });
        Press("F1");
        EXPECT_EQ(Keyed(), Elements(std::string{"CQ TEST"}.substr(0, static_cast<std::size_t>(characters))))
            << characters;
        EXPECT_FALSE(IsKeyDown());
        EXPECT_EQ(Sender().gCWSending, 0);
        EXPECT_FALSE(pump.HasScripts());
    }
}

TEST_F(MorseSenderTest, EscOfAMessageKeepsTheFields) {
    StartKeying();
    Fill(Main().txtCall, "W1AW");
    Cw().Text1.SetText("CQ");
    Behind(1, [this] { PostNamed("Esc"); });
    Press("F1");
    EXPECT_EQ(Fields(), "||W1AW||");
    Press("Esc");
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(MorseSenderTest, FunctionKeyReplacesTheRestOfTheMessage) {
    StartKeying();
    Cw().Text1.SetText("CQ CQ CQ");
    Cw().Text2.SetText("TU");
    Behind(2, [this] { PostNamed("F2"); });
    Press("F1");
    EXPECT_EQ(Keyed(), Elements("CQTU"));
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_EQ(Sender().gCWSending, 0);
}

TEST_F(MorseSenderTest, TwoHundredFunctionKeysAtOnceAreAllServed) {
    StartKeying();
    Cw().Text1.SetText("EEEE");
    Cw().Text2.SetText("TT");
    for (int i = 0; i < 199; ++i) {
        PostNamed("F1");
    }
    Press("F2");
    std::string expected;
    for (int i = 0; i < 199; ++i) {
        expected += Elements("E");  // each gives way to the next behind its first character
    }
    EXPECT_EQ(Keyed(), expected + Elements("TT"));
    EXPECT_EQ(Sender().depth, 0);
}

TEST_F(MorseSenderTest, HundredThousandFunctionKeysOverflowNothing) {
    StartKeying();
    Cw().Text11.SetText("1000");
    Cw().Text1.SetText("E");
    Cw().Text3.SetText("SOS");
    for (int i = 0; i < 50'000; ++i) {
        PostNamed("F1");
        PostNamed("F2");  // without a message
    }
    Press("F3");
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_EQ(Sender().gCWSending, 0);
    EXPECT_EQ(Sender().depth, 0);
    EXPECT_FALSE(IsKeyDown());
    std::string last;
    for (std::size_t i = edges.size() - 18; i < edges.size(); i += 2) {
        last += edges[i + 1].at - edges[i].at > 1'500 ? '-' : '.';
    }
    EXPECT_EQ(last, "...---...");
}

TEST_F(MorseSenderTest, TimersAndContactsRunBetweenTwoCharacters) {
    StartKeying();
    Fill(Main().txtCall, "W1XX");
    FillAll("88", "A", "W1XX", "72", "MDC");
    Cw().Text1.SetText("TEST");
    std::string keyedAtCommit;
    Behind(2, [&] {
        keyedAtCommit = Keyed();
        PostNamed("Enter");
    });
    Press("F1");
    EXPECT_EQ(keyedAtCommit, Elements("TE"));
    EXPECT_EQ(LogLines().size(), 1U);
    EXPECT_EQ(Keyed(), Elements("TEST"));
}

// What is left on the main form.

TEST_F(MorseSenderTest, MessageCountsDownOnTheMainForm) {
    StartKeying();
    Cw().Check1.SetValue(true);
    Words shown;
    for (int i = 1; i <= 4; ++i) {
        pump.OnCollect(i, [&] { shown.push_back(Dialog()); });
    }
    Send("TEST");
    EXPECT_EQ(shown, (Words{"EST", "ST", "T", ""}));
    EXPECT_EQ(Dialog(), "");
}

TEST_F(MorseSenderTest, WithoutTheCheckTheLineStays) {
    StartKeying();
    program->logPart.panel.message.Write("as it was");
    Send("TEST");
    EXPECT_EQ(Dialog(), "as it was");
}

TEST_F(MorseSenderTest, MessageInKeyboardModeEndsWithTheReminder) {
    StartKeying();
    Cw().Check1.SetValue(true);
    Press("F12");
    Type("e");
    EXPECT_EQ(Dialog(), "Keyboard CW Mode is on.  Press F12 to exit.");
}

// "!".

TEST_F(MorseSenderTest, ExclamationMarkEntersTheContactWhenItIsReached) {
    StartKeying();
    FillAll("88", "A", "W1XX", "72", "MDC");
    Cw().Text1.SetText("TU $!TEST $");
    std::size_t linesBefore = 99;
    std::size_t linesBehind = 99;
    Behind(7, [&] { linesBefore = LogLines().size(); });  // W1XX is replaced: "TU W1XX!TEST W1XX"
    Behind(9, [&] { linesBehind = LogLines().size(); });
    Press("F1");
    EXPECT_EQ(linesBefore, 0U);
    EXPECT_EQ(linesBehind, 1U);
    EXPECT_EQ(Keyed(), Elements("TU W1XXTEST W1XX"));
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(MorseSenderTest, ExclamationMarkWithoutACallDoesNothing) {
    StartKeying();
    FillAll("88", "A", "", "72", "MDC");
    SendAnew("T!E");
    EXPECT_EQ(Keyed(), Elements("TE"));
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(Fields(), "88|A||72|MDC");
}

TEST_F(MorseSenderTest, ContactThatCannotBeWrittenIsFatalWithTheKeyUp) {
    StartKeying();
    FillAll("88", "A", "W1XX", "72", "MDC");
    Cw().Text1.SetText("TU!TEST");
    files.FailAt(1, "No space left on device");
    bool keyUpAtTheBox = false;
    dialogs.onShow = [&] { keyUpAtTheBox = !IsKeyDown(); };
    EXPECT_EQ(EndStatusOf([&] { Press("F1"); }), 1);
    EXPECT_TRUE(keyUpAtTheBox);
    EXPECT_FALSE(IsKeyDown());
    EXPECT_EQ(Keyed(), Elements("TU"));
    EXPECT_EQ(Sender().gCWSending, 0);
}

TEST_F(MorseSenderTest, FailureInAHandlerBetweenTwoCharactersFindsTheKeyUp) {
    StartKeying();
    FillAll("88", "A", "W1XX", "72", "MDC");
    Cw().Text1.SetText("TEST");
    Cw().Text11.SetText("0");  // a character that fails in its first dash
    Behind(1, [this] {
        files.FailAt(1, "No space left on device");
        PostNamed("Enter");
    });
    bool keyUpAtTheBox = false;
    dialogs.onShow = [&] { keyUpAtTheBox = !IsKeyDown(); };
    EXPECT_EQ(EndStatusOf([&] { Press("F1"); }), 1);
    EXPECT_TRUE(keyUpAtTheBox);
    EXPECT_FALSE(IsKeyDown());
}

// WinKey.

TEST_F(MorseSenderTest, WinKeyKeysNoLineAndEntersTheContactFirst) {
    StartKeying();
    Choose(Cw().Option5);
    EXPECT_EQ(Sender().gCWKeying, kKeyWinKey);
    FillAll("88", "A", "W1XX", "72", "MDC");
    std::string handed;
    std::size_t linesThen = 0;
    Sender().WKTransmit = [&] {
        handed = Sender().gCWBuffer;
        linesThen = LogLines().size();
        EXPECT_EQ(Sender().gCWSending, 0);
        Sender().gCWBuffer.clear();
    };
    Listen();
    Send("TU TEST!");
    EXPECT_EQ(handed, "TU TEST!");
    EXPECT_EQ(linesThen, 1U);
    EXPECT_TRUE(edges.empty());
    EXPECT_EQ(UnitsPassed(), 0);
}

TEST_F(MorseSenderTest, WithoutADeviceWinKeyDropsTheText) {
    StartKeying();
    Choose(Cw().Option5);
    Send("TEST");
    EXPECT_EQ(Sender().gCWBuffer, "");
}

}  // namespace
}  // namespace tallyhut
