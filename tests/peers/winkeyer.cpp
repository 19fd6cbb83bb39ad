#include "tests/peers/winkeyer.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tallyhut {
namespace {

using namespace std::chrono_literals;

constexpr auto kByteTime = 9167us;  // 11 bits at 1200 baud
constexpr auto kBetweenLooks = 300us;

/// Parameters of the commands 00 to 1F. The first one of 00 says how many more there are, and 16 has a second one but
/// for 0.
constexpr std::array<std::size_t, 0x20> kParameters{1, 1, 1, 1, 2, 3, 1, 0, 0, 1, 0, 1, 1, 1, 1, 15,
                                                    1, 1, 1, 0, 1, 0, 1, 1, 1, 1, 1, 2, 1, 1, 0, 0};
constexpr std::array<std::size_t, 0x1A> kAdminParameters{1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0,
                                                         0, 1, 1, 0, 0, 0, 2, 0, 0, 1, 0, 0, 1};
constexpr std::size_t kMemory = 256;  // what loading it takes

enum Command : char {
    kAdmin = 0x00,
    kSpeed = 0x02,
    kAskKnob = 0x07,
    kBackspace = 0x08,
    kClear = 0x0A,
    kTune = 0x0B,
    kMode = 0x0E,
    kAskStatus = 0x15,
    kPointer = 0x16,
};
enum Admin : char { kReset = 0x01, kHostOpen = 0x02, kHostClose = 0x03, kEchoTest = 0x04, kLoadMemory = 0x0D };

constexpr unsigned char kStatusTag = 0xC0;
constexpr unsigned char kXoff = 0x01;
constexpr unsigned char kBreakIn = 0x02;
constexpr unsigned char kBusy = 0x04;
constexpr unsigned char kTuning = 0x18;  // key down, and a timed wait
constexpr unsigned char kKnobTag = 0x80;
constexpr unsigned char kEchoMode = 0x04;
constexpr char kFirstCharacter = 0x20;

constexpr std::array<std::string_view, 26> kLetters{
    ".-", "-...", "-.-.", "-..",  ".",   "..-.", "--.", "....", "..",   ".---", "-.-",  ".-..", "--",
    "-.", "---",  ".--.", "--.-", ".-.", "...",  "-",   "..-",  "...-", ".--",  "-..-", "-.--", "--.."};
constexpr std::array<std::string_view, 10> kDigits{"-----", ".----", "..---", "...--", "....-",
                                                   ".....", "-....", "--...", "---..", "----."};
constexpr std::string_view kSign = "-...-";  // prosigns and punctuation: about as long

constexpr int kGap = 3;      // units behind a letter
constexpr int kWordGap = 4;  // and so many more for a blank
constexpr int kDah = 3;

/// With the gap behind it.
int UnitsOf(char character) {
    if (character == ' ') {
        return kWordGap;
    }
    std::string_view pattern = kSign;
    if (character >= 'A' && character <= 'Z') {
        pattern = kLetters.at(static_cast<std::size_t>(character - 'A'));
    } else if (character >= '0' && character <= '9') {
        pattern = kDigits.at(static_cast<std::size_t>(character - '0'));
    }
    int units = kGap - 1;
    for (const char element : pattern) {
        units += 1 + (element == '-' ? kDah : 1);
    }
    return units;
}

}  // namespace

void Winkeyer::Hear(unsigned char byte, Moment now) {
    Run(now);
    const char character = static_cast<char>(byte);
    if (command_.empty() && byte >= kFirstCharacter) {
        heard_ += character;
        if (isOpen_ && byte < kKnobTag) {
            TakeCharacter(character, now);
        }
    } else {
        command_ += character;
        if (Owed() == 0) {
            Obey(now);
            command_.clear();
        }
    }
    Report(now);
}

/// Parameters that the command at hand still lacks.
std::size_t Winkeyer::Owed() const {
    std::size_t all = 1 + kParameters.at(static_cast<unsigned char>(command_[0]));
    if (command_.size() > 1) {
        const auto first = static_cast<unsigned char>(command_[1]);
        if (command_[0] == kAdmin && first < kAdminParameters.size()) {
            all += first == kLoadMemory ? kMemory : kAdminParameters.at(first);
        } else if (command_[0] == kPointer && first != 0) {
            ++all;
        }
    }
    return all > command_.size() ? all - command_.size() : 0;
}

