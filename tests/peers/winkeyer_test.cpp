// The whole program in real time, with a keyer at the other end of its wire.

#include "tests/peers/winkeyer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <future>
#include <random>
#include <utility>

#include "tests/console/console_driver.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using std::chrono::steady_clock;

constexpr auto kPatience = 20s;
/// An opening takes at most 1.2 s, and 250 ms where the device was open before; the rest is for machines that are busy.
constexpr auto kLongestOpening = 1'900ms;
constexpr auto kLongestReopening = 900ms;
/// What is under way on the wire in both directions when the device says that it has no room.
constexpr auto kUnderWay = 100ms;

const std::string kReset = "\x13\x13\x13\x13\x00\x03"s;
const std::string kEchoTest = "\x00\x04U"s;
const std::string kHostOpen = "\x00\x02"s;
const std::string kOpening = kReset + kEchoTest + kHostOpen;

std::string Settings(int speed) {
    return "\x02"s + static_cast<char>(speed) + "\x03\x32\x04\x00\x00\x17\x32\x09\x06\x0E\x00"s;
}

std::string Dump(const std::string& bytes) {
    return BytesToHexDump(bytes);
}

// The keyer itself, without a wire.

struct WinkeyerTest : testing::Test {
    Winkeyer keyer;
    Winkeyer::Moment now{1s};

    std::string Exchange(std::string_view bytes) {
        for (const char byte : bytes) {
            keyer.Hear(static_cast<unsigned char>(byte), now);
        }
        return keyer.TakeWords();
    }
    std::string After(Winkeyer::Duration time) {
        now += time;
        keyer.Run(now);
        return keyer.TakeWords();
    }
};

TEST_F(WinkeyerTest, ObeysNothingButTheOpeningWhileItIsClosed) {
    EXPECT_EQ(Exchange("\x02\x14"s + "E\x15"), "");
    EXPECT_EQ(Exchange(kEchoTest), "U");
    EXPECT_EQ(Exchange(kHostOpen), "\x17");
    EXPECT_EQ(Exchange("\x15"), "\xC0");
}

TEST_F(WinkeyerTest, KeysAtTheSpeedAndTellsEachChange) {
    Exchange(kHostOpen + "\x02\x14");
    EXPECT_EQ(Exchange("E T"), "\xC4");
    EXPECT_EQ(After(239ms), "");
    EXPECT_EQ(keyer.Keyed(), "");
    EXPECT_EQ(After(1ms), "");
    EXPECT_EQ(keyer.Keyed(), "E");
    EXPECT_EQ(After(240ms + 359ms), "");
    EXPECT_EQ(After(1ms), "\xC0");
    EXPECT_EQ(keyer.Keyed(), "E T");
}

TEST_F(WinkeyerTest, BufferOverTwoThirdsFullIsTold) {
    Exchange(kHostOpen);
    EXPECT_EQ(Exchange(std::string(86, 'E')), "\xC4");
    EXPECT_EQ(Exchange("E"), "\xC5");
    EXPECT_EQ(Exchange("\x08"), "\xC4");
    Exchange(std::string(128, 'E'));
    EXPECT_EQ(keyer.Overflows(), 85);
    EXPECT_EQ(Exchange("\x0A"), "\xC0");
    EXPECT_EQ(After(1s), "");
    EXPECT_EQ(keyer.Keyed(), "E");
}

TEST_F(WinkeyerTest, PaddleDiscardsWhatWaitsAndWhatComes) {
    Exchange(kHostOpen + "EEE");
    keyer.UsePaddle(1s, now);
    EXPECT_EQ(keyer.TakeWords(), "\xC6");
    EXPECT_EQ(Exchange("EEE"), "");
    EXPECT_EQ(After(1s), "\xC0");
    EXPECT_EQ(keyer.Keyed(), "");
}

TEST_F(WinkeyerTest, ACommandTakesItsParametersWhateverTheyAre) {
    EXPECT_EQ(Exchange(kHostOpen), "\x17");
    EXPECT_EQ(Exchange("\x0F"s + std::string(15, '\x15')), "");
    EXPECT_EQ(Exchange("\x16\x00\x16\x01\x15\x1B\x15\x15"s), "");
    EXPECT_EQ(Exchange("\x04\x15"), "");
    EXPECT_EQ(Exchange("\x13\x13\x15"), "\xC0") << "a null was owed";
}

// The program with the keyer.

