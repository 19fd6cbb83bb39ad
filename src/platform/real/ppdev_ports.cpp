#include "platform/real/ppdev_ports.h"

#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>

#include "platform/path_error.h"

#if defined(__x86_64__) || defined(__i386__)
#include <sys/io.h>
#endif

namespace tallyhut {
namespace {

/// The system counts its ports from 0; no machine has more.
constexpr int kPorts = 8;

#if defined(__x86_64__) || defined(__i386__)

constexpr int kHighestAddress = 0xFFFF;

/// The right to write to an address without the system; without it a write would end the program.
bool AllowDirect(int address, bool allow) {
    return address >= 0 && address <= kHighestAddress &&
           ioperm(static_cast<unsigned long>(address), 1, allow ? 1 : 0) == 0;
}

void OutDirect(int address, unsigned char value) {
    outb(value, static_cast<unsigned short>(address));
}

#else

bool AllowDirect(int /*address*/, bool /*allow*/) {
    return false;
}

void OutDirect(int /*address*/, unsigned char /*value*/) {}

#endif

/// The number that one of the system's small files begins with.
std::optional<int> NumberIn(const std::string& path) {
    const Descriptor file{open(path.c_str(), O_RDONLY | O_CLOEXEC)};
    std::array<char, 64> text{};
    const ssize_t length = file.IsOpen() ? read(file.Number(), text.data(), text.size()) : -1;
    int number = 0;
    if (length <= 0 || std::from_chars(text.data(), text.data() + length, number).ec != std::errc{}) {
        return std::nullopt;
    }
    return number;
}

bool Write(const Descriptor& port, int address, unsigned char value) {
    if (!port.IsOpen()) {
        OutDirect(address, value);
        return true;
    }
    return ioctl(port.Number(), PPWCONTROL, &value) == 0;
}

std::string DeviceOf(const ParallelFolders& folders, int number) {
    return folders.devices + "/parport" + std::to_string(number);
}

std::string WhyNot(const std::string& device, int errorNumber) {
    switch (errorNumber) {
        case ENOENT:
            return "The port is there, but " + device + " is not: load the module ppdev (sudo modprobe ppdev)";
        case EACCES:
            return "You have no right to open " + device +
                   ": add yourself to the group lp (sudo adduser YOURNAME lp) and log in again";
        default:
            return PathError(device, errorNumber).what();
    }
}

}  // namespace

PpdevPorts::~PpdevPorts() {
    for (const auto& [base, port] : held_) {
        Write(port, base + kControlRegister, kParallelKeyUp);
        if (port.IsOpen()) {
            ioctl(port.Number(), PPRELEASE);
        }
    }
}

void PpdevPorts::Out(int address, unsigned char value) {
    const int base = address - kControlRegister;
    if (failed_ == base) {
        return;
    }
    failed_.reset();
    if (!Hold(base) || !Write(held_.at(base), address, value)) {
        held_.erase(base);
        failed_ = base;
    }
}

std::string PpdevPorts::Meaning(int base) {
    failed_.reset();
    const std::optional<int> number = NumberOf(base);
    std::string device = number ? DeviceOf(folders, *number) : "";
    if (number && access(device.c_str(), R_OK | W_OK) == 0) {
        return device;
    }
    const int reason = errno;
    if (MayWriteDirectly(base)) {
        return "Written to directly, without a driver";
    }
    return number ? WhyNot(device, reason) : "No parallel port is known at this address";
}

std::optional<int> PpdevPorts::NumberOf(int base) const {
    for (int number = 0; number < kPorts; ++number) {
        if (NumberIn(folders.ports + "/parport" + std::to_string(number) + "/base-addr") == base) {
            return number;
        }
    }
    return std::nullopt;
}

/// True when the port may be written to.
bool PpdevPorts::Hold(int base) {
    if (held_.contains(base)) {
        return true;
    }
    if (const std::optional<int> number = NumberOf(base)) {
        Descriptor port{open(DeviceOf(folders, *number).c_str(), O_RDWR | O_CLOEXEC)};
        if (port.IsOpen() && ioctl(port.Number(), PPCLAIM) == 0) {  // which leaves the key up
            held_.emplace(base, std::move(port));
            return true;
        }
    }
    const bool direct = AllowDirect(base + kControlRegister, true);
    if (direct) {
        held_.emplace(base, Descriptor{});
    }
    return direct;
}

bool PpdevPorts::MayWriteDirectly(int base) const {
    const bool may = AllowDirect(base + kControlRegister, true);
    if (may && !held_.contains(base)) {
        AllowDirect(base + kControlRegister, false);
    }
    return may;
}

}  // namespace tallyhut
