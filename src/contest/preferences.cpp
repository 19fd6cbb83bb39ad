#include "contest/preferences.h"

namespace tallyhut {
namespace {

/// Walks the values in file order. Reader and writer both go by this list; nothing else knows the order.
template <typename Values, typename Visitor>
void VisitInFileOrder(Values& values, Visitor visit) {
    visit(values.gOwnCall);
    visit(values.reserved);
    visit(values.gOwnPrec);
    visit(values.gOwnCheck);
    visit(values.gOwnSection);
    visit(values.gUtcOffset);
    visit(values.gContestMode);
    visit(values.gTabMode);
    visit(values.gStationSet);
    visit(values.gBand);
    visit(values.gOpSeconds);
    visit(values.gColorWorked);
    visit(values.gColorNeeded);
    visit(values.gFormScale);
    visit(values.gVoiceNav);
    visit(values.gRigName);
    visit(values.gTaskbar);
    visit(values.gColorNeededSpots);
    visit(values.gAudioAlert);
}

struct Writer {
    RecordWriter& out;

    void operator()(const std::string& value) const { out.Text(value).EndLine(); }
    template <typename Number>
    void operator()(const Number& value) const {
        out.Number(value).EndLine();
    }
};

struct Reader {
    FieldReader& in;

    void operator()(std::string& value) const { value = in.Take(); }
    void operator()(float& value) const { value = in.TakeFloat(); }
    void operator()(std::uint8_t& value) const { value = in.TakeByte(); }
    void operator()(std::int16_t& value) const { value = in.TakeInt16(); }
    void operator()(std::int32_t& value) const { value = in.TakeInt32(); }
};

}  // namespace

std::string WritePreferences(const Preferences& preferences) {
    RecordWriter out;
    VisitInFileOrder(preferences, Writer{out});
    return out.Result();
}

void ReadPreferences(std::string_view text, Preferences& preferences) {
    FieldReader in{text};
    VisitInFileOrder(preferences, Reader{in});
}

}  // namespace tallyhut
