// The whole program in real time, with a TNC at the other end of a wire.

#include <filesystem>
#include <optional>

#include "tests/peers/spots_program.h"
#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;

constexpr auto kPost = "DX de K3LR:      14025.0  W1XX         CQ SS CT                       2104Z\r\n";

/// The device of port 1 is a link, so that another TNC can be plugged in at the same place.
struct TncOnTheWire : SpotsProgram {
    std::optional<PseudoTerminal> tnc{std::in_place};
    std::string device = folder.Path() + "/tnc";

    void PlugIn() const {
        std::filesystem::remove(device);
        std::filesystem::create_symlink(tnc->Path(), device);
    }
    void OpenTnc() {
        PlugIn();
        Start({"--port", "1=" + device});
        ChooseSource(kTnc);
        Do("click Command1");
    }
    testing::AssertionResult Hears(const std::string& expected) {
        std::string heard;
        return Becomes(expected, [&] { return heard += tnc->Receive(); });
    }
};

TEST_F(TncOnTheWire, LinesAreTakenWhenTheyAreWholeAndCommandsGoOut) {
    OpenTnc();
    EXPECT_TRUE(TerminalTells("** TNC Serial Port Open **"));
    EXPECT_EQ(tnc->Settings(), "9600 1 CRTSCTS");
    tnc->Send(kPost);
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX")) << "no line feed stands before it";
    tnc->Send("cmd:");
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Terminal().find("cmd:"), std::string::npos) << "its line has not ended";
    tnc->Send("\r\n");
    EXPECT_TRUE(TerminalTells("cmd:\r\n"));
    Say("C Q7ZZQ");
    EXPECT_TRUE(Hears("C Q7ZZQ\r"));
    Do("key Esc");
    EXPECT_TRUE(Hears("\x03")) << "the character of command mode";
}

TEST_F(TncOnTheWire, CablePulledWhileItIsPolledLeavesTheProgramToTheOperator) {
    OpenTnc();
    tnc->Send("half a li");
    EXPECT_TRUE(LogsAContact());
    tnc->HangUp();
    std::this_thread::sleep_for(1s);  // three polls
    EXPECT_TRUE(LogsAContact());
    Say("C Q7ZZQ");
    EXPECT_EQ(program->LastTurn(), R"({"ready":"answer","dialog":"msgbox"})") << "what cannot be sent is told";
    Do("answer OK");
    EXPECT_TRUE(LogsAContact());

    tnc.emplace();
    PlugIn();
    Do("click PacketSpotfrm.Command1");
    EXPECT_TRUE(TerminalTells("** TNC Serial Port Open **"));
    tnc->Send(kPost + std::string{kPost});
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
}

TEST_F(TncOnTheWire, DeviceThatIsNotThereIsToldInABox) {
    Start({"--port", "1=" + device});
    ChooseSource(kTnc);
    const std::vector<std::string> printed = Do("click Command1");
    EXPECT_EQ(program->LastTurn(), R"({"ready":"answer","dialog":"msgbox"})") << printed.size();
    Do("answer OK");
    EXPECT_TRUE(TerminalTells("** Unable to open TNC Serial Port **"));
    EXPECT_TRUE(LogsAContact());
}

}  // namespace
}  // namespace tallyhut
