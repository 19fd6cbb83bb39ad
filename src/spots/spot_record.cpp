#include "spots/spot_record.h"

#include <array>
#include <variant>

#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Text = std::string SpotRecord::*;
using Byte = std::uint8_t SpotRecord::*;
using Truth = bool SpotRecord::*;

/// In file order; nothing else knows it.
constexpr std::array<std::variant<Text, Byte, Truth>, 14> kFileOrder{
    &SpotRecord::baud,        &SpotRecord::parity,      &SpotRecord::dataBits,  &SpotRecord::stopBits,
    &SpotRecord::commPort,    &SpotRecord::power,       &SpotRecord::type,      &SpotRecord::convertsToHex,
    &SpotRecord::handshaking, &SpotRecord::listsDxOnly, &SpotRecord::showsList, &SpotRecord::commandCharacter,
    &SpotRecord::telnetPort,  &SpotRecord::telnetHost,
};

}  // namespace

std::string WriteSpotRecord(const SpotRecord& record) {
    RecordWriter writer;
    for (const auto& field : kFileOrder) {
        if (const Text* text = std::get_if<Text>(&field)) {
            writer.Text(record.**text);
        } else if (const Byte* byte = std::get_if<Byte>(&field)) {
            writer.Number(record.**byte);
        } else {
            writer.Truth(record.*std::get<Truth>(field));
        }
        writer.EndLine();
    }
    return writer.Result();
}

bool ReadSpotRecord(std::string_view text, SpotRecord& record) {
    FieldReader fields{text};
    try {
        for (const auto& field : kFileOrder) {
            if (const Text* member = std::get_if<Text>(&field)) {
                record.** member = fields.Take();
            } else if (const Byte* byte = std::get_if<Byte>(&field)) {
                record.** byte = fields.TakeByte();
            } else {
                record.*std::get<Truth>(field) = fields.TakeTruth();
            }
        }
    } catch (const ValueError&) {
        return false;  // a short or damaged file is worth what could be read of it
    }
    return true;
}

}  // namespace tallyhut
