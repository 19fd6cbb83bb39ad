#include "keying/winkey_setup.h"

#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;
using Lines = std::vector<std::string>;

const std::string kReset = "\x13\x13\x13\x13\x00\x03"s;
const std::string kEchoTest = "\x00\x04U"s;
const std::string kHostOpen = "\x00\x02"s;
const std::string kSettings = "\x02\x12\x03\x32\x04\x00\x00\x17\x32\x09\x06\x0E\x00"s;

constexpr const char* kFileOfKeyer = "/home/operator/Tallyhut/WK.txt";

std::string NoConnection(const std::string& port) {
    return "message \"Unable to establish connection with Winkey.\" \"Unable to establish connection with WinKey on "
           "com "
           "port " +
           port +
           ".  Please check to make sure that you have specified the correct port and that the Winkey device is "
           "properly connected\" OK Exclamation";
}

struct WinKeySetupTest : KeyingFixture {
    frmWinKey& Keyer() { return program->keyingPart.winKeyForm; }
    WinKeySetup& Unit() { return program->keyingPart.winKey; }
    sim::SerialLine& Line(int port = 2) { return serialPorts.Line(port); }

    void Connect(int port = 2) {
        Line(port).Reply(kEchoTest, "U", 15);
        Line(port).Reply(kHostOpen, "\x17", 15);
        Line(port).Reply("\x15", "\xC0");
    }
    /// A program whose messages go to a keyer on port 2.
    void StartWinKey() {
        StartOnTime();
        program->directories.DataDirectory = "/home/operator/Tallyhut";
        files.AddFolder("/home/operator/Tallyhut");
        Cw().Text11.SetText("18");
        Choose(Cw().Option5);
        Keyer().txtWKComPort.SetText("2");
        Unit().txtWKComPort_LostFocus();
        Cw().Text1.SetText("CQ TEST");
        Connect();
    }
    void StartOpen() {
        StartWinKey();
        Unit().cmdOpenWinkey_Click();
        Line().TakeSent();
        dialogs.boxes.clear();
    }
    /// Without the questions for the status.
    std::string Sent() {
        std::string sent = Line().TakeSent();
        std::erase(sent, '\x15');
        return sent;
    }
    void HoldStatus(char status) { Line().Reply("\x15", {&status, 1}); }
    void Leave(TextBox& field, std::string_view text) {
        field.SetText(text);
        field.LostFocus();
    }
    Lines TakeBoxes() { return std::exchange(dialogs.boxes, {}); }
};

TEST_F(WinKeySetupTest, FirstFunctionKeyOpensTheDeviceSendsTheSettingsAndTheMessage) {
    StartWinKey();
    Press("F1");
    EXPECT_EQ(Sent(), kReset + kEchoTest + kHostOpen + kSettings + "CQ TEST");
    EXPECT_EQ(Messages().gWKVersion, 23);
    EXPECT_EQ(Keyer().lblOpenStatus.Caption(), "WK Success!");
    EXPECT_EQ(Keyer().lblVersion.Caption(), "Version # 23");
    EXPECT_EQ(Keyer().lblTrouble.Caption(), "");
    EXPECT_EQ(Sender().gCWBuffer, "");
    EXPECT_EQ(TakeBoxes(), Lines{});
    Press("F1");
    EXPECT_EQ(Sent(), "CQ TEST") << "the device stays open";
}

TEST_F(WinKeySetupTest, AbsentDeviceIsOneBoxForEachFunctionKeyAndNothingIsSent) {
    StartWinKey();
    Line().Reply(kEchoTest, "");
    for (int i = 0; i < 2; ++i) {
        Press("F1");
        EXPECT_EQ(TakeBoxes(), Lines{NoConnection("2")});
        EXPECT_EQ(Sent(), kReset + kEchoTest);
        EXPECT_EQ(Sender().gCWBuffer, "");
    }
    EXPECT_EQ(Keyer().lblOpenStatus.Caption(), "No Echo Response");
    EXPECT_NE(Keyer().lblTrouble.Caption().find("Nothing answers"), std::string::npos);
}

