#include "tests/voice/voice_fixture.h"

namespace tallyhut {
namespace {

struct PhoneMessagesTest : VoiceFixture {
    sim::SerialLine& Line(int number = 1) { return serialPorts.Line(number); }
    void RepeatEvery(const char* seconds) {
        Phone().txtPHLoop.SetText(seconds);
        program->voicePart.selections.txtPHLoop_LostFocus();
    }
    void Show() {
        Phone().Show();
        TheDesk().RunPending();
    }
    /// What somebody has laid down at the key of a message that is being played may not stay so.
    void ExpectQuiet(std::string_view when) {
        EXPECT_FALSE(IsPlaying()) << when;
        EXPECT_FALSE(IsKeyDown()) << when;
    }
};

// Playing and keying.

TEST_F(PhoneMessagesTest, EachFunctionKeyPlaysItsFile) {
    StartPhone();
    int number = 1;
    for (const PhoneKey& key : kPhoneKeys) {
        const std::string path = "/contest/message " + std::to_string(number++) + ".wav";
        PutWave(path, 100);
        (Phone().*key.file).SetText(path);
    }
    for (int f = 1; f <= 9; ++f) {
        Taken();
        Press("F" + std::to_string(f));
        const std::string name = "message " + std::to_string(f) + ".wav";
        const Lines heard = Taken();
        ASSERT_GE(heard.size(), 2U);
        EXPECT_EQ(heard[heard.size() - 2], "PhoneFrm open " + name);
        EXPECT_EQ(heard.back(), "PhoneFrm play " + name);
    }
}

TEST_F(PhoneMessagesTest, OtherCodesDoNothing) {
    StartKeyed();
    Press("F1");
    Taken();
    for (const int code : {0, 27, 111, 121, 122, 123, 124, -1}) {
        Messages().FKeyPhone(code);
    }
    Press("F10");
    Press("F11");
    Press("F12");
    EXPECT_EQ(Taken(), Lines{});
    EXPECT_TRUE(IsPlaying());
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(PhoneMessagesTest, F10IsUsedUpAndTheFieldSeesF1) {
    StartPhone();
    std::vector<int> seen;
    Main().txtNum.KeyDown = [&seen](int& KeyCode, int /*Shift*/) { seen.push_back(KeyCode); };
    Press("F10");
    Press("F1");
    EXPECT_EQ(seen, std::vector{static_cast<int>(kKeyF1)});
}

TEST_F(PhoneMessagesTest, KeyIsDownFromBeforeTheFirstSampleUntilBehindTheLast) {
    StartKeyed();
    Press("F2");
    EXPECT_EQ(Taken(), (Lines{"DTR 1 off", "RTS 1 off", "RTS 1 on", "PhoneFrm open F2.wav", "PhoneFrm play F2.wav"}));
    Pass(1'000);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 off"})) << "a multiple of 40 ms";
    Press("F3");
    Taken();
    Pass(500);
    EXPECT_EQ(Taken(), Lines{}) << "the last sample has just gone";
    Pass(20);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 off"}));
}

TEST_F(PhoneMessagesTest, FileStaysOpenUntilTheNextKey) {
    StartPhone();
    Press("F3");
    Pass(2'000);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm open F3.wav", "PhoneFrm play F3.wav"}));
    Press("F2");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F3.wav", "PhoneFrm open F2.wav", "PhoneFrm play F2.wav"}));
}

TEST_F(PhoneMessagesTest, DtrIsKeyedWhereItIsChosen) {
    StartKeyed();
    Phone().Option2.SetValue(true);
    Press("F3");
    Pass(600);
    EXPECT_EQ(Taken(), (Lines{"DTR 1 off", "RTS 1 off", "DTR 1 on", "PhoneFrm open F3.wav", "PhoneFrm play F3.wav",
                              "DTR 1 off"}));
}

TEST_F(PhoneMessagesTest, ParallelPortGetsThreeBeforeThePlayAndTwoAfterIt) {
    StartPhone();
    Phone().Option3.SetValue(true);
    Press("F3");
    EXPECT_EQ(Taken(), (Lines{"out 890 3", "PhoneFrm open F3.wav", "PhoneFrm play F3.wav"}));
    Pass(520);
    EXPECT_EQ(Taken(), (Lines{"out 890 2"}));
    Phone().Text11.SetText("&H278");
    Press("F3");
    Pass(520);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F3.wav", "out 634 3", "PhoneFrm open F3.wav", "PhoneFrm play F3.wav",
                              "out 634 2"}));
}

TEST_F(PhoneMessagesTest, BesideTheParallelPortRtsOfAPortGoesAlong) {
    StartKeyed();
    Phone().Option3.SetValue(true);
    Press("F3");
    Pass(520);
    EXPECT_EQ(Taken(), (Lines{"DTR 1 off", "RTS 1 off", "RTS 1 on", "out 890 3", "PhoneFrm open F3.wav",
                              "PhoneFrm play F3.wav", "RTS 1 off", "out 890 2"}));
}

TEST_F(PhoneMessagesTest, WithPort0AndRtsTheFilePlaysWithoutALine) {
    StartPhone();
    Press("F1");
    Pass(3'100);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm open F1.wav", "PhoneFrm play F1.wav"}));
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(PhoneMessagesTest, EmptyMessageStopsWhatPlaysAndTheTimerLetsTheLineGo) {
    StartKeyed();
    Press("F1");
    Pass(200);
    Taken();
    Press("F4");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav"}));
    EXPECT_TRUE(IsKeyDown());
    Pass(40);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 off"}));
}

TEST_F(PhoneMessagesTest, FileThatIsNotThereKeysNothing) {
    StartKeyed();
    Phone().Text2.SetText("/contest/none.wav");
    Press("F2");
    Pass(100);
    EXPECT_EQ(Taken(), Lines{});
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(PhoneMessagesTest, F1DuringF1RestartsTheFileAndTheLineStaysDown) {
    StartKeyed();
    Press("F1");
    Pass(1'000);
    Taken();
    Press("F1");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav", "PhoneFrm open F1.wav", "PhoneFrm play F1.wav"}));
    Pass(2'999);
    EXPECT_EQ(Taken(), Lines{});
    EXPECT_TRUE(IsKeyDown());
    Pass(41);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 off"}));
}

TEST_F(PhoneMessagesTest, PathIsTakenWithBlanksAndUmlauts) {
    StartPhone();
    PutWave("/contest/m\xC3\xBCll/cq de  dl.wav", 100);
    PutWave("/contest/gr\xC3\xBC\xC3\x9F.wav", 100);
    for (const char* typed : {"/contest/m\xC3\xBCll/cq de  dl.wav", "  /contest/m\xC3\xBCll/cq de  dl.wav ",
                              "/contest/m\xFCll/cq de  dl.wav", "gr\xFC\xDF.wav", "gr\xC3\xBC\xC3\x9F.wav"}) {
        Phone().Text2.SetText(typed);
        Taken();
        Press("F2");
        EXPECT_TRUE(Taken().back().starts_with("PhoneFrm play ")) << typed;
        Pass(200);
    }
}

TEST_F(PhoneMessagesTest, InACwContestNoKeyPlays) {
    stored.gContestMode = 0;
    StartPhone();
    Press("F1");
    EXPECT_EQ(Taken(), Lines{});
}

// What fails.

TEST_F(PhoneMessagesTest, FileThatCannotBePlayedEndsInSilenceWithTheKeyUp) {
    StartKeyed();
    files.Put("/contest/none.wav", "not a wave");
    files.Put("/contest/empty.wav", "");
    files.AddFolder("/contest/folder.wav");
    for (const char* path : {"/contest/none.wav", "/contest/empty.wav", "/contest/folder.wav"}) {
        Phone().Text2.SetText(path);
        Press("F1");
        Pass(100);
        Press("F2");
        Pass(40);
        ExpectQuiet(path);
        Pass(100);
        Press("F2");
        ExpectQuiet(path);
    }
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(PhoneMessagesTest, WaveOfNoSamplesLetsTheLineGoAtOnce) {
    StartKeyed();
    files.Put("/contest/zero.wav", WaveFile(8'000, ""));
    Phone().Text2.SetText("/contest/zero.wav");
    Press("F2");
    Pass(40);
    ExpectQuiet("no samples");
    EXPECT_EQ(Taken().back(), "RTS 1 off");
}

TEST_F(PhoneMessagesTest, FileDeletedWhileItPlaysIsPlayedToItsEnd) {
    StartKeyed();
    Press("F2");
    files.contents.erase("/contest/F2.wav");
    Pass(900);
    EXPECT_TRUE(IsPlaying());
    EXPECT_TRUE(IsKeyDown());
    Pass(140);
    ExpectQuiet("behind its end");
    Taken();
    Press("F2");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F2.wav"}));
}

TEST_F(PhoneMessagesTest, LoudspeakerThatIsUnpluggedLetsTheLineGo) {
    StartKeyed();
    Press("F1");
    Pass(500);
    sound.isPluggedIn = false;
    Pass(40);
    ExpectQuiet("unplugged");
}

TEST_F(PhoneMessagesTest, SoundThatHangsHoldsTheLineForASecondMoreAndNotLonger) {
    StartKeyed();
    sound.isHanging = true;
    Press("F2");
    Pass(1'900);
    EXPECT_TRUE(IsKeyDown());
    Pass(140);
    ExpectQuiet("a second behind its end");
}

TEST_F(PhoneMessagesTest, MachineWithoutSoundKeysNothing) {
    StartKeyed();
    sound.refusal = "No such audio device";
    Press("F1");
    ExpectQuiet("without sound");
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(PhoneMessagesTest, CablePulledInAMessageIsNoFailure) {
    StartKeyed();
    Press("F2");
    Line().Unplug();
    Pass(1'100);
    ExpectQuiet("without a cable");
    EXPECT_EQ(dialogs.boxes, Lines{});
    Line().Plug();
    Taken();
    Press("F2");
    Pass(1'100);
    const Lines heard = Taken();
    EXPECT_NE(std::ranges::find(heard, "RTS 1 on"), heard.end()) << "the next key has opened the port anew";
    ExpectQuiet("with the cable again");
}

TEST_F(PhoneMessagesTest, AddressThatIsNoNumberPlaysNothingAndLeavesNoLineDown) {
    StartKeyed();
    Phone().Option3.SetValue(true);
    Phone().Text11.SetText("LPT1");
    Press("F2");
    ExpectQuiet("no address");
    Phone().Text11.SetText("&H378");
    Press("F2");
    Phone().Text11.SetText("LPT1");
    Pass(1'100);
    ExpectQuiet("address that has become none");
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(PhoneMessagesTest, WhatIsChosenInAMessageLeavesNoLineDown) {
    StartKeyed();
    const std::vector<std::function<void()>> choices{
        [this] { Phone().Option2.SetValue(true); },  [this] { Phone().Option3.SetValue(true); },
        [this] { Phone().Text10.SetText("0"); },     [this] { Phone().Text10.SetText("none"); },
        [this] { Phone().Text11.SetText("&H278"); }, [this] { Phone().Text10.SetText("99"); },
    };
    for (const auto& choose : choices) {
        Phone().Text10.SetText("1");
        Phone().Option1.SetValue(true);
        Press("F3");
        ASSERT_TRUE(IsKeyDown());
        choose();
        Pass(540);
        ExpectQuiet("behind the message");
    }
}

TEST_F(PhoneMessagesTest, AnotherParallelPortIsKeyedAfterTheFirstIsLetGo) {
    StartPhone();
    Phone().Option3.SetValue(true);
    Press("F1");
    Phone().Text11.SetText("&H278");
    Taken();
    Press("F2");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav", "out 890 2", "out 634 3", "PhoneFrm open F2.wav",
                              "PhoneFrm play F2.wav"}));
}

// The port.

TEST_F(PhoneMessagesTest, PortThatCannotBeOpenedIsToldAndTheFormShown) {
    for (const char* number : {"1", "11", "1E10", "99999999999"}) {
        StartKeyed();
        Line().refusal = "Device or resource busy";
        Phone().Text10.SetText(number);
        dialogs.boxes.clear();
        dialogs.beeps = 0;
        bool shown = false;
        pump.OnWait([&] {
            shown = Phone().IsVisible() && Phone().IsModal();
            TheDesk().PostClick(Phone().Command1, kLeftButton);
        });
        Press("F2");
        EXPECT_EQ(dialogs.boxes, Lines{kInvalidPhonePort}) << number;
        EXPECT_EQ(dialogs.beeps, 1) << number;
        EXPECT_TRUE(shown) << number;
        EXPECT_FALSE(Phone().IsVisible()) << number;
        EXPECT_TRUE(IsPlaying()) << "by hand or by VOX: " << number;
    }
}

TEST_F(PhoneMessagesTest, WhileTheFormIsShownABadPortIsToldAlone) {
    StartKeyed();
    Line().refusal = "Permission denied";
    Show();
    Focus(Phone().Text10);
    Focus(Phone().Text11);
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidPhonePort});
    EXPECT_TRUE(Phone().IsVisible());
    EXPECT_FALSE(Phone().IsModal());
}

TEST_F(PhoneMessagesTest, LeavingThePortFieldOpensItWithItsLinesDown) {
    StartPhone();
    Show();
    Focus(Phone().Text10);
    Phone().Text10.SetText("2");
    Focus(Phone().Text11);
    EXPECT_TRUE(Line(2).isOpen);
    EXPECT_EQ(Taken(), (Lines{"DTR 2 off", "RTS 2 off"}));
    Focus(Phone().Text10);
    Phone().Text10.SetText("COM2");
    Focus(Phone().Text11);
    EXPECT_EQ(Phone().Text10.Text(), "0");
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(PhoneMessagesTest, OnePortOfCwAndPhoneIsOpenForOneOfThem) {
    StartKeyed();
    CWFrm& cw = program->keyingPart.form;
    cw.Text10.SetText("1");
    cw.Option1.SetValue(true);
    program->keyingPart.sender.CWSetup();
    EXPECT_TRUE(program->keyingPart.comm->IsOpen());
    Press("F3");
    EXPECT_TRUE(program->voicePart.commPhone->IsOpen());
    EXPECT_FALSE(program->keyingPart.comm->IsOpen());
    Taken();
    program->keyingPart.sender.CWSetup();
    EXPECT_FALSE(program->voicePart.commPhone->IsOpen());
    EXPECT_TRUE(program->keyingPart.comm->IsOpen());
    EXPECT_EQ(Taken().front(), "RTS 1 off") << "let go before it is closed";
}

TEST_F(PhoneMessagesTest, OpeningClosesTheWinKeyOnWhateverPort) {
    StartKeyed();
    program->keyingPart.messages.gWKVersion = 23;
    Press("F3");
    EXPECT_EQ(program->keyingPart.messages.gWKVersion, 0);
    EXPECT_TRUE(Line().isOpen);
    program->keyingPart.winKey.cmdOpenWinkey_Click();
    EXPECT_FALSE(Line().isOpen) << "the keyer's opening closes the port of the messages";
}

TEST_F(PhoneMessagesTest, LineIsKeyedOnThePortThatTheRadioHolds) {
    StartKeyed();
    RigControlfrm& rig = program->rigForm;
    rig.Show();
    const std::vector<std::string>& rigs = rig.List1.Items();
    rig.List1.SelectRow(static_cast<int>(std::ranges::find(rigs, "Kenwood") - rigs.begin()));
    rig.optComm(0).SetValue(true);
    Click(rig.Command1);
    rig.Hide();
    Taken();
    Press("F3");
    Pass(540);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 on", "PhoneFrm open F3.wav", "PhoneFrm play F3.wav", "RTS 1 off"}));
    EXPECT_FALSE(program->voicePart.commPhone->IsOpen());
    EXPECT_EQ(dialogs.boxes, Lines{});
}

// Repeat and stop.

TEST_F(PhoneMessagesTest, F1WithAnIntervalIsPlayedAgainSoLongAfterItsEnd) {
    StartPhone();
    RepeatEvery("5");
    Press("F1");
    EXPECT_EQ(Messages().gPhoneRepeat, 1);
    Taken();
    Pass(7'990);
    EXPECT_EQ(Taken(), Lines{});
    EXPECT_FALSE(IsPlaying());
    Pass(60);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav", "PhoneFrm open F1.wav", "PhoneFrm play F1.wav"}));
    Pass(8'050);
    EXPECT_EQ(Taken().back(), "PhoneFrm play F1.wav");
}

TEST_F(PhoneMessagesTest, OnlyF1Repeats) {
    StartPhone();
    RepeatEvery("1");
    Press("F2");
    Pass(5'000);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm open F2.wav", "PhoneFrm play F2.wav"}));
    EXPECT_EQ(Messages().gPhoneRepeat, 0);
}

TEST_F(PhoneMessagesTest, AnyKeyEndsTheCycleAndLetsTheFileFinish) {
    for (const char* key : {"a", "Up", "Left", "F10", "Alt+X"}) {
        StartPhone();
        RepeatEvery("1");
        Press("F1");
        Pass(500);
        Press(key);
        EXPECT_EQ(Messages().gPhoneRepeat, 0) << key;
        Taken();
        Pass(2'000);
        EXPECT_TRUE(IsPlaying()) << key;
        Pass(5'000);
        EXPECT_EQ(Taken(), Lines{}) << key;
    }
}

TEST_F(PhoneMessagesTest, AnyKeyInThePauseEndsTheCycle) {
    StartPhone();
    RepeatEvery("5");
    Press("F1");
    Pass(4'000);
    ASSERT_FALSE(IsPlaying());
    Type("8");
    Taken();
    Pass(20'000);
    EXPECT_EQ(Taken(), Lines{});
}

TEST_F(PhoneMessagesTest, EscStopsAMessageAndTheTimerLetsTheLineGo) {
    StartKeyed();
    Type("88a");
    Press("F1");
    Pass(500);
    Taken();
    Press("Esc");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm stop F1.wav"}));
    EXPECT_EQ(Fields(), "88|A|||") << "the entry stays";
    Pass(40);
    EXPECT_EQ(Taken(), (Lines{"RTS 1 off"}));
    Press("Esc");
    EXPECT_EQ(Fields(), "||||") << "with nothing playing it is the Esc of the entry";
}

TEST_F(PhoneMessagesTest, EscAtEveryMomentLeavesNothingDown) {
    StartKeyed();
    RepeatEvery("0.05");
    for (int moment = 0; moment < 640; moment += 7) {
        Phone().Text1.SetText("/contest/F3.wav");
        Press("F1");
        Pass(moment);
        Press("Esc");
        Pass(40);
        ExpectQuiet(std::to_string(moment));
        Taken();
        Pass(1'000);
        EXPECT_EQ(Taken(), Lines{}) << moment;
    }
}

TEST_F(PhoneMessagesTest, EscIsNotHeldBackBehindALetterOfADuplicate) {
    StartKeyed();
    Type("88aw1xx72mdc");
    Press("Enter");
    Type("5bw1xx");
    Press("Tab");
    ASSERT_EQ(program->duplicates.gIsDupe, 1);
    Press("F1");
    Type("x");
    ASSERT_TRUE(IsPlaying());
    Press("Esc");
    EXPECT_FALSE(IsPlaying());
    Pass(60);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(PhoneMessagesTest, EscEndsATestInACwContestToo) {
    stored.gContestMode = 0;
    StartKeyed();
    Phone().Show();
    Click(Phone().Command11);
    ASSERT_TRUE(IsPlaying());
    Press("Esc");
    EXPECT_FALSE(IsPlaying());
    EXPECT_TRUE(Phone().IsVisible()) << "a second Esc closes the form";
    Click(Phone().Command11);
    Phone().Hide();
    ASSERT_TRUE(IsPlaying());
    Press("Esc");
    EXPECT_FALSE(IsPlaying());
    Pass(60);
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(PhoneMessagesTest, ThousandFunctionKeysInAMinute) {
    StartKeyed();
    RepeatEvery("0.02");
    for (int n = 0; n < 1'000; ++n) {
        Press("F" + std::to_string(n % 4 + 1));
        Pass(60);
    }
    Press("Esc");
    Pass(40);
    ExpectQuiet("behind the last");
    const Lines heard = Taken();
    EXPECT_EQ(std::ranges::count_if(heard, [](const std::string& line) { return line.starts_with("PhoneFrm play"); }),
              750);
    Pass(3'000);
    EXPECT_EQ(Taken(), Lines{});
}

TEST_F(PhoneMessagesTest, KeysWithoutAPauseBetweenThemPlayTheLast) {
    StartKeyed();
    for (int n = 0; n < 200; ++n) {
        PostNamed("F1");
        PostNamed("F2");
    }
    TheDesk().RunPending();
    EXPECT_EQ(Taken().back(), "PhoneFrm play F2.wav");
    Pass(1'040);
    ExpectQuiet("behind the last");
}

TEST_F(PhoneMessagesTest, KeysOfTheListOfCwMessagesPlayToo) {
    StartPhone();
    program->keyingPart.strings.Show();
    TheDesk().RunPending();
    Press("F2");
    EXPECT_EQ(Taken().back(), "PhoneFrm play F2.wav");
    Press("Esc");
    EXPECT_EQ(Taken().back(), "PhoneFrm stop F2.wav");
}

// Whatever ends the program or stands in its way.

TEST_F(PhoneMessagesTest, LineIsLetGoByEveryEndOfTheProgram) {
    const std::vector<std::function<void()>> ends{
        [this] { Main().RequestClose(); },
        [this] { TheDesk().PostMenu(Main().mnuExit); },
        [this] { TheDesk().PostAction([] { throw std::logic_error{"broken"}; }); },
    };
    for (const auto& end : ends) {
        StartKeyed();
        Press("F1");
        Pass(100);
        Taken();
        bool wasDown = true;
        dialogs.onShow = [&] { wasDown = IsKeyDown(); };
        EXPECT_TRUE(EndStatusOf([&] {
            end();
            TheDesk().RunPending();
        }));
        EXPECT_FALSE(IsKeyDown());
        EXPECT_FALSE(IsPlaying());
        EXPECT_TRUE(dialogs.boxes.empty() || !wasDown) << "no timer runs while the box stands";
        const Lines heard = Taken();
        EXPECT_NE(std::ranges::find(heard, "RTS 1 off"), heard.end());
        dialogs.onShow = {};
        dialogs.boxes.clear();
    }
}

TEST_F(PhoneMessagesTest, UnloadingTheFormClosesTheFileAndThePort) {
    StartKeyed();
    Press("F1");
    Taken();
    Phone().Unload();
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav", "RTS 1 off"}));
    EXPECT_FALSE(Line().isOpen);
}

}  // namespace
}  // namespace tallyhut