struct KeyerOnTheWire : testing::Test {
    ContestFolder folder;
    std::string device = folder.Path() + "/keyer";
    KeyerCable cable;
    std::unique_ptr<ConsoleDriver> program;

    KeyerOnTheWire() { PlugIn(); }

    void PointAt(const std::string& target) const {
        std::filesystem::remove(device);
        std::filesystem::create_symlink(target, device);
    }
    void PlugIn() { PointAt(cable.Path()); }
    void PutBack() {
        cable.PutBack();
        PlugIn();
    }
    /// F1 sends the message through the keyer on port 1.
    void Start(const std::string& message, int speed = 60) {
        const std::string own = folder.Path() + "/.local/share/Q7ZZQ Software/Tallyhut";
        std::filesystem::create_directories(own);
        folder.Write(".local/share/Q7ZZQ Software/Tallyhut/WK.txt",
                     "1\r\n\"18\"\r\n\"50\"\r\n\"0\"\r\n\"0\"\r\n\"50\"\r\n6\r\n0\r\n");
        std::string record = '"' + message + "\"\r\n";
        for (int line = 2; line <= 9; ++line) {
            record += "\"\"\r\n";
        }
        record +=
            "\"0\"\r\n\"" + std::to_string(speed) + "\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n5\r\n\"&H378\"\r\n0\r\n\"0\"\r\n";
        folder.Write("CW.txt", record);
        program = std::make_unique<ConsoleDriver>(folder.Path(), std::vector<std::string>{"--port", "1=" + device});
        Do("settle 1");
    }
    /// What a command prints, without the logo's going, which comes some seconds after the start.
    std::vector<std::string> Do(const std::string& command) const {
        std::vector<std::string> printed = program->Do(command);
        std::erase(printed, R"({"event":"hide","form":"frmQ7ZZQLogo"})");
        return printed;
    }
    /// How long the program was at it.
    steady_clock::duration TimeOf(const std::string& command) const {
        const auto begin = steady_clock::now();
        Do(command);
        return steady_clock::now() - begin;
    }
    std::string Get(const std::string& target) const { return program->Get(target); }
    void ShowKeyer() const {
        Do("key Ctrl+S");
        Do("click cmdConfWinkey");
        ASSERT_EQ(program->LastTurn().find(R"({"ready":"modal","form":"frmWinKey")"), 0U) << program->LastTurn();
    }
    void HideKeyer() const {
        Do("click cmdDone");
        Do("click Command1");
    }
    /// So that the next function key opens it.
    void CloseKeyer() const {
        ShowKeyer();
        Do("click cmdCloseWinkey");
        HideKeyer();
    }
    bool AsksWhetherAnybodyIsThere() const { return program->LastTurn() == R"({"ready":"answer","dialog":"msgbox"})"; }
    std::string Heard() {
        return cable.With([](Winkeyer& keyer) { return keyer.Heard(); });
    }
    std::string HeardSince(std::size_t before) { return Heard().substr(before); }
    std::size_t Characters() {
        return cable.With([](Winkeyer& keyer) { return keyer.Characters().size(); });
    }
    /// What is on the wire arrives.
    static void LetTheWireRest() { std::this_thread::sleep_for(kUnderWay); }
    static testing::AssertionResult Becomes(const std::string& expected, const auto& look) {
        const auto deadline = steady_clock::now() + kPatience;
        std::string seen = look();
        while (seen != expected && steady_clock::now() < deadline) {
            std::this_thread::sleep_for(10ms);
            seen = look();
        }
        return seen == expected ? testing::AssertionSuccess() : testing::AssertionFailure() << seen;
    }
    testing::AssertionResult HasHeardInAll(const std::string& expected) {
        return Becomes(Dump(expected), [this] { return Dump(Heard()); });
    }
    testing::AssertionResult HasHeard(std::size_t before, const std::string& expected) {
        return Becomes(Dump(expected), [&] { return Dump(HeardSince(before)); });
    }
    testing::AssertionResult Keys(const std::string& text) {
        return Becomes(text, [this] { return cable.With([](Winkeyer& keyer) { return keyer.Keyed(); }); });
    }
    /// Presses F1 and does something once the keyer has so many characters, while the program sends on.
    void SendAndThen(std::size_t characters, const auto& step) {
        auto sending = std::async(std::launch::async, [this] { Do("key F1"); });
        EXPECT_TRUE(Becomes("there", [&] { return Characters() >= characters ? "there" : "waited for"; }));
        cable.With([&](Winkeyer& keyer) { step(keyer); });
        EXPECT_EQ(sending.wait_for(kPatience), std::future_status::ready);
        sending.get();
    }
};

