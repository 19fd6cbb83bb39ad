// What opening the views costs at a full log: the core alone, on a simulated machine.

#include <benchmark/benchmark.h>

#include "bench/data_file.h"
#include "bench/loaded_program.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

struct ViewedProgram : LoadedProgram {
    ViewedProgram() : LoadedProgram{kFull} {
        files.Put("/contest/BandPlan.txt", DataFile("BandPlan.txt"));
        files.Put("/data/section_map.txt", DataFile("section_map.txt"));
    }
    void Open(benchmark::State& state, Form& form) {
        for (auto _ : state) {
            form.Show();
            clock.Advance(10);
            program.desk.RunPending();
            state.PauseTiming();
            form.Unload();
            state.ResumeTiming();
        }
    }
};

void OpenStatistics(benchmark::State& state) {
    ViewedProgram machine;
    machine.Open(state, machine.program.viewsPart.statsForm);
}
BENCHMARK(OpenStatistics)->Unit(benchmark::kMillisecond);

void OpenPrivileges(benchmark::State& state) {
    ViewedProgram machine;
    machine.Open(state, machine.program.viewsPart.planForm);
}
BENCHMARK(OpenPrivileges)->Unit(benchmark::kMillisecond);

void OpenGraph(benchmark::State& state) {
    ViewedProgram machine;
    machine.Open(state, machine.program.viewsPart.graphForm);
}
BENCHMARK(OpenGraph)->Unit(benchmark::kMillisecond);

void OpenMap(benchmark::State& state) {
    ViewedProgram machine;
    machine.Open(state, machine.program.viewsPart.mapForm);
}
BENCHMARK(OpenMap)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut
