#include "contest/contact_record.h"

#include <array>

namespace tallyhut {
namespace {

/// The fields in file order. Reader and writer walk this list; nothing else knows the order.
constexpr std::array kFileOrder{&Contact::Ns,  &Contact::Nr,   &Contact::P,    &Contact::Call, &Contact::Ck,
                                &Contact::Sec, &Contact::Date, &Contact::Time, &Contact::Bnd,  &Contact::Frq};

}  // namespace

std::string WriteRecord(const Contact& contact) {
    RecordWriter record;
    WriteRecord(contact, record);
    return std::move(record).Result();
}

void WriteRecord(const Contact& contact, RecordWriter& writer) {
    for (const auto field : kFileOrder) {
        writer.Text(contact.*field);
    }
    writer.EndLine();
}

Contact ReadRecord(FieldReader& fields) {
    Contact contact;
    ReadRecord(fields, contact);
    return contact;
}

void ReadRecord(FieldReader& fields, Contact& contact) {
    for (const auto field : kFileOrder) {
        contact.*field = fields.TakeView();
    }
}

std::string ExchangeText(const Contact& contact) {
    return contact.Nr + ' ' + contact.P + ' ' + contact.Call + ' ' + contact.Ck + ' ' + contact.Sec;
}

}  // namespace tallyhut
