#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

/// What passes between the program and a radio of a row, all as hexadecimal pairs.
struct Conversation {
    std::string_view rig;
    std::string_view greeting;
    std::string_view firstRequest;
    std::string_view secondRequest;
    std::string_view firstReply;
    std::string_view secondReply;
    std::string_view reading;  ///< frequency and mode after both replies
};

constexpr std::array<Conversation, 17> kConversations{{
    {"Elecraft", "", "46413B4D443B", "46413B4D443B", "464130303031343230303030303B4D44333B", "4D44333B", "14.20000 CW"},
    {"Icom", "", "FEFE64E003FD", "FEFE64E004FD", "FEFE64E003FDFEFEE064030000201400FD", "FEFE64E004FDFEFEE0640403FD",
     "14.20000 CW"},
    {"Icom 735", "", "FEFE64E003FD", "FEFE64E004FD", "FEFEE0640300002014FD", "FEFEE0640403FD", "14.20000 CW"},
    {"Kenwood", "", "46413B4D443B", "46413B4D443B", "464130303031343230303030303B4D44333B", "4D44333B", "14.20000 CW"},
    {"Kenwood 2", "", "49463B", "49463B",
     "494630303031343230303030302020202020"
     "2B30303030303030303030333130303030"
     "30303B",
     "", "14.20000 CW"},
    {"Ten Tec Omni VI", "", "FEFE04E003FD", "FEFE04E004FD", "FEFEE004030000201400FD", "FEFEE0040403FD", "14.20000 CW"},
    {"Ten Tec Orion", "580D", "3F41460D3F524D4D0D", "3F41460D3F524D4D0D", "40414631343230303030300D40524D4D330D", "",
     "14.20000 CW"},
    {"Ten Tec Fnt Pnl", "", "3F410D", "3F4D0D", "4100D8ACC00D", "4D330D", "14.20000 CW"},
    {"Yaesu", "0000000000", "0000000003", "0000000003", "0142000002", "", "14.20000 CW"},
    {"Yaesu 757 GX II", "0000000000", "0000000010", "0000000010", "00000000000000420102", "", "14.20000 CW"},
    {"Yaesu 890", "0000000000", "0000000210", "0000000210", "000015AAE0000002", "", "14.20000 CW"},
    {"Yaesu 920", "0000000000", "0000000210", "0000000210", "0000D8ACC0000001", "", "14.20000 CW"},
    {"Yaesu 990", "0000000000", "0000000210", "0000000210", "0015AAE000000002", "", "14.20000 CW"},
    {"Yaesu 1000 D", "0000000000", "0000000210", "0000000210", "0015AAE000000002", "", "14.20000 CW"},
    {"Yaesu 1000", "0000000000", "0000000210", "0000000210", "00015AAE00000002", "", "14.20000 CW"},
    {"Yaesu FTdx9000", "", "46413B", "4D44303B", "464131343230303030303B", "4D4430333B", "14.20000 CW"},
    {"Yaesu FTdx10", "", "46413B", "4D44303B", "46413031343230303030303B", "4D4430373B", "14.20000 CW"},
}};

struct RigPollTest : RigFixture {
    std::string Reading() { return FrequencyRead() + ' ' + State().RigMode; }
};

TEST_F(RigPollTest, EachRadioIsAskedAndUnderstoodInItsOwnDialect) {
    for (const Conversation& talk : kConversations) {
        SCOPED_TRACE(talk.rig);
        StartPolling(talk.rig);
        EXPECT_EQ(SentHex(), std::string{talk.greeting} + std::string{talk.firstRequest});
        ReplyAndRead(HexToBytes(talk.firstReply));
        EXPECT_EQ(SentHex(), "");
        NextTick();
        EXPECT_EQ(SentHex(), talk.secondRequest);
        ReplyAndRead(HexToBytes(talk.secondReply));
        EXPECT_EQ(Reading(), talk.reading);
        EXPECT_EQ(State().RxBuffer, "");
        NextTick();
        EXPECT_EQ(SentHex(), talk.firstRequest);
    }
}

TEST_F(RigPollTest, ReplyThatIsLateIsReadAtTheNextReadTick) {
    Start();
    PickRig("Kenwood");
    Click(Rig().optPollFast);
    Line().Reply("MD;", "FA00014200000;MD3;", 80);  // the read tick comes after 50 ms
    Click(Rig().Command1);
    NextTick(2);
    EXPECT_EQ(Reading(), ".00000 ");
    NextTick();
    EXPECT_EQ(Reading(), "14.20000 CW");
}

