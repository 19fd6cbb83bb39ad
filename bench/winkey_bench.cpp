// What a keyer costs over a real wire, in real time.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "bench/processor_time.h"
#include "platform/real/system_clock.h"
#include "platform/real/tty_ports.h"
#include "platform/sim/settings_store.h"
#include "platform/winkey.h"
#include "tests/console/console_driver.h"
#include "tests/peers/winkeyer.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

double Percentile(std::vector<double>& values, double part) {
    std::ranges::sort(values);
    return values.at(static_cast<std::size_t>(part * static_cast<double>(values.size() - 1)));
}

/// How long a question for the status holds the thread, while the answer takes its time on the wire.
void StatusOverAWire(benchmark::State& state) {
    KeyerCable cable;
    sim::SettingsStore settings;
    TtyPorts ports{settings, {{1, cable.Path()}}};
    SystemClock clock;
    WinKey device{ports, clock};
    std::uint8_t version = 0;
    if (device.wk_open(version, 1) != kWkSuccess) {
        state.SkipWithError("the keyer does not open");
    }
    std::vector<double> held;
    for (auto _ : state) {
        const auto begin = steady_clock::now();
        device.wk_getstatus();
        const Milliseconds took = steady_clock::now() - begin;
        state.SetIterationTime(took.count() / 1e3);
        held.push_back(took.count());
        std::this_thread::sleep_for(5ms);
    }
    state.counters["median_ms"] = Percentile(held, 0.5);
    state.counters["p99_ms"] = Percentile(held, 0.99);
    state.counters["longest_ms"] = held.back();
}
BENCHMARK(StatusOverAWire)->Iterations(1'000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// F1 is a letter and F2 a long message at 60 words per minute; the keyer is on port 1.
void WriteSettings(const ContestFolder& folder) {
    const std::string own = ".local/share/Q7ZZQ Software/Tallyhut";
    std::filesystem::create_directories(folder.Path() + '/' + own);
    folder.Write(own + "/WK.txt", "1\r\n\"60\"\r\n\"50\"\r\n\"0\"\r\n\"0\"\r\n\"50\"\r\n6\r\n0\r\n");
    std::string messages = "\"E\"\r\n\"" + std::string(200, 'E') + "\"\r\n";
    for (int line = 3; line <= 9; ++line) {
        messages += "\"\"\r\n";
    }
    folder.Write("CW.txt", messages + "\"0\"\r\n\"60\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n5\r\n\"&H378\"\r\n0\r\n\"0\"\r\n");
}

/// The whole process in the console host: from the key to the first character, and what a long message costs.
void ProcessThatFeeds(benchmark::State& state) {
    const ContestFolder folder;
    WriteSettings(folder);
    KeyerCable cable;
    for (auto _ : state) {
        ConsoleDriver program{folder.Path(), {"--port", "1=" + cable.Path()}};
        program.Do("key F1");
        std::vector<double> waited;
        constexpr int kPresses = 80;
        for (int i = 0; i < kPresses; ++i) {
            const auto begin = steady_clock::now();
            program.Do("key F1");
            const auto given = cable.FirstGiven('E', begin);
            if (!given) {
                state.SkipWithError("nothing was sent");
                return;
            }
            waited.push_back(Milliseconds{*given - begin}.count());
            std::this_thread::sleep_for(30ms);
        }
        state.counters["key_to_wire_median_ms"] = Percentile(waited, 0.5);
        state.counters["key_to_wire_longest_ms"] = waited.back();

        const double before = ProcessorSecondsOf(program.Process());
        const auto begin = steady_clock::now();
        program.Do("key F2");
        const std::chrono::duration<double> fed = steady_clock::now() - begin;
        state.counters["feeding_%"] = 100 * (ProcessorSecondsOf(program.Process()) - before) / fed.count();
    }
}
BENCHMARK(ProcessThatFeeds)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace tallyhut
