#pragma once

#include <cstdint>
#include <stdexcept>
#include <vector>

#include "contest/contact_record.h"

namespace tallyhut {

/// A contact beyond the last row of the tables.
struct LogFullError : std::out_of_range {
    using std::out_of_range::out_of_range;
};

/// The contacts in memory. The row number is a contact's identity: contact n is row n, from 1 to gContactCount.
struct ContactLog {
    static constexpr std::int32_t kMostContacts = 11'000;

    std::int32_t gContactCount = 0;
    float gSavedCount = 0;  ///< the first count above 0 that a reload of this run has found
    std::string gFrq;       ///< frequency text from the rig for the next contact; empty without a rig

    /// Any row from 1 to kMostContacts, also one that holds no contact; throws LogFullError beyond.
    Contact& Row(std::int32_t n) {
        ++rowsLent_;
        return rows_[Checked(n)];
    }
    const Contact& Row(std::int32_t n) const { return rows_[Checked(n)]; }
    const Contact& Last() const { return Row(gContactCount); }

    /// The serial number that the next contact will be sent. Throws ValueError when the last one is no number.
    double NextSerial() const;

    /// How often a row was lent out to be written. While it and the count are what they were, the contacts are too.
    std::uint64_t RowsLent() const { return rowsLent_; }

private:
    static std::size_t Checked(std::int32_t n);

    std::uint64_t rowsLent_ = 0;
    std::vector<Contact> rows_ = std::vector<Contact>(kMostContacts + 1);  // row 0 is never used
};

}  // namespace tallyhut
