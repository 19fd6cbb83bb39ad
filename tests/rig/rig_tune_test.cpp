#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

struct RigTuneTest : RigFixture {
    frmRigTune& Tune() { return program->tuneForm; }

    void StartTuning(std::string_view rig) {
        StartPolling(rig);
        Rig().Hide();
        Tune().Show();
        Line().TakeSent();
    }
    void StartWithoutRig() {
        Start();
        Tune().Show();
    }
    std::string Frequency() { return Tune().txtFreq.Text(); }
    std::string SentText() {
        FinishCommands();
        return Line().TakeSent();
    }
    void StartScan(std::string_view frequency, std::string_view from, std::string_view to) {
        Tune().txtFreq.SetText(frequency);
        Tune().txtFrom.SetText(from);
        Tune().txtTo.SetText(to);
        Tune().chkScan.SetValue(true);
    }
    void ScanTick() { LetTimeGoBy(static_cast<Tick>(Tune().Timer1.Interval())); }
};

TEST_F(RigTuneTest, MenuAndCtrlGOpenTheForm) {
    Start();
    ChooseMenu(Main().mnuRigTune);
    EXPECT_TRUE(Tune().IsVisible());
    EXPECT_EQ(Tune().Caption(), " Change Frequency and Mode (Ctrl G (Go))");
    Click(Tune().cmdDone);
    EXPECT_FALSE(Tune().IsVisible());
    Press("Ctrl+G");
    EXPECT_TRUE(Tune().IsVisible());
    EXPECT_EQ(Tune().Focus(), &Tune().txtFreq);
}

TEST_F(RigTuneTest, CharacterBehindCtrlGIsNotSwallowed) {
    Start();
    Press("Ctrl+G");
    Tune().Hide();
    Type("8");
    EXPECT_EQ(Main().txtNum.Text(), "8");
}

TEST_F(RigTuneTest, EnterGoesToTheFrequencyAndSelectsIt) {
    StartTuning("Kenwood");
    Type("14.2");
    Press("Enter");
    EXPECT_NE(SentText().find("FA00014200000;"), std::string::npos);
    EXPECT_EQ(Frequency(), "14.2");
    EXPECT_EQ(Tune().txtFreq.SelectedText(), "14.2");
}

TEST_F(RigTuneTest, OnlyDigitsPointsAndSlashesAreTyped) {
    StartWithoutRig();
    for (TextBox* box : {&Tune().txtFreq, &Tune().txtFrom, &Tune().txtTo}) {
        Focus(*box);
        Type("1a4.,/2-+e ");
        EXPECT_EQ(box->Text(), "14./2");
        Press("Backspace");
        EXPECT_EQ(box->Text(), "14./");
    }
}

TEST_F(RigTuneTest, TuneButtonsWaitForAFrequency) {
    StartWithoutRig();
    EXPECT_FALSE(Tune().cmdTune(0).State().enabled);
    Tune().txtFreq.SetText("14.2");
    EXPECT_TRUE(Tune().cmdTune(0).State().enabled);
    EXPECT_TRUE(Tune().cmdTune(9).State().enabled);
    Tune().txtFreq.SetText("14.2/");
    EXPECT_FALSE(Tune().cmdTune(9).State().enabled);
}

TEST_F(RigTuneTest, TuneButtonsStepUpAndDown) {
    StartWithoutRig();
    const std::vector<std::pair<std::string, std::string>> rows{
        {"14.20001", "14.19999"}, {"15.2", "13.2"}, {"14.205", "14.195"}, {"14.201", "14.199"}, {"14.2001", "14.1999"},
    };
    for (int pair = 0; pair < 5; ++pair) {
        const auto& [up, down] = rows.at(static_cast<std::size_t>(pair));
        Tune().txtFreq.SetText("14.2");
        Click(Tune().cmdTune(2 * pair));
        EXPECT_EQ(Frequency(), up);
        Tune().txtFreq.SetText("14.2");
        Click(Tune().cmdTune(2 * pair + 1));
        EXPECT_EQ(Frequency(), down);
        EXPECT_TRUE(Tune().cmdDone.HasFocus());
    }
}

