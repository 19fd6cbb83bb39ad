#include "contest/worked_before.h"

#include <algorithm>
#include <vector>

namespace tallyhut {
namespace {

/// The calls of a list, the oldest last. It takes calls until it is longer than that.
class PartialList {
public:
    bool IsFull() const { return length_ > kLength; }
    void Add(const std::string& call) {
        calls_.push_back(&call);
        length_ += call.size() + 1;
    }
    std::string Text() const {
        std::string text(length_, ' ');
        auto end = text.end();
        for (const std::string* call : calls_) {
            end = std::copy_backward(call->begin(), call->end(), end - 1);
        }
        return text;
    }

private:
    static constexpr std::size_t kLength = 125;

    std::vector<const std::string*> calls_;
    std::size_t length_ = 0;
};

/// Of a few calls: their rows, the oldest first, as far as they are needed.
std::string ListOf(const ContactLog& log, std::span<const CallOrder::Place> places) {
    std::vector<std::int32_t> rows(places.size());
    std::ranges::transform(places, rows.begin(), &CallOrder::Place::row);
    PartialList list;
    auto next = rows.begin();
    for (auto sorted = next; next != rows.end() && !list.IsFull(); ++next) {
        if (next == sorted) {
            constexpr std::ptrdiff_t kUsual = 32;
            sorted += std::min(kUsual, rows.end() - sorted);
            std::partial_sort(next, sorted, rows.end());
        }
        list.Add(log.Contacts()[static_cast<std::size_t>(*next - 1)].Call);
    }
    return list.Text();
}

/// Where many calls begin so, enough of them mostly stand not far from the begin of the log. Nothing where they do not.
std::optional<std::string> ListFromOldest(const ContactLog& log, std::string_view begin) {
    constexpr std::size_t kLooks = 1'000;
    PartialList list;
    for (const Contact& contact : log.Contacts().first(std::min(log.Contacts().size(), kLooks))) {
        if (contact.Call.starts_with(begin)) {
            list.Add(contact.Call);
            if (list.IsFull()) {
                return list.Text();
            }
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::int32_t> WorkedBefore(const ContactLog& log, std::string_view call) {
    const auto places = log.CallsOf(call);
    return places.empty() ? std::nullopt : std::optional{places.front().row};
}

std::string PartialCalls(const ContactLog& log, std::string_view begin) {
    constexpr std::size_t kMany = 512;
    const auto places = log.CallsBeginning(begin);
    const auto near = places.size() > kMany ? ListFromOldest(log, begin) : std::nullopt;
    return near ? *near : ListOf(log, places);
}

bool HasCallAreaDigit(std::string_view firstThree) {
    const auto numeric = [](char character) { return character >= '/' && character <= '9'; };
    return numeric(firstThree[1]) || numeric(firstThree[2]);
}

}  // namespace tallyhut
