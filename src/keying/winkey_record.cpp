#include "keying/winkey_record.h"

#include "keying/line_record.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// In file order; nothing else knows it.
constexpr std::array<LineOf<WinKeyRecord>, 8> kFileOrder{
    &WinKeyRecord::gWKPort, &WinKeyRecord::txtWKWPM, &WinKeyRecord::txtWeight,    &WinKeyRecord::txtLeadIn,
    &WinKeyRecord::txtTail, &WinKeyRecord::txtRatio, &WinKeyRecord::gWKPinConfig, &WinKeyRecord::gWKMode,
};
constexpr std::size_t kFirstOptional = 6;

}  // namespace

std::string WriteWinKeyRecord(const WinKeyRecord& record) {
    return WriteLines(record, kFileOrder);
}

bool ReadWinKeyRecord(std::string_view text, WinKeyRecord& record) {
    FieldReader fields{text};
    try {
        for (std::size_t line = 0; line < kFileOrder.size(); ++line) {
            if (line >= kFirstOptional && fields.AtEnd()) {
                break;
            }
            ReadLine(fields, kFileOrder.at(line), record);
        }
    } catch (const ValueError&) {
        return false;
    }
    return true;
}

}  // namespace tallyhut
