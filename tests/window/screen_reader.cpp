#include "tests/window/screen_reader.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "tests/window/processes.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

/// On a desktop's own bus services would start that this screen does not have, and be waited for.
constexpr const char* kBusSettings = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";
constexpr const char* kService = "/usr/share/dbus-1/services/org.a11y.Bus.service";

std::string ContentOf(const std::string& file, std::size_t from = 0) {
    std::ifstream in{file, std::ios::binary};
    in.seekg(static_cast<std::streamoff>(from));
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

/// Nothing of the person who runs the test: no settings, no desktop.
void UseFolder(const std::string& folder, const std::string& display) {
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        setenv(name, folder.c_str(), 1);
    }
    setenv("DISPLAY", display.c_str(), 1);
    setenv("GSETTINGS_BACKEND", "memory", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("TZ", "UTC", 1);
    for (const char* name : {"WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS"}) {
        unsetenv(name);
    }
}

}  // namespace

ScreenReader::ScreenReader(const std::string& folder, const std::string& display) : folder_{folder} {
    const std::string services = folder_ + "/services";
    fs::create_directories(services);
    if (!fs::exists(kService)) {
        throw std::runtime_error{"There is no accessibility bus (Debian package at-spi2-core)"};
    }
    fs::copy_file(kService, services + "/org.a11y.Bus.service");
    std::string settings = kBusSettings;
    settings.replace(settings.find("{}"), 2, services);
    std::ofstream{folder_ + "/bus.conf"} << settings;
    address_ = StartAndReadLine(
        bus_, {"dbus-daemon", "--nofork", "--config-file=" + folder_ + "/bus.conf", "--print-address={}"},
        [&folder, &display] { UseFolder(folder, display); });
    const std::string said = folder_ + "/orca.err";
    reader_ = StartProcess({"/usr/bin/python3", TALLYHUT_ORCA, folder_ + "/orca.log"}, [&] {
        UseFolder(folder, display);
        setenv("DBUS_SESSION_BUS_ADDRESS", address_.c_str(), 1);
        const int file = open(said.c_str(), O_WRONLY | O_CREAT, 0666);
        dup2(file, 1);
        dup2(file, 2);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    if (!Eventually([this] { return !SpokenSince(0).empty(); })) {
        EndAll();
        throw std::runtime_error{"Orca does not speak (Debian package orca): " + ContentOf(said)};
    }
}

ScreenReader::~ScreenReader() {
    EndAll();
}

void ScreenReader::EndAll() {
    EndProcess(reader_, SIGKILL);
    EndProcess(bus_, SIGTERM);  // the bus of the accessible programs ends with it
}

std::size_t ScreenReader::LogLength() const {
    std::error_code none;
    const std::uintmax_t length = fs::file_size(folder_ + "/orca.log", none);
    return none ? 0 : static_cast<std::size_t>(length);
}

std::string ScreenReader::LogSince(std::size_t length) const {
    const std::string log = ContentOf(folder_ + "/orca.log", length);
    return log.substr(0, log.rfind('\n') + 1);  // what is being written is not there yet
}

std::vector<ScreenReader::Utterance> ScreenReader::SpokenSince(std::size_t length) const {
    static const std::regex said{R"(.* - SPEECH OUTPUT: '(.*)'[^']*\{.*)"};
    std::vector<Utterance> spoken;
    for (const std::string& line : LinesSince(length, " - SPEECH OUTPUT: ")) {
        std::smatch parts;
        if (std::regex_match(line, parts, said)) {
            spoken.push_back({parts[1], OfDay(line)});
        }
    }
    return spoken;
}

std::vector<std::string> ScreenReader::LinesSince(std::size_t length, const std::string& words) const {
    std::vector<std::string> lines;
    std::istringstream log{LogSince(length)};
    for (std::string line; std::getline(log, line);) {
        if (line.find(words) != std::string::npos) {
            lines.push_back(line);
        }
    }
    return lines;
}

bool ScreenReader::LetSpeak(const std::string& words) {
    const std::size_t length = LogLength();
    return Eventually([&] { return !LinesSince(length, words).empty(); }) && Eventually([this] { return IsIdle(); });
}

bool ScreenReader::IsIdle() {
    static const std::string said = " - EVENT MANAGER: ";
    const std::size_t length = LogLength();
    int waiting = 0;
    for (const std::string& line : LinesSince(idleAt_, said)) {
        const std::string what = line.substr(line.find(said) + said.size());
        if (what.starts_with("Queueing ")) {
            ++waiting;
        } else if (what.starts_with("Dequeued ")) {
            --waiting;
        } else if (what.find(" events pruned.") != std::string::npos) {  // "92 events pruned. New size: 9"
            waiting -= std::stoi(what);
        }
    }
    if (waiting == 0 && LogSince(length).empty()) {
        idleAt_ = length;
    }
    return waiting == 0;
}

std::chrono::microseconds ScreenReader::OfDay(Clock::time_point moment) {
    return std::chrono::duration_cast<std::chrono::microseconds>(moment.time_since_epoch()) % std::chrono::hours{24};
}

/// It begins with "21:04:33.123456".
std::chrono::microseconds ScreenReader::OfDay(const std::string& line) {
    const auto part = [&line](std::size_t at, std::size_t digits) { return std::stoi(line.substr(at, digits)); };
    return std::chrono::hours{part(0, 2)} + std::chrono::minutes{part(3, 2)} + std::chrono::seconds{part(6, 2)} +
           std::chrono::microseconds{part(9, 6)};
}

}  // namespace tallyhut
