#include "spots/spot_transports.h"

#include <gtest/gtest.h>

#include "platform/sim/machine.h"

namespace tallyhut {
namespace {

constexpr std::string_view kPost = "DX de Q2ABC:     14025.0  Q5XX         CQ SS                 2101Z";

struct SpotTransportsTest : testing::Test {
    sim::Machine machine{DateTime{}};
    Desk desk{machine.clock, machine.pump, machine.dialogs, machine.clipboard};
    PacketSpotfrm form{desk};
    std::unique_ptr<SerialPort> comm = machine.serialPorts.NewPort();
    std::unique_ptr<TcpSocket> socket = machine.tcpSockets.NewSocket();
    AgwEngine engine{machine.tcpSockets, machine.clock};
    Preferences preferences;
    SpotRecord link;
    SpotTransports spots{form, *comm, *socket, engine, desk, preferences, link};
    sim::TcpPeer& cluster = machine.tcpSockets.Peer(0);
    sim::TcpPeer& packetEngine = machine.tcpSockets.Peer(1);
    std::vector<std::string> posts;

    SpotTransportsTest() {
        preferences.gOwnCall = "W1AW";
        form.txtEngine.SetText("127.0.0.1:8000");
        spots.received = [this](std::string_view post) { posts.emplace_back(post); };
    }

