// What leaves the program, from a full log to its text. Writing the file is the disk's time.

#include <benchmark/benchmark.h>

#include "bench/full_log.h"
#include "contest/contact_log.h"
#include "reports/adif.h"
#include "reports/cabrillo.h"
#include "reports/dupe_sheet.h"
#include "reports/log_check.h"
#include "reports/merged_log.h"

namespace tallyhut {
namespace {

const DateTime kNow{2026, 11, 8, 21, 0, 0};

struct Entry {
    Entry() {
        station.gOwnCall = "W9ZZZ";
        station.gOwnPrec = "A";
        station.gOwnCheck = "72";
        station.gOwnSection = "IL";
        FieldReader fields{text};
        while (!fields.AtEnd()) {
            log.Add(ReadRecord(fields));
        }
    }

    std::string text = FullLog(ContactLog::kMostContacts, kNow);
    ContactLog log;
    Preferences station;
};

void CabrilloFile(benchmark::State& state) {
    const Entry entry;
    for (auto round : state) {
        ColumnWriter lines;
        WriteCabrillo({}, entry.station, entry.log, 83, kNow.year, lines);
        benchmark::DoNotOptimize(FileText(lines.Lines()));
    }
}
BENCHMARK(CabrilloFile)->Unit(benchmark::kMillisecond);

void AdifFile(benchmark::State& state) {
    const Entry entry;
    const AdifExport details{.title = "Q7ZZQ's Tallyhut Log 4.7",
                             .exportedAt = "11/8/2026 9:00:00 PM",
                             .power = "100",
                             .comment = "November Sweepstakes Contest",
                             .phone = false};
    for (auto round : state) {
        benchmark::DoNotOptimize(AdifText(details, entry.log, kNow.year));
    }
}
BENCHMARK(AdifFile)->Unit(benchmark::kMillisecond);

void DupeSheet(benchmark::State& state) {
    const Entry entry;
    for (auto round : state) {
        benchmark::DoNotOptimize(FileText(DupeFile(CallsByArea(entry.log), 83)));
    }
}
BENCHMARK(DupeSheet)->Unit(benchmark::kMillisecond);

void LogReport(benchmark::State& state) {
    const Entry entry;
    for (auto round : state) {
        benchmark::DoNotOptimize(FileText(LogReportFile(MergeLog(entry.text, "", 83))));
    }
}
BENCHMARK(LogReport)->Unit(benchmark::kMillisecond);

/// With so many known calls; none of those in the log is one, so that each call's neighbours are looked for.
void CheckOfTheLog(benchmark::State& state) {
    const Entry entry;
    SectionTable sections;
    sections.Fill();
    std::vector<CallKey> keys;
    for (int n = 0; n < state.range(0); ++n) {
        keys.push_back(*KeyOfCall("W" + PlainText(n % 10) + CallOf(n / 10).substr(2) + "Z"));
    }
    const KnownCalls known{std::move(keys)};
    for (auto round : state) {
        benchmark::DoNotOptimize(FindingsIn({.log = entry.log,
                                             .station = entry.station,
                                             .sections = sections,
                                             .known = known,
                                             .presentYear = kNow.year}));
    }
}
BENCHMARK(CheckOfTheLog)->Arg(0)->Arg(85'000)->Arg(170'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut
