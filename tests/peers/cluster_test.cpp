// The whole program in real time, with a cluster at the other end of a real connection.

#include <filesystem>
#include <iterator>

#include "tests/peers/cluster_node.h"
#include "tests/peers/deaf_server.h"
#include "tests/peers/spots_program.h"
#include "tests/platform/loopback_server.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

struct ClusterOnTheNet : SpotsProgram {
    LoopbackServer server;
    ClusterNode node;

    void OpenCluster(const std::string& host, int port) {
        Start();
        ChooseSource(kCluster);
        Do("set txtTelnetHost \"" + host + '"');
        Do("set txtTelnetPort \"" + std::to_string(port) + '"');
        Do("click Command1");
    }
    void Connect() {
        OpenCluster("127.0.0.1", server.Port());
        server.Accept();
    }
    void GoToTheMainForm() const { Do("click PacketSpotfrm.cmdDone"); }
    void LogIn() {
        server.Write(ClusterNode::Greeting());
        EXPECT_TRUE(TerminalTells("Please enter your call: "));
        Tell("W1AW");
        EXPECT_TRUE(TerminalTells("Hello W1AW"));
    }
    /// The operator sends a line, and the node answers it.
    void Tell(const std::string& line) {
        Say(line);
        server.Write(node.Hear(server.Read(line.size() + 2)));
    }
    /// A chunk of its own: what came before has been taken.
    void Post(const std::string& chunk) {
        server.Write(chunk);
        EXPECT_TRUE(TerminalTells(chunk.substr(0, chunk.find('\a'))));
    }
    std::string Newest() const { return Get("$SpotCall(49)") + ' ' + Get("$SpotFreq(49)"); }
};

TEST_F(ClusterOnTheNet, DialogueIsTheOperatorsAndPostsAmongThePromptsAreTaken) {
    Connect();
    LogIn();
    EXPECT_EQ(node.User(), "W1AW");
    Tell("sh/dx");
    EXPECT_TRUE(TerminalTells("<K3LR>\r\nW1AW de Q7ZZQ-2  7-Nov-2026 2104Z >"));
    EXPECT_EQ(Newest(), " 0") << "a list is no post";
    Tell("qrz?");
    EXPECT_TRUE(TerminalTells("No such command \r\n")) << "a bell is a blank";
    server.Write(node.Posted("K3LR", 14175, "W1XX", "CQ SS CT"));
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
    EXPECT_EQ(Newest(), "W1XX 14.175");
    EXPECT_TRUE(TerminalTells("2104Z  \r\nW1AW de Q7ZZQ-2  7-Nov-2026 2104Z >"));
    Tell("DX 14180 W2XX");
    EXPECT_TRUE(Shows("$SpotCall(49)", "W2XX")) << "the own post comes back";
    Tell("bye");
    EXPECT_TRUE(TerminalTells("73 de Q7ZZQ-2"));
    EXPECT_TRUE(node.HasSaidGoodbye());
    server.HangUp();
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true") << "the end is found out at the next sending";
    Say("sh/dx");
    EXPECT_TRUE(TerminalTells("**  Connection not yet established.  Please wait a moment and try again."));
}

TEST_F(ClusterOnTheNet, PostsAreTakenAsNodesSendThem) {
    struct Case {
        const char* line;
        const char* newest;
        const char* prefix;
    };
    const std::vector<Case> cases{
        {"DX de KM3T-2-#:  14029.6  W1XX           CW    19 dB  24 WPM  CQ      2104Z", "W1XX 14.0296", "W1"},
        {"DX de VE3/K1AB:  14040.0  W1XX/3       SS                             2104Z", "W1XX/3 14.04", "W3"},
        {"DX de K3LR:      14041.0  VE3/K9ABC    tnx SS                         2104Z FN31", "VE3/K9ABC 14.041", "VE3"},
        {"DX de K3LR:     144200.0  K9XX         FN31EN45                       2104Z", "K9XX 144.2", "K9"},
        {"dx de k3lr:       7042.0  N5XX/QRP     ss                             2104Z", "N5XX/QRP 7.042", "QRP"},
        {"DX de K3LR:       14043.0  W4XX        one to the right               2104Z", "W4XX 14.043", "W4"},
        // Of a long spotter the colon stands in the frequency; one to the left the call loses its first letter.
        {"DX de WA9PIE-2-#: 14044.0  W5XX        CQ                             2104Z", "W4XX 14.043", "W4"},
        {"DX de K3LR:     14045.0  W6XX         one to the left                2104Z", "W4XX 14.043", "W4"},
    };
    Connect();
    LogIn();
    for (const Case& one : cases) {
        Post(one.line + "\a\a\r\n"s);
        EXPECT_EQ(Newest(), one.newest) << one.line;
        EXPECT_EQ(Get("$SpotPrefix(49)"), one.prefix) << one.line;
    }
    EXPECT_TRUE(LogsAContact());
}

