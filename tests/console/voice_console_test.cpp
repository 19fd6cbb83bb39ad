#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "platform/wave_format.h"
#include "tests/console/console_driver.h"
#include "tests/console/spoken_contest.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr int kRate = 8'000;

std::string Wave(int milliseconds) {
    return WaveFile(kRate, std::string(static_cast<std::size_t>(milliseconds) * 2 * kRate / 1'000, '\0'));
}

/// Without folder and ending.
std::string NameIn(const std::string& path) {
    return path.substr(path.rfind('/') + 1, path.rfind('.') - path.rfind('/') - 1);
}

/// The recordings that were begun, in order.
Lines Played(const Lines& printed) {
    Lines played;
    for (const std::string& line : printed) {
        const auto event = nlohmann::json::parse(line);
        if (event.value("event", "") == "media" && event["command"] == "play") {
            played.push_back(NameIn(event["file"]));
        }
    }
    return played;
}

Lines WithoutDashes(Lines names) {
    for (std::string& name : names) {
        name = name.substr(0, name.find('-'));
    }
    return names;
}

struct VoiceConsoleTest : testing::Test {
    ContestFolder folder;
    const Lines options{"--clock", ConsoleDriver::kStart, "--sound", "sim", "--port", "1=sim", "--parallel", "sim"};

    void PutRecordings() {
        for (const std::string_view name : kRecordings) {
            folder.Write(std::string{name} + ".wav", Wave(300));
        }
    }
};

TEST_F(VoiceConsoleTest, ContestIsWorkedByKeyboardAndEarAlone) {
    PutRecordings();
    ConsoleDriver program{folder.Path(), options, ConsoleDriver::Questions::Open};
    for (const SpokenStep& step : kSpokenContest) {
        const std::string command =
            step.command.starts_with("wait ") ? "advance " + step.command.substr(5) : step.command;
        EXPECT_EQ(Played(program.Do(command)), WithoutDashes(step.heard)) << step.command;
        EXPECT_EQ(Played(program.Do("advance 400")), Lines{}) << "behind " << step.command;
    }
    program.CloseInput();
    EXPECT_EQ(program.Wait(), 0);
    const std::string log = folder.Read("Log.txt");
    EXPECT_TRUE(log.starts_with(R"("1","88","A","W1XX","72","MDC",)")) << log;
    EXPECT_NE(log.find(R"("2","12","B","K2YY","64","NNY",)"), std::string::npos) << log;
    EXPECT_NE(log.find(R"("3","7","A","N3ZZ","55","EPA",)"), std::string::npos) << log;
    EXPECT_EQ(std::ranges::count(log, '\n'), 3);
}

TEST_F(VoiceConsoleTest, TransmitterIsKeyedAroundAMessage) {
    PutRecordings();
    ConsoleDriver program{folder.Path(), options};
    program.Do("menu mnuSetup");
    program.Do("click Option2");
    program.Do("click Command1");
    program.Do("key Ctrl+P");
    program.Do("set Text1 \"cq.wav\"");
    program.Do("set Text10 1");
    program.Do("set txtPHLoop 2");
    program.Do("focus txtPHLoop");
    program.Do("key Enter");
    const std::string file = folder.Path() + "/cq.wav";
    const std::string at = R"(,"at":"2026-11-07T21:04:33.)";
    const Lines begun = program.Do("key F1");
    ASSERT_EQ(begun.size(), 6U);
    EXPECT_EQ(begun[3], R"({"event":"line","port":1,"line":"RTS","on":true)" + at + R"(000"})");
    EXPECT_EQ(begun[4],
              R"({"event":"media","player":"PhoneFrm","command":"open","file":")" + file + '"' + at + R"(000"})");
    EXPECT_EQ(begun[5],
              R"({"event":"media","player":"PhoneFrm","command":"play","file":")" + file + '"' + at + R"(000"})");
    EXPECT_EQ(program.Get("$gPhoneRepeat"), "1");
    EXPECT_EQ(program.Do("advance 1000"),
              Lines{R"({"event":"line","port":1,"line":"RTS","on":false)" + at + R"(320"})"});
    EXPECT_EQ(Played(program.Do("advance 1400")), Lines{"cq"}) << "two seconds behind the end of the first";
    EXPECT_EQ(program.Get("$gPhoneRepeat"), "1");
    program.Do("at 100 key Esc");
    Lines stopped = program.Do("advance 5000");
    std::erase_if(stopped, [](const std::string& line) { return line.find("frmQ7ZZQLogo") != std::string::npos; });
    ASSERT_EQ(stopped.size(), 2U);
    EXPECT_NE(stopped[0].find(R"("command":"stop")"), std::string::npos);
    EXPECT_NE(stopped[1].find(R"("line":"RTS","on":false)"), std::string::npos);
    EXPECT_EQ(program.Get("$gPhoneRepeat"), "0");
}

TEST_F(VoiceConsoleTest, TypedUmlautsFindTheirFile) {
    folder.Write("gr\xC3\xBC\xC3\x9F dich.wav", Wave(100));
    ConsoleDriver program{folder.Path(), options};
    program.Do("key Ctrl+P");
    program.Do("set Text1 \"gr\xC3\xBC\xC3\x9F dich.wav\"");
    EXPECT_EQ(Played(program.Do("click Command11")), Lines{"gr\xC3\xBC\xC3\x9F dich"});
}

TEST_F(VoiceConsoleTest, FreshFolderIsSpokenToWithTheProgramsOwnRecordings) {
    ConsoleDriver program{folder.Path(), options};
    program.Do("menu mnuBlind");
    EXPECT_EQ(Played(program.Do("click Option3")), Lines{"NavEn"});
}

}  // namespace
}  // namespace tallyhut