    void Open(std::string_view type) {
        link.type = type;
        spots.Command1_Click();
    }
    void OpenCluster() {
        form.txtTelnetHost.SetText("cluster.example");
        form.txtTelnetPort.SetText("7300");
        cluster.accepts = true;
        Open(kTelnet);
        spots.Socket_Arrived();
    }
    void FromCluster(std::string_view chunk) {
        cluster.Arrive(chunk);
        spots.Socket_Arrived();
    }
    void FromTnc(std::string_view bytes) {
        machine.serialPorts.Line(1).Receive(bytes);
        spots.Timer1_Timer();
    }
    void Type(std::string_view text) {
        form.txtSent.SetText(text);
        int enter = 13;
        spots.txtSent_KeyPress(enter);
        EXPECT_EQ(enter, 0);
        EXPECT_EQ(form.txtSent.Text(), "");
    }
    void OpenEngine() {
        packetEngine.accepts = true;
        Open(kPacketEngine);
        packetEngine.TakeSent();
    }
    void FromEngine(char kind, std::string_view call, std::string_view data) {
        std::string frame(36, '\0');
        frame[4] = kind;
        frame.replace(8, call.size(), call);
        frame.replace(18, 4, "W1AW");
        frame[28] = static_cast<char>(data.size());
        packetEngine.Arrive(frame.append(data));
        spots.Timer1_Timer();
    }
    /// What a station sends, as the engine tells of it.
    void Heard(char kind, std::string_view call, std::string_view information) {
        FromEngine(kind, call,
                   " 1:Fm " + std::string{call} + " To CQ <UI>[09:28:19]\r" + std::string{information} + "\r");
    }
    void ConnectStation() {
        OpenEngine();
        FromEngine('C', "Q7ZZQ", "*** CONNECTED With Station Q7ZZQ\r");
    }
    /// What has been shown since the last call.
    std::string Fresh() {
        const std::string fresh = Shown().substr(std::min(seen, Shown().size()));
        seen = Shown().size();
        return fresh;
    }
    std::size_t seen = 0;
    const std::string& Shown() const { return form.txtUnProcessed.Text(); }
};

TEST_F(SpotTransportsTest, ClusterIsCalledByTheNameTyped) {
    OpenCluster();
    EXPECT_EQ(cluster.host, "cluster.example");
    EXPECT_EQ(cluster.port, 7300);
    EXPECT_EQ(Shown(), "Attempting connection to: cluster.example:7300\r\n\r\n");
    EXPECT_TRUE(form.Label4.State().visible);
    EXPECT_EQ(cluster.TakeSent(), "");
    Type("W1AW");
    EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n");
}

TEST_F(SpotTransportsTest, ChunkOfTwoPostsIsOnePost) {
    OpenCluster();
    const std::string chunk = std::string{kPost} + "\a\r\n" + std::string{kPost} + "\r\n";
    FromCluster(chunk);
    FromCluster("14025.0 " + std::string{kPost});
    ASSERT_EQ(posts.size(), 1U);
    EXPECT_EQ(posts[0], chunk);
    EXPECT_EQ(Shown().find('\a'), std::string::npos);
}

TEST_F(SpotTransportsTest, OnlyPostsAreListedWhereTheOperatorWantsThat) {
    OpenCluster();
    form.chkDX.SetValue(true);
    FromCluster("login: ");
    EXPECT_EQ(Shown().find("login"), std::string::npos);
    FromCluster("dx de q\r\n");
    EXPECT_TRUE(Shown().ends_with("dx de q\r\n"));
    EXPECT_EQ(posts.size(), 1U);
}

TEST_F(SpotTransportsTest, FailureClosesAndIsTold) {
    OpenCluster();
    cluster.Fail(kTcpReset);
    spots.Socket_Arrived();
    EXPECT_TRUE(Shown().ends_with("ERROR: The connection is reset by remote side.!\r\n\r\n** Port Closed **"));
    EXPECT_FALSE(form.Label4.State().visible);
    EXPECT_FALSE(form.Timer1.Enabled());
    spots.Socket_Error(12345);
    EXPECT_TRUE(Shown().ends_with("Error number 12345"));
}

TEST_F(SpotTransportsTest, SilentEndIsFoundOutAtTheNextSending) {
    OpenCluster();
    cluster.End();
    spots.Socket_Arrived();
    EXPECT_TRUE(form.Label4.State().visible);
    Type("show/dx");
    EXPECT_TRUE(Shown().ends_with("**  Connection not yet established.  Please wait a moment and try again.\r\n\r\n"));
}

TEST_F(SpotTransportsTest, TncsLinesArePostedOnceWhateverTheirCase) {
    Open(kTnc);
    EXPECT_TRUE(Shown().ends_with("** TNC Serial Port Open **\r\n\r\n"));
    EXPECT_TRUE(machine.serialPorts.Line(1).isOpen);
    FromTnc(std::string{kPost} + "\r");
    EXPECT_TRUE(posts.empty());
    FromTnc("\n" + std::string{kPost} + "\r\n");
    EXPECT_EQ(posts.size(), 1U);
    FromTnc("dx DE" + std::string{kPost.substr(5)} + "\r\n");
    EXPECT_EQ(posts.size(), 1U);
    FromTnc(std::string(900, 'x') + "\r\n" + std::string{kPost} + "\r\n");
    EXPECT_EQ(posts.size(), 2U);
}

TEST_F(SpotTransportsTest, TncThatSendsWithoutEndIsTakenInPartsAndNothingIsLost) {
    Open(kTnc);
    spots.received = [this](std::string_view post) {
        posts.emplace_back(post);
        machine.clock.Advance(5);
    };
    std::string flood;
    for (int n = 0; n < 10; ++n) {
        flood += "\nDX de Q2ABC: post " + std::to_string(n) + '\r';
    }
    FromTnc(flood + '\n');
    EXPECT_EQ(posts.size(), 4U) << "in 20 ms";
    FromTnc("\nDX de Q2ABC: behind\r\n");
    EXPECT_EQ(posts.size(), 8U);
    for (int tick = 0; tick < 5; ++tick) {
        spots.Timer1_Timer();
    }
    ASSERT_EQ(posts.size(), 11U);
    EXPECT_EQ(posts.back(), "DX de Q2ABC: behind\r\n");
}

TEST_F(SpotTransportsTest, TncsCommandCharacterGoesAtOnce) {
    Open(kTnc);
    form.txtHex.SetText("1B");
    form.chkDX.SetValue(true);
    int escape = 27;
    spots.Form_KeyDown(escape, 0);
    EXPECT_EQ(escape, 0);
    EXPECT_EQ(machine.serialPorts.Line(1).TakeSent(), "\x1B");
    EXPECT_FALSE(form.chkDX.Value());
    Type("c q7zzq");
    EXPECT_EQ(machine.serialPorts.Line(1).TakeSent(), "c q7zzq\r");
}

TEST_F(SpotTransportsTest, PortThatCannotBeOpenedIsTold) {
    machine.serialPorts.Line(1).refusal = "no";
    Open(kTnc);
    EXPECT_TRUE(Shown().ends_with("** Unable to open TNC Serial Port **\r\n\r\n"));
    EXPECT_FALSE(form.Timer1.Enabled());
    EXPECT_FALSE(form.Label4.State().visible) << "the next line to be sent opens it again";
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].starts_with("message \"Invalid Comm Settings.\""));
    EXPECT_EQ(machine.dialogs.beeps, 1);
}