TEST_F(ClusterOnTheNet, AttemptThatIsRefusedIsTold) {
    server.StopListening();
    OpenCluster("127.0.0.1", server.Port());
    EXPECT_TRUE(TerminalTells("ERROR: Connection is forcefully rejected."));
    EXPECT_TRUE(TerminalTells("** Port Closed **"));
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "false");
    EXPECT_TRUE(LogsAContact());
}

TEST_F(ClusterOnTheNet, HostThatSwallowsPacketsLeavesTheProgramToTheOperator) {
    const DeafServer deaf;
    OpenCluster("127.0.0.1", deaf.Port());
    EXPECT_TRUE(LogsAContact());
    EXPECT_TRUE(Terminal().ends_with(std::to_string(deaf.Port()) + "\r\n\r\n")) << Terminal();
    Say("W1AW");
    EXPECT_TRUE(TerminalTells("**  Connection not yet established.  Please wait a moment and try again."));
    Do("click PacketSpotfrm.Command2");
    EXPECT_TRUE(TerminalTells("** Port Closed **"));
    EXPECT_TRUE(LogsAContact());
}

TEST_F(ClusterOnTheNet, NameThatDoesNotResolveIsTold) {
    OpenCluster("no-such-cluster.invalid", 7300);
    EXPECT_TRUE(LogsAContact());
    EXPECT_TRUE(TerminalTells("Host not found."));
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "false");
    EXPECT_TRUE(LogsAContact());
}

TEST_F(ClusterOnTheNet, ServerThatSaysNothingIsWaitedForWithoutWaiting) {
    Connect();
    EXPECT_TRUE(LogsAContact());
    Say("W1AW");
    EXPECT_EQ(server.Read(6), "W1AW\r\n");
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true");
}

TEST_F(ClusterOnTheNet, ResetIsTold) {
    Connect();
    LogIn();
    server.Reset();
    EXPECT_TRUE(TerminalTells("ERROR: The connection is reset by remote side.!"));
    EXPECT_TRUE(TerminalTells("** Port Closed **"));
    EXPECT_TRUE(LogsAContact());
}

TEST_F(ClusterOnTheNet, ByteASecondIsShownAsItComes) {
    Connect();
    for (const std::string byte : {"D", "X", " "}) {
        server.Write(byte);
        EXPECT_TRUE(LogsAContact());
        std::this_thread::sleep_for(1s);
    }
    EXPECT_TRUE(Terminal().ends_with("\r\n\r\nDX ")) << Terminal();
    EXPECT_EQ(Newest(), " 0") << "one byte is no post";
}

TEST_F(ClusterOnTheNet, StoredClusterThatIsGoneHoldsNoStartUp) {
    Connect();
    GoToTheMainForm();
    server.StopListening();
    program.reset();
    Start();
    EXPECT_TRUE(LogsAContact());
    EXPECT_TRUE(TerminalTells("ERROR: Connection is forcefully rejected."));
}

/// The program looks after the connection.
struct LoginOnTheNet : ClusterOnTheNet {
    void LogInByItself(ClusterNode registered = ClusterNode{}) {
        node = std::move(registered);
        Start();
        ChooseSource(kCluster);
        Do("set txtTelnetHost \"127.0.0.1\"");
        Do("set txtTelnetPort \"" + std::to_string(server.Port()) + '"');
        Do("click chkLogin");
    }
    void Open() {
        Do("click PacketSpotfrm.Command1");
        server.Accept();
        server.Write(ClusterNode::Greeting());
    }
    /// The program sends a line by itself, and the node answers it.
    std::string Answer(std::size_t length) {
        const std::string line = server.Read(length + 2);
        server.Write(node.Hear(line));
        return line;
    }
};

