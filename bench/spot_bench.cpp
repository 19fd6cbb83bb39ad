// What spots take from the operator: they come by themselves, while the operator types.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

#include "bench/loaded_program.h"
#include "spots/spot_line.h"
#include "spots/terminal_text.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

/// Both maps shown, the sections that posts offer marked, and a full table of posts that lie close together.
struct Spotting : LoadedProgram {
    explicit Spotting(int contacts) : LoadedProgram{contacts} {
        program.preferences.gBand = "20";
        program.preferences.gColorNeededSpots = 1;
        spots.form.Load();
        spots.link.type = kTelnet;
        spots.PacketResize();
        spots.spectrumForm.Show();
        program.desk.RunPending();
        for (int i = 0; i <= SpotTable::kNewest; ++i) {
            Post();
        }
    }

    /// Another call each time, in no log, on the six bands of the contest, every third with a section.
    std::string NextLine() {
        constexpr std::array kBands{14'000, 7'000, 21'000, 3'500, 28'000, 1'800};
        const int n = count_++;
        const double kilohertz = kBands.at(static_cast<std::size_t>(n / 8) % kBands.size()) + n * 7 % 200;
        const std::string section = n % 3 == 0 ? ToldSections().Section(n % 83 + 1).code : "";
        return "DX de K3LR:" + PadLeft(FormatNumber(kilohertz, "####0.0"), 13) + "  " +
               PadRight("W9" + CallOf(n).substr(2), 13) + PadRight("CQ SS " + section, 31) + "2104Z FN31\r\n";
    }
    void Post() { spots.transports.received(NextLine()); }

    SpotsPart& spots = program.spotsPart;

private:
    static std::string PadLeft(const std::string& text, std::size_t width) {
        return std::string(width - std::min(text.size(), width), ' ') + text;
    }
    int count_ = 0;
};

void PostToTableMapsAndMarks(benchmark::State& state) {
    Spotting spotting{static_cast<int>(state.range(0))};
    for (auto _ : state) {
        spotting.Post();
    }
    state.counters["listed"] = static_cast<double>(spotting.spots.posts.listed.size());
}
BENCHMARK(PostToTableMapsAndMarks)->ArgName("contacts")->Arg(0)->Arg(kFull)->Unit(benchmark::kMicrosecond);

/// The first post behind a logged contact: all calls of the map are asked about anew.
void PostBehindAContact(benchmark::State& state) {
    Spotting spotting{kFull};
    for (auto _ : state) {
        spotting.program.log.Change(1, [](Contact& contact) { contact.Call = "W1AW"; });
        spotting.Post();
    }
}
BENCHMARK(PostBehindAContact)->Unit(benchmark::kMicrosecond);

void MarksOfNeededSections(benchmark::State& state) {
    Spotting spotting{0};
    for (auto _ : state) {
        spotting.spots.posts.MarkNeededSections();
    }
}
BENCHMARK(MarksOfNeededSections)->Unit(benchmark::kMicrosecond);

void LabelsOfTheBandMap(benchmark::State& state) {
    Spotting spotting{0};
    for (auto _ : state) {
        spotting.spots.bandMap.DisplayBandMapLabels();
    }
}
BENCHMARK(LabelsOfTheBandMap)->Unit(benchmark::kMicrosecond);

void LabelsOfTheSpectrumMap(benchmark::State& state) {
    Spotting spotting{static_cast<int>(state.range(0))};
    for (auto _ : state) {
        spotting.spots.spectrum.BandMapLabelDisplay();
    }
}
BENCHMARK(LabelsOfTheSpectrumMap)->ArgName("contacts")->Arg(0)->Arg(kFull)->Unit(benchmark::kMicrosecond);

void ChunkIntoTheTerminal(benchmark::State& state) {
    Spotting spotting{0};
    const std::string chunk(8'192, 'x');
    for (auto _ : state) {
        spotting.spots.form.txtUnProcessed.SetText(WithText(spotting.spots.form.txtUnProcessed.Text(), chunk));
    }
}
BENCHMARK(ChunkIntoTheTerminal)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyhut
