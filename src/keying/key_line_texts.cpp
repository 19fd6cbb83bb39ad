#include "keying/key_line_texts.h"

#include "support/port_texts.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr double kHighestAddress = 0xFFFF;
constexpr std::string_view kRadioTakesLine =
    "The radio's connection over this port uses this line. Choose the other one, or another setting of the radio.";
constexpr std::string_view kNoDevice = "Settings, Serial Ports gives the number a device.";
constexpr std::string_view kShared = "The radio is polled over the same port; the key line is used there.";

/// Nothing where the number means no port.
std::optional<int> PortOf(const KeyLine& line) {
    const double number = ParseNumber(line.number.Text()).value_or(0);
    return number >= kFirstPort && number <= kLastPort ? std::optional{ToInt32(number)} : std::nullopt;
}

std::string DeviceText(const KeyLine& line, const SerialPorts& serialPorts) {
    if (const std::optional<int> port = PortOf(line)) {
        return PortToolTip(serialPorts.MeaningOf(*port));
    }
    return ParseNumber(line.number.Text()).value_or(0) <= 0 ? "none" : "no such port";
}

std::string ParallelText(const KeyLine& line, ParallelPorts& parallelPorts) {
    const std::optional<double> base = ParseNumber(line.address.Text());
    const bool isAddress = base && *base >= 0 && *base <= kHighestAddress;
    return isAddress ? parallelPorts.Meaning(ToInt32(*base)) : "no address";
}

std::string SerialNote(const KeyLine& line, const KeyOutputs& outputs, const SerialPorts& serialPorts) {
    const std::optional<int> port = PortOf(line);
    if (!(outputs.rts || outputs.dtr) || !port) {
        return "";
    }
    if (const std::optional<LentPort> lent = line.lentPort(*port)) {
        const bool taken = outputs.rts ? lent->rtsIsTaken : lent->dtrIsTaken;
        return std::string{taken ? kRadioTakesLine : kShared};
    }
    const PortMeaning meaning = serialPorts.MeaningOf(*port);
    return meaning.source == PortMeaning::Source::Nothing ? std::string{kNoDevice} : NoteOn(meaning);
}

}  // namespace

KeyLineTexts TextsOf(const KeyLine& line, const SerialPorts& serialPorts, ParallelPorts& parallelPorts) {
    const KeyOutputs outputs = line.chosen();
    KeyLineTexts texts{.device = DeviceText(line, serialPorts),
                       .parallel = ParallelText(line, parallelPorts),
                       .note = SerialNote(line, outputs, serialPorts)};
    const bool advises = texts.parallel.find(": ") != std::string::npos;
    if (outputs.parallel && advises) {
        texts.note = texts.parallel;  // whole: there may not be room for it beside the address
    }
    return texts;
}

}  // namespace tallyhut