TEST_F(RigPollTest, ReplyThatStraddlesTwoReadsIsLost) {
    StartPolling("Kenwood");
    ReplyAndRead("FA0001420");
    NextTick();
    ReplyAndRead("0000;MD3;");
    EXPECT_EQ(FrequencyRead(), ".00000");
    EXPECT_EQ(State().RigMode, "CW");
}

TEST_F(RigPollTest, TextRepliesMayComeInAnyOrderAndTwice) {
    for (const std::string& replies : {"FA00014200000;MD3;"s, "MD3;FA00014200000;"s,
                                       "FA00014200000;MD3;FA00014200000;MD3;"s, "\xFF\0?;FA00014200000;;;MD3;\xFE"s}) {
        StartPolling("Kenwood");
        ReplyAndRead(replies);
        EXPECT_EQ(Reading(), "14.20000 CW") << replies;
    }
}

TEST_F(RigPollTest, FailureInOneDecoderLeavesTheOther) {
    StartPolling("Kenwood");
    ReplyAndRead("FA0001x200000;MD7;");
    EXPECT_EQ(Reading(), ".00000 CW");
}

TEST_F(RigPollTest, BusRadioDecodesWhatWasAskedForLast) {
    StartPolling("Icom");
    ReplyAndRead(HexToBytes("FEFEE0640403FD"));  // a mode, while the frequency was asked for
    EXPECT_EQ(Reading(), ".00000 ");
    NextTick();
    ReplyAndRead(HexToBytes("FEFEE064030000201400FD"));
    EXPECT_EQ(Reading(), ".00000 ");
}

TEST_F(RigPollTest, DualRadioDecodesWhateverComes) {
    StartPolling("Yaesu FTdx9000");
    ReplyAndRead("MD03;");
    NextTick();
    ReplyAndRead("FA14200000;");
    EXPECT_EQ(Reading(), "14.20000 CW");
}

TEST_F(RigPollTest, TurnChangesAlsoForAStringThatIsTooShort) {
    StartPolling("Icom");
    EXPECT_EQ(State().ModeTurn, 1);
    SentHex();
    Rig().txtMode.SetText("FE");
    NextTick(2);
    EXPECT_EQ(SentHex(), "");
    EXPECT_EQ(State().ModeTurn, 0);
    NextTick(2);
    EXPECT_EQ(SentHex(), "FEFE64E003FD");
}

TEST_F(RigPollTest, StringThatIsNoRowOfPairsStopsNothing) {
    StartPolling("Icom");
    SentHex();
    Rig().txtMode.SetText("FE FE xx E0 04 FD");
    NextTick(3);
    EXPECT_EQ(SentHex(), "");
    EXPECT_EQ(State().ReadPhase, 0);  // the send tick is tried again
    EXPECT_EQ(State().ModeTurn, 1);
    Rig().txtMode.SetText("FE FE 64 E0 04 FD");
    NextTick();
    EXPECT_EQ(SentHex(), "FEFE64E004FD");
}

TEST_F(RigPollTest, NothingIsSentWhileTheOutputHoldsBytes) {
    StartPolling("Icom");
    SentHex();
    Line().outputCount = 3;
    NextTick(2);
    EXPECT_EQ(SentHex(), "");
    EXPECT_EQ(State().ModeTurn, 1);
    EXPECT_EQ(State().ReadPhase, 1);  // the next tick reads all the same
    Line().LetGo();
    NextTick(2);
    EXPECT_EQ(SentHex(), "FEFE64E004FD");
}

TEST_F(RigPollTest, PulledCableIsSilentAndTheRequestIsTriedAgain) {
    StartPolling("Kenwood");
    Line().Unplug();
    NextTick(5);
    EXPECT_EQ(State().ReadPhase, 0);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPollTest, SilentRadioIsAskedForEver) {
    StartPolling("Kenwood");
    SentHex();
    NextTick(200);
    EXPECT_EQ(SentHex().size(), 100 * std::string{"46413B4D443B"}.size());
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_EQ(Rig().lblMode.Caption(), "No Response");
}

