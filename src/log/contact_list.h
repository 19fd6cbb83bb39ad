#pragma once

#include <cstdint>

#include "contest/contest.h"
#include "forms/Form1.h"
#include "platform/clock.h"

namespace tallyhut {

/// The list of recent contacts.
struct ContactList {
    Form1& form;
    const Contest& contest;
    const Clock& clock;

    std::uint8_t gListAll = 0;  ///< 1 lists all contacts, 0 the last 20

    /// Rebuilds the list, the newest contact on top.
    void ListContacts();
    /// The log row that a row of the list shows; 0 when it shows none.
    std::int32_t LogRowAt(int listRow) const;

private:
    std::string CellText(std::int32_t logRow, std::size_t column) const;
};

}  // namespace tallyhut
