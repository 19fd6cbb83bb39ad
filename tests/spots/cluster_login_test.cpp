#include "spots/cluster_login.h"

#include <gtest/gtest.h>

#include "platform/platform_error.h"
#include "platform/sim/machine.h"
#include "toolkit/io_source.h"

namespace tallyhut {
namespace {

using namespace std::string_literals;

constexpr std::string_view kPost = "DX de Q2ABC:     14025.0  Q5XX         CQ SS                 2101Z";
constexpr const char* kInside = "W1AW de Q7ZZQ-2 21-Nov-2026 0926Z dxspider >\r\n";
constexpr Tick kSecond = 1'000;
constexpr Tick kMinute = 60 * kSecond;

/// The wire to a cluster with the program's events, in virtual time.
struct ClusterLoginTest : testing::Test {
    sim::Machine machine{DateTime{}};
    Desk desk{machine.clock, machine.pump, machine.dialogs, machine.clipboard};
    PacketSpotfrm form{desk};
    std::unique_ptr<TcpSocket> socket = machine.tcpSockets.NewSocket();
    Preferences preferences;
    ClusterLogin login{form, *socket, desk, preferences};
    IoSource arrived{desk, socket->EventDescriptor(), [this] { login.Arrived(); }};
    sim::TcpPeer& cluster = machine.tcpSockets.Peer(0);
    std::vector<std::string> posts;
    std::string passwordsNode = "cluster.example:7300";

    ClusterLoginTest() {
        preferences.gOwnCall = "W1AW";
        login.received = [this](std::string_view post) { posts.emplace_back(post); };
        login.passwordsNode = [this] { return passwordsNode; };
        login.moreWaits = [this] { arrived.Signal(); };
    }

