// What an operator waits for, at a full log. The files are in memory: the time of the disk is not ours to measure.

#include <benchmark/benchmark.h>

#include <utility>

#include "bench/loaded_program.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

void KeyInACallField(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    loaded.program.form1.txtCall.SetFocus();
    loaded.program.desk.RunPending();
    for (auto _ : state) {
        loaded.Type("K");
        state.PauseTiming();
        loaded.program.form1.txtCall.SetText("");
        state.ResumeTiming();
    }
}
BENCHMARK(KeyInACallField);

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

void PartialsAndDupeCheckOfANewCall(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    loaded.program.form1.txtCall.SetText("W9ZZ");
    for (auto _ : state) {
        loaded.program.duplicates.ShowPartials('Z');
        loaded.program.duplicates.dupcheck();
    }
}
BENCHMARK(PartialsAndDupeCheckOfANewCall);

/// The contact that fills the table; without the flush.
void CommitOfTheLastContact(benchmark::State& state) {
    LoadedProgram loaded{kFull - 1};
    for (auto _ : state) {
        state.PauseTiming();
        loaded.program.log.Remove(loaded.program.log.gContactCount());
        loaded.Type("88AW9ZZ72MDC");
        state.ResumeTiming();
        loaded.Type("\r");
        benchmark::DoNotOptimize(loaded.program.log.gContactCount());
    }
}
BENCHMARK(CommitOfTheLastContact)->Unit(benchmark::kMicrosecond)->Iterations(500);

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
        log.gContactCount() = kFull - 1;
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
        benchmark::DoNotOptimize(loaded.program.log.Row(1));
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

void ListOfAllContacts(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    loaded.program.list.gListAll = 1;
    for (auto _ : state) {
        loaded.program.list.ListContacts();
    }
}
BENCHMARK(ListOfAllContacts);

}  // namespace
}  // namespace tallyhut
