#include "platform/winkey.h"

#include <algorithm>
#include <string>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

// Commands. Those from 20 hexadecimal on are characters.
constexpr char kSpeed = '\x02';
constexpr char kWeighting = '\x03';
constexpr char kLeadTail = '\x04';
constexpr char kBackspace = '\x08';
constexpr char kPins = '\x09';
constexpr char kClear = '\x0A';
constexpr char kMode = '\x0E';
constexpr char kStatus = '\x15';
constexpr char kRatio = '\x17';

constexpr char kEchoed = 'U';
/// Four nulls end a command whose parameters another program owes, and a device left open is closed: still sending, it
/// would answer the echo test with the echo of a letter.
constexpr std::string_view kReset{"\x13\x13\x13\x13\x00\x03", 6};
constexpr std::string_view kEchoTest{"\x00\x04U", 3};
constexpr std::string_view kHostOpen{"\x00\x02", 2};
constexpr std::string_view kHostClose{"\x00\x03", 2};

constexpr int kFirstCharacter = 0x20;
constexpr int kLastCharacter = 0x7F;
constexpr int kStatusBits = 0x1F;
constexpr int kBusy = 4;

constexpr Tick kLongestSilence = 1'000;
constexpr Tick kBetweenAttempts = 2'000;
/// A device tells 20 to 40 ms late that it has begun to send.
constexpr Tick kUnawareOfCharacter = 60;
constexpr Microtick kLookAgainUs = 250;
constexpr Microtick kLongestLookUs = 1'500;
constexpr Tick kBetweenLooks = 2;

constexpr std::uint8_t kFirstOfSecondGeneration = 20;

bool IsStatus(unsigned char byte) {
    return (byte & 0xE0) == 0xC0;
}
bool IsAnswer(unsigned char byte) {
    return byte < 0x80;
}

}  // namespace

WinKey::WinKey(SerialPorts& ports, Clock& clock) : clock_{clock}, port_{ports.NewPort()} {
    port_->SetSettings("1200,N,8,2");
    port_->SetDtr(true);  // feeds a device without a supply of its own
    port_->SetRts(false);
}

WinKey::~WinKey() {
    wk_close();
}

std::int32_t WinKey::wk_open(std::uint8_t& version, std::uint8_t port) {
    if (isOpen_ && !isLost_) {
        return kWkAlreadyOpen;
    }
    if (port != number_) {
        number_ = port;
        knownVersion_ = 0;
    }
    Forget();
    return Open(PatienceHere(), version);
}

/// A device with a supply of its own needs no time to wake up.
const WinKey::Patience& WinKey::PatienceHere() const {
    static constexpr Patience kUnknown{.wakeUp = 400, .settle = 100, .answer = 300};
    static constexpr Patience kKnown{.wakeUp = 40, .settle = 40, .answer = 80};
    return knownVersion_ >= kFirstOfSecondGeneration ? kKnown : kUnknown;
}

std::int32_t WinKey::Open(const Patience& patience, std::uint8_t& version) {
    triedAt_ = clock_.TickMs();
    std::int32_t result = OpenPort();
    if (result == kWkSuccess) {
        try {
            result = Greet(patience, version);
        } catch (const PlatformError& failure) {  // pulled in the middle: nobody is left to answer
            portFailure_ = failure.what();
            result = kWkNoEcho;
        }
    }
    isOpen_ = result == kWkSuccess;
    isLost_ = false;
    if (isOpen_) {
        knownVersion_ = version;
    } else {
        port_->Close();
    }
    return result;
}

std::int32_t WinKey::OpenPort() {
    portFailure_.clear();
    port_->Close();
    try {
        port_->SetNumber(number_);
        port_->Open();
        return kWkSuccess;
    } catch (const PortOpenError& failure) {
        portFailure_ = failure.what();
        return failure.step == OpenStep::ReadSettings ? kWkNoSettings : kWkSettingsRefused;
    } catch (const PlatformError& failure) {
        portFailure_ = failure.what();
        return kWkNoPort;
    }
}

std::int32_t WinKey::Greet(const Patience& patience, std::uint8_t& version) {
    clock_.SleepUntil(clock_.TickMs() + patience.wakeUp);
    port_->Write(kReset);
    clock_.SleepUntil(clock_.TickMs() + patience.settle);
    port_->ReadAll();
    port_->Write(kEchoTest);
    const int echo = Answer(patience.answer);
    if (echo != kEchoed) {
        return echo < 0 ? kWkNoEcho : kWkWrongEcho;
    }
    port_->Write(kHostOpen);
    const int told = Answer(patience.answer);
    if (told < 0) {
        return kWkNoVersion;
    }
    version = static_cast<std::uint8_t>(told);
    return kWkSuccess;
}

int WinKey::Answer(Tick patience) {
    const Tick end = clock_.TickMs() + patience;
    while (true) {
        for (const char byte : port_->ReadAll()) {
            if (IsAnswer(static_cast<unsigned char>(byte))) {
                return byte;
            }
        }
        if (clock_.TickMs() >= end) {
            return -1;
        }
        clock_.SleepUntil(clock_.TickMs() + kBetweenLooks);
    }
}

