#include <gtest/gtest.h>

#include "tests/spots/cluster_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kInside = "W1AW de Q7ZZQ-2 >\r\n";

/// The whole program, its setup, and a cluster that wants a login.
struct ClusterSetupTest : ClusterFixture {
    static constexpr std::size_t kSocketsOfAProgram = 2;
    std::size_t starts = 0;

    sim::TcpPeer& Node() { return tcpSockets.Peer((starts - 1) * kSocketsOfAProgram); }
    /// What a keyring answers in one step is taken in the next.
    void Run() {
        TheDesk().RunPending();
        TheDesk().RunPending();
    }
    void Begin() {
        ++starts;
        StartWithSource(cluster);
        Node().Accept();
        Run();
    }
    void Say(std::string_view bytes) {
        Node().Arrive(bytes);
        Run();
    }
    void Keep(const char* key, const char* value) { settings.values[{kSection, key}] = value; }
    void ShowSetup() {
        ChooseMenu(Main().mnuPacket);
        Run();
        ASSERT_TRUE(SetupForm().IsActive());
    }
    void Name(const char* host, const char* port) {
        SetupForm().txtTelnetHost.SetText(host);
        SetupForm().txtTelnetPort.SetText(port);
    }
    void PickNode(int row) {
        TheDesk().PostRowClick(SetupForm().lstNodes, row, kLeftButton);
        Run();
    }
    std::string KeptAnywhere() {
        std::string all;
        for (const auto& [key, value] : settings.values) {
            all += key.first + key.second + value;
        }
        for (const auto& [path, content] : files.contents) {
            all += content;
        }
        return all;
    }
};