TEST_F(SpotTransportsTest, TncIsOpenedWithItsHandshakeAndPower) {
    struct Row {
        std::uint8_t handshaking;
        const char* power;
        Handshake handshake;
        bool rts;
        bool dtr;
    };
    for (const Row& row : {Row{1, "N", Handshake::None, false, false}, Row{2, "R", Handshake::XonXoff, true, false},
                           Row{3, "D", Handshake::Rts, true, true}, Row{4, "N", Handshake::RtsXonXoff, true, false}}) {
        link.handshaking = row.handshaking;
        link.power = row.power;
        Open(kTnc);
        const sim::SerialLine& line = machine.serialPorts.Line(1);
        EXPECT_EQ(line.handshake, row.handshake) << row.handshaking;
        EXPECT_EQ(line.rts, row.rts) << row.handshaking;
        EXPECT_EQ(line.dtr, row.dtr) << row.handshaking;
    }
}

TEST_F(SpotTransportsTest, TncShowsNothingButPostsWhereSoAsked) {
    Open(kTnc);
    form.chkDX.SetValue(true);
    Fresh();
    FromTnc("talk of the town\r\n\n");
    EXPECT_EQ(Fresh(), "");
    FromTnc("dx de q2abc:     14025.0  q5xx         cq ss                 2101z\r\n\n");
    EXPECT_EQ(posts.size(), 1U) << "small letters do as well";
}

TEST_F(SpotTransportsTest, EscOfTheEngineTypesAColonAndListsAllAgain) {
    OpenEngine();
    form.chkDX.SetValue(true);
    int escape = 27;
    spots.Form_KeyDown(escape, 0);
    EXPECT_FALSE(form.chkDX.Value());
    EXPECT_EQ(escape, 27);
    spots.txtSent_KeyPress(escape);
    EXPECT_EQ(escape, ':');
}

TEST_F(SpotTransportsTest, OpeningTheEngineAnewEndsTheConnectionOfBefore) {
    ConnectStation();
    packetEngine.TakeSent();
    spots.Command1_Click();
    EXPECT_EQ(form.Caption(), "DX Spotting Setup");
    Fresh();
    Heard('U', "Q7ZZQ-3", kPost);
    EXPECT_EQ(posts.size(), 1U);
}

TEST_F(SpotTransportsTest, EndOfTheFormEndsTheConnection) {
    ConnectStation();
    packetEngine.TakeSent();
    spots.Form_Unload();
    const std::string sent = packetEngine.TakeSent();
    ASSERT_EQ(sent.size(), 36U);
    EXPECT_EQ(sent[4], 'd');
}

TEST_F(SpotTransportsTest, EngineOnAnotherComputerIsWaitedForWithoutWaiting) {
    Open(kPacketEngine);
    EXPECT_TRUE(form.Timer1.Enabled());
    spots.Timer1_Timer();
    packetEngine.Accept();
    spots.Timer1_Timer();
    EXPECT_TRUE(Shown().ends_with("\r\n** Successfully connected to AGW Packet Engine **\r\n\r\n"));
}

TEST_F(SpotTransportsTest, HeardPostIsPostedOnceAndOtherTextIsShownWhole) {
    OpenEngine();
    Fresh();
    Heard('U', "Q7ZZQ-3", kPost);
    EXPECT_EQ(Fresh(), std::string{kPost} + "\r\n");
    Heard('U', "Q7ZZQ-3", kPost);
    EXPECT_EQ(Fresh(), "");
    EXPECT_EQ(posts, std::vector<std::string>{std::string{kPost} + "\r\n"});
    Heard('U', "Q3DEF", "hello world");
    EXPECT_EQ(Fresh(), "UQ3DEF  1:Fm Q3DEF To CQ <UI>[09:28:19]\r\nhello world\r\n");
    form.chkDX.SetValue(true);
    Heard('U', "Q3DEF", "hello again");
    EXPECT_EQ(Fresh(), "");
}

TEST_F(SpotTransportsTest, PostMayBeginAtTheSecondCharacter) {
    OpenEngine();
    Heard('U', "Q7ZZQ-3", ">dx de Q2ABC");
    Heard('U', "Q7ZZQ-3", ">>dx de Q3ABC");
    EXPECT_EQ(posts, std::vector<std::string>{">dx de Q2ABC\r\n"});
}

TEST_F(SpotTransportsTest, OneFrameIsTakenATick) {
    OpenEngine();
    Fresh();
    std::string frame(36, '\0');
    frame[4] = 'U';
    frame[28] = 2;
    packetEngine.Arrive(frame + "a\r" + frame + "b\r");
    spots.Timer1_Timer();
    EXPECT_EQ(Fresh(), "U a\r\n");
    spots.Timer1_Timer();
    EXPECT_EQ(Fresh(), "U b\r\n");
}

