#include "network/contact_ids.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "values/value_error.h"

namespace tallyhut {
namespace {

/// What a row of the file tells a contact by, in its order. The call is among it because two contacts may have one
/// serial number, date and time after an edit.
constexpr std::array kKey{&Contact::Ns, &Contact::Call, &Contact::Date, &Contact::Time};

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

}  // namespace

std::string IdOfCommit(const Contact& contact) {
    const std::string text = contact.Ns + '|' + contact.Date + '|' + contact.Time;
    return Hexadecimal(HashOf("1|" + text)) + Hexadecimal(HashOf("2|" + text));
}

std::string ContactIds::IdOf(const Contact& contact) const {
    try {
        return IdIn(Rows(), contact);
    } catch (const PlatformError&) {  // a contact with another name is told of all the same
        return IdOfCommit(contact);
    }
}

void ContactIds::Keep(const Contact& before, const Contact& after) {
    std::vector<Row> rows = Rows();
    const std::string id = IdIn(rows, before);
    if (IdIn(rows, after) == id) {
        return;
    }
    std::erase_if(rows, [&after](const Row& row) { return IsOf(row, after); });
    rows.push_back({after, id});
    RecordWriter records;
    for (const Row& row : rows) {
        for (const auto field : kKey) {
            records.Text(row.contact.*field);
        }
        records.Text(row.id).EndLine();
    }
    files.Replace(Path(), records.Result());
}

/// Those before a damaged one count.
std::vector<ContactIds::Row> ContactIds::Rows() const {
    std::vector<Row> rows;
    if (!files.FileExists(Path())) {
        return rows;
    }
    const std::string text = files.Read(Path());
    FieldReader fields{text};
    try {
        while (!fields.AtEnd()) {
            Row row;
            for (const auto field : kKey) {
                row.contact.*field = fields.Take();
            }
            row.id = fields.Take();
            rows.push_back(std::move(row));
        }
    } catch (const ValueError&) {  // the rest names no contact
    }
    return rows;
}

std::string ContactIds::IdIn(const std::vector<Row>& rows, const Contact& contact) {
    const auto row = std::ranges::find_if(rows, [&contact](const Row& each) { return IsOf(each, contact); });
    return row == rows.end() ? IdOfCommit(contact) : row->id;
}

bool ContactIds::IsOf(const Row& row, const Contact& contact) {
    return std::ranges::all_of(kKey, [&](auto field) { return row.contact.*field == contact.*field; });
}

}  // namespace tallyhut
