#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kInvalidPort =
    "message \"Invalid Comm Settings.\" \"The comm port that you selected for rig interface is either in use, invalid "
    "or the settings that you have selected are invalid.  Please select another combination or choose None for your "
    "rig selection.\" OK Exclamation";

struct RigSetupTest : RigFixture {
    static std::string ChosenIn(const Control& frame) {
        for (const Control* control : frame.form.Controls()) {
            if (control->Frame() == &frame && control->State().chosen) {
                return control->State().text;
            }
        }
        return "";
    }
    /// Baud rate, data and stop bits, parity, strings, conversion: what a click on a row brings.
    std::string Defaults() {
        return ChosenIn(Rig().fraBaud) + '|' + ChosenIn(Rig().fraData) + '|' + ChosenIn(Rig().fraStop) + '|' +
               ChosenIn(Rig().fraParity) + '|' + Rig().txtFreq.Text() + '|' + Rig().txtMode.Text() + '|' +
               (Rig().chkConvToHex.Value() ? '1' : '0');
    }
    bool IsPolling() { return Rig().tmrGetData.Enabled(); }
    void StoreRigSettings(const std::string& text) { files.Put(kRigSettingsPath, text); }
};

TEST_F(RigSetupTest, PortsTellTheirDevicesAsChosenLast) {
    Start();
    Rig().Show();
    TheDesk().RunPending();
    EXPECT_EQ(Rig().optComm(8).State().toolTip, "no device");
    Rig().Hide();
    serialPorts.Choose(9, "/tmp/rig");
    Rig().Show();
    TheDesk().RunPending();
    EXPECT_EQ(Rig().optComm(8).State().toolTip, "/tmp/rig");
}

TEST_F(RigSetupTest, ListHasItsRadiosInTheirOrder) {
    Start();
    Rig().Show();
    EXPECT_EQ(Rig().List1.Items(), (Lines{"None",
                                          "Elecraft",
                                          "Icom",
                                          "Icom 735",
                                          "Kenwood",
                                          "Kenwood 2",
                                          "Ten Tec Omni VI",
                                          "Ten Tec Orion",
                                          "Ten Tec Fnt Pnl",
                                          "Ten Tec Pegasus",
                                          "Yaesu",
                                          "Yaesu 757 GX II",
                                          "Yaesu 890",
                                          "Yaesu 920",
                                          "Yaesu 990",
                                          "Yaesu 1000 D",
                                          "Yaesu 1000",
                                          "Yaesu FTdx9000",
                                          "Other",
                                          "Yaesu FTdx10",
                                          "Hamlib (rigctld)",
                                          "flrig"}));
}

TEST_F(RigSetupTest, FormBeginsWithItsDefaults) {
    Start();
    Rig().Show();
    EXPECT_EQ(Defaults(), "56|8|1|None|||0");
    EXPECT_EQ(ChosenIn(Rig().fraPort), "1");
    EXPECT_EQ(ChosenIn(Rig().fraPower), "None");
    EXPECT_EQ(ChosenIn(Rig().fraPoll), "500 ms");
    EXPECT_EQ(ChosenIn(Rig().Frame1), "Rig");
    EXPECT_TRUE(Rig().chkFrequency.Value());
    EXPECT_EQ(Rig().List1.Row(), 0);
    for (const Control* hidden :
         std::initializer_list<const Control*>{&Rig().Command2, &Rig().Label2, &Rig().chkConvToHex, &Rig().Label10}) {
        EXPECT_FALSE(hidden->IsShown()) << hidden->name;
    }
}

