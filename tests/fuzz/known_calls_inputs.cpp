#include "tests/fuzz/known_calls_inputs.h"

#include <algorithm>

#include "contest/call_history.h"
#include "contest/known_calls.h"
#include "contest/super_check.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

bool AreCallsInOrder(const std::vector<CallKey>& calls) {
    return std::ranges::adjacent_find(calls, std::ranges::greater_equal{}) == calls.end() &&
           std::ranges::all_of(calls, [](CallKey call) { return KeyOfCall(CallOfKey(call)) == call; });
}

bool TakesHistory(std::string_view bytes) try {
    const CallHistory history = ReadCallHistory(bytes);
    const std::vector<CallKey> calls = history.Calls();
    return calls.size() == history.Count() && AreCallsInOrder(calls) &&
           std::ranges::all_of(calls, [&history](CallKey call) {
               const auto exchange = history.Find(CallOfKey(call));
               return exchange && exchange->check.size() % 2 == 0 && exchange->section.size() <= 4;
           });
} catch (const ValueError&) {
    return true;
}

bool TakesList(std::string_view bytes) try {
    constexpr std::size_t kLineLength = 125;
    const SuperCheck list = ReadSuperCheck(bytes);
    static const ContactLog log;
    const KnownCalls known{list.Calls()};
    const std::string typed{bytes.substr(0, 2)};
    return AreCallsInOrder(list.Calls()) && SuperCheckLine(list, typed, log).size() <= kLineLength &&
           std::ranges::all_of(list.Calls(), [&](CallKey key) {
               const std::string call = CallOfKey(key);
               const auto found = list.Holding(call, list.Count());
               return known.Knows(call) && !found.empty() && found.front() == call &&
                      !SuperCheckLine(list, call, log).empty();
           });
} catch (const ValueError&) {
    return true;
}

}  // namespace

bool TakesKnownCallsInput(std::string_view bytes) {
    return TakesHistory(bytes) && TakesList(bytes);
}

}  // namespace tallyhut