void Winkeyer::Obey(Moment now) {
    if (command_[0] != kAskStatus) {
        heard_ += command_;
    }
    if (command_[0] == kAdmin) {
        ObeyAdmin(now);
        return;
    }
    if (!isOpen_) {
        return;
    }
    switch (command_[0]) {
        case kSpeed:
            speed_ = static_cast<unsigned char>(command_[1]);
            break;
        case kAskKnob:
            TurnKnob(0);
            break;
        case kBackspace:
            if (!buffer_.empty()) {
                buffer_.pop_back();
            }
            break;
        case kClear:
            buffer_.clear();
            isLetterCleared_ = letter_.has_value();
            break;
        case kTune:
            isTuning_ = command_[1] != 0;
            break;
        case kMode:
            mode_ = static_cast<unsigned char>(command_[1]);
            break;
        case kAskStatus:
            words_ += noise;
            lastStatus_ = Status();
            lastStatusAt_ = now;
            Say(lastStatus_);
            break;
        default:
            break;  // settings that nobody sees from here
    }
}

void Winkeyer::ObeyAdmin(Moment now) {
    switch (command_[1]) {
        case kEchoTest:
            if (answersEchoTest) {
                Say(static_cast<unsigned char>(echoesWhatItShould ? command_[2] : command_[2] + 1));
            }
            break;
        case kHostOpen:
            Empty();
            isOpen_ = true;
            lastStatus_ = Status();
            lastStatusAt_ = now;
            if (answersOpen) {
                Say(version);
            }
            break;
        case kReset:
        case kHostClose:
            Empty();
            isOpen_ = false;
            break;
        default:
            break;
    }
}

void Winkeyer::Empty() {
    buffer_.clear();
    letter_.reset();
    speed_ = 0;
    mode_ = 0;
    isTuning_ = false;
    paddleUntil_.reset();
}

void Winkeyer::LosePower() {
    Empty();
    command_.clear();
    words_.clear();
    isOpen_ = false;
}

void Winkeyer::TakeCharacter(char character, Moment now) {
    characters_.push_back(
        {.at = now, .character = character, .lastStatus = lastStatus_, .statusToldAt = lastStatusAt_});
    if (paddleUntil_) {
        return;
    }
    if (buffer_.size() >= bufferSize) {
        ++overflows_;
        return;
    }
    buffer_ += character;
    if (!letter_) {
        BeginLetter(now);
    }
}

void Winkeyer::BeginLetter(Moment at) {
    letter_ = buffer_.front();
    buffer_.erase(0, 1);
    letterEnds_ = at + Units(UnitsOf(*letter_));
    isLetterCleared_ = false;
}

void Winkeyer::EndLetter() {
    keyed_ += *letter_;
    if ((mode_ & kEchoMode) != 0) {
        Say(static_cast<unsigned char>(*letter_));
    }
    letter_.reset();
    if (!buffer_.empty()) {
        BeginLetter(letterEnds_);
    }
}

void Winkeyer::Run(Moment now) {
    if (paddleUntil_ && *paddleUntil_ <= now) {
        paddleUntil_.reset();
    }
    while (letter_ && letterEnds_ <= now) {
        EndLetter();
        Report(now);
    }
    Report(now);
}

Winkeyer::Duration Winkeyer::Units(int units) const {
    return units * std::chrono::duration_cast<Duration>(1200ms) / (speed_ == 0 ? knobSpeed : speed_);
}

unsigned char Winkeyer::Status() const {
    if (holding) {
        return *holding;
    }
    const bool hasNoRoom = 3 * buffer_.size() > 2 * bufferSize;
    const bool isBusy = (letter_ && !isLetterCleared_) || paddleUntil_;
    unsigned char status = kStatusTag;
    for (const auto& [isSet, bits] : {std::pair{hasNoRoom, kXoff}, std::pair{paddleUntil_.has_value(), kBreakIn},
                                      std::pair{isBusy, kBusy}, std::pair{isTuning_, kTuning}}) {
        status = isSet ? static_cast<unsigned char>(status | bits) : status;
    }
    return status;
}