TEST_F(RigTuneTest, TuneCaptionsStandOnBothRows) {
    StartWithoutRig();
    EXPECT_EQ(Tune().cmdTune(0).Caption(), "10 Hz");
    EXPECT_EQ(Tune().cmdTune(3).Caption(), "1 MHz");
    EXPECT_EQ(Tune().cmdTune(4).Caption(), "5 KHz");
    EXPECT_EQ(Tune().cmdTune(7).Caption(), "1 KHz");
    EXPECT_EQ(Tune().cmdTune(8).Caption(), "100 Hz");
}

TEST_F(RigTuneTest, BandButtonsGoToTheirFrequencies) {
    StartWithoutRig();
    const std::vector<std::pair<std::string, std::string>> rows{
        {"160", "1.9"},    {"80", "3.75"},   {"60", "5.368"}, {"40", "7.15"}, {"30", "10.13"}, {"20", "14.175"},
        {"17", "18.118"},  {"15", "21.225"}, {"12", "24.94"}, {"10", "28.5"}, {"6", "52"},     {"2", "146"},
        {"1.25", "223.5"}, {"70", "435"},    {"33", "915"},   {"23", "1270"},
    };
    for (int i = 0; i < 16; ++i) {
        const auto& [caption, frequency] = rows.at(static_cast<std::size_t>(i));
        EXPECT_EQ(Tune().cmdBand(i).Caption(), caption);
        Click(Tune().cmdBand(i));
        EXPECT_EQ(Frequency(), frequency);
    }
}

TEST_F(RigTuneTest, BandButtonTunesTheRadio) {
    StartTuning("Kenwood");
    Click(Tune().cmdBand(5));
    EXPECT_NE(SentText().find("FA00014175000;"), std::string::npos);
}

TEST_F(RigTuneTest, ModeButtonsSetTheMode) {
    StartTuning("Kenwood");
    const std::vector<std::pair<Button*, std::string>> rows{
        {&Tune().cmdCW, "MD3;"}, {&Tune().cmdUSB, "MD2;"}, {&Tune().cmdLSB, "MD1;"},
        {&Tune().cmdAM, "MD5;"}, {&Tune().cmdFM, "MD4;"},  {&Tune().cmdRTTY, "MD6;"},
    };
    for (const auto& [button, command] : rows) {
        SentText();
        Click(*button);
        EXPECT_NE(SentText().find(command), std::string::npos) << command;
        EXPECT_TRUE(Tune().cmdDone.HasFocus());
    }
}

TEST_F(RigTuneTest, WithoutARadioTheTextChangesAndNothingIsSent) {
    StartWithoutRig();
    Click(Tune().cmdBand(5));
    EXPECT_EQ(Frequency(), "14.175");
    EXPECT_TRUE(Line().written.empty());
}

TEST_F(RigTuneTest, FrequencyBeyondAllRadiosIsLeftAlone) {
    StartTuning("Kenwood");
    Tune().txtFreq.SetText(std::string(60, '9'));
    Click(Tune().Command1);
    EXPECT_EQ(SentText().find("FA9"), std::string::npos);
}

TEST_F(RigTuneTest, ScanBeginsAtFromWhereThereIsNoFrequency) {
    StartWithoutRig();
    StartScan("", "14", "14.35");
    EXPECT_EQ(Frequency(), "14");
    EXPECT_TRUE(Tune().Command1.HasFocus());
}

TEST_F(RigTuneTest, ScanStepsUpwardsAndWraps) {
    StartWithoutRig();
    Tune().Option1.SetValue(true);
    StartScan("14", "14", "14.001");
    std::vector<std::string> seen;
    for (int i = 0; i < 4; ++i) {
        ScanTick();
        seen.push_back(Frequency());
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"14.0005", "14.001", "14.", "14.0005"}));
}

TEST_F(RigTuneTest, ScanWithFromAboveToJumpsToFromWithEveryTick) {
    StartWithoutRig();
    StartScan("14", "15", "14");
    for (int i = 0; i < 3; ++i) {
        ScanTick();
        EXPECT_EQ(Frequency(), "15.");
    }
}

TEST_F(RigTuneTest, StepsAreThoseOfTheOptions) {
    StartWithoutRig();
    EXPECT_TRUE(Tune().Option4.Value());
    const std::vector<std::pair<Option*, std::string>> rows{
        {&Tune().Option5, "7.0025"},  {&Tune().Option1, "7.0005"},  {&Tune().Option2, "7.0001"},
        {&Tune().Option3, "7.00003"}, {&Tune().Option4, "7.00001"},
    };
    for (const auto& [option, frequency] : rows) {
        option->SetValue(true);
        StartScan("7", "7", "8");
        ScanTick();
        EXPECT_EQ(Frequency(), frequency);
        Tune().chkScan.SetValue(false);
    }
}

