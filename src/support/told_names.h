#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "values/date_time.h"

namespace tallyhut {

/// "Label10(3)" as "Label10" and 3; -1 where no index stands.
struct IndexedName {
    std::string_view name;
    int index = -1;
};
IndexedName SplitIndex(std::string_view nameAndIndex);

/// The program's state by the names that scripts know it under. Each part adds its own; nothing is copied, and a value
/// is read when it is asked for.
class ToldNames {
public:
    /// A number or a text.
    using Value = std::variant<double, std::string>;

    /// A variable, which must outlive the names. A moment is told as its text, empty before it was first set.
    template <typename Variable>
    requires(!std::is_invocable_v<Variable>) void Add(std::string name, const Variable& variable) {
        values_.insert_or_assign(std::move(name), [&variable] { return Told(variable); });
    }
    /// What a function says.
    template <typename Function>
    requires std::is_invocable_v<Function>
    void Add(std::string name, Function value) {
        values_.insert_or_assign(std::move(name), [value] { return Told(value()); });
    }
    /// A table: the function gives an entry's value, nothing for an index beyond the table.
    void AddTable(std::string name, std::function<std::optional<Value>(int index)> entry);

    /// The value of "gBand" or "SectionQsos(16)"; nothing for a name that is none and for an index beyond the table.
    std::optional<Value> Find(std::string_view nameAndIndex) const;

    /// A number as it prints, a text as it stands, a moment as "2026-11-07T21:04:33".
    template <typename Variable>
    static Value Told(const Variable& variable) {
        if constexpr (std::is_same_v<Variable, bool>) {
            return variable ? 1.0 : 0.0;
        } else if constexpr (std::is_arithmetic_v<Variable>) {
            return AsItPrints(variable);
        } else if constexpr (std::is_same_v<Variable, DateTime>) {
            return MomentText(variable);
        } else {
            return std::string{variable};
        }
    }

private:
    static double AsItPrints(double number);
    static double AsItPrints(float number);
    template <typename Whole>
    requires std::is_integral_v<Whole>
    static double AsItPrints(Whole number) { return static_cast<double>(number); }
    static std::string MomentText(const DateTime& moment);

    std::map<std::string, std::function<Value()>, std::less<>> values_;
    std::map<std::string, std::function<std::optional<Value>(int)>, std::less<>> tables_;
};

}  // namespace tallyhut
