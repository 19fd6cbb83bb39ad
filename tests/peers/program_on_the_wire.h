#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/console/console_driver.h"
#include "tests/peers/radio_cable.h"

namespace tallyhut {

inline int CountOf(std::string_view part, std::string_view text) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// The whole program in real time with a radio. The device of port 1 is a link, so that another radio can be plugged in
/// at the same place.
struct ProgramOnTheWire : testing::Test {
    using Clock = std::chrono::steady_clock;

    ContestFolder folder;
    std::string device = folder.Path() + "/radio";
    std::unique_ptr<ConsoleDriver> program;
    static constexpr auto kPatience = std::chrono::seconds{20};

    void PlugIn(const RadioCable& cable) const {
        std::filesystem::remove(device);
        std::filesystem::create_symlink(cable.Path(), device);
    }
    void Start() {
        program.reset();
        program = std::make_unique<ConsoleDriver>(folder.Path(), std::vector<std::string>{"--port", "1=" + device});
    }
    /// What a command prints, without the logo's going, which comes some seconds after the start.
    std::vector<std::string> Do(const std::string& command) const {
        std::vector<std::string> printed = program->Do(command);
        std::erase(printed, R"({"event":"hide","form":"frmQ7ZZQLogo"})");
        return printed;
    }
    std::string Get(const std::string& target) const {
        constexpr std::string_view kBegin = R"({"value":)";
        const std::string printed = Do("get " + target).at(0);
        return printed.starts_with(kBegin) ? printed.substr(kBegin.size(), printed.size() - kBegin.size() - 1)
                                           : printed;
    }
    void PickRig(const std::string& name) const {
        Do("menu mnuRig");
        const std::string rows = Do("rows List1").at(0);
        const std::size_t at = rows.find("[\"" + name + "\"]");
        ASSERT_NE(at, std::string::npos) << rows;
        Do("pick List1 " + std::to_string(CountOf("],", rows.substr(0, at))));
    }
    /// The radio is chosen and polled, and the main form is in front.
    void PollFromTheMainForm(const std::string& name, const char* rate = "optPollMed") {
        Start();
        PickRig(name);
        Do(std::string{"click "} + rate);
        Do("click cmdDone");
    }

    void Tune(const std::string& megahertz) const {
        Do("activate frmRigTune");
        Do("focus txtFreq");
        Do("set txtFreq \"\"");
        Do("type \"" + megahertz + "\"");
        Do("key Enter");
    }
    /// Looks again and again until a text is as expected.
    static testing::AssertionResult Becomes(const std::string& expected, const auto& look) {
        const auto deadline = Clock::now() + kPatience;
        std::string seen = look();
        while (seen != expected && Clock::now() < deadline) {
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
            seen = look();
        }
        return seen == expected ? testing::AssertionSuccess() : testing::AssertionFailure() << seen;
    }
    testing::AssertionResult Shows(const std::string& target, const std::string& expected) const {
        return Becomes('"' + expected + '"', [&] { return Get(target); });
    }
    static testing::AssertionResult IsPolled(auto& wired, int times) {
        const int before = wired.Polls();
        return Becomes("polled", [&] { return wired.Polls() >= before + times ? "polled" : "not polled"; });
    }
    /// Band and frequency of the newest contact.
    std::string LastContactBears() const {
        const std::string log = folder.Read("Log.txt");
        const std::string line = log.substr(log.rfind('\n', log.size() - 2) + 1);
        std::size_t at = line.size();
        for (int field = 0; field < 2; ++field) {
            at = line.rfind(",\"", at - 1);
        }
        return line.substr(at + 1);
    }
    /// The next box that comes up by itself, as it is told.
    std::string NextBox() const {
        const auto deadline = Clock::now() + kPatience;
        while (Clock::now() < deadline) {
            for (const std::string& line : Do("forms")) {
                if (line.starts_with(R"({"event":"msgbox")")) {
                    return line;
                }
            }
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
        }
        return {};
    }
    /// Within far more time than an operator would bear, for machines that are busy.
    void ExpectKeysAreTaken() const {
        const auto begin = Clock::now();
        Do("focus Form1.txtNum");
        Do("type \"8\"");
        EXPECT_EQ(Get("Form1.txtNum"), R"("8")");
        EXPECT_LT(Clock::now() - begin, std::chrono::seconds{5});
        Do(R"(set Form1.txtNum "")");
    }
};

}  // namespace tallyhut
