// What an operator waits for, at a full log. The files are in memory: the time of the disk is not ours to measure.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <utility>
#include <vector>

#include "bench/loaded_program.h"
#include "contest/worked_before.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

/// As a plain program would do it: characters into rows of arrays.
struct BareRow {
    std::array<std::array<char, 32>, 10> fields;
};
std::vector<BareRow> SplitOf(const std::string& path) {
    std::vector<BareRow> rows;
    std::string text;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    std::array<char, 65'536> block{};
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), file)) > 0;) {
        text.append(block.data(), count);
    }
    std::fclose(file);
    for (const char* at = text.c_str(); *at != '\0';) {
        BareRow& row = rows.emplace_back();
        for (auto& field : row.fields) {
            const char* const begin = std::strchr(at, '"') + 1;
            const char* const end = std::strchr(begin, '"');
            const auto length = std::min<std::size_t>(static_cast<std::size_t>(end - begin), field.size() - 1);
            std::memcpy(field.data(), begin, length);
            field[length] = '\0';
            at = end + 1;
        }
        at = std::strchr(at, '\n') + 1;
    }
    return rows;
}

/// A call as it is typed, key by key, the list of partial calls and, at its end, the check included. One begins like
/// many, one like none, and two are logged: a short and a long one.
void KeyInACallField(benchmark::State& state, const std::string& call) {
    LoadedProgram loaded{static_cast<int>(state.range(0))};
    TextBox& field = loaded.program.form1.txtCall;
    field.SetFocus();
    loaded.program.desk.RunPending();
    for (auto _ : state) {
        loaded.Type(call);
        benchmark::DoNotOptimize(WorkedBefore(loaded.program.log, field.Text()));
        state.PauseTiming();
        field.SetText("");
        state.ResumeTiming();
    }
    state.counters["key"] = benchmark::Counter(static_cast<double>(state.iterations() * call.size()),
                                               benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(KeyInACallField, likeMany, "W1AXX")->Arg(100)->Arg(kFull);
BENCHMARK_CAPTURE(KeyInACallField, likeNone, "PJ2ZZ")->Arg(100)->Arg(kFull);
BENCHMARK_CAPTURE(KeyInACallField, logged, LoggedCall(37))->Arg(100)->Arg(kFull);
BENCHMARK_CAPTURE(KeyInACallField, loggedLong, LoggedCall(88))->Arg(100)->Arg(kFull);

void KeyInTheNumberField(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    for (auto _ : state) {
        loaded.Type("8");
        state.PauseTiming();
        loaded.program.form1.txtNum.SetText("");
        state.ResumeTiming();
    }
}
BENCHMARK(KeyInTheNumberField);

/// The contact that fills the table; without the flush.
void CommitOfTheLastContact(benchmark::State& state) {
    LoadedProgram loaded{kFull - 1, nullptr, state.range(0)};
    for (auto _ : state) {
        state.PauseTiming();
        if (loaded.program.log.gContactCount() == kFull) {
            loaded.program.log.Remove(kFull);
        }
        loaded.Type("88APJ2ZZ72MDC");
        state.ResumeTiming();
        loaded.Type("\r");
        benchmark::DoNotOptimize(loaded.program.log.gContactCount());
    }
}
BENCHMARK(CommitOfTheLastContact)
    ->ArgName("seconds")
    ->Arg(LoadedProgram::kContest)
    ->Arg(3'600)  // all of them in the last hour
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(500);

/// What a minute costs: 60 looks, of which one finds a new minute.
void MinuteOfTheOffTimeClock(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    OffTimeClock& clock = loaded.program.display.offTime;
    clock.chosen = true;
    clock.Show();
    for (auto _ : state) {
        for (int second = 0; second < 60; ++second) {
            loaded.clock.Advance(1'000);
            clock.Show();
        }
    }
}
BENCHMARK(MinuteOfTheOffTimeClock)->Unit(benchmark::kMicrosecond);

void OffTimesBehindAContact(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    ContactLog& log = loaded.program.log;
    OffTimeClock& clock = loaded.program.display.offTime;
    clock.chosen = true;
    for (auto _ : state) {
        state.PauseTiming();
        log.Remove(kFull);
        clock.Show();
        log.Add(std::as_const(log).Row(1));  // the oldest moves all others
        state.ResumeTiming();
        clock.Show();
    }
}
BENCHMARK(OffTimesBehindAContact)->Unit(benchmark::kMicrosecond)->Iterations(200);

void OffTimesBehindAnEdit(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    OffTimeClock& clock = loaded.program.display.offTime;
    clock.chosen = true;
    for (auto _ : state) {
        state.PauseTiming();
        loaded.program.log.Change(1, [](Contact&) {});
        state.ResumeTiming();
        clock.Show();
    }
}
BENCHMARK(OffTimesBehindAnEdit)->Unit(benchmark::kMicrosecond);

void ReloadOfAFullLog(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    for (auto _ : state) {
        loaded.program.reload.mnuopen2();
    }
}
BENCHMARK(ReloadOfAFullLog)->Unit(benchmark::kMillisecond);

/// What an edit or a delete does after its form: the file anew, and all counts from it.
void RewriteAndReloadOfAFullLog(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    for (auto _ : state) {
        loaded.program.logFile.Rewrite(loaded.program.log);
        loaded.program.reload.mnuopen2();
    }
}
BENCHMARK(RewriteAndReloadOfAFullLog)->Unit(benchmark::kMillisecond);

/// With the rows that a window shows of it.
void ListOfAllContacts(benchmark::State& state) {
    constexpr std::size_t kShown = 20;
    constexpr std::size_t kColumns = 10;
    LoadedProgram loaded{kFull};
    loaded.program.list.gListAll = 1;
    const ListView& rows = loaded.program.form1.ListView1;
    for (auto _ : state) {
        loaded.program.list.ListContacts();
        for (std::size_t row = 0; row < kShown; ++row) {
            for (std::size_t column = 0; column < kColumns; ++column) {
                benchmark::DoNotOptimize(rows.Cell(row, column));
            }
        }
    }
}
BENCHMARK(ListOfAllContacts);

/// What the machine itself needs: the file read, each field cut out and kept.
void BareReadAndSplitOfAFullLog(benchmark::State& state) {
    const sim::Machine machine{{2026, 11, 8, 21, 0, 0}};
    const std::string path = "/tmp/tallyhut-bench-log.txt";
    std::ofstream{path, std::ios::binary} << FullLog(kFull, machine.clock.Now());
    for (auto _ : state) {
        benchmark::DoNotOptimize(SplitOf(path));
    }
    std::remove(path.c_str());
}
BENCHMARK(BareReadAndSplitOfAFullLog)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut
