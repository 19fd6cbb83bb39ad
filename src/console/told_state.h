#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "app/program.h"

namespace tallyhut {

/// A number or a text of the program's state.
using ToldValue = std::variant<double, std::string>;

/// The value of a variable under its told name, "gBand" or "SectionQsos(16)"; nothing for a name that is none and for
/// an index beyond the table.
std::optional<ToldValue> FindToldValue(const Program& program, std::string_view nameAndIndex);

/// "Label10(3)" as "Label10" and 3; -1 where no index stands.
struct IndexedName {
    std::string_view name;
    int index = -1;
};
IndexedName SplitIndex(std::string_view nameAndIndex);

}  // namespace tallyhut
