#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "values/date_time.h"

namespace tallyhut {

/// One post. A row that was never used has frequency 0, as one that the operator has taken off the map.
struct Spot {
    std::string SpotCall = {};  ///< as received
    float SpotFreq = 0;         ///< MHz
    DateTime SpotTime = {};     ///< local, by the machine's clock when the post came
    std::string SpotPrefix = {};
    std::string SpotText = {};  ///< the comment with the section, blanks around each word
    std::string spotter = {};   ///< who has posted it, as SpotterOf has it
};

/// The posts of late: row 49 the newest, row 0 the oldest. The last two rows of the table are never used.
struct SpotTable {
    static constexpr int kRows = 52;
    static constexpr int kNewest = 49;

    std::string SpotStatus;  ///< of the newest row alone: "Needed!" or empty. It does not move on with the row

    Spot& Row(int i) { return rows_.at(static_cast<std::size_t>(i)); }
    const Spot& Row(int i) const { return rows_.at(static_cast<std::size_t>(i)); }
    Spot& Newest() { return Row(kNewest); }
    const Spot& Newest() const { return Row(kNewest); }

    /// Moves every post one row on; the oldest falls off. The newest row keeps what it holds until it is written to.
    void Shift();
    /// The newest row whose text has the word between blanks; nothing where none has.
    std::optional<int> NewestRowWith(std::string_view word) const;
    /// The same of every word of all texts, in one pass over them; only a word that holds a blank itself is missing.
    std::unordered_map<std::string, int> NewestRows() const;

private:
    std::array<Spot, kRows> rows_;
};

}  // namespace tallyhut
