#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "contest/contact_record.h"

namespace tallyhut {

/// The rows of a table in the order of their calls, those of one call with the oldest first: all that begin alike stand
/// together. It holds no calls; whoever has the table lends it to each question. Row n is entry n-1.
class CallOrder {
public:
    struct Place {
        std::uint64_t head;  ///< the call's first eight characters as a number, which has the order of the texts
        std::int32_t row;
    };
    using Rows = std::span<const Contact>;

    void Clear() { places_.clear(); }
    /// Takes in the rows that stand behind those it knows.
    void Extend(Rows rows);
    /// Takes in a row that it does not know; no other changes its number.
    void Add(Rows rows, std::int32_t row);
    /// Forgets a row, which must still have the call it came with; no other changes its number.
    void Drop(Rows rows, std::int32_t row);
    /// A row has left the table: those behind it have moved up.
    void CloseUp(std::int32_t row);

    /// Those whose calls begin so. The longer call stands behind the shorter.
    std::span<const Place> Beginning(Rows rows, std::string_view begin) const;
    /// Those of this call, to the letter.
    std::span<const Place> Of(Rows rows, std::string_view call) const;

private:
    std::vector<Place> places_;
};

}  // namespace tallyhut
