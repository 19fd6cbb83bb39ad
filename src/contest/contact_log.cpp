#include "contest/contact_log.h"

#include <limits>

#include "values/number.h"

namespace tallyhut {
namespace {

constexpr ContactMoment kNoMoment = std::numeric_limits<ContactMoment>::min();

[[noreturn]] void RefuseRow() {
    throw LogFullError{"The log holds " + PlainText(ContactLog::kMostContacts) + " contacts and no more."};
}

}  // namespace

const Contact& ContactLog::Row(std::int32_t n) const {
    static const Contact kNone;
    if (n < 1 || n > kMostContacts) {
        RefuseRow();
    }
    return n <= Rows() ? rows_[static_cast<std::size_t>(n - 1)] : kNone;
}

double ContactLog::NextSerial() const {
    return rows_.empty() ? 1 : TrimmedNumber(Last().Ns) + 1;
}

std::optional<ContactMoment> ContactLog::MomentOf(std::int32_t n, int presentYear) const {
    const Contact& contact = Row(n);
    const ContactMoment moment = n <= Rows() ? moments_[PlaceOf(n)] : kNoMoment;
    return moment == kNoMoment ? MomentReader{presentYear}.MomentOf(contact) : moment;
}

std::span<const CallOrder::Place> ContactLog::CallsBeginning(std::string_view begin) const {
    return order_.Beginning(rows_, begin);
}

std::span<const CallOrder::Place> ContactLog::CallsOf(std::string_view call) const {
    return order_.Of(rows_, call);
}

void ContactLog::Clear() {
    refused_ = false;
    changes_ += rows_.size();
    rows_.clear();
    moments_.clear();
    counts_.Clear();
    order_.Clear();
}

void ContactLog::Add(const Contact& contact) {
    if (Rows() >= kMostContacts) {
        refused_ = true;
        RefuseRow();
    }
    rows_.push_back(contact);
    TakeIn();
}

void ContactLog::AddAll(const std::function<bool()>& hasMore, const std::function<void(Contact&)>& take) {
    struct Taken {
        ContactLog& log;
        std::size_t whole;  ///< rows that have been taken to their end

        ~Taken() {  // whatever the source throws
            log.rows_.resize(whole);
            log.TakeIn();
        }
    };
    Taken taken{*this, rows_.size()};
    while (hasMore()) {
        refused_ = true;  // until it stands in its row
        if (Rows() >= kMostContacts) {
            RefuseRow();
        }
        take(rows_.emplace_back());
        taken.whole = rows_.size();
        refused_ = false;
    }
}

void ContactLog::Change(std::int32_t n, const std::function<void(Contact&)>& step) {
    const std::size_t place = PlaceOf(n);
    Contact changed = rows_[place];
    step(changed);
    Forget(n);
    rows_[place] = std::move(changed);
    moments_[place] = MomentReader{std::nullopt}.MomentOf(rows_[place]).value_or(kNoMoment);
    counts_.Add(rows_[place]);
    order_.Add(rows_, n);
    ++changes_;
}

void ContactLog::Remove(std::int32_t n) {
    const auto place = static_cast<std::ptrdiff_t>(PlaceOf(n));
    Forget(n);
    order_.CloseUp(n);
    rows_.erase(rows_.begin() + place);
    moments_.erase(moments_.begin() + place);
    ++changes_;
}

std::size_t ContactLog::PlaceOf(std::int32_t n) const {
    if (n < 1 || n > Rows()) {
        RefuseRow();
    }
    return static_cast<std::size_t>(n - 1);
}

void ContactLog::TakeIn() {
    const std::size_t first = moments_.size();
    MomentReader reader{std::nullopt};
    for (std::size_t place = first; place < rows_.size(); ++place) {
        moments_.push_back(reader.MomentOf(rows_[place]).value_or(kNoMoment));
        counts_.Add(rows_[place]);
    }
    order_.Extend(rows_);
    changes_ += rows_.size() - first;
}

void ContactLog::Forget(std::int32_t n) {
    order_.Drop(rows_, n);
    counts_.Drop(rows_[PlaceOf(n)]);
}

std::optional<ContactMoment> MomentAsFarAsWritten(const ContactLog& log, std::int32_t n, int presentYear) {
    const std::optional<ContactMoment> moment = log.MomentOf(n, presentYear);
    return moment ? moment : MomentAsFarAsWritten(log.Row(n), presentYear);
}

}  // namespace tallyhut
