#include "log/time_records.h"

#include "values/text_file.h"

namespace tallyhut {

void TimeRecords::Append(std::uint8_t on, const DateTime& at, const std::string* total) {
    RecordWriter record;
    record.Number(on).Text(FormatDateTime(at, "ddddd", shortDate)).Text(FormatDateTime(at, "hh:mm:ss"));
    if (total != nullptr) {
        record.Text(*total);
    } else {
        record.Empty();
    }
    files.Append(Path(), record.EndLine().Result());
}

void TimeRecords::Clear() {
    files.Replace(Path(), "");
}

}  // namespace tallyhut
