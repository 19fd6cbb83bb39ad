#include "spots/terminal_text.h"

#include <algorithm>
#include <utility>

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kMostShown = 10'000;
constexpr std::size_t kKept = 9'000;
constexpr std::size_t kLongestLine = 65'536;
constexpr std::size_t kLongerThanDoubled = 4;

bool IsLineEnd(char character) {
    return character == '\r' || character == '\n';
}

std::string WithWholeLineEnds(std::string_view data) {
    std::string text;
    for (const char character : data) {
        if (IsLineEnd(character)) {
            text += kLineEnd;
        } else {
            text += character;
        }
    }
    return text;
}

std::string PlainTextOf(std::string_view data, bool isMonitoring) {
    std::string plain = WithWholeLineEnds(data);
    if (isMonitoring) {
        if (const std::size_t end = plain.find('\n'); end != std::string::npos) {
            plain.erase(0, end + 1);
        }
        plain = Trim(plain);
    }
    if (plain == kLineEnd) {
        plain.clear();
    }
    const std::string doubled = std::string{kLineEnd} + std::string{kLineEnd};
    if (plain.size() > kLongerThanDoubled && plain.ends_with(doubled)) {
        plain.resize(plain.size() - kLineEnd.size());
    }
    return plain;
}

}  // namespace

bool IsControl(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 32 || (code >= 127 && code < 160);
}

std::string ShownText(std::string_view bytes) {
    std::string shown{bytes};
    std::ranges::replace_if(
        shown, [](char character) { return IsControl(character) && !IsLineEnd(character); }, ' ');
    return shown;
}

std::string WithText(std::string_view terminal, std::string_view text) {
    std::string all{terminal};
    all += text;
    if (all.size() > kMostShown) {
        all.erase(0, all.size() - kKept);
    }
    return all;
}

void ReceivedLines::Add(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view part = bytes.substr(0, end);
        begun_ += part.substr(0, kLongestLine - begun_.size());
        bytes.remove_prefix(part.size());
        if (end != std::string_view::npos) {
            whole_.push_back(std::exchange(begun_, {}) + '\n');
            bytes.remove_prefix(1);
        }
    }
}

bool ReceivedLines::Take(std::string& line) {
    if (whole_.empty()) {
        return false;
    }
    line = std::move(whole_.front());
    whole_.pop_front();
    return true;
}

void ReceivedLines::Forget() {
    whole_.clear();
    begun_.clear();
}

FrameTexts TextsOf(char kind, std::string_view call, std::string_view data, bool isMonitoring) {
    std::string full{kind};
    full.append(call).append(1, ' ').append(data);
    return {.full = WithWholeLineEnds(full), .plain = PlainTextOf(data, isMonitoring)};
}

}  // namespace tallyhut
