#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <random>
#include <sstream>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

constexpr int kKills = 50;
constexpr int kMostContactsARun = 12;
constexpr int kMostMicroseconds = 3'000;

/// Calls that never repeat: K1AAA, K1AAB, ...
std::string CallOf(int n) {
    std::string call = "k1";
    for (const int place : {676, 26, 1}) {
        call += static_cast<char>('a' + n / place % 26);
    }
    return call;
}

/// Whole records in the file; -1 when something else stands there.
int WholeRecords(const std::string& content) {
    std::istringstream lines{content};
    std::string line;
    int records = 0;
    while (std::getline(lines, line)) {
        const auto quotes = std::count(line.begin(), line.end(), '"');
        if (quotes != 20 || !line.ends_with("\"\r") || lines.eof()) {
            return -1;
        }
        ++records;
    }
    return records;
}

TEST(Crash, EveryContactWhoseEnterReturnedIsInTheFileWhole) {
    const ContestFolder folder;
    std::mt19937 random{20261107};
    int logged = 0;
    int next = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        ConsoleDriver program{folder.Path()};
        for (int left = static_cast<int>(random() % kMostContactsARun); left > 0; --left) {
            program.LogContact("1a" + CallOf(next++) + "70ct");
            ++logged;
        }
        program.Do("type 1a" + CallOf(next++) + "70ct");
        program.Send("key Enter");
        usleep(static_cast<useconds_t>(random() % kMostMicroseconds));
        ::kill(program.Process(), SIGKILL);
        program.Wait();

        const int records = WholeRecords(folder.Read("Log.txt"));
        ASSERT_GE(records, logged) << "a contact is lost or a record is in parts, kill " << kill;
        ASSERT_LE(records, logged + 1);
        logged = records;
    }
}

}  // namespace
}  // namespace tallyhut
