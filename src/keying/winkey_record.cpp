#include "keying/winkey_record.h"

#include <array>
#include <variant>

#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Text = std::string WinKeyRecord::*;
using Byte = std::uint8_t WinKeyRecord::*;

/// In file order; nothing else knows it.
constexpr std::array<std::variant<Text, Byte>, 8> kFileOrder{
    &WinKeyRecord::gWKPort, &WinKeyRecord::txtWKWPM, &WinKeyRecord::txtWeight,    &WinKeyRecord::txtLeadIn,
    &WinKeyRecord::txtTail, &WinKeyRecord::txtRatio, &WinKeyRecord::gWKPinConfig, &WinKeyRecord::gWKMode,
};
constexpr std::size_t kFirstOptional = 6;

}  // namespace

std::string WriteWinKeyRecord(const WinKeyRecord& record) {
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

bool ReadWinKeyRecord(std::string_view text, WinKeyRecord& record) {
    FieldReader fields{text};
    try {
        for (std::size_t line = 0; line < kFileOrder.size(); ++line) {
            if (line >= kFirstOptional && fields.AtEnd()) {
                break;
            }
            if (const Text* member = std::get_if<Text>(&kFileOrder.at(line))) {
                record.** member = fields.Take();
            } else {
                record.*std::get<Byte>(kFileOrder.at(line)) = fields.TakeByte();
            }
        }
    } catch (const ValueError&) {
        return false;
    }
    return true;
}

}  // namespace tallyhut
