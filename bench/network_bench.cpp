// What telling other programs costs between the flush of a contact and the next key, at a full log and over the
// system's own sockets.

#include <benchmark/benchmark.h>

#include "bench/loaded_program.h"
#include "platform/real/posix_datagrams.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;
constexpr const char* kRefused = "127.0.0.1:9,127.0.0.1:10,127.0.0.1:11,127.0.0.1:13";
constexpr const char* kUnreachable = "192.0.2.1:12060,198.51.100.1:12060,203.0.113.1:12060,[2001:db8::1]:12060";
constexpr const char* kNoNames = "a.invalid:12060,b.invalid:12060,c.invalid:12060,d.invalid:12060";
constexpr const char* kBroadcast = "127.255.255.255:12060";

/// The contact that fills the table, to the addresses of the case.
void ContactBehindItsFlush(benchmark::State& state, const char* addresses) {
    LoadedProgram loaded{kFull};
    PosixDatagrams network;
    NewsSender sender{loaded.program.desk, network};
    sender.SendTo(News::Contacts, ReadAddresses(addresses).addresses);
    const NewsChoice choice{.isOn = true, .addresses = addresses, .wasOn = true};
    ContactNews news{loaded.program.logPart.contest, choice, loaded.program.networkPart.origin,
                     loaded.program.networkPart.ids, sender, loaded.clock};
    for (auto _ : state) {
        news.Logged(kFull);
        state.PauseTiming();
        loaded.clock.Advance(20'000);  // so that what has failed is tried anew
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(ContactBehindItsFlush, broadcast, kBroadcast)->Unit(benchmark::kMicrosecond)->Iterations(2'000);
BENCHMARK_CAPTURE(ContactBehindItsFlush, four_refused, kRefused)->Unit(benchmark::kMicrosecond)->Iterations(2'000);
BENCHMARK_CAPTURE(ContactBehindItsFlush, four_unreachable, kUnreachable)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(2'000);
BENCHMARK_CAPTURE(ContactBehindItsFlush, four_names_that_are_none, kNoNames)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(200);

void ContactThatNobodyIsToldOf(benchmark::State& state) {
    LoadedProgram loaded{kFull};
    for (auto _ : state) {
        loaded.program.commit.logged(kFull);
    }
}
BENCHMARK(ContactThatNobodyIsToldOf);

}  // namespace
}  // namespace tallyhut
