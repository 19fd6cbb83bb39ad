#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/screen.h"
#include "values/date_time.h"

namespace tallyhut {

/// What the command line asks for.
struct Options {
    bool console = false;
    bool help = false;
    bool version = false;
    std::optional<std::string> directory;
    bool chooseDirectory = false;  ///< asks for the directory, whatever is given
    std::optional<DateTime> clock;
    double utcOffset = 0;                  ///< hours from local time to UTC, of the virtual clock
    std::map<int, std::string> ports;      ///< the device of a serial port by its number, or "sim"
    std::optional<std::string> agwEngine;  ///< HOST:PORT
    std::optional<std::string> sections;   ///< of a folder without a list: the name of a shipped list, or a file
    bool simulatesParallel = false;        ///< parallel ports
    bool simulatesSound = false;
    std::optional<std::uint32_t> seed;   ///< of random numbers
    std::optional<ScreenSize> screen;    ///< pixels of the simulated screen
    std::optional<ScreenSize> workArea;  ///< likewise
};

/// Throws ValueError, saying which argument cannot be taken and why. The program's own name is not among the arguments.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The command line's short help, a text of whole lines.
std::string_view UsageText();

}  // namespace tallyhut
