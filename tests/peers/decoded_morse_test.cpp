// What the program keys on its virtual clock, read by a decoder that is not ours.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "tests/console/console_driver.h"
#include "tests/peers/morse_listener.h"
#include "values/date_time.h"

namespace tallyhut {
namespace {

constexpr int kMessages = 200;
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// F2 sends the exchange. The key is the line DTR of port 1; words are seven units apart.
std::string CwSettings(int wpm) {
    return "\"\"\r\n\"$ # A W1XX 72 MDC\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"1\"\r\n\"" +
           std::to_string(wpm) + "\"\r\n\"\"\r\n\"\"\r\n\"-4\"\r\n2\r\n\"&H378\"\r\n0\r\n\"0\"\r\n";
}

/// Calls as they are heard, every letter and digit among them.
std::string AnyCall(std::mt19937& random) {
    const auto any = [&random](std::string_view of) { return of[random() % of.size()]; };
    std::string call{any("AKNW")};
    if (call == "A" || random() % 2 == 0) {
        call += any(kLetters.substr(0, 12));
    }
    call += any("0123456789");
    for (auto count = 1 + random() % 3; count > 0; --count) {
        call += any(kLetters);
    }
    return call;
}

/// From the start of the day of the contest, milliseconds.
double MsOf(const std::string& iso) {
    constexpr DateTime kDay{2026, 11, 7, 0, 0, 0};
    std::string plain = iso.substr(0, 19);
    plain[10] = ' ';
    return static_cast<double>(SecondsBetween(kDay, ParseDateTime(plain, 0).value())) * 1'000 +
           std::stod(iso.substr(20));
}

void AddChanges(std::vector<KeyChange>& changes, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        const auto event = nlohmann::json::parse(line);
        if (event.value("event", "") == "line" && event["line"] == "DTR") {
            changes.push_back({.atMs = MsOf(event["at"]), .down = event["on"]});
        }
    }
}

/// "PARIS PARIS" with dahs of so many units.
std::vector<KeyChange> Paris(double dah) {
    constexpr std::string_view kWord = ".--. .- .-. .. ...   ";
    constexpr double kUnitMs = 60;
    std::vector<KeyChange> changes;
    double at = 0;
    for (const char sign : std::string{kWord} + std::string{kWord}) {
        if (sign != ' ') {
            changes.push_back({.atMs = at, .down = true});
            at += kUnitMs * (sign == '-' ? dah : 1);
            changes.push_back({.atMs = at, .down = false});
        }
        at += kUnitMs * (sign == ' ' ? 2 : 1);
    }
    return changes;
}

TEST(MorseListener, ReadsWhatIsKeyedByTheBookAndNotWhatIsNot) {
    EXPECT_EQ(HeardByDecoder(Paris(3), 20), "PARIS PARIS");
    EXPECT_NE(HeardByDecoder(Paris(1.2), 20), "PARIS PARIS");
}

struct DecodedMorse : testing::TestWithParam<int> {};

TEST_P(DecodedMorse, ExchangesOfAWholeWeekendAreReadWithoutAWrongLetter) {
    const ContestFolder folder;
    folder.Write("CW.txt", CwSettings(GetParam()));
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--port", "1=sim"}};
    std::mt19937 random{7};
    std::vector<KeyChange> changes;
    std::string sent;
    for (int number = 1; number <= kMessages; ++number) {
        const std::string call = AnyCall(random);
        sent += (sent.empty() ? "" : " ") + call + ' ' + std::to_string(number) + " A W1XX 72 MDC";
        program.Do("type \"88a" + call + "72mdc\"");
        AddChanges(changes, program.Do("key F2"));
        program.Do("key Enter");
        program.Do("advance 20000");
    }
    EXPECT_EQ(HeardByDecoder(changes, GetParam()), sent);
}

INSTANTIATE_TEST_SUITE_P(Speeds, DecodedMorse, testing::Values(15, 20));

}  // namespace
}  // namespace tallyhut
