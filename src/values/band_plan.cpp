#include "values/band_plan.h"

#include <optional>

#include "values/text_file.h"
#include "values/value_error.h"

namespace tallyhut {

namespace {

/// None when the record is damaged; the reader then stands somewhere behind its first field.
std::optional<BandPlanRow> TakeRow(FieldReader& fields) {
    const std::size_t line = fields.Line();
    try {
        BandPlanRow row;
        row.Band = fields.Take();
        row.Class = fields.Take();
        row.Mode = fields.Take();
        row.Low = fields.TakeFloat();
        row.High = fields.TakeFloat();
        const bool tookOfAnother = fields.Line() != line && !fields.AtLineStart();
        return tookOfAnother ? std::nullopt : std::optional(row);
    } catch (const ValueError&) {  // one bad line is no reason to go without the others
        return std::nullopt;
    }
}

}  // namespace

BandPlan ReadBandPlan(std::string_view text) {
    FieldReader fields{text};
    BandPlan plan{.effective = fields.Take()};
    while (!fields.AtEnd()) {
        FieldReader behind = fields;
        if (const std::optional<BandPlanRow> row = TakeRow(behind)) {
            plan.rows.push_back(*row);
            fields = behind;
        } else {
            fields.PassLine();
            plan.damaged = true;
        }
    }
    return plan;
}

}  // namespace tallyhut
