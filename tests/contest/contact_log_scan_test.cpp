// What the log keeps beside its rows, held against a plain look at all of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

#include "contest/contact_log.h"
#include "contest/off_time.h"
#include "contest/rates.h"
#include "contest/worked_before.h"
#include "values/date_time.h"
#include "values/format.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr DateTime kNow{2026, 11, 8, 20, 0, 0};

/// Any operation on a log, and the contacts that must stand in it then.
class RandomLog {
public:
    void Operate() {
        const int kind = Below(100);
        if (kind < 55 || plain.empty()) {
            Commit();
        } else if (kind < 75) {
            Edit();
        } else if (kind < 95) {
            Delete();
        } else if (kind < 97) {
            Reload();
        } else if (kind < 98) {
            ReloadOfADamagedFile();
        } else {
            Restore();
        }
    }

    int Below(int limit) { return std::uniform_int_distribution<int>{0, limit - 1}(random_); }

    /// Of few letters, so that many are alike, begin alike, or are longer than eight characters.
    std::string Call() {
        std::string call{"KWN"[Below(3)]};
        const int length = Below(12);
        for (int n = 0; n < length; ++n) {
            call += "12AB/"[Below(5)];
        }
        return call;
    }

    ContactLog log;
    std::vector<Contact> plain;

private:
    Contact AnyContact() {
        const DateTime at = AddSeconds(kNow, -Below(7'200));
        Contact contact;
        contact.Call = Call();
        contact.Sec = std::vector<std::string>{"MDC", "EMA", "GTA", "XX"}.at(static_cast<std::size_t>(Below(4)));
        contact.Bnd = std::vector<std::string>{"160", "80", "40", "6", ""}.at(static_cast<std::size_t>(Below(5)));
        contact.Date = FormatDateTime(at, Below(20) == 0 ? "mm/dd/yyyy" : "yyyy/mm/dd");
        if (const int odd = Below(200); odd < 4) {
            contact.Date =
                std::vector<std::string>{"11/8", "2/29", "someday", "1826/11/07"}.at(static_cast<std::size_t>(odd));
        }
        contact.Time = Below(200) == 0 ? "" : FormatDateTime(at, "hh:mm:ss");
        return contact;
    }

    std::int32_t AnyRow() { return Below(static_cast<int>(plain.size())) + 1; }

    void Commit() {
        plain.push_back(AnyContact());
        log.Add(plain.back());
    }
    void Edit() {
        const std::int32_t row = AnyRow();
        Contact& contact = plain.at(static_cast<std::size_t>(row - 1));
        contact = AnyContact();
        log.Change(row, [&contact](Contact& changed) { changed = contact; });
    }
    void Delete() {
        const std::int32_t row = AnyRow();
        plain.erase(plain.begin() + (row - 1));
        log.Remove(row);
    }
    void Read(std::size_t contacts, bool thenThrows) {
        std::size_t n = 0;
        log.Clear();
        log.AddAll([&] { return n < contacts || thenThrows; },
                   [&](Contact& contact) {
                       contact = n < contacts ? plain.at(n) : AnyContact();
                       if (n++ == contacts) {
                           throw ValueError{"damaged"};
                       }
                   });
    }
    void Reload() { Read(plain.size(), false); }
    /// The program ends behind it; until then those before the damage are there.
    void ReloadOfADamagedFile() {
        plain.resize(static_cast<std::size_t>(Below(static_cast<int>(plain.size()) + 1)));
        EXPECT_THROW(Read(plain.size(), true), ValueError);
        EXPECT_EQ(log.gContactCount(), static_cast<std::int32_t>(plain.size()) + 1);
        Reload();
    }
    /// Mostly of a small log, at times of one in which more calls begin alike than a list has room for.
    void Restore() {
        plain.resize(static_cast<std::size_t>(Below(Below(100) == 0 ? 5'000 : 400)));
        std::ranges::generate(plain, [this] { return AnyContact(); });
        Reload();
    }

    std::mt19937 random_{20'261'107};
};

std::int32_t ScannedFirst(const std::vector<Contact>& contacts, const std::string& call) {
    const auto found = std::ranges::find(contacts, call, &Contact::Call);
    return found == contacts.end() ? 0 : static_cast<std::int32_t>(found - contacts.begin()) + 1;
}

std::string ScannedPartials(const std::vector<Contact>& contacts, const std::string& begin) {
    std::string list;
    for (const Contact& contact : contacts) {
        if (list.size() <= 125 && contact.Call.starts_with(begin)) {
            list.insert(0, contact.Call + ' ');
        }
    }
    return list;
}

BandCounts ScannedCounts(const std::vector<Contact>& contacts, const std::function<bool(const Contact&)>& counts) {
    BandCounts scanned{};
    for (const Contact& contact : contacts) {
        for (std::size_t band = 0; band < kCountedBands.size(); ++band) {
            scanned.at(band) += contact.Bnd == kCountedBands.at(band) && counts(contact) ? 1 : 0;
        }
    }
    return scanned;
}

std::vector<ContestMinute> ScannedMinutes(const std::vector<Contact>& contacts, int presentYear) {
    std::vector<ContestMinute> minutes;
    for (const Contact& contact : contacts) {
        const auto date = ParseDate(contact.Date, presentYear);
        const auto time = ParseTime(contact.Time);
        if (date && time) {
            minutes.push_back(MinuteOf(*date) + MinuteOf(*time));
        }
    }
    std::ranges::sort(minutes);
    return minutes;
}

std::optional<Rates> ScannedRates(const std::vector<Contact>& contacts) {
    Rates rates;
    for (auto contact = contacts.rbegin(); contact != contacts.rend(); ++contact) {
        const auto at = ParseDateTime(contact->Date + ' ' + contact->Time, kNow.year);
        if (!at) {
            return std::nullopt;
        }
        const std::int64_t age = SecondsBetween(*at, kNow);
        rates.lastTwentyMinutes += age < 1'200 ? 3 : 0;
        if (age >= 3'600) {
            break;
        }
        ++rates.lastHour;
    }
    return rates;
}

TEST(ContactLogScan, AHundredThousandOperationsLeaveWhatAScanFinds) {
    constexpr int kOperations = 100'000;
    RandomLog random;
    std::size_t most = 0;
    for (int n = 0; n < kOperations; ++n) {
        random.Operate();
        const std::vector<Contact>& plain = random.plain;
        ASSERT_EQ(random.log.gContactCount(), static_cast<std::int32_t>(plain.size())) << n;
        const std::string call = random.Call();
        ASSERT_EQ(WorkedBefore(random.log, call).value_or(0), ScannedFirst(plain, call)) << n << ' ' << call;
        ASSERT_EQ(PartialCalls(random.log, call), ScannedPartials(plain, call)) << n << ' ' << call;
        most = std::max(most, random.log.CallsBeginning("W").size());
        if (n % 50 == 0) {
            ASSERT_EQ(RatesAt(kNow, random.log), ScannedRates(plain)) << n;
            ASSERT_EQ(random.log.Counts().OfAll(), ScannedCounts(plain, [](const Contact&) { return true; })) << n;
            for (const char* section : {"MDC", "EMA", "GTA", "XX", "none"}) {
                ASSERT_EQ(random.log.Counts().OfSection(section),
                          ScannedCounts(plain, [&](const Contact& contact) { return contact.Sec == section; }))
                    << n << section;
            }
            const int presentYear = kNow.year + random.Below(2);
            ASSERT_EQ(MinutesOf(random.log, presentYear), ScannedMinutes(plain, presentYear)) << n;
        }
    }
    EXPECT_GT(most, 512U) << "many calls that begin alike are looked for in another way";
}

}  // namespace
}  // namespace tallyhut
