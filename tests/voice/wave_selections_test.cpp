#include "tests/voice/voice_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kStored =
    "\"/w/cq ss.wav\"\r\n\"/w/2.wav\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n\"7\"\r\n\"8\"\r\n\"9\"\r\n\"3\"\r\n1\r\n"
    "\"2.5\"\r\n\"&H278\"\r\n";

struct WaveSelectionsTest : VoiceFixture {
    void StartWith(const std::string& text) {
        files.Put(kWavesPath, text);
        StartOnTime();
    }
    void Show() {
        Phone().Show();
        TheDesk().RunPending();
    }
    std::string Chosen() {
        std::string chosen;
        for (const Option* option : {&Phone().Option1, &Phone().Option2, &Phone().Option3}) {
            chosen += option->Value() ? option->Caption() + ' ' : "";
        }
        return chosen;
    }
    std::string OnDisk() { return files.contents.at(kWavesPath); }
};

TEST_F(WaveSelectionsTest, FormTellsHowItIsUsed) {
    StartPhone();
    EXPECT_EQ(Phone().Caption(), "Phone Wave Selections");
    std::string texts;
    for (const Control* control : Phone().Controls()) {
        texts += control->State().text + '\n';
    }
    for (const char* told :
         {"Connect the line-out of your sound card to the audio input of your transceiver.",
          "Caution, RF feedback can damage your PC!", "Plays F1 Command", "Loop (Sec)", "RTS", "DTR", "Parallel"}) {
        EXPECT_NE(texts.find(told), std::string::npos) << told;
    }
    for (const PhoneKey& key : kPhoneKeys) {
        EXPECT_EQ((Phone().*key.browse).Caption(), "Browse");
    }
}

TEST_F(WaveSelectionsTest, MenuAndCtrlPShowTheForm) {
    StartPhone();
    EXPECT_EQ(Main().mnuPhone.Caption(), "&Phone");
    ChooseMenu(Main().mnuPhone);
    EXPECT_TRUE(Phone().IsVisible());
    EXPECT_FALSE(Phone().IsModal());
    Phone().Hide();
    TheDesk().RunPending();
    Press("Ctrl+P");
    EXPECT_TRUE(Phone().IsVisible());
    EXPECT_EQ(Fields(), "||||");
}

// The file.

