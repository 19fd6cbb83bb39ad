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
    std::string SentText() { return Line().TakeSent(); }
    void StartScan(std::string_view frequency, std::string_view from, std::string_view to) {
        Tune().txtFreq.SetText(frequency);
        Tune().txtFrom.SetText(from);
        Tune().txtTo.SetText(to);
        Tune().chkScan.SetValue(true);
    }
    void ScanTick() { PassTime(static_cast<Tick>(Tune().Timer1.Interval())); }
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

TEST_F(RigTuneTest, ScanTunesTheRadioAndTheNextStepWaitsForIt) {
    StartTuning("Elecraft");
    StartScan("7.03", "7", "7.1");
    const Tick before = clock.TickMs();
    ScanTick();
    EXPECT_NE(SentText().find("FA00007030010;"), std::string::npos);
    EXPECT_GE(clock.TickMs() - before, 1'204U);
    EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace tallyhut
