// From a key of the operator to the pixels that show what it did, in the real window at a full log. The files are in
// memory: the time of the disk is not ours to measure. Wants a screen (Xvfb will do).

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <vector>

#include "bench/data_file.h"
#include "bench/full_log.h"
#include "forms/qt/program_style.h"
#include "forms/qt/qt_clipboard.h"
#include "forms/qt/qt_dialogs.h"
#include "forms/qt/qt_pump.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/window_host.h"
#include "platform/real/system_clock.h"
#include "platform/sim/machine.h"
#include "tests/program_units.h"

namespace tallyhut {
namespace {

constexpr int kBefore = 10'600;  // the table is full at 11,000

struct WindowProgram : sim::Machine {
    WindowProgram() : sim::Machine{{2026, 11, 8, 21, 0, 0}} {
        dialogs.Bind(program.desk);
        program.ShowWithoutQuestions();
        files.Put("/contest/Log.txt", FullLog(kBefore, clock.Now()));
        program.form1.Show();
        program.reload.mnuopen2();
        program.time.gTimeOn = 1;
        Settle();
    }

    void Settle() {
        for (int i = 0; i < 50; ++i) {
            program.desk.RunPending();
            pump.Collect();
        }
    }
    /// One key as the desktop delivers it; returns when what it did is painted.
    void Press(int key, const QString& text) {
        QWidget* window = host.WindowOf(program.form1);
        QKeyEvent press{QEvent::KeyPress, key, Qt::NoModifier, text};
        QApplication::sendEvent(window, &press);
        program.desk.RunPending();
        pump.Collect();
    }
    void Type(const std::string& text) {
        for (const char character : text) {
            Press(QChar::fromLatin1(character).toUpper().unicode(), QString{QChar::fromLatin1(character)});
        }
    }

    SystemClock clock;
    QtPump pump{clock};
    QtDialogs dialogs;
    QtClipboard clipboard;
    QtScreen screen;
    ProgramUnits program{
        Lend({.clock = &clock, .pump = &pump, .dialogs = &dialogs, .clipboard = &clipboard, .screen = &screen}),
        "/contest"};
    WindowHost host{program.desk, pump};
};

/// The times of single actions, in milliseconds.
struct Times {
    template <typename Action>
    void Take(const Action& action) {
        const auto begin = std::chrono::steady_clock::now();
        action();
        Add(std::chrono::steady_clock::now() - begin);
    }
    void Add(std::chrono::steady_clock::duration time) {
        taken.push_back(std::chrono::duration<double, std::milli>(time).count());
    }
    void Tell(benchmark::State& state) {
        std::ranges::sort(taken);
        state.counters["median_ms"] = taken[taken.size() / 2];
        state.counters["p99_ms"] = taken[taken.size() * 99 / 100];
        state.counters["longest_ms"] = taken.back();
    }