TEST_F(RigSetupTest, RowBringsItsDefaults) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases{
        {"Elecraft", "4.8|8|2|None|FA;|MD;|0"},
        {"Icom", "1.2|8|1|None|FE FE 64 E0 03 FD|FE FE 64 E0 04 FD|1"},
        {"Icom 735", "1.2|8|1|None|FE FE 64 E0 03 FD|FE FE 64 E0 04 FD|1"},
        {"Kenwood", "4.8|8|2|None|FA;|MD;|0"},
        {"Kenwood 2", "4.8|8|2|None|IF;||0"},
        {"Ten Tec Omni VI", "1.2|8|1|None|FE FE 04 E0 03 FD|FE FE 04 E0 04 FD|1"},
        {"Ten Tec Orion", "56|8|1|None|?AF|?RMM|0"},
        {"Ten Tec Fnt Pnl", "56|8|1|None|3F 41 0D|3F 4D 0D|1"},
        {"Yaesu", "4.8|8|2|None|00 00 00 00 03||1"},
        {"Yaesu 757 GX II", "4.8|8|2|None|00 00 00 00 10||1"},
        {"Yaesu 890", "4.8|8|2|None|00 00 00 02 10||1"},
        {"Yaesu 920", "4.8|8|2|None|00 00 00 02 10||1"},
        {"Yaesu 990", "4.8|8|2|None|00 00 00 02 10||1"},
        {"Yaesu 1000 D", "4.8|8|2|None|00 00 00 02 10||1"},
        {"Yaesu 1000", "4.8|8|2|None|00 00 00 02 10||1"},
        // These leave some or all of the serial settings as they stand.
        {"Yaesu FTdx9000", "4.8|7|2|Even|FA;|MD0;|0"},
        {"Yaesu FTdx10", "38.4|8|1|None|FA;|MD0;|0"},
        {"None", "19.2|7|2|Even|||0"},
        {"Ten Tec Pegasus", "19.2|7|2|Even|||0"},
        {"Hamlib (rigctld)", "19.2|7|2|Even|||0"},
        {"flrig", "19.2|7|2|Even|||0"},
        {"Other", "19.2|7|2|Even|||0"},
    };
    Start();
    Rig().Show();
    for (const auto& [rig, defaults] : cases) {
        for (Option* option : {&Rig().optBaud192, &Rig().optData7, &Rig().optStop2, &Rig().optParityEven}) {
            option->SetValue(true);
        }
        PickRig(rig);
        EXPECT_EQ(Defaults(), defaults) << rig;
        EXPECT_EQ(program->preferences.gRigName, rig);
    }
}

TEST_F(RigSetupTest, HintsAreShownWhereTheyBelong) {
    Start();
    for (const std::string& rig : Lines{"Icom", "Icom 735", "Kenwood", "Other", "Ten Tec Omni VI"}) {
        PickRig(rig);
        EXPECT_EQ(Rig().Label10.IsShown(), rig.starts_with("Icom")) << rig;
        EXPECT_EQ(Rig().chkConvToHex.IsShown(), rig == "Other") << rig;
    }
}

TEST_F(RigSetupTest, PickingARowEndsTheTest) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00014200000;MD3;");
    PickRig("Icom");
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Line().isOpen);
    EXPECT_FALSE(Rig().Label2.IsShown());
    EXPECT_EQ(Rig().lblFreq.Caption() + Rig().lblMode.Caption() + Rig().lblUnProcess.Caption(), "");
}

TEST_F(RigSetupTest, PickingTheSameRowBringsItsDefaultsAgain) {
    StartPolling("Kenwood");
    Rig().txtFreq.SetText("FB;");
    PickRig("Kenwood");
    EXPECT_EQ(Rig().txtFreq.Text(), "FA;");
    EXPECT_FALSE(IsPolling());
}

TEST_F(RigSetupTest, TypedStringIsPolledAtOnce) {
    StartPolling("Kenwood 2");
    Line().TakeSent();
    Rig().txtMode.SetText("MD;");
    NextTick(2);
    EXPECT_EQ(Line().TakeSent(), "IF;MD;");
}

