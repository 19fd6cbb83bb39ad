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
    const ContactMoment moment = moments_[PlaceOf(n)];
    return moment == kNoMoment ? MomentReader{presentYear}.MomentOf(Row(n)) : moment;
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
        Refuse();
    }
    rows_.push_back(contact);
    TakeIn(rows_.size() - 1);
}

void ContactLog::AddAll(const std::function<bool(Contact&)>& next) {
    const std::size_t before = rows_.size();
    try {
        while (next(rows_.emplace_back())) {
            if (Rows() > kMostContacts) {
                Refuse();
            }
        }
    } catch (...) {
        rows_.pop_back();
        TakeIn(before);
        throw;
    }
    rows_.pop_back();
    TakeIn(before);
}

void ContactLog::Change(std::int32_t n, const std::function<void(Contact&)>& step) {
    Contact& row = rows_[PlaceOf(n)];
    Contact changed = row;
    step(changed);
    Forget(n);
    row = std::move(changed);
    moments_[PlaceOf(n)] = MomentReader{std::nullopt}.MomentOf(row).value_or(kNoMoment);
    counts_.Add(row);
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

void ContactLog::Refuse() {
    refused_ = true;
    RefuseRow();
}

void ContactLog::TakeIn(std::size_t first) {
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
