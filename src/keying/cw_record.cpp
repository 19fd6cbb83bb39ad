#include "keying/cw_record.h"

#include "keying/line_record.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// In file order; nothing else knows it.
constexpr std::array<LineOf<CwRecord>, 18> kFileOrder{
    &CwRecord::Text1,  &CwRecord::Text2,  &CwRecord::Text3,     &CwRecord::Text4,    &CwRecord::Text5,
    &CwRecord::Text6,  &CwRecord::Text7,  &CwRecord::Text8,     &CwRecord::Text9,    &CwRecord::Text10,
    &CwRecord::Text11, &CwRecord::Text12, &CwRecord::Text13,    &CwRecord::txtSpace, &CwRecord::gCWKeying,
    &CwRecord::Text14, &CwRecord::Check1, &CwRecord::txtCWLoop,
};

constexpr std::string_view kTestMessage = "VVV DE ";

}  // namespace

std::string WriteCwRecord(const CwRecord& record) {
    return WriteLines(record, kFileOrder);
}

bool ReadCwRecord(std::string_view text, CwRecord& record) {
    FieldReader fields{text};
    try {
        for (const auto& field : kFileOrder) {
            ReadLine(fields, field, record);
            if (field == LineOf<CwRecord>{&CwRecord::Text9} && record.Text9.empty()) {
                record.Text9 = kTestMessage;
            }
        }
    } catch (const ValueError&) {
        return false;  // a short or damaged file is worth what could be read of it
    }
    return true;
}

}  // namespace tallyhut
