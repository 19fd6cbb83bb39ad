#include "platform/real/tty_ports.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/port_meaning.h"
#include "platform/real/tty_port.h"
#include "values/text.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSection = "Machine";
/// In the order in which they get numbers.
constexpr std::array<std::string_view, 3> kKinds{"ttyS", "ttyUSB", "ttyACM"};
constexpr std::size_t kBoardKind = 0;
/// How far above a port's own entry that of its adapter stands.
constexpr int kLevelsToAdapter = 4;

struct TtyName {
    std::size_t kind = 0;  ///< row of kKinds
    int number = 0;
};

std::string TextOf(const TtyName& name) {
    return std::string{kKinds.at(name.kind)} + std::to_string(name.number);
}

std::optional<TtyName> ParseTtyName(const std::string& text) {
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
        if (!text.starts_with(kKinds.at(kind))) {
            continue;
        }
        TtyName name{.kind = kind};
        const char* end = text.data() + text.size();
        const auto [behind, error] = std::from_chars(text.data() + kKinds.at(kind).size(), end, name.number);
        if (error == std::errc{} && behind == end) {
            return name;
        }
    }
    return std::nullopt;
}

/// The first line of one of the system's small files; empty where there is none.
std::string LineOf(const fs::path& file) {
    std::ifstream in{file};
    std::string line;
    std::getline(in, line);
    return Trim(line);
}

/// The system lists more names of board ports than there are ports; those without hardware have the type 0.
bool HasHardware(const TtyName& name, const fs::path& entry) {
    const std::string type = LineOf(entry / "type");
    return name.kind != kBoardKind || (!type.empty() && type != "0");
}

std::string DescriptionOfBoardPort(const fs::path& entry) {
    const std::string address = LineOf(entry / "port");
    const bool known = !address.empty() && address.find_first_not_of("0x") != std::string::npos;
    return known ? "Built-in port at " + address : "Built-in port";
}

/// Both texts with the separator between them; one alone where it holds the other already.
std::string Joined(const std::string& first, std::string_view separator, const std::string& second) {
    if (first.empty() || second.starts_with(first)) {
        return second;
    }
    std::string joined = first;
    if (first.find(second) == std::string::npos) {
        joined += separator;
        joined += second;
    }
    return joined;
}

/// What the maker of an adapter calls it, and where it has several ports, the name of this one.
std::string DescriptionOfAdapter(const fs::path& entry) {
    std::error_code failure;
    fs::path place = fs::canonical(entry / "device", failure);
    std::string portName;
    for (int level = 0; !failure && level < kLevelsToAdapter && place.has_relative_path(); ++level) {
        if (portName.empty()) {
            portName = LineOf(place / "interface");
        }
        if (const std::string product = LineOf(place / "product"); !product.empty()) {
            return Joined(Joined(LineOf(place / "manufacturer"), " ", product), ", ", portName);
        }
        place = place.parent_path();
    }
    return {};
}

/// Whether something stands at the path, and whether this program may open it.
SerialDevice Seen(SerialDevice device) {
    device.isThere = access(device.path.c_str(), F_OK) == 0;
    device.mayOpen = !device.isThere || access(device.path.c_str(), R_OK | W_OK) == 0;
    return device;
}

std::string KeyOf(int number) {
    return "Port" + std::to_string(number);
}

}  // namespace

std::unique_ptr<SerialPort> TtyPorts::NewPort() {
    return std::make_unique<TtyPort>(*this);
}

PortMeaning TtyPorts::MeaningOf(int number) const {
    const std::vector<SerialDevice> found = Devices();
    PortMeaning meaning = MeaningAmong(found, commandLine, number, settings.Get(kSection, KeyOf(number)));
    SerialDevice& device = meaning.device;
    if (device.path.empty()) {
        return meaning;
    }
    device = Seen(device);
    std::error_code failure;  // what cannot be followed to its end stays without a description
    const std::string target = fs::canonical(device.path, failure).string();
    const auto linked = std::ranges::find(found, target, &SerialDevice::path);
    if (linked != found.end()) {
        device.description = linked->description;
    }
    return meaning;
}

std::vector<SerialDevice> TtyPorts::Devices() const {
    std::vector<TtyName> names;
    std::error_code failure;  // a system that tells of no devices has none
    for (fs::directory_iterator at{folders.descriptions, failure}, end; !failure && at != end; at.increment(failure)) {
        const std::optional<TtyName> name = ParseTtyName(at->path().filename().string());
        if (name && HasHardware(*name, at->path())) {
            names.push_back(*name);
        }
    }
    std::ranges::sort(names, {}, [](const TtyName& name) { return std::pair{name.kind, name.number}; });
    std::vector<SerialDevice> devices;
    for (const TtyName& name : names) {
        const fs::path entry = fs::path{folders.descriptions} / TextOf(name);
        devices.push_back(Seen(
            {.path = folders.devices + '/' + TextOf(name),
             .description = name.kind == kBoardKind ? DescriptionOfBoardPort(entry) : DescriptionOfAdapter(entry)}));
    }
    return devices;
}

void TtyPorts::Choose(int number, const std::string& path) {
    settings.Set(kSection, KeyOf(number), path);
}

}  // namespace tallyhut