TEST_F(RigSetupTest, TestOpensThePortAndAsks) {
    Start();
    PickRig("Kenwood");
    Click(Rig().optComm(2));
    Click(Rig().optPowerDTR);
    Click(Rig().Command1);
    EXPECT_TRUE(Line(3).isOpen);
    EXPECT_EQ(SettingsText(Line(3).settings), "4800,N,8,2");
    EXPECT_EQ(Line(3).handshake, Handshake::None);
    EXPECT_EQ(Line(3).dtr, true);
    EXPECT_EQ(Line(3).rts, false);
    EXPECT_EQ(Line(3).TakeSent(), "FA;MD;");
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_EQ(Rig().lblMode.Caption(), "No Response");
    EXPECT_TRUE(Rig().Command2.IsShown());
    EXPECT_TRUE(Rig().Label2.IsShown());
    EXPECT_TRUE(IsPolling());
    EXPECT_EQ(Rig().tmrGetData.Interval(), 250);
}

TEST_F(RigSetupTest, PowerIsALineThatIsRaisedAfterTheOpening) {
    for (const auto& [option, dtr, rts] :
         std::vector<std::tuple<Option RigControlfrm::*, bool, bool>>{{&RigControlfrm::optPowerNone, false, false},
                                                                      {&RigControlfrm::optPowerRTS, false, true},
                                                                      {&RigControlfrm::optPowerDTR, true, false}}) {
        Start();
        PickRig("Kenwood");
        Click(Rig().*option);
        Click(Rig().Command1);
        EXPECT_EQ(Line().dtr, dtr);
        EXPECT_EQ(Line().rts, rts);
    }
}

TEST_F(RigSetupTest, HandshakeStaysOnceARadioHasSetIt) {
    StartPolling("Ten Tec Orion");
    EXPECT_EQ(Line().handshake, Handshake::Rts);
    PickRig("Kenwood");
    Click(Rig().Command1);
    EXPECT_EQ(Line().handshake, Handshake::Rts);
    StartPolling("Kenwood");
    EXPECT_EQ(Line().handshake, Handshake::None);
}

TEST_F(RigSetupTest, TestWithNoneCommitsAndOpensNothing) {
    Start();
    PickRig("None");
    Click(Rig().optPollFast);
    Click(Rig().Command1);
    EXPECT_FALSE(Line().isOpen);
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Rig().Label2.IsShown());
    EXPECT_EQ(Rig().lblFreq.Caption(), "");
    EXPECT_EQ(program->rigSettings.pollRate, "F");
}

TEST_F(RigSetupTest, RepeatedTestRestartsThePort) {
    StartPolling("Kenwood");
    Click(Rig().optComm(1));
    Click(Rig().Command1);
    EXPECT_FALSE(Line(1).isOpen);
    EXPECT_TRUE(Line(2).isOpen);
    EXPECT_TRUE(IsPolling());
}

TEST_F(RigSetupTest, NewTestMayBeginWithEitherTick) {
    StartPolling("Kenwood");
    Line().TakeSent();
    ASSERT_EQ(State().ReadPhase, 1);
    Click(Rig().Command1);
    EXPECT_EQ(Line().TakeSent(), "");  // it was the turn of a read
    EXPECT_EQ(State().ReadPhase, 0);
    NextTick();
    EXPECT_EQ(Line().TakeSent(), "FA;MD;");
}

TEST_F(RigSetupTest, PortThatCannotBeOpenedIsTold) {
    Start();
    PickRig("Kenwood");
    Line().refusal = "Device or resource busy";
    Click(Rig().Command1);
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidPort});
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Rig().Command2.IsShown());
    EXPECT_FALSE(Rig().Label2.IsShown());
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
}

TEST_F(RigSetupTest, RepeatedTestOnAPortThatIsGoneStopsThePoll) {
    StartPolling("Kenwood");
    Line().Unplug();
    Click(Rig().Command1);
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidPort});
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(RigSetupTest, EndTestStopsThePollAndClosesThePort) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00014200000;MD3;");
    Click(Rig().Command2);
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Line().isOpen);
    EXPECT_EQ(Rig().lblFreq.Caption() + Rig().lblMode.Caption() + Rig().lblUnProcess.Caption(), "");
    EXPECT_FALSE(Rig().Command2.IsShown());
}