TEST_F(WaveSelectionsTest, StartReadsTheFile) {
    StartWith(kStored);
    EXPECT_TRUE(Phone().IsLoaded());
    EXPECT_FALSE(Phone().IsVisible());
    EXPECT_EQ(Phone().Text1.Text(), "/w/cq ss.wav");
    EXPECT_EQ(Phone().Text9.Text(), "9");
    EXPECT_EQ(Phone().Text10.Text() + ' ' + Phone().txtPHLoop.Text() + ' ' + Phone().Text11.Text(), "3 2.5 &H278");
    EXPECT_EQ(Chosen(), "DTR ");
    EXPECT_EQ(Phone().tmrRepeat.Interval(), 2'500);
    EXPECT_FALSE(Phone().tmrRepeat.Enabled());
    EXPECT_FALSE(Phone().Timer1.Enabled());
    EXPECT_EQ(Phone().Timer1.Interval(), 40);
    EXPECT_EQ(Taken(), Lines{}) << "no port is opened by it";
}

TEST_F(WaveSelectionsTest, FileOfAFreshInstallationLeavesTheDefaults) {
    StartOnTime();
    for (const PhoneKey& key : kPhoneKeys) {
        EXPECT_EQ((Phone().*key.file).Text(), "");
    }
    EXPECT_EQ(Phone().Text10.Text() + ' ' + Phone().txtPHLoop.Text() + ' ' + Phone().Text11.Text(), "0 0 &H378");
    EXPECT_EQ(Chosen(), "RTS ");
    EXPECT_FALSE(Phone().Command12.State().visible);
}

TEST_F(WaveSelectionsTest, MissingOrShortFileEndsTheStartThereWithoutAWord) {
    const std::string whole = kStored;
    for (const std::string& damaged : {std::string{"(missing)"}, std::string{}, whole.substr(0, whole.find("\"7\"")),
                                       whole.substr(0, whole.find("\"&H278\""))}) {
        files.Put("/contest/CW.txt", "\"CQ\"\r\n");
        files.Put(kPreferencesPath, WritePreferences(stored));
        files.Put(kLogPath, "");
        files.Put(kWavesPath, damaged);
        if (damaged == "(missing)") {
            files.contents.erase(kWavesPath);
        }
        dialogs.boxes.clear();
        MakeProgram();
        program->Start();
        TheDesk().RunPending();
        EXPECT_EQ(dialogs.boxes, Lines{}) << damaged;
        EXPECT_FALSE(program->stationForm.IsLoaded()) << damaged;
        EXPECT_FALSE(program->keyingPart.form.IsLoaded()) << damaged;
        EXPECT_TRUE(Main().IsVisible()) << damaged;
        EXPECT_EQ(Phone().Text2.Text(), damaged.starts_with("\"/w/cq") ? "/w/2.wav" : "") << damaged;
        EXPECT_EQ(Phone().Text11.Text(), "&H378") << damaged;
    }
}

TEST_F(WaveSelectionsTest, IntervalThatIsNoneIsNoRepeat) {
    for (const char* seconds : {"five", "-1", "", "1E99", "&HFFFFFFFF"}) {
        std::string text = kStored;
        text.replace(text.find("2.5"), 3, seconds);
        StartWith(text);
        EXPECT_EQ(Phone().tmrRepeat.Interval(), 0) << seconds;
        EXPECT_EQ(Phone().Text11.Text(), "&H278") << seconds;
    }
}

TEST_F(WaveSelectionsTest, LineBeyondTheThreeKeepsTheFirst) {
    std::string text = kStored;
    text.replace(text.find("\r\n1\r\n") + 2, 1, "7");
    StartWith(text);
    EXPECT_EQ(Chosen(), "RTS ");
    EXPECT_EQ(Phone().Text11.Text(), "&H278");
}

TEST_F(WaveSelectionsTest, DoneHidesAndWritesTheFile) {
    StartWith(kStored);
    Show();
    Phone().Text1.SetText("  /w/cq ss.wav  ");
    Phone().Text2.SetText("/w/2.wav ");
    Click(Phone().Command1);
    EXPECT_FALSE(Phone().IsVisible());
    EXPECT_TRUE(Phone().IsLoaded());
    EXPECT_EQ(OnDisk(), kStored);
    Phone().Option3.SetValue(true);
    Click(Phone().Command1);
    EXPECT_EQ(OnDisk(), kStored) << "a button of a hidden form is not clicked";
}

TEST_F(WaveSelectionsTest, DoneThatCannotWriteIsToldOnce) {
    StartWith(kStored);
    Show();
    Phone().Text1.SetText("/w/new.wav");
    files.FailAt(1, "No space left on device");
    Click(Phone().Command1);
    EXPECT_FALSE(Phone().IsVisible());
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(OnDisk(), kStored);
    EXPECT_EQ(Phone().Text1.Text(), "/w/new.wav");
}

TEST_F(WaveSelectionsTest, WhatWasDoneComesBackAtTheNextStart) {
    StartOnTime();
    Show();
    Phone().Text9.SetText("/contest/m\xC3\xBCll/cq de.wav");
    Phone().Option3.SetValue(true);
    Phone().txtPHLoop.SetText("59.5");
    Click(Phone().Command1);
    StartOnTime();
    EXPECT_EQ(Phone().Text9.Text(), "/contest/m\xC3\xBCll/cq de.wav");
    EXPECT_EQ(Chosen(), "Parallel ");
    EXPECT_EQ(Phone().tmrRepeat.Interval(), 59'500);
}

TEST_F(WaveSelectionsTest, CloseBoxHidesAndKeepsTheMessages) {
    StartWith(kStored);
    Show();
    Phone().Text1.SetText("/w/new.wav");
    Phone().RequestClose();
    TheDesk().RunPending();
    EXPECT_FALSE(Phone().IsVisible());
    EXPECT_TRUE(Phone().IsLoaded());
    EXPECT_EQ(Phone().Text1.Text(), "/w/new.wav");
    EXPECT_EQ(OnDisk(), kStored);
}

// Its fields.

TEST_F(WaveSelectionsTest, BrowsePutsTheFileIntoItsField) {
    StartPhone();
    Show();
    for (const PhoneKey& key : kPhoneKeys) {
        dialogs.boxes.clear();
        dialogs.files = {"/w/F" + std::to_string(key.code) + ".wav"};
        Click(Phone().*key.browse);
        EXPECT_EQ((Phone().*key.file).Text(), "/w/F" + std::to_string(key.code) + ".wav");
        EXPECT_EQ(dialogs.boxes, (Lines{"open \"\" \"(*.wav)|*.wav\" \"/contest\" \"\""}));
        EXPECT_EQ(Phone().Focus(), &Phone().Command1);
        EXPECT_EQ((Phone().*key.file).State().toolTip, (Phone().*key.file).Text())
            << "its field may be too short for it";
    }
}

TEST_F(WaveSelectionsTest, BrowseThatIsCancelledLeavesTheField) {
    StartPhone();
    Show();
    Click(Phone().Command3);
    EXPECT_EQ(Phone().Text2.Text(), "/contest/F2.wav");
    EXPECT_EQ(Phone().Focus(), &Phone().Command3);
}

TEST_F(WaveSelectionsTest, LoopFieldTakesDigitsPointAndBackspace) {
    StartPhone();
    Show();
    Focus(Phone().txtPHLoop);
    Phone().txtPHLoop.SetText("");
    Type("a1-2,.5e");
    EXPECT_EQ(Phone().txtPHLoop.Text(), "12.5");
    Press("Backspace");
    EXPECT_EQ(Phone().txtPHLoop.Text(), "12.");
}

TEST_F(WaveSelectionsTest, IntervalIsFrom0ToBelow60Seconds) {
    struct Case {
        const char* typed;
        const char* left;
        std::int32_t interval;
    };
    StartPhone();
    Show();
    for (const auto& [typed, left, interval] : {Case{"5", "5", 5'000},
                                                {"0.5", "0.5", 500},
                                                {"59.999", "59.999", 59'999},
                                                {"60", "0", 0},
                                                {"", "0", 0},
                                                {".", "0", 0},
                                                {"0", "0", 0}}) {
        Focus(Phone().txtPHLoop);
        Phone().txtPHLoop.SetText(typed);
        Focus(Phone().Text11);
        EXPECT_EQ(Phone().txtPHLoop.Text(), left) << typed;
        EXPECT_EQ(Phone().tmrRepeat.Interval(), interval) << typed;
    }
}

TEST_F(WaveSelectionsTest, FormTellsWhatStandsBehindANumberAndAnAddress) {
    serialPorts.devices = {{.path = "/dev/ttyUSB0", .description = "Acme Cable", .mayOpen = false}};
    parallelPorts.meanings[0x278] = "/dev/parport1: no right to open it";
    StartPhone();
    Phone().Text10.SetText("1");
    Phone().Text11.SetText("&H278");
    Show();
    EXPECT_EQ(Phone().lblDevice.Caption(), "/dev/ttyUSB0, no right to open it, Acme Cable");
    EXPECT_NE(Phone().lblLines.Caption().find("group dialout"), std::string::npos);
    EXPECT_EQ(Phone().lblRegister.Caption(), "/dev/parport1: no right to open it");
    Phone().Option3.SetValue(true);
    EXPECT_EQ(Phone().lblLines.Caption(), "/dev/parport1: no right to open it");
}

// Test and Stop.

TEST_F(WaveSelectionsTest, TestPlaysF1InEitherContest) {
    for (const std::uint8_t contest : {std::uint8_t{0}, std::uint8_t{1}}) {
        stored.gContestMode = contest;
        StartPhone();
        Show();
        Click(Phone().Command11);
        EXPECT_EQ(Taken(), (Lines{"PhoneFrm open F1.wav", "PhoneFrm play F1.wav"}));
        EXPECT_EQ(Phone().Focus(), &Phone().Command1);
        EXPECT_FALSE(Phone().Command12.State().visible) << "nothing repeats";
    }
}

struct StopTest : WaveSelectionsTest {
    void StartRepeating() {
        StartPhone();
        Show();
        Phone().txtPHLoop.SetText("2");
        program->voicePart.selections.txtPHLoop_LostFocus();
        Click(Phone().Command11);
        ASSERT_TRUE(Phone().Command12.State().visible);
        Taken();
    }
};

TEST_F(StopTest, WhileTheFilePlaysItEndsTheCycle) {
    StartRepeating();
    Pass(1'000);
    Click(Phone().Command12);
    EXPECT_FALSE(Phone().Command12.State().visible);
    EXPECT_EQ(Messages().gPhoneRepeat, 0);
    EXPECT_TRUE(IsPlaying());
    Pass(20'000);
    EXPECT_EQ(Taken(), Lines{});
}

TEST_F(StopTest, InThePauseTheCycleGoesOn) {
    StartRepeating();
    Pass(4'000);
    ASSERT_FALSE(IsPlaying());
    Click(Phone().Command12);
    EXPECT_EQ(Messages().gPhoneRepeat, 0);
    Pass(1'100);
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm close F1.wav", "PhoneFrm open F1.wav", "PhoneFrm play F1.wav"}));
    EXPECT_EQ(Messages().gPhoneRepeat, 1);
}

TEST_F(WaveSelectionsTest, QuoteComesIntoNoFileName) {
    StartPhone();
    Phone().Show();
    Phone().Text4.SetFocus();
    Type("\"");
    EXPECT_EQ(Phone().Text4.Text(), "");
    dialogs.files = {"/contest/a\"b.wav"};
    Click(Phone().Command5);
    EXPECT_EQ(Phone().Text4.Text(), "");
    EXPECT_FALSE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace tallyhut
