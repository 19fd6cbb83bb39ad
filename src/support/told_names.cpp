#include "support/told_names.h"

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {

IndexedName SplitIndex(std::string_view nameAndIndex) {
    const std::size_t open = nameAndIndex.find('(');
    if (open == std::string_view::npos || nameAndIndex.back() != ')') {
        return {.name = nameAndIndex};
    }
    const std::string_view inside = nameAndIndex.substr(open + 1, nameAndIndex.size() - open - 2);
    const bool digits =
        !inside.empty() && inside.size() < 7 && inside.find_first_not_of("0123456789") == std::string_view::npos;
    if (!digits) {
        return {.name = nameAndIndex};
    }
    return {.name = nameAndIndex.substr(0, open), .index = ToInt32(TrimmedNumber(inside))};
}

void ToldNames::AddTable(std::string name, std::function<std::optional<Value>(int)> entry) {
    tables_.insert_or_assign(std::move(name), std::move(entry));
}

std::optional<ToldNames::Value> ToldNames::Find(std::string_view nameAndIndex) const {
    const IndexedName asked = SplitIndex(nameAndIndex);
    if (asked.index < 0) {
        const auto found = values_.find(asked.name);
        return found == values_.end() ? std::nullopt : std::optional{found->second()};
    }
    const auto table = tables_.find(asked.name);
    return table == tables_.end() ? std::nullopt : table->second(asked.index);
}

double ToldNames::AsItPrints(double number) {
    return TrimmedNumber(PlainText(number));
}

double ToldNames::AsItPrints(float number) {
    return TrimmedNumber(PlainText(number));
}

std::string ToldNames::MomentText(const DateTime& moment) {
    if (moment == DateTime{}) {
        return "";
    }
    return FormatDateTime(moment, "yyyy-mm-dd") + 'T' + FormatDateTime(moment, "hh:nn:ss");
}

}  // namespace tallyhut