TEST_F(RigTuneTest, ScanStandsWhileALimitIsNoNumber) {
    StartWithoutRig();
    StartScan("7", "", "8");
    ScanTick();
    EXPECT_EQ(Frequency(), "7");
    Tune().txtFrom.SetText("7");
    Tune().txtTo.SetText("8/");
    ScanTick();
    EXPECT_EQ(Frequency(), "7");
}

TEST_F(RigTuneTest, AnyKeyStopsAScan) {
    StartWithoutRig();
    for (const char* key : {"Space", "Enter", "5", "x", "Backspace"}) {
        StartScan("7", "7", "8");
        TheDesk().RunPending();
        EXPECT_TRUE(Tune().Command1.HasFocus());
        Press(key);
        EXPECT_FALSE(Tune().chkScan.Value()) << key;
    }
    StartScan("7", "7", "8");
    Focus(Tune().txtFreq);
    Press("Enter");
    EXPECT_FALSE(Tune().chkScan.Value());
}

TEST_F(RigTuneTest, SpaceOnTheCheckBoxSwitchesTheScan) {
    StartWithoutRig();
    Tune().chkScan.SetFocus();
    Press("Space");
    EXPECT_TRUE(Tune().chkScan.Value());
    Tune().chkScan.SetFocus();
    Press("Space");
    EXPECT_FALSE(Tune().chkScan.Value());
}

TEST_F(RigTuneTest, ScanStepsAsFastAsTheRadioTakesThemAndPassesNoneOver) {
    struct Case {
        std::string_view rig;
        std::vector<Tick> tuned;
        std::string_view last;  ///< the next step may have begun
    };
    for (const Case& one : {Case{"Elecraft", {299 + 1'304, 299 + 2 * 1'304, 299 + 3 * 1'304}, "7.03004"},
                            Case{"Kenwood", {299 + 304, 299 + 2 * 304, 299 + 3 * 304}, "7.03004"},
                            Case{"Icom 735", {299 + 239, 2 * 299 + 239, 3 * 299 + 239}, "7.03003"}}) {
        SCOPED_TRACE(one.rig);
        StartTuning(one.rig);
        StartScan("7.03", "7", "7.1");
        const Tick start = clock.TickMs();
        LetTimeGoBy(one.tuned.back());
        std::vector<Tick> tuned;
        for (const sim::SerialLine::Written& written : Line().written) {
            constexpr std::size_t kLongestMode = 7;
            if (written.at > start && written.bytes.size() > kLongestMode) {
                tuned.push_back(written.at - start);
            }
        }
        EXPECT_EQ(tuned, one.tuned);
        EXPECT_EQ(Frequency(), one.last);
    }
}

TEST_F(RigTuneTest, KeyDuringAPauseStopsTheScanBehindTheStepUnderWay) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    ScanTick();
    LetTimeGoBy(500);
    Press("x");
    EXPECT_FALSE(Tune().chkScan.Value());
    EXPECT_NE(SentText().find("FA00007030010;"), std::string::npos);
    LetTimeGoBy(3'000);
    EXPECT_EQ(Frequency(), "7.03001");
    EXPECT_EQ(SentText().find("FA0"), std::string::npos);
}

TEST_F(RigTuneTest, GoDuringAScanStepWaitsItsTurnAndTheScanGoesOnFromThere) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    ScanTick();
    LetTimeGoBy(500);
    Tune().txtFreq.SetText("7.05");
    Click(Tune().Command1);
    LetTimeGoBy(804 + 1'304);
    EXPECT_NE(Line().TakeSent().find("FA00007030010;MD3;FA00007050000;"), std::string::npos);
    EXPECT_EQ(Frequency(), "7.05001");
}

TEST_F(RigTuneTest, StepThatNoCommandHoldsIsToldOnceAndEndsTheScan) {
    StartTuning("Icom");
    StartScan("20000", "20000", "30000");
    ScanTick();
    EXPECT_EQ(dialogs.boxes,
              (std::vector<std::string>{"message \"Error Changing Frequency\" \"20000 MHz is too high for "
                                        "the commands of this radio.\" OK Exclamation"}));
    EXPECT_FALSE(Tune().chkScan.Value());
    for (int i = 0; i < 10; ++i) {
        ScanTick();
    }
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigTuneTest, GoThatNoCommandHoldsIsToldOnceAndEndsTheScan) {
    StartTuning("Icom");
    StartScan("14.2", "14", "14.3");
    Tune().txtFreq.SetText("14200");
    Click(Tune().Command1);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_FALSE(Tune().chkScan.Value());
    LetTimeGoBy(5'000);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(RigTuneTest, CableThatIsPulledDuringAScanIsToldOnceAndEndsIt) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    ScanTick();
    LetTimeGoBy(500);
    Line().Unplug();
    LetTimeGoBy(804);
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{"message \"Error Changing Frequency\" \"Serial port 1: "
                                                       "Input/output error\" OK Exclamation"}));
    EXPECT_FALSE(Tune().chkScan.Value());
    for (int i = 0; i < 10; ++i) {
        ScanTick();
    }
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(Frequency(), "7.03001");
}

TEST_F(RigTuneTest, ScanThatEndsByItselfTakesNoKeysFromTheMainForm) {
    StartTuning("Kenwood");
    StartScan("7.03", "7", "7.1");
    Focus(Main().txtNum);
    ScanTick();
    Line().Unplug();
    LetTimeGoBy(304);
    EXPECT_FALSE(Tune().chkScan.Value());
    EXPECT_TRUE(Main().IsActive());
    Type("8");
    EXPECT_EQ(Main().txtNum.Text(), "8");
}

TEST_F(RigTuneTest, EscStopsAScanAndLeavesWhatIsTyped) {
    StartTuning("Kenwood");
    StartScan("7.03", "7", "7.1");
    for (TextBox* box : {&Tune().txtFreq, &Tune().txtFrom, &Tune().txtTo}) {
        Tune().chkScan.SetValue(true);
        Focus(*box);
        Press("Esc");
        EXPECT_FALSE(Tune().chkScan.Value());
        EXPECT_TRUE(Tune().IsVisible());
        EXPECT_EQ(Frequency() + ' ' + Tune().txtFrom.Text() + ' ' + Tune().txtTo.Text(), "7.03 7 7.1");
    }
}

TEST_F(RigTuneTest, EscDuringAPauseStopsTheScan) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    ScanTick();
    LetTimeGoBy(500);
    Press("Esc");
    EXPECT_FALSE(Tune().chkScan.Value());
    EXPECT_TRUE(Tune().IsVisible());
    EXPECT_EQ(Frequency(), "7.03001");
}

