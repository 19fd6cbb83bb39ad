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
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].starts_with("message \"Invalid Comm Settings.\""));
    EXPECT_EQ(machine.dialogs.beeps, 1);
}

TEST_F(SpotTransportsTest, EngineOnAnotherComputerIsWaitedForWithoutWaiting) {
    Open(kPacketEngine);
    EXPECT_TRUE(form.Timer1.Enabled());
    spots.Timer1_Timer();
    packetEngine.Accept();
    spots.Timer1_Timer();
    EXPECT_TRUE(Shown().ends_with("\r\n** Successfully connected to AGW Packet Engine **\r\n\r\n"));
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
