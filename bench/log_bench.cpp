// What an operator waits for, at a full log. The files are in memory: the time of the disk is not ours to measure.

#include <benchmark/benchmark.h>

#include <utility>

#include "bench/loaded_program.h"
#include "contest/worked_before.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

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

/// The calls that begin so stand all at the end of the log.
void KeyInACallFieldOfASortedLog(benchmark::State& state) {
    LoadedProgram loaded{0};
    for (int n = 1; n <= kFull; ++n) {
        Contact contact;
        contact.Call = (n > kFull - 600 ? "K1" : "W1") + CallOf(n).substr(2);
        loaded.program.log.Add(contact);
    }
    TextBox& field = loaded.program.form1.txtCall;
    field.SetFocus();
    loaded.program.desk.RunPending();
    for (auto _ : state) {
        loaded.Type("K");
        state.PauseTiming();
        field.SetText("");
        state.ResumeTiming();
    }
}
BENCHMARK(KeyInACallFieldOfASortedLog);

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
    LoadedProgram loaded{kFull - 1, {.duration = state.range(0)}};
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
    ->Arg(LogSetting::kContest)
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

}  // namespace
}  // namespace tallyhut