TEST_F(KeyerOnTheWire, DevicesOfEveryGenerationAreOpenedByTheFirstFunctionKey) {
    std::string keyed;
    std::string heard;
    Start("TEST", 99);
    for (const int version : {10, 23, 31}) {
        cable.With([&](Winkeyer& keyer) { keyer.version = static_cast<unsigned char>(version); });
        EXPECT_LT(TimeOf("key F1"), kLongestOpening);
        EXPECT_EQ(Get("$gWKVersion"), std::to_string(version));
        heard += kOpening + Settings(99) + "TEST";
        EXPECT_TRUE(HasHeardInAll(heard));
        EXPECT_TRUE(Keys(keyed += "TEST"));
        EXPECT_LT(TimeOf("key F1"), kLongestReopening) << "it is open";
        EXPECT_TRUE(HasHeardInAll(heard += "TEST"));
        EXPECT_TRUE(Keys(keyed += "TEST"));
        CloseKeyer();
        EXPECT_TRUE(HasHeardInAll(heard += "\x00\x03"s));
    }
}

TEST_F(KeyerOnTheWire, NoCharacterIsGivenToABufferThatIsTwoThirdsFull) {
    Start(std::string(200, 'E'));
    Do("at 3500 type \"8\"");
    Do("at 4000 get Form1.txtNum");
    Do("at 4000 get $gWKStatus");
    Do("click cmdLogOn");
    const std::vector<std::string> printed = Do("key F1");
    EXPECT_EQ(printed, (std::vector<std::string>{R"({"value":"8"})", R"({"value":5})"}))
        << "the fields live while it has no room";
    EXPECT_TRUE(HasHeardInAll(kOpening + Settings(60) + std::string(200, 'E')));
    cable.With([](Winkeyer& keyer) {
        EXPECT_EQ(keyer.Overflows(), 0);
        EXPECT_TRUE(std::ranges::none_of(keyer.Characters(), [](const Winkeyer::Character& each) {
            return (each.lastStatus & 1) != 0 && each.at - each.statusToldAt > kUnderWay;
        }));
    });
    Do("key Esc");
}

TEST_F(KeyerOnTheWire, TheSmallBufferOfTheFirstGenerationNeverOverflows) {
    cable.With([](Winkeyer& keyer) {
        keyer.version = 10;
        keyer.bufferSize = 32;
    });
    Start(std::string(45, 'E'), 99);
    Do("key F1");
    EXPECT_TRUE(Keys(std::string(45, 'E')));
    EXPECT_EQ(cable.With([](Winkeyer& keyer) { return keyer.Overflows(); }), 0);
}

TEST_F(KeyerOnTheWire, TheRestOfAMessageWaitsForThePaddle) {
    const std::string message = "CQ CQ CQ TEST TEST TEST";
    Start(message);
    std::size_t before = 0;
    SendAndThen(5, [&](Winkeyer& keyer) {
        before = keyer.Characters().size();
        keyer.UsePaddle(700ms, steady_clock::now());
    });
    LetTheWireRest();
    cable.With([&](Winkeyer& keyer) {
        const auto& characters = keyer.Characters();
        ASSERT_EQ(characters.size(), message.size()) << "each once";
        const auto inBreakIn = std::ranges::count_if(characters, [](const Winkeyer::Character& each) {
            return (each.lastStatus & 2) != 0 && each.at - each.statusToldAt > kUnderWay;
        });
        EXPECT_EQ(inBreakIn, 0);
        EXPECT_GE(characters.back().at - characters[before - 1].at, 700ms);
    });
}

TEST_F(KeyerOnTheWire, KnobEchoesAndGarbageChangeNothing) {
    const std::string message = "CQ TEST W1XX W1XX TEST";
    std::string noise(12, '\0');
    std::ranges::generate(noise, [random = std::mt19937{1}]() mutable { return static_cast<char>(random()); });
    Start(message);
    std::string heard = kOpening + Settings(60);
    cable.With([](Winkeyer& keyer) { keyer.TurnKnob(3); });
    for (const std::string& each : {"\x90\x91\x92\x91"s, "C Q T\x90"s, noise}) {  // half of an echo is no answer
        cable.With([&](Winkeyer& keyer) { keyer.noise = each; });
        Do("key F1");
        EXPECT_TRUE(HasHeardInAll(heard += message)) << Dump(each);
    }
    EXPECT_EQ(Get("$gWKVersion"), "23");
}

TEST_F(KeyerOnTheWire, DeviceThatFallsSilentHoldsNothingUpAndIsToldAsSilent) {
    const std::string message = "CQ TEST W1XX W1XX TEST";
    Start(message);
    Do("key F1");
    EXPECT_TRUE(HasHeardInAll(kOpening + Settings(60) + message));
    cable.With([](Winkeyer& keyer) { keyer.holding = 0xC5; });
    LetTheWireRest();
    const std::size_t before = Heard().size();
    const auto begin = steady_clock::now();
    auto sending = std::async(std::launch::async, [this] { Do("key F1"); });
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(HeardSince(before), "") << "it says that it has no room";
    cable.With([](Winkeyer& keyer) { keyer.isMute = true; });
    EXPECT_TRUE(HasHeard(before, message));
    EXPECT_GE(steady_clock::now() - begin, 1s) << "the word of a device counts for a second";
    sending.get();
    ShowKeyer();
    EXPECT_EQ(Get("lblTrouble"), R"("No answer: the keyer has fallen silent. It goes on by itself once it is back.")");
    HideKeyer();
    EXPECT_LT(TimeOf("key F1"), kLongestReopening);

    cable.With([](Winkeyer& keyer) {
        keyer.isMute = false;
        keyer.holding.reset();
    });
    std::this_thread::sleep_for(1'100ms);  // until it is asked again
    Do("key F1");
    ShowKeyer();
    EXPECT_EQ(Get("lblTrouble"), R"("")");
}

TEST_F(KeyerOnTheWire, DeviceLeftOpenAndSendingIsRecovered) {
    Start("TEST");
    cable.With([](Winkeyer& keyer) { keyer.LeaveOpenAndSending(std::string(100, 'E'), steady_clock::now()); });
    std::this_thread::sleep_for(300ms);
    EXPECT_LT(TimeOf("key F1"), kLongestOpening);
    EXPECT_TRUE(HasHeardInAll(kOpening + Settings(60) + "TEST"));
    EXPECT_EQ(Get("$gWKVersion"), "23");
}

TEST_F(KeyerOnTheWire, CommandThatAnotherProgramHasNotFinishedIsEnded) {
    Start("TEST");
    cable.With([](Winkeyer& keyer) { keyer.Hear('\x04', steady_clock::now()); });
    Do("key F1");
    EXPECT_EQ(Get("$gWKVersion"), "23");
    EXPECT_TRUE(Keys("TEST"));
}

TEST_F(KeyerOnTheWire, EachFailureOfAnOpeningIsToldInTime) {
    struct Case {
        const char* told;
        const char* trouble;
        std::string heard;
        void (*spoil)(KeyerOnTheWire& wire);
    };
    using Wire = KeyerOnTheWire;
    const std::vector<Case> cases{
        {"No Echo Response", "Nothing answers on this port", kReset + kEchoTest,
         [](Wire& wire) { wire.cable.With([](Winkeyer& keyer) { keyer.answersEchoTest = false; }); }},
        {"Echo Mismatch", "Something else than a WinKey", kReset + kEchoTest,
         [](Wire& wire) {
             wire.cable.With([](Winkeyer& keyer) {
                 keyer.answersEchoTest = true;
                 keyer.echoesWhatItShould = false;
             });
         }},
        {"No Open Response", "does not open", kOpening,
         [](Wire& wire) {
             wire.cable.With([](Winkeyer& keyer) {
                 keyer.echoesWhatItShould = true;
                 keyer.answersOpen = false;
             });
         }},
        {"Com Open Failed", "No such file or directory", "", [](Wire& wire) { std::filesystem::remove(wire.device); }},
        {"Get Com ST Failed", "no serial line", "", [](Wire& wire) { wire.PointAt("/dev/null"); }},
    };
    Start("TEST");
    ShowKeyer();
    for (const Case& one : cases) {
        one.spoil(*this);
        const std::size_t before = Heard().size();
        EXPECT_LT(TimeOf("click cmdOpenWinkey"), kLongestOpening) << one.told;
        EXPECT_TRUE(AsksWhetherAnybodyIsThere()) << one.told;
        Do("answer OK");
        EXPECT_EQ(Get("lblOpenStatus"), '"' + std::string{one.told} + '"');
        EXPECT_NE(Get("lblTrouble").find(one.trouble), std::string::npos) << Get("lblTrouble");
        EXPECT_EQ(Get("$gWKVersion"), "0");
        LetTheWireRest();
        EXPECT_EQ(Dump(HeardSince(before)), Dump(one.heard)) << one.told;
    }
    HideKeyer();
    EXPECT_LT(TimeOf("key F1"), kLongestOpening);
    EXPECT_TRUE(AsksWhetherAnybodyIsThere());
    Do("answer OK");
    EXPECT_EQ(Get("$gCWBuffer"), R"("")");
}

TEST_F(KeyerOnTheWire, CablePulledAtAnyByteOfTheOpeningIsABoxAndTheNextOpeningWorks) {
    Start("TEST");
    Do("key F1");
    for (std::size_t byte = 1; byte <= kOpening.size(); ++byte) {
        CloseKeyer();
        LetTheWireRest();
        cable.PullBehind(byte);
        EXPECT_LT(TimeOf("key F1"), kLongestReopening) << byte;
        EXPECT_TRUE(AsksWhetherAnybodyIsThere()) << byte;
        Do("answer OK");
        EXPECT_EQ(Get("$gWKVersion"), "0") << byte;
        EXPECT_EQ(Get("$gCWBuffer"), R"("")") << byte;
        PutBack();
        cable.With([](Winkeyer& keyer) { keyer.LosePower(); });
        Do("key F1");
        EXPECT_EQ(Get("$gWKVersion"), "23") << byte;
    }
}

TEST_F(KeyerOnTheWire, CablePulledInAMessageCostsTheRestOfItAndTheDeviceComesBackWithItsSettings) {
    const std::string message = "CQ TEST W1XX W1XX TEST";
    Start(message);
    Do("key F1");
    EXPECT_TRUE(HasHeardInAll(kOpening + Settings(60) + message));
    cable.PullBehind(12);
    EXPECT_LT(TimeOf("key F1"), kLongestReopening);
    EXPECT_EQ(Get("$gCWBuffer"), R"("")");
    EXPECT_FALSE(AsksWhetherAnybodyIsThere());
    ShowKeyer();
    EXPECT_NE(Get("lblTrouble").find("No answer"), std::string::npos);
    HideKeyer();
    PutBack();
    cable.With([](Winkeyer& keyer) { keyer.LosePower(); });
    const std::size_t before = Heard().size();
    std::this_thread::sleep_for(2s);  // an attempt is made now and then
    EXPECT_LT(TimeOf("key F1"), kLongestReopening);
    EXPECT_EQ(Get("$gWKVersion"), "23");
    EXPECT_TRUE(HasHeard(before, kOpening + "\x02\x3C\x03\x32\x04\x00\x00\x09\x06\x0E\x00\x17\x32"s + message));
}

TEST_F(KeyerOnTheWire, EscWhileTheDeviceSendsIsOneClearAndNoCharacterBehindIt) {
    Start(std::string(60, 'E'), 20);
    const auto clears = [this] { return std::to_string(std::ranges::count(Heard(), '\x0A')); };
    Do("at 900 key Esc");
    Do("key F1");
    EXPECT_TRUE(Becomes("1", clears));
    EXPECT_EQ(Get("$gCWBuffer"), R"("")");
    EXPECT_TRUE(Becomes("quiet", [this] {
        return cable.With([](Winkeyer& keyer) { return keyer.IsSending() ? "sending" : "quiet"; });
    }));
    LetTheWireRest();
    const std::string heard = Heard();
    EXPECT_EQ(heard.back(), '\x0A');
    EXPECT_GT(Characters(), 0U);
    EXPECT_LT(Characters(), 60U);
    Do("key Esc");
    LetTheWireRest();
    EXPECT_EQ(Dump(Heard()), Dump(heard)) << "nothing is sent: the Esc is the fields'";
}

TEST_F(KeyerOnTheWire, AMessageBeginsAtOnceWhereTheDeviceIsOpen) {
    Start("QE");
    Do("key F1");
    std::vector<steady_clock::duration> times;
    for (int i = 0; i < 11; ++i) {
        const auto begin = steady_clock::now();
        Do("key F1");
        const auto given = cable.FirstGiven('Q', begin);
        ASSERT_TRUE(given.has_value());
        times.push_back(*given - begin);
    }
    std::ranges::sort(times);
    EXPECT_LT(times[5], 50ms);
    RecordProperty("us", std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(times[5]).count()));
}

}  // namespace
}  // namespace tallyhut