TEST_F(SpotTransportsTest, StationIsConnectedSpokenToAndLeft) {
    OpenEngine();
    Type(":c q7zzq");
    const std::string asked = packetEngine.TakeSent();
    EXPECT_EQ(asked.size(), 36U);
    EXPECT_EQ(asked[4], 'C');
    EXPECT_EQ(asked.substr(18, 5), "Q7ZZQ");
    Type("not sent to nobody");
    EXPECT_EQ(packetEngine.TakeSent(), "");
    FromEngine('C', "Q7ZZQ", "*** CONNECTED With Station Q7ZZQ\r");
    EXPECT_EQ(form.Caption(), "DX Spotting Setup - Connected to Q7ZZQ");
    EXPECT_TRUE(Shown().ends_with("** Connected to Q7ZZQ **"));
    Type("show/dx");
    EXPECT_EQ(packetEngine.TakeSent().substr(36), "show/dx\r");
    Fresh();
    FromEngine('D', "Q7ZZQ", "text\r");
    FromEngine('D', "Q7ZZQ", "text\r");
    EXPECT_EQ(Fresh(), "text\r\ntext\r\n");
    FromEngine('D', "Q7ZZQ", std::string{kPost} + "\r");
    EXPECT_EQ(posts.size(), 1U);
    Type(":D");
    EXPECT_EQ(packetEngine.TakeSent()[4], 'd');
    FromEngine('d', "Q7ZZQ", "*** DISCONNECTED From Station Q7ZZQ\r");
    EXPECT_TRUE(Shown().ends_with("\r\n** Disconnected from Q7ZZQ **\r\n"));
    EXPECT_EQ(form.Caption(), "DX Spotting Setup");
    EXPECT_EQ(machine.dialogs.beeps, 3);
}

TEST_F(SpotTransportsTest, ClosingTheEngineLeavesTheStationFirst) {
    ConnectStation();
    spots.Command2_Click();
    const std::string sent = packetEngine.TakeSent();
    ASSERT_EQ(sent.size(), 72U);
    EXPECT_EQ(sent[4], 'd');
    EXPECT_EQ(sent[40], 'x');
    EXPECT_EQ(form.Caption(), "DX Spotting Setup");
    EXPECT_FALSE(packetEngine.isConnected);
    EXPECT_FALSE(form.Timer1.Enabled());
}

TEST_F(SpotTransportsTest, CommandsThatAreNoneDoNothing) {
    ConnectStation();
    for (const std::string_view text : {":X", ":", ":x y"}) {
        Type(text);
    }
    EXPECT_EQ(packetEngine.TakeSent(), "");
    Type(":C");
    EXPECT_EQ(packetEngine.TakeSent(), "");
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].starts_with(
        "message \"Call sign Required\" \"You must enter a call sign to connect to such as :C Q7ZZQ\""));
}

TEST_F(SpotTransportsTest, LongTextGoesOutAtABlank) {
    ConnectStation();
    form.txtSent.Change = [this] { spots.txtSent_Change(); };
    const std::string seventy(70, 'x');
    form.txtSent.SetText(seventy.substr(1) + ' ');
    EXPECT_EQ(packetEngine.TakeSent(), "");
    form.txtSent.SetText(seventy + ' ');
    EXPECT_EQ(packetEngine.TakeSent().substr(36), seventy + '\r');
    EXPECT_EQ(form.txtSent.Text(), "");
}

TEST_F(SpotTransportsTest, EscIsAColonForTheEngineAndNothingElsewhere) {
    OpenEngine();
    int key = 27;
    spots.txtSent_KeyPress(key);
    EXPECT_EQ(key, ':');
    link.type = kTelnet;
    key = 27;
    spots.txtSent_KeyPress(key);
    EXPECT_EQ(key, 0);
}

TEST_F(SpotTransportsTest, EngineThatIsNotThereIsTold) {
    packetEngine.refusal = kTcpRefused;
    Open(kPacketEngine);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].starts_with("message \"Unable to connect to the AGW Packet Engine.\""));
    EXPECT_TRUE(Shown().ends_with("- Click Open from this program."));
    EXPECT_FALSE(form.Label4.State().visible);
    EXPECT_FALSE(form.Timer1.Enabled());
    EXPECT_TRUE(form.IsVisible());
}

TEST_F(SpotTransportsTest, EngineWantsTheOwnCall) {
    preferences.gOwnCall = " ";
    Open(kPacketEngine);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].starts_with("message \"Call Sign Required!\""));
    EXPECT_EQ(packetEngine.attempts, 0);
}

TEST_F(SpotTransportsTest, EveryTwoMinutesTheLabelsAge) {
    OpenCluster();
    int aged = 0;
    spots.age = [&aged] { ++aged; };
    for (int i = 0; i < 720; ++i) {
        spots.Timer1_Timer();
    }
    EXPECT_EQ(aged, 2);
}

}  // namespace
}  // namespace tallyhut
