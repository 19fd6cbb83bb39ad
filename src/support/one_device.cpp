#include "support/one_device.h"

namespace tallyhut {

bool AreOneDevice(const Machine& machine, int one, int other) {
    if (one == other) {
        return true;
    }
    const auto isNumber = [](int number) { return number >= kFirstPort && number <= kLastPort; };
    if (!isNumber(one) || !isNumber(other)) {
        return false;
    }
    const std::string first = machine.serialPorts.DeviceOf(one);
    const std::string second = machine.serialPorts.DeviceOf(other);
    if (first.empty() || second.empty()) {
        return false;
    }
    try {
        return first == second || machine.files.IsSameFile(first, second);
    } catch (const PlatformError&) {
        return false;  // nothing that could be opened
    }
}

}  // namespace tallyhut
