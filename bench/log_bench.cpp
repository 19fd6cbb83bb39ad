// What an operator waits for, at a full log. The files are in memory: the time of the disk is not ours to measure.

#include <benchmark/benchmark.h>

#include <string>

#include "app/program.h"
#include "bench/full_log.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/environment.h"
#include "platform/sim/event_pump.h"
#include "platform/sim/files.h"
#include "platform/sim/printer.h"
#include "platform/sim/screen.h"
#include "platform/sim/settings_store.h"

namespace tallyhut {
namespace {

struct LoadedProgram {
    explicit LoadedProgram(int contacts) {
        program.form1.Form_Load = {};  // no questions
        program.form1.Show();
        program.sections.Fill(program.form1);
        files.Put("/contest/Log.txt", FullLog(contacts, clock.Now()));
        program.reload.mnuopen2();
        program.time.gTimeOn = 1;
        program.desk.RunPending();
    }

    void Type(const std::string& text) {
        for (const char character : text) {
            program.desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
            program.desk.RunPending();
        }
    }

    sim::Clock clock{{2026, 11, 8, 21, 0, 0}};
    sim::EventPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    sim::Printer printer;
    sim::Files files{"/contest"};
    sim::SettingsStore settings;
    sim::Screen screen;
    sim::Environment environment;
    Program program{{.clock = clock,
                     .pump = pump,
                     .dialogs = dialogs,
                     .clipboard = clipboard,
                     .printer = printer,
                     .files = files,
                     .settings = settings,
                     .screen = screen,
                     .environment = environment},
                    "/contest"};
};

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
        loaded.program.log.gContactCount = kFull - 1;
        loaded.Type("88AW9ZZ72MDC");
        state.ResumeTiming();
        loaded.Type("\r");
        benchmark::DoNotOptimize(loaded.program.log.gContactCount);
    }
}
BENCHMARK(CommitOfTheLastContact)->Unit(benchmark::kMicrosecond)->Iterations(500);

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
