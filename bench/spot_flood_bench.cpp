// What a source of spots takes from the whole program, in real time.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <future>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "bench/full_log.h"
#include "bench/processor_time.h"
#include "platform/real/polled_descriptors.h"
#include "platform/real/posix_socket.h"
#include "platform/sim/machine.h"
#include "tests/console/console_driver.h"
#include "tests/peers/cluster_node.h"
#include "tests/peers/deaf_server.h"
#include "tests/platform/pseudo_terminal.h"
#include "tests/program_units.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

double Percentile(std::vector<double>& values, double part) {
    std::ranges::sort(values);
    return values.at(static_cast<std::size_t>(part * static_cast<double>(values.size() - 1)));
}

double ResidentMegabytesOf(pid_t process) {
    std::ifstream statm{"/proc/" + std::to_string(process) + "/statm"};
    double all = 0;
    double resident = 0;
    statm >> all >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// The program in the console host with a log of so many contacts, on 20 metres, needed sections marked and both maps
/// shown.
struct SpottingProcess {
    explicit SpottingProcess(int contacts, const std::vector<std::string>& options = {}) {
        Preferences preferences;
        preferences.gOwnCall = "W1AW";
        preferences.gBand = "20";
        preferences.gColorNeededSpots = 1;
        folder.Write("nspref.txt", WritePreferences(preferences));
        folder.Write("Log.txt", FullLog(contacts, {2026, 11, 8, 21, 0, 0}));
        program.emplace(folder.Path(), options);
    }
    void OpenCluster(LoopbackServer& server) {
        program->Do("key Ctrl+D");
        program->Do("pick List1 2");
        program->Do(R"(set txtTelnetHost "127.0.0.1")");
        program->Do("set txtTelnetPort \"" + std::to_string(server.Port()) + '"');
        ShowBothMaps();
        server.Accept();
    }
    void OpenTnc() {
        program->Do("key Ctrl+D");
        program->Do("pick List1 1");
        ShowBothMaps();
    }
    void ShowBothMaps() {
        program->Do("click cmdDone");
        program->Do("key Ctrl+B");
        program->Do("activate Form1");
        program->Do("focus txtNum");
    }

    ContestFolder folder;
    std::optional<ConsoleDriver> program;
};

/// Posts of calls that are in no log, each a write of its own at its own moment, every third with a section.
void SendPosts(const LoopbackServer& server, int aSecond, std::chrono::seconds time) {
    const ClusterNode node;
    const auto count = static_cast<int>(aSecond * time.count());
    steady_clock::time_point next = steady_clock::now();
    for (int n = 0; n < count; ++n) {
        const std::string section = n % 3 == 0 ? ToldSections().Section(n % 83 + 1).code : "";
        server.Write(node.Posted("K3LR", 14'000 + n * 7 % 350, "W9" + CallOf(n).substr(2), section));
        std::this_thread::sleep_until(next += std::chrono::nanoseconds{1s} / aSecond);
    }
}

/// The share of the posts that were taken by themselves, by the calls of the list: what comes in one arrival is one.
double PercentTaken(ConsoleDriver& program) {
    const std::string rows = program.Do("rows Form1.txtDX").at(0);
    std::vector<int> numbers;
    for (std::size_t at = rows.find("[\"W9"); at != std::string::npos; at = rows.find("[\"W9", at + 1)) {
        int number = 0;
        for (const char letter : rows.substr(at + 4, 3)) {
            number = 26 * number + letter - 'A';
        }
        numbers.push_back(number);
    }
    const int span = numbers.empty() ? 1 : numbers.front() - numbers.back() + 1;
    return 100.0 * static_cast<double>(numbers.size()) / span;
}

void PostsSustained(benchmark::State& state) {
    constexpr auto kTime = 30s;
    LoopbackServer server;
    SpottingProcess process{static_cast<int>(state.range(1))};
    process.OpenCluster(server);
    const pid_t id = process.program->Process();
    for (auto _ : state) {
        const double before = ProcessorSecondsOf(id);
        SendPosts(server, static_cast<int>(state.range(0)), kTime);
        process.program->Do("settle 100");
        state.counters["processor_%"] = 100 * (ProcessorSecondsOf(id) - before) / static_cast<double>(kTime.count());
        state.counters["taken_%"] = PercentTaken(*process.program);
    }
}
BENCHMARK(PostsSustained)
    ->ArgNames({"aSecond", "contacts"})
    ->Args({2'000, 0})
    ->Args({2'000, 10'900})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

/// From a key to the program's being ready for the next one, all through a flood. "own" is what the program itself has
/// used of the processor meanwhile, in the steps of the system's count: the rest is other programs'.
void KeysDuring(benchmark::State& state, SpottingProcess& process, const std::function<void()>& flood) {
    ConsoleDriver& program = *process.program;
    std::vector<double> took;
    std::vector<double> own;
    int lost = 0;
    const auto press = [&](const std::string& key) {
        const double used = ProcessorSecondsOf(program.Process());
        const auto begin = steady_clock::now();
        program.Do(key);
        took.push_back(Milliseconds{steady_clock::now() - begin}.count());
        own.push_back(std::min(took.back(), 1'000 * (ProcessorSecondsOf(program.Process()) - used)));
    };
    for (auto _ : state) {
        const double before = ResidentMegabytesOf(program.Process());
        auto flooding = std::async(std::launch::async, flood);
        while (flooding.wait_for(10ms) != std::future_status::ready) {
            press("type \"8\"");
            lost += program.Get("Form1.txtNum") == "\"8\"" ? 0 : 1;
            press("key Backspace");
            lost += program.Get("Form1.txtNum") == "\"\"" ? 0 : 1;
        }
        flooding.get();
        state.counters["grown_MB"] = ResidentMegabytesOf(program.Process()) - before;
    }
    state.counters["keys"] = static_cast<double>(took.size());
    state.counters["lost"] = lost;
    state.counters["median_ms"] = Percentile(took, 0.5);
    state.counters["p99.9_ms"] = Percentile(took, 0.999);
    state.counters["longest_ms"] = took.back();
    state.counters["beyond_50_ms"] =
        static_cast<double>(std::ranges::count_if(took, [](double ms) { return ms > 50; }));
    state.counters["longest_own_ms"] = std::ranges::max(own);
}

/// What the machine makes of keys without a flood.
void KeysDuringSilence(benchmark::State& state) {
    LoopbackServer server;
    SpottingProcess process{0};
    process.OpenCluster(server);
    KeysDuring(state, process, [] { std::this_thread::sleep_for(30s); });
}
BENCHMARK(KeysDuringSilence)->Iterations(1)->Unit(benchmark::kSecond);

void KeysDuringPosts(benchmark::State& state) {
    LoopbackServer server;
    SpottingProcess process{static_cast<int>(state.range(1))};
    process.OpenCluster(server);
    SendPosts(server, 1'000, 1s);
    KeysDuring(state, process, [&] { SendPosts(server, static_cast<int>(state.range(0)), 60s); });
}
BENCHMARK(KeysDuringPosts)
    ->ArgNames({"aSecond", "contacts"})
    ->Args({5'000, 0})
    ->Args({5'000, 10'900})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

/// Ten megabytes; a pseudo terminal gives some of them at each look.
void KeysDuringNoiseOfATnc(benchmark::State& state) {
    const PseudoTerminal tnc;
    SpottingProcess process{0, {"--port", "1=" + tnc.Path()}};
    process.OpenTnc();
    KeysDuring(state, process, [&tnc] {
        std::string noise(10'000'000, '\0');
        std::ranges::generate(noise, [random = std::mt19937{1}]() mutable { return static_cast<char>(random()); });
        for (std::size_t at = 0; at < noise.size();) {
            at += tnc.Send(noise.substr(at, 65'536));
            std::this_thread::sleep_for(5ms);
        }
    });
}
BENCHMARK(KeysDuringNoiseOfATnc)->Iterations(1)->Unit(benchmark::kSecond);

/// A pump that has descriptors and nothing else.
struct DescriptorPump : EventPump {
    PolledDescriptors descriptors;

    void Collect() override { descriptors.Look(0); }
    void WaitUntil(std::optional<Tick> /*tick*/) override { descriptors.Look(1); }
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override {
        return descriptors.Watch(descriptor, std::move(arrived));
    }
};

/// The program on a simulated machine with real sockets.
struct ConnectingProgram : sim::Machine {
    ConnectingProgram() : sim::Machine{{2026, 11, 8, 21, 0, 0}} {
        program.ShowWithoutQuestions();
        program.form1.Show();
        spots.form.Load();
        spots.link.type = kTelnet;
        program.desk.RunPending();
    }
    void Turn(const std::function<void()>& step) {
        const auto begin = steady_clock::now();
        step();
        turns.push_back(Milliseconds{steady_clock::now() - begin}.count());
    }
    void Connect(const std::string& host, int port) {
        spots.form.txtTelnetHost.SetText(host);
        spots.form.txtTelnetPort.SetText(std::to_string(port));
        Turn([this] { spots.form.Command1.Click(); });
    }
    /// Turns of the program's loop for a time; the waits between them do not count.
    void Run(std::chrono::milliseconds time) {
        const auto end = steady_clock::now() + time;
        while (steady_clock::now() < end) {
            pump.WaitUntil(std::nullopt);
            Turn([this] { program.desk.RunPending(); });
        }
    }

    DescriptorPump pump;
    PosixSockets sockets;
    ProgramUnits program{Lend({.pump = &pump, .tcpSockets = &sockets}), "/contest"};
    SpotsPart& spots = program.spotsPart;
    std::vector<double> turns;
};

/// The longest that a connection holds the thread, whatever becomes of it.
void TurnsOfTheLoop(benchmark::State& state, const std::function<void(ConnectingProgram&)>& connection) {
    ConnectingProgram program;
    for (auto _ : state) {
        connection(program);
    }
    state.counters["turns"] = static_cast<double>(program.turns.size());
    state.counters["median_ms"] = Percentile(program.turns, 0.5);
    state.counters["longest_ms"] = program.turns.back();
}

void TurnsWhenRefused(benchmark::State& state) {
    LoopbackServer server;
    server.StopListening();
    TurnsOfTheLoop(state, [&server](ConnectingProgram& program) {
        program.Connect("127.0.0.1", server.Port());
        program.Run(10ms);
    });
}

void TurnsWhenSwallowed(benchmark::State& state) {
    const DeafServer deaf;
    TurnsOfTheLoop(state, [&deaf](ConnectingProgram& program) {
        program.Connect("127.0.0.1", deaf.Port());
        program.Run(10ms);
    });
}

void TurnsWhenTheNameIsNone(benchmark::State& state) {
    TurnsOfTheLoop(state, [](ConnectingProgram& program) {
        program.Connect("no-such-cluster.invalid", 7300);
        program.Run(30ms);
    });
}

void TurnsWhenLost(benchmark::State& state) {
    LoopbackServer server;
    TurnsOfTheLoop(state, [&server](ConnectingProgram& program) {
        program.Connect("127.0.0.1", server.Port());
        program.Run(2ms);
        server.Accept();
        server.Write("login: ");
        program.Run(10ms);
        server.Reset();
        program.Run(10ms);
    });
}

BENCHMARK(TurnsWhenRefused)->Iterations(200);
BENCHMARK(TurnsWhenSwallowed)->Iterations(200);
BENCHMARK(TurnsWhenTheNameIsNone)->Iterations(100);
BENCHMARK(TurnsWhenLost)->Iterations(200);

}  // namespace
}  // namespace tallyhut
