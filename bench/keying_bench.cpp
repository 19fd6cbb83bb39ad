// How exactly a key is worked. The moments come from key_shim, which stands in front of whatever program keys.
//
//     tallyhut_keying_bench key DEVICE WPM CHARACTERS    keys a line with the platform alone
//     tallyhut_keying_bench report LOG WPM               tells how far the marks and gaps of a log are off

#include <sys/ioctl.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/key_record.h"
#include "platform/real/system_clock.h"
#include "platform/real/tty_ports.h"
#include "platform/sim/settings_store.h"

namespace tallyhut {
namespace {

constexpr double kMillisecondsAtOneWpm = 1'200;

/// As the sender does it: the line, the moment read behind it, the wait for the end of the unit.
void Key(const std::string& device, double wpm, int characters) {
    constexpr std::string_view kElements = "1011101000";  // R: marks of both lengths, and a gap between letters
    sim::SettingsStore settings;
    TtyPorts ports{settings, {{1, device}}};
    const std::unique_ptr<SerialPort> port = ports.NewPort();
    port->SetDtr(false);
    port->SetRts(false);
    port->Open();
    SystemClock clock;
    const double unit = kMillisecondsAtOneWpm / wpm * kMicroticksATick;
    for (int count = 0; count < characters; ++count) {
        clock.BeginPrecise();
        for (const char element : kElements) {
            port->SetDtr(element == '1');
            clock.SpinUntil(clock.TickUs() + static_cast<Microtick>(std::lround(unit)));
        }
        clock.EndPrecise();
    }
}

/// Errors of one kind of interval, milliseconds.
struct Errors {
    const char* kind;
    std::vector<double> errors = {};

    void Tell() const {
        double sum = 0;
        double sizes = 0;
        double largest = 0;
        for (const double error : errors) {
            sum += error;
            sizes += std::abs(error);
            largest = std::max(largest, std::abs(error));
        }
        const double count = std::max<double>(static_cast<double>(errors.size()), 1);
        std::printf("  %-13s %6zu   mean %+.4f ms   mean size %.4f ms   largest %.4f ms\n", kind, errors.size(),
                    sum / count, sizes / count, largest);
    }
};

void Report(const std::string& path, double wpm) {
    const auto log = std::make_unique<KeyLog>();
    std::ifstream file{path, std::ios::binary};
    file.read(static_cast<char*>(static_cast<void*>(log.get())), sizeof(KeyLog));
    const std::size_t count = std::min<std::size_t>(log->count, KeyLog::kMost);
    const double unit = kMillisecondsAtOneWpm / wpm;
    Errors marks{"marks"};
    Errors elementGaps{"element gaps"};
    Errors letterGaps{"letter gaps"};
    const KeyRecord* last = nullptr;
    for (std::size_t at = 0; at < count; ++at) {
        const KeyRecord& record = log->records.at(at);
        if ((record.lines & TIOCM_DTR) == 0) {
            continue;
        }
        if (last != nullptr) {
            const double length = static_cast<double>(record.nanoseconds - last->nanoseconds) / 1e6;
            const bool isLong = length > 2 * unit;
            if (last->on != 0) {
                marks.errors.push_back(length - (isLong ? 3 : 1) * unit);
            } else if (!isLong) {
                elementGaps.errors.push_back(length - unit);
            } else if (length < 5 * unit) {  // beyond are words, and pauses of the operator
                letterGaps.errors.push_back(length - 3 * unit);
            }
        }
        last = &record;
    }
    for (const Errors* errors : {&marks, &elementGaps, &letterGaps}) {
        errors->Tell();
    }
}

}  // namespace
}  // namespace tallyhut

int main(int argc, char** argv) {
    const std::vector<std::string> arguments{argv + 1, argv + argc};
    if (arguments.size() == 4 && arguments[0] == "key") {
        tallyhut::Key(arguments[1], std::stod(arguments[2]), std::stoi(arguments[3]));
    } else if (arguments.size() == 3 && arguments[0] == "report") {
        tallyhut::Report(arguments[1], std::stod(arguments[2]));
    } else {
        std::fputs("tallyhut_keying_bench key DEVICE WPM CHARACTERS | report LOG WPM\n", stderr);
        return 2;
    }
    return 0;
}