TEST_F(RigPollTest, EachRateIsTwoTicks) {
    const std::vector<std::pair<Option RigControlfrm::*, Tick>> rates{{&RigControlfrm::optPollFast, 100},
                                                                      {&RigControlfrm::optPollMed, 500},
                                                                      {&RigControlfrm::optPollSlow, 2'000},
                                                                      {&RigControlfrm::optReallySlow, 10'000}};
    for (const auto& [option, milliseconds] : rates) {
        Start();
        PickRig("Kenwood 2");
        Click(Rig().*option);
        Click(Rig().Command1);
        SentHex();
        PassTime(milliseconds / 2);
        PassTime(milliseconds / 2 - 1);
        EXPECT_EQ(SentHex(), "") << milliseconds;
        PassTime(1);
        EXPECT_EQ(SentHex(), "49463B") << milliseconds;
    }
}

TEST_F(RigPollTest, FormShowsTheReading) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00014234560;MD3;");
    EXPECT_EQ(Rig().lblFreq.Caption(), "14.23456");
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
    EXPECT_EQ(Rig().lblUnProcess.Caption(), "FA00014234560;MD3;");
}

TEST_F(RigPollTest, RawReplyIsShownAsPairsWhereChosen) {
    StartPolling("Yaesu");
    Click(Rig().ChkConvHex);
    ReplyAndRead(HexToBytes("0142345601"));
    EXPECT_EQ(Rig().lblUnProcess.Caption(), "01 42 34 56 01 ");
    EXPECT_EQ(Rig().lblFreq.Caption(), "14.23456");
}

TEST_F(RigPollTest, FrequencyOfZeroLeavesTheLabel) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00000000000;MD3;");
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
}

TEST_F(RigPollTest, FirstReplyReplacesTheWordsOnlyAsFarAsItGoes) {
    StartPolling("Kenwood");
    ReplyAndRead("??");
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_EQ(Rig().lblMode.Caption(), "");
    EXPECT_EQ(Rig().lblUnProcess.Caption(), "??");
}

TEST_F(RigPollTest, HiddenFormShowsNothingAndTheBandFollows) {
    Start();
    PickRig("Kenwood");
    Click(Rig().cmdDone);
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(program->log.gFrq, "14.200");
}

TEST_F(RigPollTest, VfoDigitFollowsTheIfReply) {
    StartPolling("Kenwood 2");
    EXPECT_EQ(State().VfoDigit, 10);
    ReplyAndRead("IF00014200000     +000000000031000000;");
    EXPECT_EQ(State().VfoDigit, 1);
    NextTick();
    ReplyAndRead("IF00014200000;");
    EXPECT_EQ(State().VfoDigit, 1);
}

TEST_F(RigPollTest, OtherSendsItsStringsAndDecodesNothing) {
    StartPolling("Other");
    Rig().txtFreq.SetText("FE 03");
    Rig().txtMode.SetText("AB");
    SentHex();
    NextTick(2);
    EXPECT_EQ(Line().TakeSent(), "FE 03AB");
    Click(Rig().chkConvToHex);
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(Rig().lblUnProcess.Caption(), "FA00014200000;MD3;");
    EXPECT_EQ(Reading(), ".00000 ");
    EXPECT_EQ(program->preferences.gBand, "40");
    EXPECT_EQ(program->log.gFrq, ".000");
    NextTick();
    EXPECT_EQ(SentHex(), "FE03AB");
}

TEST_F(RigPollTest, BandFollowsTheRadioAsTheMenuWould) {
    StartPolling("Kenwood");
    clock.Advance(5'000);
    ReplyAndRead("FA00021300000;");
    EXPECT_EQ(program->preferences.gBand, "15");
    EXPECT_EQ(Main().Label30.Caption(), "15");
    EXPECT_TRUE(Main().mnu15.Checked());
    EXPECT_EQ(program->time.gBandOnAt, clock.Now());
    EXPECT_NE(files.contents.at(kPreferencesPath).find("\"15\""), std::string::npos);
}

TEST_F(RigPollTest, SameBandIsNoBandChange) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00007030000;");
    const DateTime before = program->time.gBandOnAt;
    NextTick();
    ReplyAndRead("FA00007040000;");
    EXPECT_EQ(program->time.gBandOnAt, before);
    EXPECT_EQ(program->log.gFrq, "7.040");
}

TEST_F(RigPollTest, FrequencyOutsideTheContestBandsIsLoggedAllTheSame) {
    StartPolling("Kenwood");
    ReplyAndRead("FA00014350000;");
    EXPECT_EQ(program->preferences.gBand, "20");
    NextTick();
    ReplyAndRead("FA00014400000;");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(program->log.gFrq, "14.400");
    NextTick();
    ReplyAndRead("FA00018100000;");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(program->log.gFrq, "18.100");
}

TEST_F(RigPollTest, UnusedFrequencyChangesNeitherBandNorContact) {
    StartPolling("Kenwood");
    Click(Rig().chkFrequency);
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(program->preferences.gBand, "40");
    EXPECT_EQ(program->log.gFrq, "");
    EXPECT_EQ(Rig().lblFreq.Caption(), "14.20000");
}

TEST_F(RigPollTest, ContactBearsTheFrequency) {
    Start();
    PickRig("Kenwood");
    Click(Rig().cmdDone);
    ReplyAndRead("FA00014200000;MD3;");
    FillAll("88", "A", "W1XX", "72", "MDC");
    Focus(Main().txtSec);
    Press("Enter");
    ASSERT_EQ(LogLines().size(), 1U);
    EXPECT_TRUE(LogLines().front().ends_with("\"20\",\"14.200\"")) << LogLines().front();
    EXPECT_EQ(program->log.gFrq, "");  // until the next reading
}

TEST_F(RigPollTest, BandThatCannotBeSavedIsReadAgain) {
    StartPolling("Kenwood");
    files.FailAt(1, "No space left on device");
    ReplyAndRead("FA00014200000;");
    EXPECT_EQ(State().ReadPhase, 1);
    EXPECT_EQ(program->log.gFrq, "");
    ReplyAndRead("FA00014200000;");
    EXPECT_EQ(program->log.gFrq, "14.200");
}

TEST_F(RigPollTest, ModeMayBeTakenFromTheFrequency) {
    StartPolling("Kenwood");
    Click(Rig().OptFreq);
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(Rig().lblMode.Caption(), "PH");
    NextTick();
    ReplyAndRead("FA00014150000;MD3;");  // a limit is in no segment
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
    NextTick();
    ReplyAndRead("FA00010120000;MD1;");
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
    NextTick();
    ReplyAndRead("FA00010150000;MD1;");
    EXPECT_EQ(Rig().lblMode.Caption(), "PH");
}

TEST_F(RigPollTest, ModeIsShownAlsoWhereItIsNotUsed) {
    StartPolling("Kenwood");
    Click(Rig().OptDont);
    ReplyAndRead("FA00014200000;MD3;");
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
}

struct PegasusTest : RigPollTest {
    PegasusTest() { environment.variables["HOME"] = "/home/operator"; }
    static constexpr const char* kFromRadio = "/home/operator/.wine/drive_c/Pegasus/PEGASUS.OUT";
};

TEST_F(PegasusTest, ReadsTheFileOfTheControlProgram) {
    for (const auto& [text, reading] : std::vector<std::pair<std::string, std::string>>{
             {"14.2,CW\r\n", "14.20000 CW"},
             {"7.0251,\"LSB\"\r\n", "7.02510 PH"},
             {"21.3\r\nCW\r\n", "21.30000 CW"},
             {"14.2,\"\"\r\n", "14.20000 "},
             {"21.3\r\n", "21.30000 "},
             {"x,CW\r\n", ".00000 "},
             {"", ".00000 "},
             {"1E300,CW", ".00000 "},
         }) {
        SCOPED_TRACE(text);
        files.Put(kFromRadio, text);
        StartPolling("Ten Tec Pegasus");
        EXPECT_EQ(State().ReadPhase, 1);
        EXPECT_FALSE(Line().isOpen);
        NextTick();
        EXPECT_EQ(Reading(), reading);
        EXPECT_EQ(Line().written.size(), 0U);
    }
}

TEST_F(PegasusTest, MissingFileIsSilent) {
    StartPolling("Ten Tec Pegasus");
    NextTick(4);
    EXPECT_EQ(Reading(), ".00000 ");
    EXPECT_EQ(Rig().lblFreq.Caption(), "No Response");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(PegasusTest, FolderIsASetting) {
    settings.Set("Machine", "PegasusFolder", "/mnt/pegasus");
    files.Put("/mnt/pegasus/PEGASUS.OUT", "14.2,CW");
    StartPolling("Ten Tec Pegasus");
    NextTick();
    EXPECT_EQ(Reading(), "14.20000 CW");
    EXPECT_EQ(program->preferences.gBand, "20");
}

}  // namespace
}  // namespace tallyhut