    std::vector<double> taken;
};

void CommitToPixels(benchmark::State& state) {
    WindowProgram window;
    window.program.list.gListAll = static_cast<std::uint8_t>(state.range(0));
    window.program.list.ListContacts();
    window.Settle();
    int n = 0;
    Times times;
    for (auto _ : state) {
        state.PauseTiming();
        window.Type("88aw9" + CallOf(++n).substr(2) + "72mdc");
        state.ResumeTiming();
        times.Take([&window] { window.Press(Qt::Key_Return, "\r"); });
    }
    times.Tell(state);
    state.counters["logged"] = window.program.log.gContactCount() - kBefore;
}
BENCHMARK(CommitToPixels)->ArgName("all")->Arg(0)->Arg(1)->Iterations(300)->Unit(benchmark::kMillisecond);

/// The keys of a whole exchange, the search for calls that begin alike among them. The call is in no log: a duplicate
/// holds keys back.
void KeyToPixels(benchmark::State& state) {
    WindowProgram window;
    window.program.list.gListAll = static_cast<std::uint8_t>(state.range(0));
    window.program.list.ListContacts();
    window.Settle();
    Times times;
    for (auto _ : state) {
        for (const char character : std::string_view{"88ak1zzz72mdc"}) {
            const QString text{QChar::fromLatin1(character)};
            times.Take([&] { window.Press(text.toUpper().front().unicode(), text); });
        }
        state.PauseTiming();
        window.program.entry.cmdClear_Click();
        window.Settle();
        state.ResumeTiming();
    }
    times.Tell(state);
}
BENCHMARK(KeyToPixels)->ArgName("all")->Arg(0)->Arg(1)->Iterations(60)->Unit(benchmark::kMillisecond);

/// The whole log shown anew, with the rows that there is room for.
void ListOfAllContacts(benchmark::State& state) {
    WindowProgram window;
    window.program.list.gListAll = 1;
    window.program.list.ListContacts();
    window.Settle();
    Times times;
    for (auto _ : state) {
        times.Take([&window] {
            window.program.list.ListContacts();
            window.program.desk.RunPending();
            window.pump.Collect();
        });
    }
    times.Tell(state);
}
BENCHMARK(ListOfAllContacts)->Iterations(300)->Unit(benchmark::kMillisecond);

/// From the function key to the key line that goes down for the first mark of its message.
void FunctionKeyToKeyDown(benchmark::State& state) {
    WindowProgram window;
    KeyingPart& keying = window.program.keyingPart;
    keying.ReadMessages();
    keying.form.Option2.SetValue(true);
    keying.form.Text10.SetText("1");
    keying.form.Text11.SetText("60");
    keying.form.Text1.SetText("E");
    keying.form.Check1.SetValue(true);
    window.Settle();
    std::chrono::steady_clock::time_point pressed;
    Times times;
    window.serialPorts.onLevel = [&](int, sim::ControlLine, bool on) {
        if (on) {
            times.Add(std::chrono::steady_clock::now() - pressed);
        }
    };
    for (auto _ : state) {
        pressed = std::chrono::steady_clock::now();
        window.Press(Qt::Key_F1, "");
    }
    times.Tell(state);
    state.counters["marks"] = static_cast<double>(times.taken.size());
}
BENCHMARK(FunctionKeyToKeyDown)->Iterations(300)->Unit(benchmark::kMillisecond);

/// The window on 20 metres with a source of spots, the map of all bands shown beside it or not, and a full table.
struct SpottingWindow : WindowProgram {
    explicit SpottingWindow(bool bothMaps) {
        program.preferences.gBand = "20";
        program.preferences.gColorNeededSpots = 1;
        spots.form.Load();
        spots.link.type = kTelnet;
        spots.PacketResize();
        if (bothMaps) {
            spots.spectrumForm.Show();
        }
        for (int i = 0; i <= SpotTable::kNewest; ++i) {
            Post();
        }
        Settle();
    }
    /// Of a call that is in no log, every third with a section.
    void Post() {
        const int n = count_++;
        const std::string section = n % 3 == 0 ? ToldSections().Section(n % 83 + 1).code : "";
        const std::string call = "W9" + CallOf(n).substr(2);
        const std::string kilohertz = std::to_string(14'000 + n * 7 % 350);
        spots.transports.received("DX de K3LR:      " + kilohertz + ".0  " + call + std::string(8, ' ') + "CQ SS " +
                                  section + std::string(40 - section.size() - 9, ' ') + "2104Z FN31\r\n");
    }
    /// Shows what has changed and paints it, and nothing else.
    void Paint() {
        program.desk.RunPending();
        pump.Collect();
    }

    SpotsPart& spots = program.spotsPart;

private:
    int count_ = 0;
};

void PostToPixels(benchmark::State& state) {
    SpottingWindow window{state.range(0) == 1};
    Times times;
    for (auto _ : state) {
        times.Take([&window] {
            window.Post();
            window.Paint();
        });
    }
    times.Tell(state);
}
BENCHMARK(PostToPixels)->ArgName("bothMaps")->Arg(0)->Arg(1)->Iterations(300)->Unit(benchmark::kMillisecond);

/// Every label of the map of the band moves on by one spot.
void RedrawOfTheMapToPixels(benchmark::State& state) {
    SpottingWindow window{state.range(0) == 1};
    Times times;
    for (auto _ : state) {
        const Spot oldest = window.spots.table.Row(0);
        window.spots.table.Shift();
        window.spots.table.Newest() = oldest;
        times.Take([&window] {
            window.spots.bandMap.DisplayBandMapLabels();
            if (window.spots.spectrumForm.IsVisible()) {
                window.spots.spectrum.BandMapLabelDisplay();
            }
            window.Paint();
        });
    }
    times.Tell(state);
}
BENCHMARK(RedrawOfTheMapToPixels)->ArgName("bothMaps")->Arg(0)->Arg(1)->Iterations(300)->Unit(benchmark::kMillisecond);

/// From the call for a form to the last of its pixels, those of the map that its timer paints included.
template <typename FormKind>
void OpenToPixels(benchmark::State& state, FormKind ViewsPart::*which) {
    WindowProgram window;
    window.files.Put("/contest/BandPlan.txt", DataFile("BandPlan.txt"));
    window.files.Put("/data/section_map.txt", DataFile("section_map.txt"));
    Form& form = window.program.viewsPart.*which;
    Times times;
    for (auto _ : state) {
        times.Take([&] {
            form.Show();
            do {
                window.program.desk.RunPending();
                window.pump.Collect();
            } while (window.program.viewsPart.mapForm.IsVisible() && window.program.viewsPart.mapForm.Timer1.Enabled());
            window.host.WindowOf(form)->repaint();
        });
        state.PauseTiming();
        form.Unload();
        window.Settle();
        state.ResumeTiming();
    }
    times.Tell(state);
}

void StatisticsToPixels(benchmark::State& state) {
    OpenToPixels(state, &ViewsPart::statsForm);
}
BENCHMARK(StatisticsToPixels)->Iterations(50)->Unit(benchmark::kMillisecond);

void PrivilegesToPixels(benchmark::State& state) {
    OpenToPixels(state, &ViewsPart::planForm);
}
BENCHMARK(PrivilegesToPixels)->Iterations(50)->Unit(benchmark::kMillisecond);

void GraphToPixels(benchmark::State& state) {
    OpenToPixels(state, &ViewsPart::graphForm);
}
BENCHMARK(GraphToPixels)->Iterations(50)->Unit(benchmark::kMillisecond);

void MapToPixels(benchmark::State& state) {
    OpenToPixels(state, &ViewsPart::mapForm);
}
BENCHMARK(MapToPixels)->Iterations(50)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QApplication::setStyle(new tallyhut::ProgramStyle);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
