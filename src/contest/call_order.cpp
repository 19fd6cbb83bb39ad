#include "contest/call_order.h"

#include <algorithm>
#include <tuple>

namespace tallyhut {
namespace {

using Place = CallOrder::Place;
using Rows = CallOrder::Rows;

constexpr std::size_t kHead = 8;
constexpr unsigned kBitsOfCharacter = 8;

/// A shorter text counts as if NUL characters stood behind it, which neither a text box nor the reader of a file lets
/// into a call.
std::uint64_t HeadOf(std::string_view text) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < kHead; ++i) {
        head = head << kBitsOfCharacter | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    }
    return head;
}

/// The greatest head of those that begin so.
std::uint64_t LastHeadOf(std::string_view begin) {
    const std::size_t free = kHead - std::min(begin.size(), kHead);
    return HeadOf(begin) | (free == 0 ? 0 : ~std::uint64_t{0} >> kBitsOfCharacter * (kHead - free));
}

std::string_view Tail(std::string_view text) {
    return text.substr(std::min(text.size(), kHead));
}

const std::string& CallOf(Rows rows, std::int32_t row) {
    return rows[static_cast<std::size_t>(row - 1)].Call;
}

auto InOrder(Rows rows) {
    return [rows](const Place& one, const Place& other) {
        if (one.head != other.head) {
            return one.head < other.head;
        }
        return std::tuple{Tail(CallOf(rows, one.row)), one.row} < std::tuple{Tail(CallOf(rows, other.row)), other.row};
    };
}

}  // namespace

void CallOrder::Extend(Rows rows) {
    const auto known = static_cast<std::int32_t>(places_.size());
    const auto count = static_cast<std::int32_t>(rows.size());
    if (known + 1 == count) {
        Add(rows, count);
        return;
    }
    places_.reserve(rows.size());
    for (std::int32_t row = known + 1; row <= count; ++row) {
        places_.push_back({.head = HeadOf(CallOf(rows, row)), .row = row});
    }
    std::ranges::sort(places_, InOrder(rows));
}

void CallOrder::Add(Rows rows, std::int32_t row) {
    const Place added{.head = HeadOf(CallOf(rows, row)), .row = row};
    places_.insert(std::ranges::lower_bound(places_, added, InOrder(rows)), added);
}

void CallOrder::Drop(Rows rows, std::int32_t row) {
    const Place dropped{.head = HeadOf(CallOf(rows, row)), .row = row};
    places_.erase(std::ranges::lower_bound(places_, dropped, InOrder(rows)));
}

void CallOrder::CloseUp(std::int32_t row) {
    for (Place& place : places_) {
        place.row -= place.row > row ? 1 : 0;
    }
}

std::span<const Place> CallOrder::Beginning(Rows rows, std::string_view begin) const {
    const auto first = std::ranges::lower_bound(places_, HeadOf(begin), {}, &Place::head);
    const auto last = std::ranges::upper_bound(first, places_.end(), LastHeadOf(begin), {}, &Place::head);
    const std::span<const Place> heads{first, last};
    const std::string_view tail = Tail(begin);
    if (tail.empty()) {
        return heads;
    }
    const auto isBefore = [rows, tail](const Place& place) { return Tail(CallOf(rows, place.row)) < tail; };
    const auto from = std::ranges::partition_point(heads, isBefore);
    const auto to = std::ranges::partition_point(from, heads.end(), [rows, tail](const Place& place) {
        return Tail(CallOf(rows, place.row)).starts_with(tail);
    });
    return {from, to};
}

std::span<const Place> CallOrder::Of(Rows rows, std::string_view call) const {
    const std::span<const Place> begun = Beginning(rows, call);
    const auto end = std::ranges::partition_point(
        begun, [rows, call](const Place& place) { return CallOf(rows, place.row).size() == call.size(); });
    return {begun.begin(), end};
}

}  // namespace tallyhut
