#include "spots/cluster_text.h"

#include <algorithm>
#include <array>
#include <utility>

#include "spots/terminal_text.h"
#include "values/text.h"

namespace tallyhut {
namespace {

// Commands of the Telnet protocol.
constexpr unsigned char kSubnegotiationEnds = 0xF0;
constexpr unsigned char kSubnegotiation = 0xFA;
constexpr unsigned char kFirstWithOption = 0xFB;  ///< WILL, WONT, DO and DONT
constexpr unsigned char kCommand = 0xFF;

constexpr std::size_t kLongestInside = 512;
constexpr std::string_view kInPlaceOfSecret = "****";

struct PromptRow {
    std::string_view text;
    ClusterPrompt prompt;
};

constexpr std::array<PromptRow, kClusterPrompts> kPrompts{{
    {"LOGIN:", ClusterPrompt::Login},
    {"CALL:", ClusterPrompt::Call},
    {"CALLSIGN:", ClusterPrompt::Callsign},
    {"PASSWORD:", ClusterPrompt::Password},
}};
constexpr std::string_view kNoPrompt = "LAST LOGIN:";  ///< the begin of a banner's line

bool IsLetterOrDigit(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
}

bool IsSameLetter(char one, char other) {
    const auto upper = [](char letter) { return letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter; };
    return upper(one) == upper(other);
}

/// What a text begins with of a secret.
struct Begun {
    std::size_t ofText = 0;
    std::size_t ofSecret = 0;
};

Begun BegunWith(std::string_view text, std::string_view secret) {
    Begun begun;
    while (begun.ofText < text.size() && begun.ofSecret < secret.size()) {
        const char character = text[begun.ofText];
        if (IsSameLetter(character, secret[begun.ofSecret])) {
            ++begun.ofSecret;
        } else if (begun.ofSecret == 0 || !IsControl(character)) {
            break;
        }
        ++begun.ofText;
    }
    return begun;
}

}  // namespace

void ClusterText::Add(std::string_view bytes) {
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (place_ != Place::Text) {
            TakeCommand(byte);
        } else if (byte == kCommand) {
            place_ = Place::Command;
        } else if (character != '\0') {
            AddText(character);
        }
    }
}

void ClusterText::TakeCommand(unsigned char byte) {
    switch (place_) {
        case Place::Command:
            place_ = Place::Text;
            if (byte == kCommand) {  // twice it is a byte of the text
                AddText(static_cast<char>(byte));
            } else if (byte == kSubnegotiation) {
                place_ = Place::Inside;
                inside_ = 0;
            } else if (byte >= kFirstWithOption) {
                place_ = Place::Option;
            }
            return;
        case Place::Inside:
            // Where it does not end it was none, and the text behind it must not be lost for good.
            ++inside_;
            place_ = byte == kCommand ? Place::InsideCommand : (inside_ < kLongestInside ? Place::Inside : Place::Text);
            return;
        case Place::InsideCommand:
            place_ = byte == kSubnegotiationEnds ? Place::Text : Place::Inside;
            return;
        default:
            place_ = Place::Text;
    }
}

void ClusterText::AddText(char character) {
    const bool endsBoth = character == '\n' && std::exchange(wasCarriageReturn_, false);
    if (endsBoth) {
        return;
    }
    wasCarriageReturn_ = character == '\r';
    if (character == '\r' || character == '\n') {
        whole_.push_back(std::exchange(begun_, {}));
        isTooLong_ = false;
    } else if (!isTooLong_) {
        begun_ += character;
        if (begun_.size() > kLongestLine) {
            isTooLong_ = true;
            begun_.clear();
        }
    }
}

bool ClusterText::Take(std::string& line) {
    if (whole_.empty()) {
        return false;
    }
    line = std::move(whole_.front());
    whole_.pop_front();
    return true;
}

void ClusterText::EndUnfinished() {
    begun_.clear();
}

std::optional<ClusterPrompt> PromptIn(std::string_view unfinished) {
    const std::string tail = UpperCase(TrimEnd(unfinished));
    for (const PromptRow& row : kPrompts) {
        const std::size_t before = tail.size() - std::min(row.text.size(), tail.size());
        const bool isWord = before == 0 || !IsLetterOrDigit(tail[before - 1]);
        if (tail.ends_with(row.text) && isWord && !tail.ends_with(kNoPrompt)) {
            return row.prompt;
        }
    }
    return std::nullopt;
}

bool EndsInside(std::string_view line) {
    return TrimEnd(line).ends_with('>');
}

std::string WithoutSecret(std::string_view text, std::string_view secret, bool isFinished) {
    std::string shown;
    while (!text.empty()) {
        const Begun begun = BegunWith(text, secret);
        const bool isWhole = !secret.empty() && begun.ofSecret == secret.size();
        if (isWhole) {
            shown += kInPlaceOfSecret;
        } else if (begun.ofText == text.size() && !isFinished) {
            break;
        } else {
            shown += text.front();
        }
        text.remove_prefix(isWhole ? begun.ofText : 1);
    }
    return shown;
}

}  // namespace tallyhut