TEST_F(LoginOnTheNet, CallAndLinesGoOutAndAPostInPiecesIsTaken) {
    LogInByItself();
    Do(R"(set txtLoginSend "unset/beep\nsh/dx")");
    Open();
    EXPECT_EQ(Answer(4), "W1AW\r\n");
    EXPECT_TRUE(TerminalTells("Hello W1AW"));
    EXPECT_EQ(Answer(10), "unset/beep\r\n");
    EXPECT_TRUE(LogsAContact()) << "while the next line waits";
    EXPECT_EQ(Answer(5), "sh/dx\r\n");
    EXPECT_EQ(node.Lines(), (std::vector<std::string>{"unset/beep", "sh/dx"}));
    const std::string post = "\r\n" + node.Posted("K3LR", 14175, "W1XX", "CQ SS CT");
    for (const char byte : post) {
        server.Write({&byte, 1});
    }
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
    EXPECT_EQ(Newest(), "W1XX 14.175");
}

TEST_F(LoginOnTheNet, PasswordIsGivenAndNobodyIsShownIt) {
    LogInByItself(ClusterNode{"hush-hush"});
    Do(R"(set txtPassword "hush-hush")");
    Open();
    EXPECT_EQ(Answer(4), "W1AW\r\n");
    EXPECT_EQ(Answer(9), "hush-hush\r\n");
    EXPECT_TRUE(TerminalTells("****\r\n\r\nHello W1AW"));
    EXPECT_EQ(Terminal().find("hush"), std::string::npos);
    EXPECT_EQ(Get("PacketSpotfrm.txtPassword"), "****");
    EXPECT_EQ(Get("PacketSpotfrm.txtPassword.text"), "****");
    EXPECT_EQ(Get("PacketSpotfrm.txtPassword.value"), "****");
    EXPECT_EQ(Do("dump PacketSpotfrm").back().find("hush"), std::string::npos);
    Do("click PacketSpotfrm.cmdDone");
    for (const auto& entry : std::filesystem::recursive_directory_iterator{folder.Path()}) {
        if (entry.is_regular_file()) {
            std::ifstream file{entry.path()};
            const std::string content{std::istreambuf_iterator<char>{file}, {}};
            EXPECT_EQ(content.find("hush"), std::string::npos) << entry.path();
        }
    }
}

TEST_F(LoginOnTheNet, WrongPasswordEndsInAPauseAndNotInAnotherAnswer) {
    LogInByItself(ClusterNode{"hush-hush"});
    Do(R"(set txtPassword "hush-hash")");
    Open();
    EXPECT_EQ(Answer(4), "W1AW\r\n");
    EXPECT_EQ(Answer(9), "hush-hash\r\n");
    EXPECT_TRUE(TerminalTells("The login has failed: the cluster asks again.  Trying again in 5 seconds."));
    EXPECT_EQ(server.Read(1), "") << "the program has hung up";
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true");
    Do("click PacketSpotfrm.Command2");
    EXPECT_TRUE(TerminalTells("** Port Closed **"));
}

TEST_F(LoginOnTheNet, ConnectionThatIsDroppedComesBackByItself) {
    LogInByItself();
    Open();
    EXPECT_EQ(Answer(4), "W1AW\r\n");
    EXPECT_TRUE(TerminalTells("Hello W1AW"));
    server.Reset();
    EXPECT_TRUE(TerminalTells("ERROR: The connection is reset by remote side.!  Trying again in 5 seconds."));
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true");
    EXPECT_TRUE(LogsAContact());
    server.Accept();
    node = ClusterNode{};
    server.Write(ClusterNode::Greeting());
    EXPECT_EQ(Answer(4), "W1AW\r\n");
    server.HangUp();
    EXPECT_TRUE(TerminalTells("The cluster has ended the connection.  Trying again in 15 seconds."));
}

TEST_F(LoginOnTheNet, AttemptThatIsRefusedIsTriedAgainWithoutABeep) {
    LogInByItself();
    server.StopListening();
    const std::vector<std::string> printed = Do("click PacketSpotfrm.Command1");
    EXPECT_TRUE(TerminalTells("ERROR: Connection is forcefully rejected.  Trying again in 5 seconds."));
    EXPECT_TRUE(TerminalTells("Trying again in 15 seconds."));
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true");
}

}  // namespace
}  // namespace tallyhut
