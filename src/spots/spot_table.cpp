#include "spots/spot_table.h"

#include <algorithm>

namespace tallyhut {

void SpotTable::Shift() {
    std::copy(rows_.begin() + 1, rows_.begin() + kNewest + 1, rows_.begin());
}

std::optional<int> SpotTable::NewestRowWith(std::string_view word) const {
    const std::string between = ' ' + std::string{word} + ' ';
    for (int i = kNewest; i >= 0; --i) {
        if (Row(i).SpotText.find(between) != std::string::npos) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace tallyhut
