// What known calls cost beside a full log: in a key, at the start, when a call is left, and for a whole log at once.

#include <benchmark/benchmark.h>

#include "bench/loaded_program.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;
constexpr int kInSuperCheck = 85'000;
constexpr int kInHistory = 500'000;

/// As calls are spread over prefixes and areas; half a million and more that never repeat.
std::string AnyCall(int n) {
    constexpr std::string_view kPrefixes = "KWNA";
    std::string call{kPrefixes[static_cast<std::size_t>(n % 4)]};
    call += static_cast<char>('0' + n / 4 % 10);
    for (const int place : {17'576, 676, 26, 1}) {
        call += static_cast<char>('A' + (n / 40 + 7) / place % 26);
    }
    return call;
}

SuperCheck ManyCalls() {
    std::vector<CallKey> calls;
    for (int n = 0; n < kInSuperCheck; ++n) {
        calls.push_back(*KeyOfCall(AnyCall(n)));
    }
    return SuperCheck{std::move(calls)};
}

std::string ManyExchanges() {
    std::string text = "!!Order!!,Call,Name,Sect,CK,UserText\r\n";
    for (int n = 0; n < kInHistory; ++n) {
        text += AnyCall(n) + ",Somebody,MDC,72,\r\n";
    }
    return text;
}

/// To be compared with KeyInACallField.
void KeyInACallFieldWithSuperCheck(benchmark::State& state, const std::string& before, const std::string& key) {
    LoadedProgram loaded{kFull};
    loaded.program.logPart.knownCalls.superCheck = ManyCalls();
    loaded.program.logPart.knownCalls.showsCalls = true;
    loaded.program.form1.txtCall.SetFocus();
    loaded.program.desk.RunPending();
    for (auto _ : state) {
        state.PauseTiming();
        loaded.program.form1.txtCall.SetText(before);
        loaded.program.form1.txtCall.SetCaret(static_cast<int>(before.size()));
        state.ResumeTiming();
        loaded.Type(key);
    }
    state.SetLabel(loaded.program.form1.lblScp.Caption().substr(0, 20));
}
BENCHMARK_CAPTURE(KeyInACallFieldWithSuperCheck, OfManyCalls, "K", "1");
BENCHMARK_CAPTURE(KeyInACallFieldWithSuperCheck, InTheMiddle, "A", "A");
BENCHMARK_CAPTURE(KeyInACallFieldWithSuperCheck, OfOneCall, "K1AAB", "C");
BENCHMARK_CAPTURE(KeyInACallFieldWithSuperCheck, OfNoCall, "QQ", "Q");

void StartWithAHistory(benchmark::State& state) {
    LoadedProgram loaded{0};
    loaded.files.Put("/contest/history.txt", ManyExchanges());
    loaded.settings.values[{"Machine", "CallHistory"}] = "/contest/history.txt";
    for (auto _ : state) {
        loaded.program.logPart.knownCalls.TakeStored();
    }
    state.SetLabel(PlainText(loaded.program.logPart.knownCalls.history.Count()));
}
BENCHMARK(StartWithAHistory)->Unit(benchmark::kMillisecond);

void LookUpInAHistory(benchmark::State& state) {
    const CallHistory history = ReadCallHistory(ManyExchanges());
    std::vector<std::string> calls;
    for (int n = 0; n < kFull; ++n) {
        calls.push_back(AnyCall(n * 7'919 % (2 * kInHistory)));
    }
    for (std::size_t n = 0; auto _ : state) {
        benchmark::DoNotOptimize(history.Find(calls[n++ % calls.size()]));
    }
}
BENCHMARK(LookUpInAHistory);

/// None of the log's calls is known, so that all neighbours of each are looked up; the table is made, too.
void NeighboursOfAllContacts(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    KnownCallFiles& known = loaded.program.logPart.knownCalls;
    known.superCheck = ManyCalls();
    known.history = ReadCallHistory(ManyExchanges());
    for (auto _ : state) {
        const KnownCalls all = known.All();
        for (int n = 1; n <= kFull; ++n) {
            benchmark::DoNotOptimize(all.OneLetterAway("VE3" + CallOf(n)));
        }
    }
}
BENCHMARK(NeighboursOfAllContacts)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut
