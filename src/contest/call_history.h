#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/call_key.h"

namespace tallyhut {

/// What a station has sent in earlier contests, as far as it is known.
struct KnownExchange {
    std::string check;    ///< two digits, or empty
    std::string section;  ///< as the file has it, in capitals; empty, or a word of up to four characters

    bool operator==(const KnownExchange&) const = default;
};

/// The exchanges of earlier contests by call.
class CallHistory {
public:
    std::size_t Count() const { return rows_.size(); }
    /// By the exact call.
    std::optional<KnownExchange> Find(std::string_view call) const;
    /// Sorted, each once.
    std::vector<CallKey> Calls() const;

    /// Rows come in the order of the file, and `Settle` behind the last one: of a call that stands twice the last row
    /// counts.
    void Add(CallKey call, std::string_view check, std::string_view section);
    void Settle();

private:
    struct Row {
        CallKey call = 0;
        std::array<char, 2> check = {};
        std::array<char, 4> section = {};  ///< zeros behind a shorter one
    };

    std::vector<Row> rows_;  ///< by call
};

/// Reads a call history: rows of fields between commas or semicolons, whichever stands behind the word "!!Order!!" of
/// the line that names the columns; of these Call, Sect and CK count, in either case, and State in a file that says
/// "!!MapStateToSect!!", where Sect is empty. Such a line may come again, with other columns from there on. Lines that
/// begin with '#' or with any other "!!" word are none, and rows may be shorter. Blanks around a field are none of it.
/// Of a year with four digits the last two are the check; what is no check and no section stays away.
///
/// Throws ValueError, saying why, where no line names the columns, or none of them is the call.
CallHistory ReadCallHistory(std::string_view fileBytes);

}  // namespace tallyhut