TEST_F(WinKeySetupTest, EachResultHasItsText) {
    struct Case {
        const char* echo;
        const char* version;
        const char* refusal;
        const char* told;
    };
    StartWinKey();
    for (const Case& one : {Case{"U", "", "", "No Open Response"}, Case{"V", "", "", "Echo Mismatch"},
                            Case{"", "", "Permission denied", "Com Open Failed"}}) {
        Line().Reply(kEchoTest, one.echo);
        Line().Reply(kHostOpen, one.version);
        Line().refusal = one.refusal;
        Unit().cmdOpenWinkey_Click();
        EXPECT_EQ(Keyer().lblOpenStatus.Caption(), one.told);
        EXPECT_EQ(Keyer().lblTrouble.Caption().find(one.refusal) != std::string::npos, true) << one.told;
        EXPECT_EQ(Messages().gWKVersion, 0);
    }
}

TEST_F(WinKeySetupTest, SecondOpenSaysSoAndSendsNothing) {
    StartOpen();
    Unit().cmdOpenWinkey_Click();
    EXPECT_EQ(Keyer().lblOpenStatus.Caption(), "WK Already Open");
    EXPECT_EQ(Sent(), "");
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(WinKeySetupTest, NoCharacterIsSentWhileTheDeviceHasNoRoomAndTheFormLives) {
    StartOpen();
    HoldStatus('\xC5');
    bool timerRan = false;
    Main().Timer1.Elapsed = [&] { timerRan = true; };
    Main().Timer1.SetInterval(50);
    Main().Timer1.SetTimerEnabled(true);
    pump.OnCollect(20, [&] {
        EXPECT_EQ(Sent(), "");
        HoldStatus('\xC4');
    });
    Press("F1");
    EXPECT_EQ(Sent(), "CQ TEST") << "at 4 the feeding goes on";
    EXPECT_TRUE(timerRan);
}

TEST_F(WinKeySetupTest, EscWithAnEmptyDeviceIsTheOrdinaryEsc) {
    StartOpen();
    Main().txtNum.SetText("88");
    Press("Esc");
    EXPECT_EQ(Main().txtNum.Text(), "");
    EXPECT_EQ(Sent(), "");
}

TEST_F(WinKeySetupTest, EscWhileTheDeviceSendsStopsItAndKeepsTheFields) {
    StartOpen();
    HoldStatus('\xC4');
    Main().txtNum.SetText("88");
    Press("Esc");
    EXPECT_EQ(Main().txtNum.Text(), "88");
    EXPECT_EQ(Sent(), "\x0A");
}

TEST_F(WinKeySetupTest, EscWhileTheFeedWaitsDropsTheRest) {
    StartOpen();
    HoldStatus('\xC5');
    pump.OnCollect(5, [&] { PostNamed("Esc"); });
    Press("F1");
    EXPECT_EQ(Sent(), "\x0A");
    EXPECT_EQ(Sender().gCWBuffer, "");
}

TEST_F(WinKeySetupTest, FunctionKeyWhileTheFeedWaitsReplacesTheMessage) {
    StartOpen();
    Cw().Text2.SetText("QRZ");
    HoldStatus('\xC5');
    pump.OnCollect(5, [&] {
        HoldStatus('\xC4');
        PostNamed("F2");
    });
    Press("F1");
    EXPECT_EQ(Sent(), "QRZ");
}

TEST_F(WinKeySetupTest, ManyFunctionKeysWhileTheFeedWaitsEndWithTheLast) {
    StartOpen();
    Cw().Text2.SetText("QRZ");
    HoldStatus('\xC5');
    pump.OnCollect(5, [&] {
        for (int i = 0; i < 1'000; ++i) {
            PostNamed("F1");
        }
        PostNamed("F2");
        HoldStatus('\xC4');
    });
    Press("F1");
    TheDesk().RunPending();
    EXPECT_TRUE(Sent().ends_with("QRZ"));
    EXPECT_EQ(Sender().gCWBuffer, "");
}

TEST_F(WinKeySetupTest, ContactIsEnteredBeforeTheFirstByteWhereverTheMarkStands) {
    StartOpen();
    Cw().Text1.SetText("TU $!");
    FillAll("88", "A", "W1XX", "72", "MDC");
    std::size_t contactsAtFirstByte = 99;
    serialPorts.onWrite = [&](int, std::string_view bytes) {
        if (bytes == "T") {
            contactsAtFirstByte = LogLines().size();
        }
    };
    Press("F1");
    EXPECT_EQ(contactsAtFirstByte, 1U);
    EXPECT_EQ(Sent(), "TU W1XX!");
    serialPorts.onWrite = [](int, std::string_view) {};
}

TEST_F(WinKeySetupTest, LongMessageNeverHoldsTheWindow) {
    StartOpen();
    Sender().gCWBuffer = std::string(1'000, 'E');
    Microtick last = clock.TickUs();
    Microtick longest = 0;
    serialPorts.onWrite = [&](int, std::string_view) {};
    std::function<void()> look = [&] {
        longest = std::max(longest, clock.TickUs() - last);
        last = clock.TickUs();
        pump.OnCollect(1, look);
    };
    pump.OnCollect(1, look);
    Unit().WKTransmit();
    EXPECT_LE(longest, 250'000U);
    EXPECT_EQ(Sent(), std::string(1'000, 'E'));
}

TEST_F(WinKeySetupTest, CharactersGoOutAsTheyStandButForCodesThatAreCommands) {
    StartOpen();
    Sender().gCWBuffer = "a[]\\\x09\x00!\xE4Z"s;
    Unit().WKTransmit();
    EXPECT_EQ(Sent(), "a[]\\!Z");
}

TEST_F(WinKeySetupTest, PulledCableInAMessageIsSilentAndTheDeviceComesBack) {
    StartOpen();
    int written = 0;
    serialPorts.onWrite = [&](int, std::string_view bytes) {
        if (bytes == "Q" && ++written == 1) {
            Line().Unplug();
        }
    };
    Press("F1");
    EXPECT_EQ(TakeBoxes(), Lines{});
    EXPECT_EQ(Sender().gCWBuffer, "");
    Keyer().Show();
    TheDesk().RunPending();
    EXPECT_NE(Keyer().lblTrouble.Caption().find("No answer"), std::string::npos);
    Keyer().Hide();
    Main().txtNum.SetFocus();
    TheDesk().RunPending();
    Line().Plug();
    Line().TakeSent();
    clock.Advance(2'000);
    Press("F1");
    EXPECT_EQ(Sent(),
              kReset + kEchoTest + kHostOpen + "\x02\x12\x03\x32\x04\x00\x00\x09\x06\x0E\x00\x17\x32"s + "CQ TEST");
}

TEST_F(WinKeySetupTest, EveryByteOfTheOpeningMayBeTheLast) {
    for (std::size_t last = 1; last <= 11; ++last) {
        StartWinKey();
        std::size_t seen = 0;
        serialPorts.onWrite = [&](int, std::string_view bytes) {
            seen += bytes.size();
            if (seen >= last) {
                Line().Unplug();
            }
        };
        Unit().cmdOpenWinkey_Click();
        EXPECT_EQ(Messages().gWKVersion, 0) << last;
        EXPECT_EQ(TakeBoxes().size(), 1U) << last;
        serialPorts.onWrite = [](int, std::string_view) {};
        Line().Plug();
        program.reset();
    }
}

TEST_F(WinKeySetupTest, LeaveChecksTakeTheirRangesAndSendTheValue) {
    StartOpen();
    struct Case {
        TextBox frmWinKey::*field;
        const char* typed;
        const char* becomes;
        std::string sent;
    };
    for (const Case& one :
         {Case{&frmWinKey::txtRatio, "32", "32", "\x17\x20"}, Case{&frmWinKey::txtRatio, "67", "67", "\x17\x43"},
          Case{&frmWinKey::txtRatio, "31", "50", ""}, Case{&frmWinKey::txtRatio, "68", "50", ""},
          Case{&frmWinKey::txtWKWPM, "0", "0", "\x02\x00"s}, Case{&frmWinKey::txtWKWPM, "99", "99", "\x02\x63"},
          Case{&frmWinKey::txtWKWPM, "100", "18", ""}, Case{&frmWinKey::txtWKWPM, "", "18", ""},
          Case{&frmWinKey::txtWeight, "99", "99", "\x03\x63"}, Case{&frmWinKey::txtWeight, "x", "50", ""},
          Case{&frmWinKey::txtLeadIn, "25", "25", "\x04\x19\x00"s}, Case{&frmWinKey::txtLeadIn, "256", "0", ""},
          Case{&frmWinKey::txtTail, "7", "7", "\x04\x00\x07"s}, Case{&frmWinKey::txtTail, "x", "0", ""}}) {
        Leave(Keyer().*one.field, one.typed);
        EXPECT_EQ((Keyer().*one.field).Text(), one.becomes) << one.typed;
        EXPECT_EQ(Sent(), one.sent) << one.typed;
    }
}

TEST_F(WinKeySetupTest, PortThatIsNoByteIsNone) {
    StartWinKey();
    for (const char* typed : {"x", "256", "-1", ""}) {
        Leave(Keyer().txtWKComPort, typed);
        EXPECT_EQ(Keyer().txtWKComPort.Text(), "0") << typed;
        EXPECT_EQ(Unit().gWKPort, 0);
    }
    EXPECT_EQ(Keyer().lblDevice.Caption(), "none");
    Leave(Keyer().txtWKComPort, "11");
    EXPECT_EQ(Keyer().lblDevice.Caption(), "no such port");
    Leave(Keyer().txtWKComPort, "3");
    EXPECT_EQ(Unit().gWKPort, 3);
}

TEST_F(WinKeySetupTest, FieldsTakeDigitsAlone) {
    StartWinKey();
    Keyer().Show();
    Focus(Keyer().txtWeight);
    Keyer().txtWeight.SetText("");
    Type("1a2.-:3");
    EXPECT_EQ(Keyer().txtWeight.Text(), "123");
    Press("Backspace");
    EXPECT_EQ(Keyer().txtWeight.Text(), "12");
}

TEST_F(WinKeySetupTest, OptionsStandForTheDevicesBytesAndSendAllSettingsWhenItIsOpen) {
    StartOpen();
    for (const WinKeyOption& row : kWinKeyModes) {
        Choose(Keyer().*row.option);
        EXPECT_EQ(Unit().gWKMode, row.value);
    }
    Sent();
    Choose(Keyer().optKey5Out3Off);
    EXPECT_EQ(Sent(), "\x02\x12\x03\x32\x04\x00\x00\x17\x32\x09\x08\x0E\x30"s);
    Unit().cmdCloseWinkey_Click();
    Sent();
    Choose(Keyer().optPTT);
    EXPECT_EQ(Unit().gWKPinConfig, 5);
    EXPECT_EQ(Sent(), "");
}

TEST_F(WinKeySetupTest, SpeedFollowsTheMessagesFormWithinBounds) {
    StartOpen();
    for (const char* speed : {"4", "100", "fast", "-5"}) {
        Cw().Text11.SetText(speed);
        EXPECT_EQ(Sent(), "") << speed;
    }
    Cw().Text11.SetText("5");
    EXPECT_EQ(Sent(), "\x02\x05");
    Cw().Text11.SetText("24");
    Sent();
    Press("Up");
    EXPECT_EQ(Sent(), "\x02\x19");
    Choose(Cw().Option1);
    Cw().Text11.SetText("30");
    EXPECT_EQ(Sent(), "") << "another output is chosen";
}

TEST_F(WinKeySetupTest, SpeedChangedBeforeTheFirstOpeningDoesNotReachTheDeviceAtOpen) {
    StartWinKey();
    Press("Up");
    EXPECT_EQ(Cw().Text11.Text(), "19");
    Unit().cmdOpenWinkey_Click();
    EXPECT_EQ(Sent(), kReset + kEchoTest + kHostOpen + kSettings);
}

TEST_F(WinKeySetupTest, BackspaceInKeyboardModeTakesBackTheDevicesLastCharacter) {
    StartOpen();
    HoldStatus('\xC4');
    Press("F12");
    Press("Backspace");
    EXPECT_EQ(Sent(), "\x08");
    Type("k");
    EXPECT_EQ(Sent(), "K");
}

TEST_F(WinKeySetupTest, AnyKeyEndsTheRepeatAndEmptiesTheDevice) {
    StartOpen();
    Cw().txtCWLoop.SetText("5");
    Cw().txtCWLoop.LostFocus();
    Press("F1");
    EXPECT_EQ(Sender().gCWRepeat, 1);
    Sent();
    PassTime(5'000);
    EXPECT_EQ(Sent(), "CQ TEST");
    Press("Left");
    EXPECT_EQ(Sent(), "\x0A");
    EXPECT_EQ(Sender().gCWRepeat, 0);
}

TEST_F(WinKeySetupTest, TestSendsTheOwnCall) {
    stored.gOwnCall = "W9ZZZ";
    StartOpen();
    Unit().Command3_Click();
    EXPECT_EQ(Sent(), "VVV TEST DE W9ZZZ");
    Unit().cmdStop_Click();
    EXPECT_EQ(Sent(), "\x0A");
}

TEST_F(WinKeySetupTest, CloseGoesBackToClosed) {
    StartOpen();
    Unit().cmdCloseWinkey_Click();
    EXPECT_EQ(Sent(), "\x00\x03"s);
    EXPECT_FALSE(Line().isOpen);
    EXPECT_EQ(Keyer().lblOpenStatus.Caption(), "Closed");
    EXPECT_EQ(Keyer().lblVersion.Caption(), "Version #");
    EXPECT_EQ(Messages().gWKVersion, 0);
}

TEST_F(WinKeySetupTest, ButtonsGiveTheFocusToDone) {
    StartWinKey();
    Keyer().Show();
    for (Button* button : {&Keyer().cmdOpenWinkey, &Keyer().Command3, &Keyer().cmdStop, &Keyer().cmdCloseWinkey}) {
        Click(*button);
        EXPECT_TRUE(Keyer().cmdDone.HasFocus()) << button->name;
    }
    Click(Keyer().cmdOpenWinkey);
    Click(Keyer().cmdOpenWinkey);
    EXPECT_TRUE(Keyer().cmdOpenWinkey.HasFocus()) << "it was open already";
}

TEST_F(WinKeySetupTest, UnloadingTheFormClosesTheDeviceAndTheNextMessageOpensItAgain) {
    StartOpen();
    Unit().cmdDone_Click();
    Keyer().Unload();
    EXPECT_EQ(Sent(), "\x00\x03"s);
    EXPECT_EQ(Messages().gWKVersion, 23);
    Press("F1");
    EXPECT_EQ(Sent(), kReset + kEchoTest + kHostOpen + kSettings + "CQ TEST");
}

TEST_F(WinKeySetupTest, DoneWritesTheFileLineByLine) {
    StartWinKey();
    Keyer().txtWeight.SetText("55");
    Keyer().txtLeadIn.SetText("1");
    Keyer().txtTail.SetText("2");
    Choose(Keyer().optIambicA);
    Keyer().Show();
    Unit().cmdDone_Click();
    EXPECT_EQ(OnDisk(kFileOfKeyer), "2\r\n\"18\"\r\n\"55\"\r\n\"1\"\r\n\"2\"\r\n\"50\"\r\n6\r\n16\r\n");
    EXPECT_FALSE(Keyer().IsVisible());
}

TEST_F(WinKeySetupTest, FileThatCannotBeWrittenIsToldInOneBox) {
    StartWinKey();
    Keyer().Show();
    files.FailAt(1, "No space left on device");
    Click(Keyer().cmdDone);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("WK.txt: No space left on device"), std::string::npos);
}

struct WinKeyFileTest : WinKeySetupTest {
    void LoadWith(const std::string& text) {
        StartOnTime();
        program->directories.DataDirectory = "/home/operator/Tallyhut";
        files.AddFolder("/home/operator/Tallyhut");
        files.Put(kFileOfKeyer, text);
        Cw().Text11.SetText("21");
        Choose(Cw().Option5);
        TheDesk().RunPending();
    }
};

TEST_F(WinKeyFileTest, SpeedOfTheMessagesWinsOverTheFile) {
    LoadWith("4\r\n\"33\"\r\n\"51\"\r\n\"1\"\r\n\"2\"\r\n\"52\"\r\n8\r\n48\r\n");
    EXPECT_EQ(Keyer().txtWKWPM.Text(), "21");
    EXPECT_EQ(Keyer().txtWKComPort.Text(), "4");
    EXPECT_EQ(Keyer().txtWeight.Text(), "51");
    EXPECT_EQ(Keyer().txtLeadIn.Text(), "1");
    EXPECT_EQ(Keyer().txtTail.Text(), "2");
    EXPECT_EQ(Keyer().txtRatio.Text(), "52");
    EXPECT_TRUE(Keyer().optKey5Out3Off.Value());
    EXPECT_TRUE(Keyer().optBug.Value());
}

TEST_F(WinKeyFileTest, LastTwoLinesMayBeMissing) {
    LoadWith("4\r\n\"33\"\r\n\"51\"\r\n\"1\"\r\n\"2\"\r\n\"52\"\r\n");
    EXPECT_EQ(Unit().gWKPinConfig, 6);
    EXPECT_EQ(Unit().gWKMode, 0);
    EXPECT_TRUE(Keyer().optTone.Value());
    EXPECT_TRUE(Keyer().optIambicB.Value());
    EXPECT_EQ(Keyer().txtWKWPM.Text(), "21");
}

TEST_F(WinKeyFileTest, DamagedFileEndsTheLoadWhereItIs) {
    LoadWith("4\r\n\"33\"\r\n");
    EXPECT_EQ(Keyer().txtWKWPM.Text(), "33");
    EXPECT_EQ(Unit().gWKPort, 4);
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(WinKeySetupTest, OpeningClosesTheKeyersOtherPortFirst) {
    StartWinKey();
    Choose(Cw().Option1);
    Cw().Text10.SetText("2");
    Send("E");
    EXPECT_TRUE(Line().isOpen);
    EXPECT_EQ(SettingsText(Line().settings), "9600,N,8,1");
    Choose(Cw().Option5);
    bool phoneClosed = false;
    Unit().closePhonePort = [&] { phoneClosed = true; };
    Unit().cmdOpenWinkey_Click();
    EXPECT_EQ(Messages().gWKVersion, 23);
    EXPECT_EQ(SettingsText(Line().settings), "1200,N,8,2");
    EXPECT_TRUE(phoneClosed);
}

TEST_F(WinKeySetupTest, KeyingByLineTakesThePortBackFromTheDevice) {
    StartOpen();
    Choose(Cw().Option1);
    Cw().Text10.SetText("2");
    Send("E");
    EXPECT_EQ(TakeBoxes(), Lines{}) << "the port was free";
    EXPECT_EQ(SettingsText(Line().settings), "9600,N,8,1");
    EXPECT_EQ(Messages().gWKVersion, 0);
}

TEST_F(WinKeySetupTest, CloseBoxWhileTheFeedWaitsDropsTheRestAndClosesTheDevice) {
    StartOpen();
    HoldStatus('\xC5');
    pump.OnCollect(5, [&] { TheDesk().PostAction([this] { Main().RequestClose(); }); });
    EXPECT_EQ(EndStatusOf([this] { Press("F1"); }), 0);
    EXPECT_EQ(Sent(), "\x00\x03"s);
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(WinKeySetupTest, EndOfTheProgramClosesTheDevice) {
    StartOpen();
    program.reset();
    EXPECT_EQ(Sent(), "\x00\x03"s);
    EXPECT_FALSE(Line().isOpen);
}

TEST(WinKeyRecord, RoundTripsByteForByte) {
    const WinKeyRecord record{.gWKPort = 3, .txtWKWPM = "22", .gWKPinConfig = 4, .gWKMode = 32};
    WinKeyRecord read;
    EXPECT_TRUE(ReadWinKeyRecord(WriteWinKeyRecord(record), read));
    EXPECT_EQ(read, record);
}

TEST(WinKeyRecord, DamageIsToldAndWhatStoodBeforeItIsRead) {
    for (const char* text :
         {"", "x", "3\r\n", "3\r\n\"22", "3\r\n\"22\"\r\n\"1\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n999\r\n"}) {
        WinKeyRecord read;
        EXPECT_FALSE(ReadWinKeyRecord(text, read)) << text;
    }
}

}  // namespace
}  // namespace tallyhut