/// Every change is told.
void Winkeyer::Report(Moment now) {
    if (isOpen_ && Status() != lastStatus_) {
        lastStatus_ = Status();
        lastStatusAt_ = now;
        Say(lastStatus_);
    }
}

void Winkeyer::Say(unsigned char byte) {
    words_ += static_cast<char>(byte);
}

std::string Winkeyer::TakeWords() {
    std::string words = std::exchange(words_, {});
    return isMute ? std::string{} : words;
}

void Winkeyer::LeaveOpenAndSending(std::string_view text, Moment now) {
    isOpen_ = true;
    mode_ = kEchoMode;
    buffer_ = text;
    BeginLetter(now);
    Report(now);
}

void Winkeyer::UsePaddle(Duration length, Moment now) {
    buffer_.clear();
    letter_.reset();
    paddleUntil_ = now + length;
    Report(now);
}

void Winkeyer::TurnKnob(unsigned char step) {
    Say(kKnobTag | step);
}

KeyerCable::KeyerCable() : thread_{[this] { Live(); }} {}

KeyerCable::~KeyerCable() {
    over_ = true;
    thread_.join();
}

void KeyerCable::Live() {
    while (!over_) {
        {
            const std::lock_guard held{mutex_};
            Carry(std::chrono::steady_clock::now());
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
}

void KeyerCable::Carry(Winkeyer::Moment now) {
    if (terminal_) {
        const std::string given = terminal_->Receive();
        std::ranges::transform(given, std::back_inserter(given_),
                               [now](char byte) { return TimedByte{.due = now, .byte = byte}; });
        Queue(toKeyer_, toKeyerFree_, given, now);
    }
    while (!toKeyer_.empty() && toKeyer_.front().due <= now) {
        const TimedByte next = toKeyer_.front();
        toKeyer_.pop_front();
        keyer_.Hear(static_cast<unsigned char>(next.byte), next.due);
        if (--bytesToPull_ == 0) {
            terminal_.reset();
            toKeyer_.clear();
        }
    }
    keyer_.Run(now);
    Queue(fromKeyer_, fromKeyerFree_, keyer_.TakeWords(), now);
    while (!fromKeyer_.empty() && fromKeyer_.front().due <= now) {
        if (terminal_) {
            terminal_->Send({fromKeyer_.front().byte});
        }
        fromKeyer_.pop_front();
    }
}

void KeyerCable::Queue(std::deque<TimedByte>& line, Winkeyer::Moment& free, std::string_view bytes,
                       Winkeyer::Moment now) {
    for (const char byte : bytes) {
        free = std::max(free, now) + kByteTime;
        line.push_back({.due = free, .byte = byte});
    }
}

std::string KeyerCable::Path() {
    const std::lock_guard held{mutex_};
    return path_;
}

void KeyerCable::Pull() {
    const std::lock_guard held{mutex_};
    terminal_.reset();
    toKeyer_.clear();
}

void KeyerCable::PutBack() {
    const std::lock_guard held{mutex_};
    bytesToPull_ = std::numeric_limits<std::size_t>::max();
    toKeyer_.clear();
    fromKeyer_.clear();
    terminal_ = std::make_unique<PseudoTerminal>();
    path_ = terminal_->Path();
}

void KeyerCable::PullBehind(std::size_t bytes) {
    const std::lock_guard held{mutex_};
    bytesToPull_ = bytes;
}

std::optional<Winkeyer::Moment> KeyerCable::FirstGiven(char byte, Winkeyer::Moment since) {
    const std::lock_guard held{mutex_};
    const auto first =
        std::ranges::find_if(given_, [&](const TimedByte& each) { return each.byte == byte && each.due >= since; });
    return first == given_.end() ? std::nullopt : std::optional{first->due};
}

}  // namespace tallyhut