TEST_F(RigTuneTest, EscClosesTheFormWhenNothingScansAndKeepsWhatIsTyped) {
    StartWithoutRig();
    for (TextBox* box : {&Tune().txtFreq, &Tune().txtFrom, &Tune().txtTo}) {
        Focus(*box);
        Type("14.2");
    }
    Click(Tune().Option2);
    Press("Esc");
    EXPECT_FALSE(Tune().IsVisible());
    Press("Ctrl+G");
    EXPECT_EQ(Frequency() + ' ' + Tune().txtFrom.Text() + ' ' + Tune().txtTo.Text(), "14.2 14.2 14.2");
    EXPECT_TRUE(Tune().Option2.Value());
    EXPECT_TRUE(Tune().txtFreq.HasFocus());
}

TEST_F(RigTuneTest, FormThatIsClosedDuringAPauseLeavesTheCommandToTheRadio) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    ScanTick();
    LetTimeGoBy(500);
    Tune().RequestClose();
    EXPECT_FALSE(Tune().IsLoaded());
    EXPECT_NE(SentText().find("FA00007030010;"), std::string::npos);
    LetTimeGoBy(3'000);
    EXPECT_EQ(SentText().find("FA0"), std::string::npos);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigTuneTest, ButtonsLeaveTheirFocusAtOnceAndNotBehindAPause) {
    StartTuning("Elecraft");
    Tune().txtFreq.SetText("7.03");
    Click(Tune().cmdTune(6));
    EXPECT_TRUE(Tune().cmdDone.HasFocus());
    Focus(Main().txtNum);
    FinishCommands();
    EXPECT_TRUE(Main().IsActive());
    EXPECT_TRUE(Main().txtNum.HasFocus());
}

}  // namespace
}  // namespace tallyhut
