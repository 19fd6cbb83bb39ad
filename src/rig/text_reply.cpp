#include "rig/text_reply.h"

#include "rig/reply_numbers.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::size_t kHertzDigits = 11;

/// CW if the character at the position is one of the digits, else phone; also where the reply ends before it.
std::string_view ModeAt(std::string_view text, std::size_t position, std::string_view cwDigits) {
    return position < text.size() && cwDigits.find(text[position]) != std::string_view::npos ? kCw : kPhone;
}

/// The place of a reply that has at least so many characters; nothing where there is none.
std::optional<std::size_t> FindReply(std::string_view rxBuffer, std::string_view begin, std::size_t leastLength) {
    const std::size_t place = rxBuffer.find(begin);
    if (place == std::string_view::npos || rxBuffer.size() < place + leastLength) {
        return std::nullopt;
    }
    return place;
}

/// What stands between the begin of a reply and its semicolon, in the first reply of that length.
std::optional<std::string_view> WholeReply(std::string_view rxBuffer, std::string_view begin, std::size_t length) {
    for (std::size_t place = rxBuffer.find(begin); place != std::string_view::npos;
         place = rxBuffer.find(begin, place + 1)) {
        const std::string_view value = Middle(rxBuffer, place + begin.size(), length + 1);
        if (value.size() == length + 1 && value.find(';') == length) {
            return value.substr(0, length);
        }
    }
    return std::nullopt;
}

bool AreDigits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

RigReading ReadFaMd(const RigReply& reply) {
    RigReading reading;
    if (const auto place = FindReply(reply.rxBuffer, reply.frequencyString.substr(0, 2), 14)) {
        reading.frequency = MegahertzOfHertz(Middle(reply.rxBuffer, *place + 2, kHertzDigits));
    }
    return reading;
}

RigReading ReadMdDigit(const RigReply& reply) {
    RigReading reading;
    if (const auto place = FindReply(reply.rxBuffer, "MD", 3)) {
        reading.mode = ModeAt(reply.rxBuffer, *place + 2, "37");
    }
    return reading;
}

RigReading ReadIfBlock(const RigReply& reply) {
    RigReading reading;
    const auto place = FindReply(reply.rxBuffer, "IF", 14);
    if (!place) {
        return reading;
    }
    reading.frequency = MegahertzOfHertz(Middle(reply.rxBuffer, *place + 2, kHertzDigits));
    if (!reading.frequency) {
        return reading;
    }
    reading.mode = ModeAt(reply.rxBuffer, *place + 29, "3");  // 7, CW reversed, is phone here, unlike after "MD"
    const std::string_view digit = Middle(reply.rxBuffer, *place + 30, 1);
    if (IsNumeric(digit)) {
        reading.vfoDigit = static_cast<std::uint8_t>(digit.front() - '0');
    }
    return reading;
}

RigReading ReadDualCommand(const RigReply& reply) {
    RigReading reading;
    if (const auto place = FindReply(reply.rxBuffer, reply.frequencyString.substr(0, 2), 9)) {
        reading.frequency = MegahertzOfHertz(Middle(reply.rxBuffer, *place + 2, 8));
    }
    if (const auto place = FindReply(reply.rxBuffer, reply.modeString.substr(0, 3), 4)) {
        reading.mode = ModeAt(reply.rxBuffer, *place + 3, "3");
    }
    return reading;
}

RigReading ReadNineDigitCommand(const RigReply& reply) {
    RigReading reading;
    const auto hertz = WholeReply(reply.rxBuffer, reply.frequencyString.substr(0, 2), 9);
    constexpr std::string_view kNowhere = "000000000";
    if (hertz && AreDigits(*hertz) && *hertz != kNowhere) {
        reading.frequency = MegahertzOfHertz(*hertz);
    }
    if (const auto mode = WholeReply(reply.rxBuffer, reply.modeString.substr(0, 3), 1)) {
        reading.mode = ModeAt(*mode, 0, "37");
    }
    return reading;
}

RigReading ReadOrionFrequency(const RigReply& reply) {
    RigReading reading;
    const auto place = FindReply(reply.rxBuffer, "@AF", 3);
    if (!place) {
        return reading;
    }
    const std::size_t end = reply.rxBuffer.find('\r', *place);
    if (end != std::string_view::npos) {
        // The digits are counted from the begin of the buffer, not of the reply: only a reply that stands first, where
        // the order of the requests puts it, is a number.
        const std::size_t digits = end - 3;
        reading.frequency = MegahertzOfHertz(Middle(reply.rxBuffer, *place + 3, digits));
    }
    return reading;
}

RigReading ReadOrionMode(const RigReply& reply) {
    RigReading reading;
    if (const auto place = FindReply(reply.rxBuffer, "@RMM", 4)) {
        reading.mode = ModeAt(reply.rxBuffer, *place + 4, "32");
    }
    return reading;
}

}  // namespace tallyhut
