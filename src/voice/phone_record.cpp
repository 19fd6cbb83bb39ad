#include "voice/phone_record.h"

#include "keying/line_record.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// In file order; nothing else knows it.
constexpr std::array<LineOf<PhoneRecord>, 13> kFileOrder{
    &PhoneRecord::Text1, &PhoneRecord::Text2,     &PhoneRecord::Text3,  &PhoneRecord::Text4, &PhoneRecord::Text5,
    &PhoneRecord::Text6, &PhoneRecord::Text7,     &PhoneRecord::Text8,  &PhoneRecord::Text9, &PhoneRecord::Text10,
    &PhoneRecord::line,  &PhoneRecord::txtPHLoop, &PhoneRecord::Text11,
};

}  // namespace

std::string WritePhoneRecord(const PhoneRecord& record) {
    return WriteLines(record, kFileOrder);
}

bool ReadPhoneRecord(std::string_view text, PhoneRecord& record) {
    FieldReader fields{text};
    try {
        for (const auto& field : kFileOrder) {
            ReadLine(fields, field, record);
        }
    } catch (const ValueError&) {
        return false;  // a short or damaged file is worth what could be read of it
    }
    return true;
}

}  // namespace tallyhut
