#include "contest/super_check.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "contest/call_digits.h"
#include "contest/worked_before.h"
#include "values/text_lines.h"
#include "values/utf8.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLineLength = 125;
constexpr std::size_t kShortestCall = 3;
constexpr std::size_t kPairs = kCallBase * kCallBase;

/// Which pair the two characters at a place are; nothing where one of them is in no call.
std::optional<std::size_t> PairAt(std::string_view text, std::size_t at) {
    const CallKey first = DigitOf(text[at]);
    const CallKey second = DigitOf(text[at + 1]);
    return first == 0 || second == 0 ? std::nullopt : std::optional<std::size_t>{first * kCallBase + second};
}

/// "VER20261101"
bool IsVersion(std::string_view call) {
    constexpr std::size_t kLength = 11;
    return call.size() == kLength && call.starts_with("VER") &&
           call.find_first_not_of("0123456789", 3) == std::string_view::npos;
}

std::optional<CallKey> CallInLine(std::string_view line) {
    const std::optional<CallKey> key = line.starts_with('#') ? std::nullopt : KeyOfListedCall(line);
    const std::string call = key ? CallOfKey(*key) : "";
    return call.size() < kShortestCall || IsVersion(call) ? std::nullopt : key;
}

}  // namespace

SuperCheck::SuperCheck(std::vector<CallKey> calls) : calls_{std::move(calls)} {
    if (!std::ranges::is_sorted(calls_)) {
        std::ranges::sort(calls_);
    }
    calls_.erase(std::unique(calls_.begin(), calls_.end()), calls_.end());
    begins_.reserve(calls_.size() + 1);
    for (const CallKey call : calls_) {
        begins_.push_back(static_cast<std::uint32_t>(text_.size()));
        text_ += CallOfKey(call);
    }
    begins_.push_back(static_cast<std::uint32_t>(text_.size()));
    IndexPairs();
}

std::string_view SuperCheck::Call(Place place) const {
    return std::string_view{text_}.substr(begins_[place], begins_[place + 1] - begins_[place]);
}

/// A text of any length is then looked for among the calls with the rarest of its pairs, of which there are few.
void SuperCheck::IndexPairs() {
    const auto forEachPair = [this](const auto& take) {
        for (Place place = 0; place < calls_.size(); ++place) {
            const std::string_view call = Call(place);
            for (std::size_t at = 0; at + 1 < call.size(); ++at) {
                take(*PairAt(call, at), place);
            }
        }
    };
    std::vector<std::uint32_t> counts(kPairs + 1);
    forEachPair([&counts](std::size_t pair, Place) { ++counts[pair + 1]; });
    std::partial_sum(counts.begin(), counts.end(), counts.begin());
    pairs_ = counts;
    withPair_.resize(pairs_.back());
    forEachPair([this, &counts](std::size_t pair, Place place) { withPair_[counts[pair]++] = place; });
}

std::vector<std::string_view> SuperCheck::Holding(std::string_view text, std::size_t most) const {
    std::vector<std::string_view> found;
    if (calls_.empty() || text.size() < 2) {
        return found;
    }
    AddBeginning(text, most, found);
    AddHolding(text, most, found);
    return found;
}

void SuperCheck::AddBeginning(std::string_view text, std::size_t most, std::vector<std::string_view>& found) const {
    const auto first = std::ranges::lower_bound(calls_, KeyOfCall(text).value_or(~CallKey{0}));
    for (auto place = static_cast<Place>(first - calls_.begin());
         place < calls_.size() && found.size() < most && Call(place).starts_with(text); ++place) {
        found.push_back(Call(place));
    }
}

void SuperCheck::AddHolding(std::string_view text, std::size_t most, std::vector<std::string_view>& found) const {
    std::size_t rarest = 0;
    std::uint32_t fewest = ~std::uint32_t{0};
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const std::optional<std::size_t> pair = PairAt(text, at);
        if (!pair) {
            return;
        }
        const std::uint32_t count = pairs_[*pair + 1] - pairs_[*pair];
        if (count < fewest) {
            fewest = count;
            rarest = *pair;
        }
    }
    std::optional<Place> before;  // a call that holds a pair twice stands there twice
    for (std::uint32_t at = pairs_[rarest]; at < pairs_[rarest + 1] && found.size() < most; ++at) {
        const Place place = withPair_[at];
        const std::size_t held = place == before ? std::string_view::npos : Call(place).find(text);
        if (held != std::string_view::npos && held > 0) {
            found.push_back(Call(place));
        }
        before = place;
    }
}

SuperCheck ReadSuperCheck(std::string_view fileBytes) {
    std::string room;
    std::vector<CallKey> calls;
    for (TextLines lines{PlainBytesOf(fileBytes, room)}; !lines.AtEnd();) {
        if (const std::optional<CallKey> call = CallInLine(lines.Take())) {
            calls.push_back(*call);
        }
    }
    if (calls.empty()) {
        throw ValueError{"It is no list of calls: no line of it holds a call."};
    }
    return SuperCheck{std::move(calls)};
}

std::string SuperCheckLine(const SuperCheck& calls, std::string_view typed, const ContactLog& log) {
    constexpr std::size_t kMostInLine = (kLineLength + 1) / (kShortestCall + 1);
    const std::vector<std::string_view> found = calls.Holding(typed, kMostInLine);
    std::string line;
    for (const std::string_view each : found) {
        const std::string call{each};
        const std::string shown = (line.empty() ? "" : " ") + (WorkedBefore(log, call) ? '[' + call + ']' : call);
        if (line.size() + shown.size() > kLineLength) {
            break;
        }
        line += shown;
    }
    return line;
}

}  // namespace tallyhut