std::int32_t WinKey::wk_close() {
    if (!isOpen_) {
        return kWkNotOpen;
    }
    if (!isLost_) {
        try {
            port_->Write(kHostClose);
        } catch (const PlatformError&) {
            // A device that has gone is closed.
        }
    }
    port_->Close();
    isOpen_ = false;
    Forget();
    return kWkSuccess;
}

void WinKey::Forget() {
    settings_.clear();
    isLost_ = false;
    isMute_ = false;
    isAsked_ = false;
    status_ = 0;
    busyUntil_ = 0;
}

std::int32_t WinKey::wk_getstatus() {
    if (isLost_) {
        TryToRecover();
    }
    if (!isOpen_ || isLost_) {
        return kWkNotOpen;
    }
    TakeWhatCame();
    AskStatus();
    const Microtick end = clock_.TickUs() + kLongestLookUs;
    while (isAsked_ && !isLost_ && clock_.TickUs() < end) {
        clock_.SleepUs(kLookAgainUs);
        TakeWhatCame();
    }
    if (isLost_) {
        return kWkNotOpen;
    }
    return status_ == 0 && !isMute_ && clock_.TickMs() < busyUntil_ ? kBusy : status_;
}

/// One question at a time: more of them would fill the line. One that was not answered in a second is asked anew, and
/// what was known does not count any more, so that a dead device holds nobody up.
void WinKey::AskStatus() {
    const Tick now = clock_.TickMs();
    if (isAsked_ && now - askedAt_ < kLongestSilence) {
        return;
    }
    if (isAsked_) {
        isMute_ = true;
        status_ = 0;
    }
    isAsked_ = Send({&kStatus, 1}) == kWkSuccess;
    askedAt_ = now;
}

/// Steps of the speed knob and echoes of characters are nobody's business here.
void WinKey::TakeWhatCame() {
    for (const char each : port_->ReadAll()) {
        const auto byte = static_cast<unsigned char>(each);
        if (IsStatus(byte)) {
            status_ = byte & kStatusBits;
            isAsked_ = false;
            isMute_ = false;
        }
    }
}

std::int32_t WinKey::Send(std::string_view bytes) {
    if (isLost_) {
        TryToRecover();
    }
    if (!isOpen_ || isLost_) {
        return kWkNotOpen;
    }
    try {
        port_->Write(bytes);
        return kWkSuccess;
    } catch (const PlatformError& failure) {
        portFailure_ = failure.what();
        Lose();
        return kWkNotOpen;
    }
}

void WinKey::Lose() {
    port_->Close();
    isLost_ = true;
    isAsked_ = false;
    status_ = 0;
    triedAt_ = clock_.TickMs();
}

/// Seldom, since an attempt takes its time where something else answers.
void WinKey::TryToRecover() {
    if (clock_.TickMs() - triedAt_ < kBetweenAttempts) {
        return;
    }
    std::uint8_t version = 0;
    const bool isBack = Open(PatienceHere(), version) == kWkSuccess;
    isOpen_ = true;  // for the program it never was anything else
    isLost_ = !isBack;
    for (const auto& [command, bytes] : settings_) {
        if (!isLost_) {
            Send(bytes);
        }
    }
}

std::int32_t WinKey::SendSetting(std::initializer_list<int> command) {
    std::string bytes;
    for (const int byte : command) {
        bytes += static_cast<char>(byte);
    }
    if (isOpen_) {
        settings_[bytes.front()] = bytes;
    }
    return Send(bytes);
}

std::int32_t WinKey::wk_char(int code) {
    if (!isOpen_) {
        return kWkNotOpen;
    }
    if (code < kFirstCharacter || code > kLastCharacter) {
        return kWkSuccess;
    }
    busyUntil_ = clock_.TickMs() + kUnawareOfCharacter;
    const char character = static_cast<char>(code);
    return Send({&character, 1});
}

std::int32_t WinKey::wk_clearbuf() {
    busyUntil_ = 0;
    return Send({&kClear, 1});
}

std::int32_t WinKey::wk_backspace() {
    return Send({&kBackspace, 1});
}

std::int32_t WinKey::wk_wpm(std::uint8_t speed) {
    return SendSetting({kSpeed, speed});
}

std::int32_t WinKey::wk_weight(std::uint8_t weight) {
    return SendSetting({kWeighting, weight});
}

std::int32_t WinKey::wk_ditdah_ratio(std::uint8_t ratio) {
    return SendSetting({kRatio, ratio});
}

std::int32_t WinKey::wk_ptt_leadtail(std::uint8_t leadIn, std::uint8_t tail) {
    return SendSetting({kLeadTail, leadIn, tail});
}

std::int32_t WinKey::wk_pincfg(std::uint8_t pins) {
    return SendSetting({kPins, pins});
}

std::int32_t WinKey::wk_setmode(std::uint8_t mode) {
    return SendSetting({kMode, mode});
}

}  // namespace tallyhut
