#include "rig/icom_reply.h"

#include <algorithm>
#include <string>

#include "rig/reply_numbers.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr unsigned char kFrameBegin = 0xFE;
constexpr unsigned char kFrameEnd = 0xFD;
constexpr unsigned char kReadFrequency = 0x03;
constexpr unsigned char kReadMode = 0x04;
constexpr unsigned char kModeCw = 0x03;

/// Finds the data of frames, byte by byte.
class FrameScan {
public:
    explicit FrameScan(unsigned char command) : command_{command} {}

    /// True for a byte of data.
    bool IsData(unsigned char byte) {
        switch (state_) {
            case State::Empty:
                state_ = byte == kFrameBegin ? State::GotFirstFE : State::Empty;
                return false;
            case State::GotFirstFE:
                state_ = byte == kFrameBegin ? State::ToAddress : State::Empty;
                return false;
            case State::ToAddress:
                state_ = State::FromAddress;
                return false;
            case State::FromAddress:
                state_ = State::GotSecondFE;
                return false;
            case State::GotSecondFE:
                state_ = byte == command_ ? State::WaitForFD : State::Empty;
                return false;
            case State::WaitForFD:
                if (byte == kFrameEnd) {
                    state_ = State::Empty;
                }
                return byte != kFrameEnd;
        }
        return false;
    }

private:
    /// The two addresses are passed over whatever they are.
    enum class State { Empty, GotFirstFE, ToAddress, FromAddress, GotSecondFE, WaitForFD };

    unsigned char command_;
    State state_ = State::Empty;
};

/// The data of all frames of the command together, the last byte first.
std::string ReversedData(std::string_view rxBuffer, unsigned char command) {
    FrameScan scan{command};
    std::string data;
    for (const char byte : rxBuffer) {
        if (scan.IsData(static_cast<unsigned char>(byte))) {
            data += byte;
        }
    }
    std::ranges::reverse(data);
    return data;
}

/// Ten digits of hertz, the highest standing for 1000 MHz, with a point behind the fourth and without the leading
/// zeros.
std::string MegahertzText(std::string_view digits) {
    std::string text;
    for (std::size_t count = 1; count <= 3; ++count) {
        if (digits.substr(0, count) != std::string_view{"000"}.substr(0, count)) {
            text += Middle(digits, count - 1, 1);
        }
    }
    text += Middle(digits, 3, 1);
    text += '.';
    text += Middle(digits, 4, 6);
    return text;
}

}  // namespace

RigReading ReadIcomFrequency(const RigReply& reply) {
    constexpr std::size_t kBytesOfDigits = 5;
    const std::string data = ReversedData(reply.rxBuffer, kReadFrequency).substr(0, kBytesOfDigits);
    RigReading reading;
    reading.frequency = FloatOf(MegahertzText(BytesToHexText(data)));
    return reading;
}

RigReading ReadIcom735Frequency(const RigReply& reply) {
    constexpr float kShift = 100;  // the two digits that are missing in front
    RigReading reading = ReadIcomFrequency(reply);
    if (reading.frequency) {
        *reading.frequency /= kShift;
    }
    return reading;
}

RigReading ReadIcomMode(const RigReply& reply) {
    FrameScan scan{kReadMode};
    RigReading reading;
    for (const char character : reply.rxBuffer) {
        const auto byte = static_cast<unsigned char>(character);
        if (scan.IsData(byte)) {
            reading.mode = byte == kModeCw ? kCw : kPhone;
            break;
        }
    }
    return reading;
}

}  // namespace tallyhut
