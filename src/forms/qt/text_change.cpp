#include "forms/qt/text_change.h"

#include <algorithm>

namespace tallyhut {

TextChange ChangeBetween(const QString& from, const QString& to) {
    const auto before = std::ranges::mismatch(from, to).in1 - from.begin();
    const qsizetype shorter = std::min(from.size(), to.size());
    qsizetype behind = 0;
    while (before + behind < shorter && from[from.size() - 1 - behind] == to[to.size() - 1 - behind]) {
        ++behind;
    }
    return {static_cast<int>(before), static_cast<int>(from.size() - before - behind),
            to.mid(before, to.size() - before - behind)};
}

}  // namespace tallyhut