TEST_F(ClusterSetupTest, WithoutAChoiceNothingIsSentAndNothingKept) {
    Begin();
    const auto before = settings.values;
    Say("login: ");
    Say("password: ");
    PassTime(120'000);
    EXPECT_EQ(Node().TakeSent(), "");
    ShowSetup();
    Click(SetupForm().cmdDone);
    EXPECT_EQ(settings.values, before);
    EXPECT_EQ(keyring.isShielded, false);
    Node().Fail(kTcpReset);
    TheDesk().RunPending();
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_FALSE(SetupForm().Label4.State().visible);
}

TEST_F(ClusterSetupTest, WithoutAClusterNobodyAsksForAKeyring) {
    ++starts;
    StartOnTime();
    ShowSetup();
    EXPECT_EQ(keyring.looks, 0);
    EXPECT_EQ(SetupForm().chkKeepPassword.State().toolTip, "");
    EXPECT_FALSE(SetupForm().chkLogin.IsShown());
    EXPECT_FALSE(SetupForm().chkNeededOnly.IsShown());
    TheDesk().PostRowClick(SetupForm().List1, 2, kLeftButton);
    Run();
    EXPECT_EQ(keyring.looks, 1);
    EXPECT_TRUE(SetupForm().chkKeepPassword.State().enabled);
    EXPECT_TRUE(SetupForm().chkLogin.IsShown());
}

TEST_F(ClusterSetupTest, StartLogsInAndReconnectsUntilThePortIsClosed) {
    Keep("ClusterLogin", "1");
    Keep("ClusterCall", "W1AW-2");
    Keep("ClusterLines", "unset/beep\r\nsh/filter");
    Begin();
    Say("login: ");
    Say(kInside);
    PassTime(2'000);
    PassTime(2'000);
    EXPECT_EQ(Node().TakeSent(), "W1AW-2\r\nunset/beep\r\nsh/filter\r\n");
    Node().End();
    TheDesk().RunPending();
    EXPECT_TRUE(SetupForm().Label4.State().visible);
    EXPECT_EQ(dialogs.beeps, 0);
    PassTime(5'000);
    EXPECT_EQ(Node().attempts, 2);
    Node().Fail(kTcpRefused);
    TheDesk().RunPending();
    ShowSetup();
    Click(SetupForm().Command2);
    EXPECT_FALSE(SetupForm().Label4.State().visible);
    EXPECT_TRUE(SetupForm().txtUnProcessed.Text().ends_with("** Port Closed **"));
    PassTime(600'000);
    EXPECT_EQ(Node().attempts, 2);
}

TEST_F(ClusterSetupTest, PostOfALoginIsOnTheMap) {
    Keep("ClusterLogin", "1");
    Begin();
    Say("login: ");
    Say(PostLine("14175.0", "K1ABC", "CQ SS").substr(0, 30));
    Say(PostLine("14175.0", "K1ABC", "CQ SS").substr(30));
    EXPECT_TRUE(Newest().visible);
    EXPECT_EQ(Newest().text, "K1");
}

TEST_F(ClusterSetupTest, QuotesAndControlCharactersOfAPostComeIntoNoField) {
    Begin();
    Say("DX de K3LR:     14175.0   K\"1\x01\x7F\x90\x41\x42"
        "C       CQ SS CT                     2104Z\r\n");
    TheDesk().PostClick(Main().lblDXSpot(49), kRightButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(ClusterSetupTest, SettingsAreKeptByDone) {
    Begin();
    ShowSetup();
    Click(SetupForm().chkLogin);
    SetupForm().txtLogin.SetText("W1AW-2");
    SetupForm().txtLoginSend.SetText("one\r\ntwo");
    Click(SetupForm().cmdDone);
    EXPECT_EQ(settings.Get(kSection, "ClusterLogin"), "1");
    EXPECT_EQ(settings.Get(kSection, "ClusterCall"), "W1AW-2");
    EXPECT_EQ(settings.Get(kSection, "ClusterLines"), "one\r\ntwo");
    SpotRecord kept;
    ASSERT_TRUE(ReadSpotRecord(files.contents.at(kSetupPath), kept));
    EXPECT_EQ(WriteSpotRecord(kept), files.contents.at(kSetupPath)) << "fourteen lines";
}

TEST_F(ClusterSetupTest, NodesAreListedPickedAndRemoved) {
    Begin();
    ShowSetup();
    Click(SetupForm().cmdAddNode);
    Name("other.example", " 23 ");
    Click(SetupForm().cmdAddNode);
    Click(SetupForm().cmdAddNode);
    Name("", "23");
    Click(SetupForm().cmdAddNode);
    for (const auto& [host, port] : {std::pair{"bad name", "23"}, {"c", ""}, {"c", "x"}, {"c", "0"}, {"c", "65536"}}) {
        Name(host, port);
        Click(SetupForm().cmdAddNode);
    }
    EXPECT_EQ(SetupForm().lstNodes.Items(), (std::vector<std::string>{"cluster:7300", "other.example:23"}));
    EXPECT_EQ(settings.Get(kSection, "ClusterNodes"), "cluster:7300 other.example:23");
    PickNode(0);
    EXPECT_EQ(SetupForm().txtTelnetHost.Text(), "cluster");
    EXPECT_EQ(SetupForm().txtTelnetPort.Text(), "7300");
    Click(SetupForm().cmdRemoveNode);
    Click(SetupForm().cmdRemoveNode);
    EXPECT_EQ(SetupForm().lstNodes.Items(), std::vector<std::string>{"other.example:23"});
    Begin();
    EXPECT_EQ(SetupForm().lstNodes.Items(), std::vector<std::string>{"other.example:23"});
}

TEST_F(ClusterSetupTest, NodesThatCannotBeKeptAreTold) {
    Begin();
    ShowSetup();
    settings.failure = "No room.";
    Click(SetupForm().cmdAddNode);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(SetupForm().lstNodes.Items().empty());
}

TEST_F(ClusterSetupTest, DamagedListOfNodesIsReadAsFarAsItGoes) {
    Keep("ClusterNodes", "noport :23 a:1 b\x01:2 [::1]:7300");
    Begin();
    EXPECT_EQ(SetupForm().lstNodes.Items(), (std::vector<std::string>{"a:1", "[::1]:7300"}));
}

TEST_F(ClusterSetupTest, PasswordIsKeptInTheKeyringAndOnlyThere) {
    Keep("ClusterLogin", "1");
    Begin();
    ShowSetup();
    SetupForm().txtPassword.SetText("hush");
    EXPECT_TRUE(keyring.isShielded);
    Click(SetupForm().cmdDone);
    EXPECT_TRUE(keyring.kept.empty()) << "not without the operator's wish";
    ShowSetup();
    Click(SetupForm().chkKeepPassword);
    Click(SetupForm().cmdDone);
    EXPECT_EQ(keyring.kept.at("cluster:7300"), "hush");
    Say("password: hush");
    EXPECT_EQ(KeptAnywhere().find("hush"), std::string::npos);
    EXPECT_EQ(SetupForm().txtUnProcessed.Text().find("hush"), std::string::npos);

    Begin();
    EXPECT_EQ(SetupForm().txtPassword.Text(), "hush");
    Say("password: ");
    EXPECT_EQ(Node().TakeSent(), "hush\r\n");
    ShowSetup();
    Click(SetupForm().chkKeepPassword);
    EXPECT_TRUE(keyring.kept.empty());
    SetupForm().txtPassword.SetText("");
    EXPECT_TRUE(keyring.isShielded) << "something may be left of it";
}

TEST_F(ClusterSetupTest, SlowKeyringHoldsNobodyUpAndItsPasswordIsGivenWhenItComes) {
    Keep("ClusterLogin", "1");
    Keep("ClusterKeepPassword", "1");
    keyring.kept["cluster:7300"] = "hush";
    keyring.isSlow = true;
    Begin();
    EXPECT_EQ(SetupForm().chkKeepPassword.State().toolTip, "Looking for the desktop's keyring.");
    Say("password: ");
    EXPECT_EQ(Node().TakeSent(), "");
    EXPECT_FALSE(SetupForm().chkKeepPassword.State().enabled);
    keyring.Unlock();
    Run();
    Run();
    EXPECT_EQ(Node().TakeSent(), "hush\r\n");
    EXPECT_TRUE(SetupForm().chkKeepPassword.State().enabled);
}

TEST_F(ClusterSetupTest, WithoutAKeyringTheBoxSaysWhy) {
    Keep("ClusterKeepPassword", "1");
    keyring.absence = "There is no desktop session.";
    Begin();
    EXPECT_FALSE(SetupForm().chkKeepPassword.State().enabled);
    EXPECT_EQ(SetupForm().chkKeepPassword.State().toolTip, "No keyring: There is no desktop session.");
    SetupForm().txtPassword.SetText("hush");
    ShowSetup();
    Click(SetupForm().cmdDone);
    EXPECT_TRUE(keyring.kept.empty());
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ClusterSetupTest, KeyringThatRefusesIsToldByTheBox) {
    keyring.refusal = "Locked\x1B by the operator";
    Begin();
    ShowSetup();
    SetupForm().txtPassword.SetText("hush");
    Click(SetupForm().chkKeepPassword);
    Run();
    EXPECT_EQ(SetupForm().chkKeepPassword.State().toolTip, "The keyring refuses: Locked  by the operator");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ClusterSetupTest, PasswordOfOneNodeIsNotThatOfAnother) {
    Keep("ClusterLogin", "1");
    Keep("ClusterKeepPassword", "1");
    Keep("ClusterNodes", "cluster:7300 other:23");
    keyring.kept = {{"cluster:7300", "hush"}, {"other:23", "mum"}};
    Begin();
    ShowSetup();
    EXPECT_EQ(SetupForm().txtPassword.Text(), "hush");
    PickNode(1);
    EXPECT_EQ(SetupForm().txtPassword.Text(), "mum");
    Say("password: ");
    EXPECT_EQ(Node().TakeSent(), "") << "the connection is still the other one";
    Name("third", "23");
    Click(SetupForm().Command1);
    EXPECT_EQ(SetupForm().txtPassword.Text(), "");
    EXPECT_EQ(keyring.kept.size(), 2U);
}

TEST_F(ClusterSetupTest, PasswordGoesWhereItWasTypedForHoweverThePortIsOpened) {
    Keep("ClusterLogin", "1");
    Begin();
    SetupForm().txtPassword.SetText("hush");
    for (const char* port : {"7301", "7300"}) {
        Part().transports.Command2_Click();
        SetupForm().txtTelnetPort.SetText(port);
        int key = kKeyEsc;
        Part().transports.Form_KeyDown(key, 0);
        Node().Accept();
        Say("password: ");
        EXPECT_EQ(Node().TakeSent(), port == std::string_view{"7300"} ? "hush\r\n" : "") << port;
    }
}

TEST_F(ClusterSetupTest, PasswordTypedForAClusterThatIsNamedLaterIsItsOwn) {
    ++starts;
    StartOnTime();
    ShowSetup();
    TheDesk().PostRowClick(SetupForm().List1, 2, kLeftButton);
    Run();
    SetupForm().txtPassword.SetText("hush");
    Name("cluster", "7300");
    Click(SetupForm().chkLogin);
    Click(SetupForm().Command1);
    Node().Accept();
    Say("password: ");
    EXPECT_EQ(Node().TakeSent(), "hush\r\n");
}

}  // namespace
}  // namespace tallyhut