TEST_F(RigSetupTest, TestForgetsTheLastMode) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00014200000;MD3;");
    Click(Rig().Command1);
    EXPECT_EQ(State().RigMode, "");
    EXPECT_EQ(FrequencyRead(), "14.20000");
}

TEST_F(RigSetupTest, DoneTestsSavesAndHides) {
    Start();
    PickRig("Kenwood");
    Click(Rig().cmdDone);
    EXPECT_TRUE(IsPolling());
    EXPECT_TRUE(Line().isOpen);
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_TRUE(Rig().IsLoaded());
    EXPECT_EQ(RigSettingsOnDisk(),
              "\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FA;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n");
    EXPECT_NE(files.contents.at(kPreferencesPath).find("\"Kenwood\"\r\n"), std::string::npos);
}

TEST_F(RigSetupTest, DoneWithNoneSavesWithoutATest) {
    Start();
    PickRig("None");
    Click(Rig().OptDont);
    Click(Rig().chkFrequency);
    Click(Rig().cmdDone);
    EXPECT_EQ(RigSettingsOnDisk(),
              "\"56000\",\"N\",\"8\",\"1\",\"\",\"\",\"56000,N,8,1\",1,\"N\",\"M\",\"None\",0,0,3\r\n");
    EXPECT_FALSE(IsPolling());
}

TEST_F(RigSetupTest, DoneWithAPortThatFailsSavesAllTheSame) {
    Start();
    PickRig("Kenwood");
    Line().refusal = "Permission denied";
    Click(Rig().cmdDone);
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidPort});
    EXPECT_NE(RigSettingsOnDisk(), "");
    EXPECT_FALSE(Rig().IsVisible());
}

TEST_F(RigSetupTest, EverySettingComesBack) {
    Start();
    PickRig("Icom");
    Rig().txtFreq.SetText("FE FE 3A E0 03 FD");
    Rig().txtMode.SetText("FE FE 3A E0 04 FD");
    for (Option* option : {&Rig().optBaud192, &Rig().optData7, &Rig().optStop2, &Rig().optParityOdd, &Rig().optComm(9),
                           &Rig().optPowerRTS, &Rig().optReallySlow, &Rig().OptFreq}) {
        Click(*option);
    }
    Click(Rig().chkFrequency);
    Click(Rig().cmdDone);
    stored.gRigName = "None";
    Start();
    Rig().Show();
    EXPECT_EQ(Defaults(), "19.2|7|2|Odd|FE FE 3A E0 03 FD|FE FE 3A E0 04 FD|1");
    EXPECT_EQ(ChosenIn(Rig().fraPort), "10");
    EXPECT_EQ(ChosenIn(Rig().fraPower), "RTS");
    EXPECT_EQ(ChosenIn(Rig().fraPoll), "10 Sec");
    EXPECT_EQ(ChosenIn(Rig().Frame1), "Frequency");
    EXPECT_FALSE(Rig().chkFrequency.Value());
    EXPECT_EQ(Rig().List1.Row(), 2);
    EXPECT_EQ(program->preferences.gRigName, "Icom");
    EXPECT_TRUE(Rig().Label10.IsShown());
}

TEST_F(RigSetupTest, LoadedSettingsShowTheHintOfFewerRadios) {
    for (const auto& [rig, hint, conversion] : std::vector<std::tuple<std::string, bool, bool>>{
             {"Icom", true, false}, {"Icom 735", false, false}, {"Other", false, true}, {"Kenwood", false, false}}) {
        StoreRigSettings("\"4800 \",\"N\",\"8\",\"2\",\"m\",\"f\",\"4800,N,8,2\",1,\"N\",\"M\",\"" + rig +
                         "\",1,1,1\r\n");
        Start();
        Rig().Show();
        EXPECT_EQ(Rig().Label10.IsShown(), hint) << rig;
        EXPECT_EQ(Rig().chkConvToHex.IsShown(), conversion) << rig;
        EXPECT_EQ(Rig().txtFreq.Text() + Rig().txtMode.Text(), "fm") << rig;
        EXPECT_TRUE(Rig().chkConvToHex.Value()) << rig;
    }
}

