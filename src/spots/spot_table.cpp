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

std::unordered_map<std::string, int> SpotTable::NewestRows() const {
    std::unordered_map<std::string, int> rows;
    for (int i = kNewest; i >= 0; --i) {
        const std::string_view text = Row(i).SpotText;
        for (std::size_t blank = text.find(' '); blank != std::string_view::npos;) {
            const std::size_t next = text.find(' ', blank + 1);
            if (next != std::string_view::npos && next > blank + 1) {
                rows.emplace(text.substr(blank + 1, next - blank - 1), i);
            }
            blank = next;
        }
    }
    return rows;
}

}  // namespace tallyhut
