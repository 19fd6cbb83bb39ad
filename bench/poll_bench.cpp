// What the poll of a radio costs over a real wire, in real time.

#include <benchmark/benchmark.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "bench/loaded_program.h"
#include "bench/processor_time.h"
#include "platform/real/tty_ports.h"
#include "rig/flrig_dialect.h"
#include "rig/rigctld_dialect.h"
#include "tests/console/console_driver.h"
#include "tests/peers/flrig_server.h"
#include "tests/peers/kenwood_radio.h"
#include "tests/peers/radio_cable.h"
#include "tests/peers/shack.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;

double MicrosecondsOfThread() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e6 + static_cast<double>(used.tv_nsec) / 1e3;
}

double Percentile(std::vector<double>& values, double part) {
    std::ranges::sort(values);
    return values.at(static_cast<std::size_t>(part * static_cast<double>(values.size() - 1)));
}

/// Ticks over a pseudo terminal, each after a pause as between the ticks of a timer, of a radio that stays on its band.
/// "own" is without the time that other programs took the processor. The processor's share is that of the ticks alone,
/// at the fastest rate.
void TickOverAWire(benchmark::State& state) {
    sim::SettingsStore settings;
    const PseudoTerminal wire;
    TtyPorts ports{settings, {{1, wire.Path()}}};
    LoadedProgram loaded{0, {.real = {.serialPorts = &ports}}};
    ProgramUnits& program = loaded.program;
    program.rigForm.Load();
    const auto* rig = std::ranges::find(kRigs, "Kenwood", &RigRow::name);
    program.rigForm.List1.SelectRow(static_cast<int>(rig - kRigs.begin()));
    program.rigSetup.List1_Click();
    program.rigSetup.Command1_Click();
    if (state.range(0) == 1) {
        program.rigForm.Show();
    }
    KenwoodRadio radio;
    std::vector<double> blocked;
    std::vector<double> worked;
    int decoded = 0;
    for (auto _ : state) {
        radio.hertz[0] = 14'000'000 + 10 * static_cast<long>(blocked.size());  // the decoder keeps 10 Hz
        wire.Send(radio.Hear(wire.Receive()));
        std::this_thread::sleep_for(500us);
        const bool reads = program.rigState.ReadPhase == 1;
        const double used = MicrosecondsOfThread();
        const auto begin = std::chrono::steady_clock::now();
        program.rigForm.tmrGetData.Elapsed();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        worked.push_back(MicrosecondsOfThread() - used);
        blocked.push_back(took.count() * 1e6);
        state.SetIterationTime(took.count());
        const auto dial = static_cast<float>(static_cast<double>(radio.hertz[0]) / 1e6);
        decoded += reads && program.rigState.RigFrequency == dial ? 1 : 0;
    }
    constexpr double kTickUs = 50'000;
    state.counters["median_us"] = Percentile(blocked, 0.5);
    state.counters["p99.9_us"] = Percentile(blocked, 0.999);
    state.counters["longest_us"] = blocked.back();
    state.counters["p99.9_own_us"] = Percentile(worked, 0.999);
    state.counters["processor_%"] =
        100 * std::accumulate(worked.begin(), worked.end(), 0.0) / (kTickUs * static_cast<double>(worked.size()));
    state.counters["decoded"] = decoded;
}
BENCHMARK(TickOverAWire)
    ->ArgName("formShown")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(10'000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

double ProcessorPercentDuring(std::chrono::seconds time, pid_t process) {
    const double before = ProcessorSecondsOf(process);
    std::this_thread::sleep_for(time);
    return 100 * (ProcessorSecondsOf(process) - before) / static_cast<double>(time.count());
}

/// The whole process in the console host: idle, and while it polls at the fastest rate.
void ProcessThatPolls(benchmark::State& state) {
    constexpr auto kTime = 30s;
    const ContestFolder folder;
    KenwoodRadio radio;
    const RadioCable cable{[&radio](std::string_view bytes) { return radio.Hear(bytes); }};
    for (auto _ : state) {
        ConsoleDriver program{folder.Path(), {"--port", "1=" + cable.Path()}};
        state.counters["idle_%"] = ProcessorPercentDuring(kTime, program.Process());
        program.Do("menu mnuRig");
        program.Do("pick List1 4");
        program.Do("click optPollFast");
        program.Do("click cmdDone");
        state.counters["polling_%"] = ProcessorPercentDuring(kTime, program.Process());
        if (program.Get("Label30") != R"("20")") {
            state.SkipWithError("the radio is not followed");
        }
    }
}
BENCHMARK(ProcessThatPolls)->Iterations(1)->Unit(benchmark::kSecond);

/// Polls through a server at the fastest rate, its answers over a real connection: what the program's thread works for
/// them. The dial turns all the time.
void PollOverTheNet(benchmark::State& state, const ServerDialect& dialect, int port,
                    const std::function<void(long)>& turn) {
    constexpr int kTime = 20'000;
    constexpr int kBetweenTurns = 100;
    Shack shack;
    PolledServer radio{shack};
    radio.server.Open(dialect, "127.0.0.1", port);
    for (auto _ : state) {
        const double used = MicrosecondsOfThread();
        for (int passed = 0; passed < kTime; passed += kBetweenTurns) {
            turn(14'000'000 + 10 * passed);
            shack.Run(kBetweenTurns);
        }
        state.counters["processor_%"] = 100 * (MicrosecondsOfThread() - used) / (1'000.0 * kTime);
        state.counters["readings"] = static_cast<double>(radio.frequencies.size());
        state.counters["us_a_poll"] = 2 * (MicrosecondsOfThread() - used) /
                                      static_cast<double>(std::max<std::size_t>(radio.frequencies.size(), 1));
    }
    if (radio.server.Link() != RigServerLink::Connected) {
        state.SkipWithError("the radio is not followed");
    }
}

void PollOfFlrig(benchmark::State& state) {
    FlrigServer flrig;
    PollOverTheNet(state, kFlrig, flrig.Port(), [&flrig](long hertz) { flrig.With([&] { flrig.hertz = hertz; }); });
}
BENCHMARK(PollOfFlrig)->Iterations(1)->Unit(benchmark::kSecond);

void PollOfRigctld(benchmark::State& state) {
    std::atomic<long> dial = 14'000'000;
    const LoopbackService rigctld{[&dial](ServedClient& client) {
        while (client.IsThere()) {
            const std::string request = client.Receive();
            if (request == "\\chk_vfo\n") {
                client.Send("0\n");
            } else if (request == "+f\n") {
                client.Send("get_freq:\nFrequency: " + std::to_string(dial) + "\nRPRT 0\n");
            } else if (request == "+m\n") {
                client.Send("get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n");
            }
        }
    }};
    PollOverTheNet(state, kRigctld, rigctld.Port(), [&dial](long hertz) { dial = hertz; });
}
BENCHMARK(PollOfRigctld)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace tallyhut