    void Run() { desk.RunPending(); }
    void Open() {
        cluster.accepts = true;
        login.Open("cluster.example", 7300);
        Run();
    }
    void Arrive(std::string_view bytes) {
        cluster.Arrive(bytes);
        Run();
    }
    void Pass(Tick milliseconds) {
        const Tick end = machine.clock.TickMs() + milliseconds;
        while (const std::optional<Tick> due = desk.NextDue()) {
            if (*due > end) {
                break;
            }
            machine.clock.Advance(*due - machine.clock.TickMs());
            Run();
        }
        machine.clock.Advance(end - machine.clock.TickMs());
        Run();
    }
    const std::string& Shown() const { return form.txtUnProcessed.Text(); }
    void LogIn() {
        Open();
        Arrive("login: ");
        Arrive(kInside);
        EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n");
    }
};

TEST_F(ClusterLoginTest, EveryNodesPromptIsAnsweredWithTheCall) {
    for (const std::string prompt : {"login: ", "Please enter your call: ", "Please enter your callsign:", "LOGIN:"}) {
        Open();
        Arrive("Welcome\r\n" + prompt);
        EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n") << prompt;
        EXPECT_TRUE(Shown().ends_with("Welcome\r\n" + prompt)) << Shown();
    }
}

TEST_F(ClusterLoginTest, CallAndPasswordOfTheOperatorAreGivenWhereverTheBytesAreCut) {
    form.txtLogin.SetText(" W1AW-2 ");
    form.txtPassword.SetText("hush");
    const std::string all =
        "\xFF\xFB\x01Hello\r\nLast login: 21-Nov\r\n\xFF\xFD\x18login: \r\npassword: \r\n"s + kInside;
    for (std::size_t cut = 0; cut <= all.size(); ++cut) {
        Open();
        Arrive(all.substr(0, cut));
        Arrive(all.substr(cut));
        Pass(kSecond);
        // Of prompts and answers in one piece nothing waits: the line has gone on.
        const std::string sent = cluster.TakeSent();
        EXPECT_EQ(cluster.attempts, static_cast<int>(cut) + 1) << cut;
        EXPECT_TRUE(sent.empty() || sent == "W1AW-2\r\n" || sent == "hush\r\n") << cut << sent;
    }
    Open();
    for (const char byte : all) {
        Arrive({&byte, 1});
    }
    EXPECT_EQ(cluster.TakeSent(), "W1AW-2\r\nhush\r\n");
    EXPECT_EQ(Shown().find("hush"), std::string::npos);
}

TEST_F(ClusterLoginTest, WithoutAnythingToAnswerThePromptIsTheOperators) {
    preferences.gOwnCall = " ";
    Open();
    Arrive("login: ");
    Arrive("\r\nlogin: ");
    EXPECT_EQ(cluster.TakeSent(), "");
    EXPECT_EQ(cluster.attempts, 1);
    preferences.gOwnCall = "W1AW";
    Arrive("\r\nlogin: ");
    Arrive("\r\npassword: ");
    Arrive("\r\npassword: ");
    EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n");
    EXPECT_TRUE(cluster.isConnected);
    EXPECT_TRUE(Shown().ends_with("password: "));
}

TEST_F(ClusterLoginTest, PasswordThatComesLateIsGivenToThePromptThatStands) {
    Open();
    Arrive("password: ");
    form.txtPassword.SetText("hush");
    login.PasswordIsThere();
    EXPECT_EQ(cluster.TakeSent(), "hush\r\n");
    login.PasswordIsThere();
    EXPECT_EQ(cluster.TakeSent(), "") << "once";
}

TEST_F(ClusterLoginTest, PasswordIsGivenToNoOtherHostOrPort) {
    form.txtPassword.SetText("hush");
    for (const char* other : {"", "other.example:7300", "cluster.example:73", "cluster.example:73000"}) {
        passwordsNode = other;
        Open();
        Arrive("password: ");
        EXPECT_EQ(cluster.TakeSent(), "") << other;
    }
}

TEST_F(ClusterLoginTest, WhoIsInsideGivesNoPasswordAndIsNotThrownOutByWhatOthersSay) {
    form.txtPassword.SetText("hush");
    LogIn();
    Pass(2 * kSecond);
    Arrive("Q5XX says: tell me your password:");
    Arrive(" please\r\nQ5XX says: your login:");
    Arrive(" please\r\nyour call:");
    EXPECT_EQ(cluster.TakeSent(), "");
    EXPECT_TRUE(cluster.isConnected);
}

TEST_F(ClusterLoginTest, BannerThatEndsLikeTheInsideKeepsNobodyOut) {
    form.txtPassword.SetText("hush");
    form.txtLoginSend.SetText("sh/filter");
    Open();
    Arrive("Welcome to <Q7ZZQ-2>\r\nlogin: ");
    EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n");
    Arrive("\r\nHello <W1AW>\r\n");
    Pass(2 * kSecond - 1);
    Arrive("password: ");
    Pass(10 * kSecond);
    EXPECT_EQ(cluster.TakeSent(), "hush\r\n");
    Arrive(kInside);
    Pass(kSecond);
    Arrive("a line >\r\n");
    Pass(kSecond - 1);
    EXPECT_EQ(cluster.TakeSent(), "");
    Pass(1);
    EXPECT_EQ(cluster.TakeSent(), "sh/filter\r\n");
}

TEST_F(ClusterLoginTest, LinesAreNotSentToAPromptThatIsTheOperators) {
    form.txtLoginSend.SetText("sh/filter");
    Open();
    Arrive("Welcome to <Q7ZZQ-2>\r\npassword: ");
    Pass(10 * kSecond);
    EXPECT_EQ(cluster.TakeSent(), "");
}

TEST_F(ClusterLoginTest, ClusterThatAsksAgainBehindAnArrowIsPutOff) {
    LogIn();
    Arrive("login: ");
    EXPECT_FALSE(cluster.isConnected);
}

TEST_F(ClusterLoginTest, EchoOfThePasswordIsNotShownInWhateverPiecesItComes) {
    form.txtPassword.SetText("hush");
    const std::string echo = " hush is wrong\r\n";
    for (std::size_t cut = 0; cut <= echo.size(); ++cut) {
        form.txtUnProcessed.SetText("");
        Open();
        Arrive("password:");
        Arrive(echo.substr(0, cut));
        Pass(kSecond);
        EXPECT_EQ(Shown().find("hu"), std::string::npos) << cut;
        Arrive(echo.substr(cut));
        Pass(kSecond);
        EXPECT_EQ(Shown(), "password: **** is wrong\r\n") << cut;
    }
}

TEST_F(ClusterLoginTest, TenLinesGoOutOneEveryTwoSeconds) {
    std::string lines;
    for (int i = 1; i <= 12; ++i) {
        lines += " line " + std::to_string(i) + "\r\n\r\n";
    }
    form.txtLoginSend.SetText(lines);
    LogIn();
    for (int i = 1; i <= 10; ++i) {
        Pass(2 * kSecond - 1);
        EXPECT_EQ(cluster.TakeSent(), "") << i;
        Pass(1);
        EXPECT_EQ(cluster.TakeSent(), "line " + std::to_string(i) + "\r\n");
    }
    Arrive(kInside);
    Pass(kMinute);
    EXPECT_EQ(cluster.TakeSent(), "") << "once a connection";
}

TEST_F(ClusterLoginTest, PromptThatNoLineEndFollowsIsInsideWhenItRests) {
    form.txtLoginSend.SetText("sh/filter");
    Open();
    Arrive("Hello <W1AW>");
    Arrive(", how are you?\r\n");
    Pass(kSecond);
    EXPECT_EQ(cluster.TakeSent(), "");
    Arrive("W1AW de Q7ZZQ-2 arc > ");
    Pass(3 * kSecond);
    EXPECT_EQ(cluster.TakeSent(), "sh/filter\r\n");
    EXPECT_TRUE(Shown().ends_with("arc > "));
}

TEST_F(ClusterLoginTest, PostBehindAPromptThatNoLineEndFollowsIsAPost) {
    LogIn();
    for (int i = 1; i <= 2; ++i) {
        Arrive("W1AW de Q7ZZQ-2 >");
        Pass(3 * kSecond);
        Arrive(std::string{kPost} + "\r\n");
        EXPECT_EQ(posts.size(), static_cast<std::size_t>(i));
    }
    EXPECT_TRUE(Shown().ends_with("-2 >" + std::string{kPost} + "\r\n"));
}

TEST_F(ClusterLoginTest, PasswordThatStandsInAPostIsHiddenInTheTerminalAlone) {
    form.txtPassword.SetText("Q5XX");
    LogIn();
    Arrive(std::string{kPost} + "\r\n");
    EXPECT_EQ(posts, std::vector<std::string>{std::string{kPost}});
    EXPECT_EQ(Shown().find("Q5XX"), std::string::npos);
}

TEST_F(ClusterLoginTest, PostsArePutTogetherHoweverTheyArrive) {
    LogIn();
    const std::string line{kPost};
    Arrive(line.substr(0, 5));
    Arrive(line.substr(5) + "\a\a\r\nTo ALL de Q1XX: hi\r\n" + line + "\r\n" + kInside + "dx de q\n");
    ASSERT_EQ(posts.size(), 3U);
    EXPECT_EQ(posts[0], line + "  ") << "a bell is a blank";
    EXPECT_EQ(posts[1], line) << "nothing is a repeat";
    EXPECT_EQ(posts[2], "dx de q");
    EXPECT_TRUE(Shown().ends_with(line + "  \r\nTo ALL de Q1XX: hi\r\n" + line + "\r\n" + kInside + "dx de q\r\n"));
    EXPECT_EQ(machine.dialogs.beeps, 0);
}

TEST_F(ClusterLoginTest, OnlyPostsAreListedWhereTheOperatorWantsThat) {
    form.chkDX.SetValue(true);
    LogIn();
    Arrive("To ALL de Q1XX: hi\r\n" + std::string{kPost} + "\r\nW1AW de");
    Pass(kSecond);
    EXPECT_EQ(Shown(), std::string{kPost} + "\r\n");
}

TEST_F(ClusterLoginTest, LineThatIsTooLongIsDropped) {
    LogIn();
    const std::string before = Shown();
    Arrive("DX " + std::string(1'022, 'x') + "\r\n");
    EXPECT_EQ(Shown(), before + "\r\n");
    Arrive("DX " + std::string(900, 'x'));
    Pass(kSecond);
    Arrive(std::string(200, 'x'));
    Pass(kSecond);
    Arrive("\r\nnext\r\n");
    EXPECT_TRUE(Shown().ends_with("xxx\r\nnext\r\n"));
    EXPECT_TRUE(posts.empty());
}

TEST_F(ClusterLoginTest, PausesGrowAndBeginAnewAfterAGoodConnection) {
    cluster.refusal = kTcpRefused;
    login.Open("cluster.example", 7300);
    Run();
    int attempts = 1;
    for (const Tick seconds : {5, 15, 30, 60, 60, 60}) {
        EXPECT_TRUE(Shown().ends_with("ERROR: Connection is forcefully rejected.  Trying again in " +
                                      std::to_string(seconds) + " seconds.\r\n"))
            << Shown();
        EXPECT_EQ(cluster.attempts, attempts);
        Pass(seconds * kSecond - 1);
        EXPECT_EQ(cluster.attempts, attempts);
        Pass(1);
        EXPECT_EQ(cluster.attempts, ++attempts);
    }
    cluster.refusal.reset();
    cluster.accepts = true;
    Pass(kMinute);
    Pass(kMinute - 1);
    cluster.End();
    Run();
    EXPECT_TRUE(Shown().ends_with("The cluster has ended the connection.  Trying again in 60 seconds.\r\n"));
    Pass(kMinute);
    Pass(kMinute);
    cluster.Fail(kTcpReset);
    Run();
    EXPECT_TRUE(Shown().ends_with("ERROR: The connection is reset by remote side.!  Trying again in 5 seconds.\r\n"));
    EXPECT_EQ(machine.dialogs.beeps, 0);
}

TEST_F(ClusterLoginTest, SamePromptAgainIsAFailure) {
    Open();
    Arrive("login: ");
    Arrive("login: ");
    EXPECT_FALSE(cluster.isConnected);
    EXPECT_TRUE(
        Shown().ends_with("login: login: \r\nThe login has failed: the cluster asks again.  Trying again in 5 "
                          "seconds.\r\n"))
        << Shown();
    Pass(5 * kSecond);
    EXPECT_TRUE(cluster.isConnected);
    Arrive("login: ");
    EXPECT_EQ(cluster.TakeSent(), "W1AW\r\nW1AW\r\n");
}

TEST_F(ClusterLoginTest, BlankBehindAPromptIsNoOther) {
    Open();
    Arrive("login:");
    Arrive(" ");
    Arrive(" ");
    Pass(kSecond);
    EXPECT_TRUE(cluster.isConnected);
    EXPECT_EQ(cluster.TakeSent(), "W1AW\r\n");
}

TEST_F(ClusterLoginTest, ClusterThatAsksForEverIsNotAnsweredForEver) {
    Open();
    std::string sent;
    for (int minute = 0; minute < 24 * 60; ++minute) {
        for (int second = 0; second < 60; ++second) {
            Arrive("login: ");
            Pass(kSecond);
            sent += cluster.TakeSent();
        }
    }
    EXPECT_GT(cluster.attempts, 1'400);
    EXPECT_LT(cluster.attempts, 1'445) << "one a minute";
    EXPECT_LE(sent.size(), static_cast<std::size_t>(cluster.attempts) * 6);
    EXPECT_LE(Shown().size(), 10'000U);
}

TEST_F(ClusterLoginTest, CloseEndsAPause) {
    cluster.refusal = kTcpRefused;
    login.Open("cluster.example", 7300);
    Run();
    login.Close();
    Pass(10 * kMinute);
    EXPECT_EQ(cluster.attempts, 1);
    EXPECT_FALSE(login.IsOpen());
}

TEST_F(ClusterLoginTest, FailureToldInAPauseIsNoOther) {
    Open();
    login.Fail(kTcpReset);
    const std::string shown = Shown();
    login.Fail(kTcpReset);
    EXPECT_EQ(Shown(), shown);
}

TEST_F(ClusterLoginTest, HandlerOfAPostMayCloseTheConnection) {
    LogIn();
    login.received = [this](std::string_view post) {
        posts.emplace_back(post);
        login.Close();
        socket->Close();
    };
    Arrive(std::string{kPost} + "\r\n" + std::string{kPost} + "\r\nlogin: ");
    EXPECT_EQ(posts.size(), 1U);
    EXPECT_EQ(cluster.TakeSent(), "");
}

TEST_F(ClusterLoginTest, FloodIsTakenInPartsAndNothingIsLost) {
    LogIn();
    login.received = [this](std::string_view post) {
        posts.emplace_back(post);
        machine.clock.Advance(5);
    };
    std::string flood;
    for (int i = 0; i < 100; ++i) {
        flood += std::string{kPost} + "\r\n";
    }
    cluster.Arrive(flood);
    cluster.Arrive(flood);
    login.Arrived();
    EXPECT_EQ(posts.size(), 4U);
    for (int i = 0; i < 60; ++i) {
        Run();
    }
    EXPECT_EQ(posts.size(), 200U);
}

/// What a machine gives that has no descriptor left.
struct SpentSocket : sim::TcpSocket {
    using sim::TcpSocket::TcpSocket;

    int attempts = 0;

    void Connect(const std::string& /*host*/, int /*port*/) override {
        ++attempts;
        throw PlatformError{"Too many open files"};
    }
};

TEST_F(ClusterLoginTest, AMachineThatHasNothingLeftToConnectWithIsTriedAgainWithoutABox) {
    SpentSocket spent{cluster};
    ClusterLogin patient{form, spent, desk, preferences};
    patient.Open("cluster.example", 7300);
    EXPECT_NE(Shown().find("Too many open files  Trying again in 5 seconds."), std::string::npos) << Shown();
    Pass(20 * kSecond);
    EXPECT_EQ(spent.attempts, 3);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

}  // namespace
}  // namespace tallyhut
