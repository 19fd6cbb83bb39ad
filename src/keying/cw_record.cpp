#include "keying/cw_record.h"

#include <array>
#include <variant>

#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Text = std::string CwRecord::*;
using Byte = std::uint8_t CwRecord::*;

/// In file order; nothing else knows it.
constexpr std::array<std::variant<Text, Byte>, 18> kFileOrder{
    &CwRecord::Text1,  &CwRecord::Text2,  &CwRecord::Text3,     &CwRecord::Text4,    &CwRecord::Text5,
    &CwRecord::Text6,  &CwRecord::Text7,  &CwRecord::Text8,     &CwRecord::Text9,    &CwRecord::Text10,
    &CwRecord::Text11, &CwRecord::Text12, &CwRecord::Text13,    &CwRecord::txtSpace, &CwRecord::gCWKeying,
    &CwRecord::Text14, &CwRecord::Check1, &CwRecord::txtCWLoop,
};

constexpr std::string_view kTestMessage = "VVV DE ";

}  // namespace

std::string WriteCwRecord(const CwRecord& record) {
    RecordWriter writer;
    for (const auto& field : kFileOrder) {
        if (const Text* text = std::get_if<Text>(&field)) {
            writer.Text(record.**text).EndLine();
        } else {
            writer.Number(record.*std::get<Byte>(field)).EndLine();
        }
    }
    return writer.Result();
}

bool ReadCwRecord(std::string_view text, CwRecord& record) {
    FieldReader fields{text};
    try {
        for (const auto& field : kFileOrder) {
            if (const Byte* byte = std::get_if<Byte>(&field)) {
                record.** byte = fields.TakeByte();
                continue;
            }
            const Text member = std::get<Text>(field);
            record.*member = fields.Take();
            if (member == &CwRecord::Text9 && record.Text9.empty()) {
                record.Text9 = kTestMessage;
            }
        }
    } catch (const ValueError&) {
        return false;  // a short or damaged file is worth what could be read of it
    }
    return true;
}

}  // namespace tallyhut
