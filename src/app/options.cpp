#include "app/options.h"

#include <array>
#include <limits>

#include "platform/serial_port.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kUsage = R"(usage: tallyhut [--directory DIR | --choose-directory]
                [--sections NAME|FILE] [--port N=DEVICE] [--agw HOST:PORT]
       tallyhut --console [--directory DIR] [--clock 2026-11-07T21:04:33]
                [--utc-offset HOURS] [--screen WxH[,WORKxAREA]]
                [--port N=DEVICE|sim] [--parallel sim] [--sound sim]
                [--sections NAME|FILE] [--agw HOST:PORT] [--seed N]

Tallyhut Log, a contest logger for the ARRL November Sweepstakes.

  --directory DIR    the folder of the contest: log, settings, reports
                     (default: the folder the program is started in)
  --choose-directory asks for that folder, offering the one chosen last
  --sections NAME    the sections of the contest, for a folder that has no
                     Sections.txt: 2023 (today's), 2014, or the path of a file
  --console          no window: commands on standard input, JSON lines on
                     standard output; see docs/console.md
  --clock TIME       (console) a clock that only commands move, from TIME on
  --utc-offset H     (console) hours from that clock to UTC
  --screen WxH       (console) the size of the screen in pixels, and behind a
                     comma what taskbars leave of it
  --port N=DEVICE    serial port N, 1 to 10, is DEVICE, such as /dev/ttyUSB0,
                     for this run; (console) N=sim is a simulated one
  --agw HOST:PORT    the packet engine that spots come from, for this run
  --parallel sim     (console) simulated parallel ports at every address
  --sound sim        (console) sound that nobody hears, as long as its files
  --seed N           (console) the same random numbers in each run
  --help, --version
)";

constexpr double kMostUtcHours = 24;

/// "2026-11-07T21:04:33"; the time may be left out.
DateTime ParseClock(const std::string& text) {
    std::string plain = text;
    if (plain.size() > 10 && plain[10] == 'T') {
        plain[10] = ' ';
    }
    const std::optional<DateTime> at = plain.size() >= 8 ? ParseDateTime(plain, 0) : std::nullopt;
    if (!at || at->year < 1900) {
        throw ValueError{"--clock wants a time such as 2026-11-07T21:04:33, not " + text};
    }
    return *at;
}

double ParseUtcOffset(const std::string& text) {
    const std::optional<double> hours = ParseNumber(text);
    if (!hours || *hours < -kMostUtcHours || *hours > kMostUtcHours) {
        throw ValueError{"--utc-offset wants hours, not " + text};
    }
    return *hours;
}

ScreenSize ParseSize(const std::string& text) {
    const std::size_t cross = text.find('x');
    const auto width = ParseNumber(text.substr(0, cross));
    const auto height = cross == std::string::npos ? std::nullopt : ParseNumber(text.substr(cross + 1));
    if (!width || !height || *width < 1 || *height < 1) {
        throw ValueError{"--screen wants a size such as 1280x800, not " + text};
    }
    return {.width = *width, .height = *height};
}

void TakeScreen(Options& options, const std::string& text) {
    const std::size_t comma = text.find(',');
    options.screen = ParseSize(text.substr(0, comma));
    options.workArea = comma == std::string::npos ? options.screen : ParseSize(text.substr(comma + 1));
}

void TakePort(Options& options, const std::string& text) {
    const std::size_t equals = text.find('=');
    const auto number = ParseNumber(text.substr(0, equals));
    if (equals == std::string::npos || equals + 1 == text.size() || !number || *number < kFirstPort ||
        *number > kLastPort || *number != static_cast<int>(*number)) {
        throw ValueError{"--port wants N=DEVICE with N from 1 to 10, not " + text};
    }
    options.ports[static_cast<int>(*number)] = text.substr(equals + 1);
}

void TakeParallel(Options& options, const std::string& text) {
    if (text != "sim") {
        throw ValueError{"--parallel wants sim, not " + text};
    }
    options.simulatesParallel = true;
}

void TakeSound(Options& options, const std::string& text) {
    if (text != "sim") {
        throw ValueError{"--sound wants sim, not " + text};
    }
    options.simulatesSound = true;
}

void TakeAgwEngine(Options& options, const std::string& text) {
    constexpr int kHighestPort = 65'535;
    const std::size_t colon = text.rfind(':');
    const auto port = colon == std::string::npos ? std::nullopt : ParseNumber(text.substr(colon + 1));
    if (!port || colon == 0 || *port < 1 || *port > kHighestPort || *port != static_cast<int>(*port)) {
        throw ValueError{"--agw wants HOST:PORT, not " + text};
    }
    options.agwEngine = text;
}

void TakeSeed(Options& options, const std::string& text) {
    const auto number = ParseNumber(text);
    if (!number || *number < 0 || *number > std::numeric_limits<std::uint32_t>::max()) {
        throw ValueError{"--seed wants a number from 0, not " + text};
    }
    options.seed = static_cast<std::uint32_t>(*number);
}

struct FlagOption {
    std::string_view name;
    void (*take)(Options&);
};

constexpr std::array kFlagOptions{
    FlagOption{"--console", [](Options& options) { options.console = true; }},
    FlagOption{"--choose-directory", [](Options& options) { options.chooseDirectory = true; }},
    FlagOption{"--help", [](Options& options) { options.help = true; }},
    FlagOption{"--version", [](Options& options) { options.version = true; }},
};

struct ValueOption {
    std::string_view name;
    void (*take)(Options&, const std::string&);
};

constexpr std::array kValueOptions{
    ValueOption{"--directory", [](Options& options, const std::string& value) { options.directory = value; }},
    ValueOption{"--clock", [](Options& options, const std::string& value) { options.clock = ParseClock(value); }},
    ValueOption{"--utc-offset",
                [](Options& options, const std::string& value) { options.utcOffset = ParseUtcOffset(value); }},
    ValueOption{"--screen", TakeScreen},
    ValueOption{"--port", TakePort},
    ValueOption{"--parallel", TakeParallel},
    ValueOption{"--sound", TakeSound},
    ValueOption{"--agw", TakeAgwEngine},
    ValueOption{"--sections", [](Options& options, const std::string& value) { options.sections = value; }},
    ValueOption{"--seed", TakeSeed},
};

template <typename Table>
auto FindRow(const Table& table, std::string_view name) {
    auto row = table.begin();
    while (row != table.end() && row->name != name) {
        ++row;
    }
    return row;
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::size_t equals = arguments[i].find('=');
        const bool joined = arguments[i].starts_with("--") && equals != std::string::npos;
        const std::string name = joined ? arguments[i].substr(0, equals) : arguments[i];
        if (const auto* const flag = FindRow(kFlagOptions, name); flag != kFlagOptions.end() && !joined) {
            flag->take(options);
            continue;
        }
        const auto* const option = FindRow(kValueOptions, name);
        if (option == kValueOptions.end()) {
            throw ValueError{"unknown argument " + arguments[i]};
        }
        if (joined) {
            option->take(options, arguments[i].substr(equals + 1));
        } else if (++i < arguments.size()) {
            option->take(options, arguments[i]);
        } else {
            throw ValueError{name + " wants a value"};
        }
    }
    return options;
}

std::string_view UsageText() {
    return kUsage;
}

}  // namespace tallyhut
