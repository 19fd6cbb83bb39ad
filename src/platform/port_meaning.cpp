#include "platform/port_meaning.h"

#include <algorithm>

namespace tallyhut {

PortMeaning MeaningAmong(const std::vector<SerialDevice>& devices, const std::map<int, std::string>& commandLine,
                         int number, const std::string& choice) {
    PortMeaning meaning;
    if (const auto given = commandLine.find(number); given != commandLine.end()) {
        meaning = {.device = {.path = given->second}, .source = PortMeaning::Source::CommandLine};
    } else if (!choice.empty()) {
        meaning = {.device = {.path = choice}, .source = PortMeaning::Source::Choice};
    } else if (number >= kFirstPort && static_cast<std::size_t>(number) <= devices.size()) {
        return {.device = devices[static_cast<std::size_t>(number - kFirstPort)], .source = PortMeaning::Source::Found};
    }
    const auto known = std::ranges::find(devices, meaning.device.path, &SerialDevice::path);
    if (known != devices.end()) {
        meaning.device = *known;
    }
    return meaning;
}

}  // namespace tallyhut
