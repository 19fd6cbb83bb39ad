#include "rig/rig_settings.h"

#include "values/text.h"
#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::size_t kBaudWidth = 5;

/// The fields in file order. Reader and writer walk this list.
template <typename Record, typename Visitor>
void VisitFields(Record& record, const Visitor& visit) {
    auto& settings = record.settings;
    visit(settings.baud);
    visit(settings.parity);
    visit(settings.dataBits);
    visit(settings.stopBits);
    visit(settings.modeString);
    visit(settings.frequencyString);
    visit(settings.portSettings);
    visit(settings.commPort);
    visit(settings.power);
    visit(settings.pollRate);
    visit(record.rigName);
    visit(record.convertToHex);
    visit(record.useFrequency);
    visit(record.modeBy);
}

struct FieldTaker {
    FieldReader& fields;

    void operator()(std::string& text) const { text = fields.Take(); }
    void operator()(std::uint8_t& number) const { number = fields.TakeByte(); }
};

struct FieldPutter {
    RecordWriter& writer;

    void operator()(const std::string& text) const { writer.Text(text); }
    void operator()(std::uint8_t number) const { writer.Number(number); }
};

}  // namespace

std::string BaudText(std::string_view baud) {
    return PadRight(baud, kBaudWidth).substr(0, kBaudWidth);
}

std::string PortSettings(const RigSettings& settings) {
    return TrimEnd(settings.baud) + ',' + settings.parity + ',' + settings.dataBits + ',' + settings.stopBits;
}

std::string WriteRigRecord(const RigRecord& record) {
    RecordWriter writer;
    VisitFields(record, FieldPutter{writer});
    return writer.EndLine().Result();
}

RigRecord ReadRigRecord(std::string_view text) {
    RigRecord record;
    FieldReader fields{text};
    try {
        VisitFields(record, FieldTaker{fields});
    } catch (const ValueError&) {
        // What has been read stands, and the rest is as without a file.
    }
    record.settings.baud = BaudText(record.settings.baud);
    return record;
}

}  // namespace tallyhut
