#pragma once

#include <QString>

namespace tallyhut {

/// What makes one text out of another: at one place something goes, and something comes.
struct TextChange {
    int at = 0;       ///< characters that stand before it
    int removed = 0;  ///< characters
    QString inserted;

    bool operator==(const TextChange&) const = default;
};

/// The smallest such change.
TextChange ChangeBetween(const QString& from, const QString& to);

}  // namespace tallyhut
