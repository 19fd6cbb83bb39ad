#include "rig/pegasus_files.h"

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/text.h"
#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kFromRadio = "/PEGASUS.OUT";
constexpr const char* kToRadio = "/PEGASUS.IN";

std::string_view ModeOf(std::string_view text) {
    if (text.empty()) {
        return "";
    }
    return text == kCw ? kCw : kPhone;
}

}  // namespace

std::string PegasusFiles::Folder() const {
    const std::string chosen = settings.Get("Machine", "PegasusFolder");
    return chosen.empty() ? environment.Variable("HOME") + "/.wine/drive_c/Pegasus" : chosen;
}

RigReading PegasusFiles::ReadPegasusFile() const {
    RigReading reading;
    try {
        const std::string text = files.Read(Folder() + kFromRadio);
        FieldReader fields{text};
        reading.frequency = fields.TakeFloat();
        const std::string mode = fields.Take();
        reading.mode = ModeOf(mode);
    } catch (const PlatformError&) {
        // The poll is silent: the next one may find the file.
    } catch (const ValueError&) {
        // What stands before the damaged value counts.
    }
    return reading;
}

void PegasusFiles::WritePegasusFile(float Frequency, const std::string& RigMode) {
    std::string text = PlainText(Frequency);
    text += kLineEnd;
    text += Trim(RigMode);
    text += kLineEnd;
    try {
        files.Replace(Folder() + kToRadio, text);
    } catch (const PlatformError&) {
        // The radio stays where it is, and its control program says why.
    }
}

}  // namespace tallyhut