TEST_F(RigSetupTest, DamagedSettingsKeepTheFormsDefaultsFromThere) {
    StoreRigSettings("\"1200\",\"E\",\"7\",\"2\",\"MD;\",\"FA;\",\"1200,E,7,2\",none");
    Start();
    Rig().Show();
    EXPECT_EQ(Defaults(), "1.2|7|2|Even|FA;|MD;|0");
    EXPECT_EQ(ChosenIn(Rig().fraPort), "1");
    EXPECT_EQ(Rig().List1.Row(), 0);
}

TEST_F(RigSetupTest, ValuesThatAreNoneLeaveTheirGroups) {
    StoreRigSettings("\"300\",\"X\",\"9\",\"3\",\"\",\"\",\"\",77,\"?\",\"?\",\"Unheard of\",7,7,7\r\n");
    Start();
    Rig().Show();
    EXPECT_EQ(Defaults(), "56|8|1|None|||0");
    EXPECT_EQ(ChosenIn(Rig().fraPort), "1");
    EXPECT_EQ(ChosenIn(Rig().fraPoll), "500 ms");
    EXPECT_EQ(Rig().List1.Row(), -1);
    Click(Rig().Command1);
    EXPECT_FALSE(Line().isOpen);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(RigSetupTest, StartPollsTheStoredRadioWithTheFormHidden) {
    StoreRigSettings("\"9600 \",\"N\",\"8\",\"2\",\"MD;\",\"FB;\",\"9600,N,8,2\",4,\"R\",\"F\",\"Kenwood\",0,1,1\r\n");
    stored.gRigName = "Kenwood";
    Start();
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_TRUE(IsPolling());
    EXPECT_EQ(SettingsText(Line(4).settings), "9600,N,8,2");
    EXPECT_EQ(Line(4).rts, true);
    EXPECT_EQ(Line(4).TakeSent(), "FB;MD;");
    Line(4).Receive("FB00014200000;MD3;");
    NextTick();
    EXPECT_EQ(program->preferences.gBand, "20");
}

TEST_F(RigSetupTest, StartWithoutARadioLoadsNoForm) {
    Start();
    EXPECT_FALSE(Rig().IsLoaded());
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(RigSetupTest, PortThatFailsAtTheStartLeadsToTheForm) {
    StoreRigSettings("\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FA;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n");
    stored.gRigName = "Kenwood";
    Line().refusal = "Device or resource busy";
    dialogs.onShow = [this] {
        if (dialogs.boxes.back() != kInvalidPort) {
            return;
        }
        dialogs.onShow = {};
        pump.OnWait([this] {
            EXPECT_TRUE(Rig().IsModal());
            PickRig("None");
        });
        pump.OnWait([this] { TheDesk().PostClick(Rig().cmdDone, kLeftButton); });
    };
    Start();
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_TRUE(Main().IsVisible());
    EXPECT_FALSE(IsPolling());
    EXPECT_FALSE(Rig().Label2.State().visible);
    EXPECT_EQ(program->preferences.gRigName, "None");
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(RigSetupTest, EndOfTheProgramTellsAYaesuRadio) {
    for (const auto& [rig, farewell] : std::vector<std::pair<std::string_view, std::string_view>>{
             {"Yaesu", "0000000080"},
             {"Yaesu 757 GX II", "0000000080"},
             {"Yaesu 890", "0000000080"},
             {"Yaesu 1000", "0000000080"},
             {"Yaesu FTdx9000", ""},
             {"Yaesu FTdx10", ""},
             {"Kenwood", ""},
         }) {
        StartPolling(rig);
        SentHex();
        EXPECT_EQ(EndStatusOf([this] {
                      program->RequestClose();
                      TheDesk().RunPending();
                  }),
                  0);
        EXPECT_EQ(SentHex(), farewell) << rig;
        EXPECT_FALSE(Line().isOpen) << rig;
    }
}

TEST_F(RigSetupTest, ExitByTheMenuTellsNothing) {
    StartPolling("Yaesu");
    SentHex();
    EXPECT_EQ(EndStatusOf([this] { ChooseMenu(Main().mnuExit); }), 0);
    EXPECT_EQ(SentHex(), "");
}

TEST_F(RigSetupTest, FarewellToAPulledCableIsSilent) {
    StartPolling("Yaesu");
    Line().Unplug();
    Rig().Unload();
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(RigSetupTest, CloseBoxAndEscHideTheFormAndThePollGoesOn) {
    StartPolling("Kenwood");
    Rig().RequestClose();
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_TRUE(Rig().IsLoaded());
    EXPECT_TRUE(IsPolling());
    EXPECT_TRUE(Line().isOpen);
    Rig().Show();
    EXPECT_EQ(Defaults(), "4.8|8|2|None|FA;|MD;|0");
    Press("Esc");
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_TRUE(IsPolling());
}

TEST_F(RigSetupTest, FailedStartCanBeLeftByTheCloseBox) {
    stored.gRigName = "Kenwood";
    Line().refusal = "Device or resource busy";
    StoreRigSettings("\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FA;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n");
    files.Put(kPreferencesPath, WritePreferences(stored));
    files.Put(kLogPath, "");
    files.Put(kWavesPath, kNoWaves);
    MakeProgram();
    pump.OnWait([this] { TheDesk().PostClick(program->stationForm.Command1, kLeftButton); });
    pump.OnWait([this] { Rig().RequestClose(); });
    dialogs.answers = {Answer::Yes};
    program->Start();
    TheDesk().RunPending();
    EXPECT_EQ(dialogs.boxes.back(), kInvalidPort);
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_FALSE(IsPolling());
}

TEST_F(RigSetupTest, WithoutAFileTheRowOfThePreferencesIsSelected) {
    Start();
    Rig().Show();
    EXPECT_EQ(Rig().List1.Row(), 0);
    program->preferences.gRigName = "Icom";
    Rig().Unload();
    Rig().Show();
    EXPECT_EQ(Rig().List1.Row(), 2);
    EXPECT_EQ(Rig().txtFreq.Text(), "");
}

TEST_F(RigSetupTest, FrequencyTestNeedsAPoll) {
    Start();
    int opened = 0;
    program->rigSetup.openFrequencyTest = [&opened] { ++opened; };
    PickRig("Kenwood");
    Click(Rig().Command3);
    EXPECT_EQ(dialogs.boxes,
              Lines{"message \"You must be polling your rig to test this function.\" \"You must be polling your rig to "
                    "test this function.  Please select your rig type and click the Test command button.\" OK "
                    "Exclamation"});
    EXPECT_EQ(opened, 0);
    Click(Rig().Command1);
    Click(Rig().Command3);
    EXPECT_EQ(opened, 1);
}

TEST_F(RigSetupTest, UnprocessedDataGoToTheClipboard) {
    StartPolling("Kenwood");
    ReplyAndRead("?;");
    Click(Rig().Command4);
    EXPECT_EQ(clipboard.Text(), "?;");
}

TEST_F(RigSetupTest, KeyAndMenuOpenTheForm) {
    Start();
    Press("Ctrl+R");
    EXPECT_TRUE(Rig().IsActive());
    EXPECT_EQ(Fields(), "||||");
    Rig().Hide();
    ChooseMenu(Main().mnuRig);
    EXPECT_TRUE(Rig().IsActive());
    EXPECT_EQ(Main().mnuRig.Caption(), "&Rig Interface");
}

TEST_F(RigSetupTest, KeyAfterTheOneThatOpenedTheFormIsTyped) {
    Start();
    Press("Ctrl+R");
    Rig().Hide();
    Type("8");
    EXPECT_EQ(Main().txtNum.Text(), "8");
}

}  // namespace
}  // namespace tallyhut
