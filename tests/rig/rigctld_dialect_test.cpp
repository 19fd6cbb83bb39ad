#include "rig/rigctld_dialect.h"

#include <gtest/gtest.h>

#include "contest/bands.h"

namespace tallyhut {
namespace {

using Kind = ServerAnswer::Kind;

constexpr ServerRequest kIntroduction = ServerRequest::Introduction;
constexpr ServerRequest kFrequency = ServerRequest::Frequency;
constexpr ServerRequest kMode = ServerRequest::Mode;
constexpr ServerRequest kSetMode = ServerRequest::SetMode;
constexpr ServerRequest kSetFrequency = ServerRequest::SetFrequency;

ServerAnswer Read(ServerRequest request, std::string_view received, const ServerFacts& facts = {}) {
    return kRigctld.read(request, facts, received);
}

std::string Request(const ServerOrder& order, const ServerFacts& facts = {}) {
    return kRigctld.request(order, facts);
}

TEST(RigctldDialect, RequestIsALineInTheExtendedManner) {
    EXPECT_EQ(Request({.request = kIntroduction}), "\\chk_vfo\n") << "which knows no extended manner";
    EXPECT_EQ(Request({.request = kFrequency}), "+f\n");
    EXPECT_EQ(Request({.request = kMode}), "+m\n");
    EXPECT_EQ(Request({.request = kSetFrequency, .hertz = 14'025'100}), "+F 14025100\n");
    EXPECT_EQ(Request({.request = kSetFrequency, .hertz = 1'296'000'000}), "+F 1296000000\n");
    EXPECT_EQ(Request({.request = kSetMode, .mode = "CWR"}), "+M CWR -1\n") << "the width stays";
}

TEST(RigctldDialect, ServerThatWantsTheVfoIsToldTheOneInUse) {
    const ServerFacts names{.namesVfo = true};
    EXPECT_EQ(Request({.request = kIntroduction}, names), "\\chk_vfo\n");
    EXPECT_EQ(Request({.request = kFrequency}, names), "+f currVFO\n");
    EXPECT_EQ(Request({.request = kMode}, names), "+m currVFO\n");
    EXPECT_EQ(Request({.request = kSetFrequency, .hertz = 7'035'000}, names), "+F currVFO 7035000\n");
    EXPECT_EQ(Request({.request = kSetMode, .mode = "USB"}, names), "+M currVFO USB -1\n");
}

TEST(RigctldDialect, PlanModesHaveTheServersNames) {
    struct Case {
        const char* plan;
        const char* server;
    };
    constexpr std::array kCases{
        Case{"CW", "CW"},    Case{"CW-R", "CWR"},   Case{"LSB", "LSB"},    Case{"USB", "USB"},
        Case{"AM", "AM"},    Case{"FM", "FM"},      Case{"RTTY", "RTTY"},  Case{"RTTY-R", "RTTYR"},
        Case{"FSK", "RTTY"}, Case{"DIG", "PKTUSB"}, Case{"PKT", "PKTUSB"}, Case{"PH", ""},
        Case{"", ""},        Case{"CW 0\nF 1", ""}, Case{"cw", ""},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(kRigctld.modeNamed(one.plan, {}), one.server) << one.plan;
    }
}

TEST(RigctldDialect, FrequencyIsRead) {
    const ServerAnswer answer = Read(kFrequency, "get_freq:\nFrequency: 14040500\nRPRT 0\n");
    EXPECT_EQ(answer.kind, Kind::Good);
    EXPECT_EQ(answer.reading.frequency, 14.0405F);
    EXPECT_FALSE(answer.reading.mode);
    EXPECT_EQ(Read(kFrequency, "get_freq: currVFO\nFrequency: 145000000\nRPRT 0\n").reading.frequency, 145.0F);
    EXPECT_EQ(Read(kFrequency, "get_freq:\r\nFrequency: 7035000\r\nRPRT 0\r\n").reading.frequency, 7.035F);
    EXPECT_EQ(Read(kFrequency, "get_freq:\nFrequency: 7035000.000000\nRPRT 0\n").reading.frequency, 7.035F);
    EXPECT_EQ(Read(kFrequency, "get_freq:\nVFO: VFOA\nFrequency: 7035004\nRPRT 0\n").reading.frequency, 7.035F)
        << "rounded to 10 Hz, among what else a server may tell";
}

TEST(RigctldDialect, ModeIsCwOrPhone) {
    struct Case {
        const char* server;
        std::optional<std::string_view> mode;
    };
    constexpr std::array kCases{Case{"CW", kCw},     Case{"CWR", kCw},       Case{"USB", kPhone},
                                Case{"LSB", kPhone}, Case{"FM", kPhone},     Case{"RTTY", kPhone},
                                Case{"CWX", kPhone}, Case{"PKTUSB", kPhone}, Case{"", std::nullopt}};
    for (const Case& one : kCases) {
        const ServerAnswer answer =
            Read(kMode, "get_mode:\nMode: " + std::string{one.server} + "\nPassband: 500\nRPRT 0\n");
        EXPECT_EQ(answer.kind, Kind::Good) << one.server;
        EXPECT_EQ(answer.reading.mode, one.mode) << one.server;
        EXPECT_FALSE(answer.reading.frequency);
    }
}

TEST(RigctldDialect, CommandIsReported) {
    EXPECT_EQ(Read(kSetFrequency, "set_freq: 7035000\nRPRT 0\n").kind, Kind::Good);
    EXPECT_EQ(Read(kSetMode, "set_mode: CW -1\nRPRT 0\n").kind, Kind::Good);
    EXPECT_EQ(Read(kSetFrequency, "set_freq: 7035000\nRPRT -1\n").kind, Kind::Refused);
    EXPECT_EQ(Read(kSetMode, "RPRT -11\n").kind, Kind::Refused);
}

TEST(RigctldDialect, RadioThatDoesNotAnswerTheServerIsARefusal) {
    for (const char* report : {"RPRT -5\n", "RPRT -6\n", "get_freq:\nRPRT -5\n", "get_freq: currVFO\nRPRT -8\n",
                               "get_freq:\nFrequency: 0\nRPRT 0\n", "get_freq:\nFrequency: 14025000\nRPRT -5\n"}) {
        const ServerAnswer answer = Read(kFrequency, report);
        EXPECT_EQ(answer.kind, Kind::Refused) << report;
        EXPECT_FALSE(answer.reading.frequency) << report;
    }
    EXPECT_EQ(Read(kMode, "get_mode:\nRPRT -5\n").kind, Kind::Refused);
}

TEST(RigctldDialect, HalfAnAnswerIsWaitedFor) {
    const std::string whole = "get_freq:\nFrequency: 14040500\nRPRT 0\n";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(Read(kFrequency, whole.substr(0, length)).kind, Kind::NotYet) << length;
    }
}

TEST(RigctldDialect, AnswerToSomethingElseIsBroken) {
    struct Case {
        ServerRequest request;
        const char* received;
    };
    constexpr std::array kCases{
        Case{kFrequency, "get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n"},
        Case{kFrequency, "14040500\n"},
        Case{kFrequency, "Frequency: 14040500\nRPRT 0\n"},
        Case{kFrequency, "RPRT 0\n"},
        Case{kFrequency, "get_freq:\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: \nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: 14MHz\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: &H14\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: 1e7\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: -14040500\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: 14.04.05\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: .5\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: 1234567890123\nRPRT 0\n"},
        Case{kFrequency, "get_freq:\nFrequency: 14040500\nRPRT 1\n"},
        Case{kFrequency, "get_freq:\nFrequency: 14040500\nRPRT 0\nget_freq:\n"},
        Case{kFrequency, "get_freq:\nFrequency: 14040500\nRPRT 0\n\n"},
        Case{kFrequency, "RPRT -1\nRPRT -18\nRPRT 0\n"},
        Case{kFrequency, "HTTP/1.1 400 Bad Request\r\n"},
        Case{kFrequency, "\n"},
        Case{kMode, "get_freq:\nFrequency: 14040500\nRPRT 0\n"},
        Case{kSetFrequency, "set_mode: CW -1\nRPRT 0\n"},
        Case{kSetFrequency, "RPRT 0\n"},
        Case{kIntroduction, "2\n"},
        Case{kIntroduction, "\n"},
        Case{kIntroduction, "0\n0\n"},
        Case{kIntroduction, "SSH-2.0-OpenSSH_9.2\r\n"},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(Read(one.request, one.received).kind, Kind::Broken) << one.received;
    }
}

TEST(RigctldDialect, AnswerThatNeverEndsIsBrokenAfterAKilobyte) {
    EXPECT_EQ(Read(kFrequency, std::string(1'024, 'x')).kind, Kind::NotYet);
    EXPECT_EQ(Read(kFrequency, std::string(1'025, 'x')).kind, Kind::Broken);
    EXPECT_EQ(Read(kIntroduction, std::string(1'025, '0')).kind, Kind::Broken);
    std::string lines = "get_freq:\n";
    while (lines.size() <= 1'024) {
        lines += "Frequency: 14040500\n";
    }
    EXPECT_EQ(Read(kFrequency, lines).kind, Kind::Broken);
}

TEST(RigctldDialect, IntroductionSaysWhetherCommandsNameTheVfo) {
    for (const char* line : {"0\n", "CHKVFO 0\n", "ChkVFO: 0\n", "0\r\n", "RPRT -11\n", "RPRT -1\n"}) {
        const ServerAnswer answer = Read(kIntroduction, line, {.namesVfo = true});
        EXPECT_EQ(answer.kind, Kind::Good) << line;
        EXPECT_FALSE(answer.facts.value().namesVfo) << line;
    }
    for (const char* line : {"1\n", "CHKVFO 1\n", "ChkVFO: 1\n"}) {
        EXPECT_TRUE(Read(kIntroduction, line).facts.value().namesVfo) << line;
    }
    EXPECT_EQ(Read(kIntroduction, "0").kind, Kind::NotYet);
}

TEST(RigctldDialect, IntroductionThatComesLateStandsBeforeTheNextAnswer) {
    const ServerFacts owes{.owesIntroduction = true};
    const std::string frequency = "get_freq:\nFrequency: 14040500\nRPRT 0\n";
    const ServerAnswer late = Read(kFrequency, "0\n" + frequency, owes);
    EXPECT_EQ(late.kind, Kind::Good);
    EXPECT_EQ(late.reading.frequency, 14.0405F);
    EXPECT_FALSE(late.facts.value().owesIntroduction);
    EXPECT_EQ(Read(kFrequency, "0\n", owes).kind, Kind::NotYet);
    EXPECT_TRUE(Read(kFrequency, "0\n", owes).facts.value().owesIntroduction) << "it stands there still";

    const ServerAnswer never = Read(kFrequency, frequency, owes);
    EXPECT_EQ(never.reading.frequency, 14.0405F);
    EXPECT_FALSE(never.facts.value().owesIntroduction);

    EXPECT_EQ(Read(kFrequency, "1\n", owes).kind, Kind::Broken) << "it waits for the name of a VFO";
    EXPECT_EQ(Read(kFrequency, "0\n0\n", owes).kind, Kind::Broken);
    EXPECT_EQ(Read(kFrequency, "0\n" + frequency).kind, Kind::Broken) << "nothing is owed";
}

}  // namespace
}  // namespace tallyhut
