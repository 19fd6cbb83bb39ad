#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>
#include <vector>

#include "contest/preferences.h"
#include "tests/console/console_driver.h"

namespace tallyhut {

/// The whole program in real time, with the call W1AW, a running clock and a source of spots that a test makes.
struct SpotsProgram : testing::Test {
    static constexpr const char* kNoWaves =
        "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n0\r\n\"0\"\r\n\"&H378\"\r\n";
    static constexpr auto kPatience = std::chrono::seconds{30};
    static constexpr int kTnc = 1;  // rows of the sources
    static constexpr int kCluster = 2;
    static constexpr int kEngine = 3;

    ContestFolder folder;
    std::unique_ptr<ConsoleDriver> program;
    int contacts = 0;

    void Start(const std::vector<std::string>& options = {}) {
        Preferences preferences;
        preferences.gOwnCall = "W1AW";
        preferences.gBand = "20";
        folder.Write("nspref.txt", WritePreferences(preferences));
        folder.Write("wave2.txt", kNoWaves);  // the start reads it before the spots' settings
        program = std::make_unique<ConsoleDriver>(folder.Path(), options);
        Do("click cmdLogOn");
    }
    /// What a command prints, without the logo's going, which comes some seconds after the start.
    std::vector<std::string> Do(const std::string& command) const {
        std::vector<std::string> printed = program->Do(command);
        std::erase(printed, R"({"event":"hide","form":"frmQ7ZZQLogo"})");
        return printed;
    }
    /// A text as it is; of anything else what JSON makes of it.
    std::string Get(const std::string& target) const {
        const std::vector<std::string> printed = Do("get " + target);
        const auto told = nlohmann::json::parse(printed.empty() ? "{}" : printed.back());
        if (!told.contains("value")) {
            return printed.empty() ? "" : printed.back();
        }
        return told["value"].is_string() ? told["value"].get<std::string>() : told["value"].dump();
    }
    std::string Terminal() const { return Get("PacketSpotfrm.txtUnProcessed"); }
    /// The memory that the program's process holds, in kilobytes. Under the address sanitizer, which keeps what is
    /// freed, always 0.
    std::size_t Resident() const;

    void ChooseSource(int row) const {
        Do("key Ctrl+D");
        Do("pick List1 " + std::to_string(row));
    }
    /// Puts a line into the field for what is sent, and sends it.
    void Say(const std::string& line) const {
        Do("set PacketSpotfrm.txtSent \"" + line + '"');
        Do("focus PacketSpotfrm.txtSent");
        Do("key Enter");
    }

    static testing::AssertionResult Becomes(const std::string& expected, const auto& look) {
        const auto deadline = std::chrono::steady_clock::now() + kPatience;
        std::string seen = look();
        while (seen != expected && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
            seen = look();
        }
        return seen == expected ? testing::AssertionSuccess() : testing::AssertionFailure() << seen;
    }
    testing::AssertionResult Shows(const std::string& target, const std::string& expected) const {
        return Becomes(expected, [&] { return Get(target); });
    }
    testing::AssertionResult TerminalTells(const std::string& part) const {
        return Becomes(part, [&] {
            const std::string all = Terminal();
            return all.find(part) != std::string::npos ? part : all;
        });
    }
    /// Types a contact key by key; every one of them must be there when it comes to the log.
    testing::AssertionResult LogsAContact() {
        const std::string call{{'K', '1', Letter(contacts / 676), Letter(contacts / 26), Letter(contacts)}};
        Do("focus Form1.txtNum");
        for (const char key : "88A" + call + "72MDC") {
            Do(std::string{"type \""} + key + '"');
        }
        Do("key Enter");
        ++contacts;
        const std::string log = folder.Read("Log.txt");
        const std::string line = log.substr(log.rfind('\n', log.size() - 2) + 1);
        const std::string begin = '"' + std::to_string(contacts) + R"(","88","A",")" + call + R"(","72","MDC")";
        return line.starts_with(begin) ? testing::AssertionSuccess() : testing::AssertionFailure() << line;
    }

private:
    static char Letter(int n) { return static_cast<char>('A' + n % 26); }
};

inline std::size_t SpotsProgram::Resident() const {
#ifdef __SANITIZE_ADDRESS__
    return 0;
#else
    std::ifstream status{"/proc/" + std::to_string(program->Process()) + "/status"};
    std::string word;
    std::size_t kilobytes = 0;
    while (status >> word) {
        if (word == "VmRSS:") {
            status >> kilobytes;
        }
    }
    return kilobytes;
#endif
}

}  // namespace tallyhut
