#include "network/contact_ids.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// What a row of the file tells a contact by, in its order. The call is among it because two contacts may have one
/// serial number, date and time.
constexpr std::array kKey{&Contact::Ns, &Contact::Call, &Contact::Date, &Contact::Time};
constexpr std::size_t kCallInKey = 1;

/// FNV-1a of 64 bits.
std::uint64_t HashOf(std::string_view text) {
    constexpr std::uint64_t kBasis = 0xCBF29CE484222325;
    constexpr std::uint64_t kPrime = 0x100000001B3;
    std::uint64_t hash = kBasis;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * kPrime;
    }
    return hash;
}

std::string Hexadecimal(std::uint64_t number) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    constexpr int kBitsADigit = 4;
    std::string text;
    for (int bits = 64 - kBitsADigit; bits >= 0; bits -= kBitsADigit) {
        text += kDigits[(number >> bits) & 0xF];
    }
    return text;
}

/// The name that a commit makes where so many like it are taken.
std::string NameOf(const Contact& contact, int taken) {
    const std::string count = taken == 0 ? "" : '|' + PlainText(taken);
    const std::string text = contact.Ns + '|' + contact.Date + '|' + contact.Time + count;
    return Hexadecimal(HashOf("1|" + text)) + Hexadecimal(HashOf("2|" + text));
}

/// Whether one before it in the log makes the same name. Within a second no edit brings a serial a second time, so that
/// the log is searched only for a contact that was entered afterwards, whose time has no seconds.
bool IsTwin(const ContactLog& log, std::int32_t row) {
    const Contact& contact = log.Row(row);
    if (contact.Time.size() > std::string_view{"hh:mm"}.size()) {
        return false;
    }
    for (std::int32_t n = 1; n < row; ++n) {
        const Contact& earlier = log.Row(n);
        if (earlier.Ns == contact.Ns && earlier.Date == contact.Date && earlier.Time == contact.Time) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string IdOfCommit(const Contact& contact) {
    return NameOf(contact, 0);
}

std::string ContactIds::IdOf(const Contact& contact) const {
    try {
        return IdIn(Rows(), contact);
    } catch (const PlatformError&) {  // a contact with another name is told of all the same
        return IdOfCommit(contact);
    }
}

void ContactIds::Add(const ContactLog& log, std::int32_t row) {
    Change([&log, row](std::vector<Row>& rows) {
        const Contact& contact = log.Row(row);
        Drop(rows, contact);
        Put(rows, contact, FreeName(rows, contact, IsTwin(log, row) ? 1 : 0));
    });
}

void ContactIds::Keep(const Contact& before, const Contact& after) {
    Change([&before, &after](std::vector<Row>& rows) {
        const std::string id = IdIn(rows, before);
        Drop(rows, before);
        Drop(rows, after);
        Put(rows, after, id);
    });
}

void ContactIds::Forget(const Contact& contact) {
    Change([&contact](std::vector<Row>& rows) { Drop(rows, contact); });
}

void ContactIds::ForgetAllBut(const ContactLog& log) {
    Change([&log](std::vector<Row>& rows) {
        std::erase_if(rows, [&log](const Row& row) {
            return std::ranges::none_of(log.CallsOf(row.key[kCallInKey]),
                                        [&](const CallOrder::Place& place) { return IsOf(row, log.Row(place.row)); });
        });
    });
}

/// Those before a damaged one count.
std::vector<ContactIds::Row> ContactIds::Rows() const {
    std::vector<Row> rows;
    if (!FileExists()) {
        return rows;
    }
    const std::string text = files.Read(Path());
    FieldReader fields{text};
    try {
        while (!fields.AtEnd()) {
            Row row;
            for (std::string& field : row.key) {
                field = fields.Take();
            }
            row.id = fields.Take();
            rows.push_back(std::move(row));
        }
    } catch (const ValueError&) {  // the rest names no contact
    }
    return rows;
}

template <typename Step>
void ContactIds::Change(const Step& step) {
    const std::vector<Row> before = Rows();
    std::vector<Row> rows = before;
    step(rows);
    if (rows == before) {
        return;
    }
    RecordWriter records;
    for (const Row& row : rows) {
        for (const std::string& field : row.key) {
            records.Text(field);
        }
        records.Text(row.id).EndLine();
    }
    files.Replace(Path(), records.Result());
}

std::string ContactIds::IdIn(const std::vector<Row>& rows, const Contact& contact) {
    const auto row = std::ranges::find_if(rows, [&contact](const Row& each) { return IsOf(each, contact); });
    return row == rows.end() ? FreeName(rows, contact, 0) : row->id;
}

std::string ContactIds::FreeName(const std::vector<Row>& rows, const Contact& contact, int taken) {
    std::string name = NameOf(contact, taken);
    while (std::ranges::find(rows, name, &Row::id) != rows.end()) {
        name = NameOf(contact, ++taken);
    }
    return name;
}

void ContactIds::Put(std::vector<Row>& rows, const Contact& contact, const std::string& id) {
    if (id == IdOfCommit(contact)) {
        return;
    }
    Row& row = rows.emplace_back(Row{.key = {}, .id = id});
    std::ranges::transform(kKey, row.key.begin(), [&contact](auto field) { return contact.*field; });
}

void ContactIds::Drop(std::vector<Row>& rows, const Contact& contact) {
    std::erase_if(rows, [&contact](const Row& row) { return IsOf(row, contact); });
}

bool ContactIds::IsOf(const Row& row, const Contact& contact) {
    return std::ranges::equal(row.key, kKey, {}, {}, [&contact](auto field) { return contact.*field; });
}

}  // namespace tallyhut
