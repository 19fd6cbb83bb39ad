#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "values/text_file.h"

namespace tallyhut {

/// A line of a settings file with one value a line, text quoted and numbers bare: the member that it holds.
template <typename Record>
using LineOf = std::variant<std::string Record::*, std::uint8_t Record::*>;

/// The text of the file, CR LF included, in the order of the lines.
template <typename Record, std::size_t Count>
std::string WriteLines(const Record& record, const std::array<LineOf<Record>, Count>& order) {
    RecordWriter writer;
    for (const LineOf<Record>& line : order) {
        if (const auto* text = std::get_if<std::string Record::*>(&line)) {
            writer.Text(record.**text).EndLine();
        } else {
            writer.Number(record.*std::get<std::uint8_t Record::*>(line)).EndLine();
        }
    }
    return writer.Result();
}

/// Takes the next line into its member. Throws ValueError where it cannot be taken.
template <typename Record>
void ReadLine(FieldReader& fields, const LineOf<Record>& line, Record& record) {
    if (const auto* text = std::get_if<std::string Record::*>(&line)) {
        record.** text = fields.Take();
    } else {
        record.*std::get<std::uint8_t Record::*>(line) = fields.TakeByte();
    }
}

}  // namespace tallyhut
