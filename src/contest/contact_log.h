#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "contest/call_order.h"
#include "contest/contact_counts.h"
#include "contest/contact_moment.h"
#include "contest/contact_record.h"

namespace tallyhut {

/// A contact beyond the last row of the tables.
struct LogFullError : std::out_of_range {
    using std::out_of_range::out_of_range;
};

/// The contacts in memory. The row number is a contact's identity: contact n is row n, from 1 to gContactCount.
///
/// What is asked for with every key and every second is kept beside the rows: their order by call, their moments, their
/// counts. The few procedures that change a row keep all of it right; none other can.
struct ContactLog {
    static constexpr std::int32_t kMostContacts = 11'000;

    float gSavedCount = 0;  ///< the first count above 0 that a reload of this run has found
    std::string gFrq;       ///< frequency text from the rig for the next contact; empty without a rig

    /// One more than there are rows behind a contact that the tables have refused.
    std::int32_t gContactCount() const { return Rows() + (refused_ ? 1 : 0); }
    /// Any row from 1 to kMostContacts, also one that holds no contact; throws LogFullError beyond.
    const Contact& Row(std::int32_t n) const;
    /// Those that there are, the oldest first.
    std::span<const Contact> Contacts() const { return rows_; }
    const Contact& Last() const { return Row(gContactCount()); }

    /// The serial number that the next contact will be sent. Throws ValueError when the last one is no number.
    double NextSerial() const;

    /// When the contact of a row was; a date that bears no year is one of the present year. Nothing where its date or
    /// time is none. Rows are those of Row.
    std::optional<ContactMoment> MomentOf(std::int32_t n, int presentYear) const;
    const ContactCounts& Counts() const { return counts_; }
    // What these two and Contacts give holds until the next change.
    /// The places of the contacts whose calls begin so, in the order of the calls.
    std::span<const CallOrder::Place> CallsBeginning(std::string_view begin) const;
    /// The places of the contacts with this call, to the letter, the oldest first.
    std::span<const CallOrder::Place> CallsOf(std::string_view call) const;

    /// Forgets all contacts.
    void Clear();
    /// The contact becomes the last one. Throws LogFullError; it counts all the same then.
    void Add(const Contact& contact);
    /// Takes all contacts that a source has. What it throws leaves those before it; the one that it was at is refused
    /// then, and so is one beyond the tables, which throws LogFullError: it counts all the same. The source asks
    /// nothing of the log.
    ///
    /// @param hasMore  whether it has another contact
    /// @param take     puts it into what it is given
    void AddAll(const std::function<bool()>& hasMore, const std::function<void(Contact&)>& take);
    /// Changes the contact of a row; nothing has changed when the step throws. Throws LogFullError for a row without
    /// one.
    void Change(std::int32_t n, const std::function<void(Contact&)>& step);
    /// Takes a contact out; those behind it move up. Throws LogFullError for a row without one.
    void Remove(std::int32_t n);

    /// How often contacts have changed: each contact added, changed or taken out counts once, a refused one never.
    /// While it is what it was, so are the contacts.
    std::uint64_t Changes() const { return changes_; }

private:
    /// For a full table, so that no contact has to wait until all others have been moved. Memory that nobody has
    /// written to is none yet.
    template <typename Value>
    static std::vector<Value> WithRoom() {
        std::vector<Value> values;
        values.reserve(kMostContacts + 1);
        return values;
    }

    std::int32_t Rows() const { return static_cast<std::int32_t>(rows_.size()); }
    std::size_t PlaceOf(std::int32_t n) const;
    /// Of the rows that are new: all that is kept beside them.
    void TakeIn();
    /// Of a row that is about to change or go.
    void Forget(std::int32_t n);

    std::uint64_t changes_ = 0;
    bool refused_ = false;
    std::vector<Contact> rows_ = WithRoom<Contact>();
    std::vector<ContactMoment> moments_ =
        WithRoom<ContactMoment>();  ///< of each row; kNoMoment where its date bears no year, or it has none
    ContactCounts counts_;
    CallOrder order_;
};

/// MomentOf; but a date that stands alone is midnight, a time that stands alone lies on the zero date.
std::optional<ContactMoment> MomentAsFarAsWritten(const ContactLog& log, std::int32_t n, int presentYear);

}  // namespace tallyhut
