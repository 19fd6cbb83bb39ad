#include "values/band_plan.h"

#include "values/text_file.h"

namespace tallyhut {

void ReadBandPlan(std::string_view text, BandPlan& plan) {
    FieldReader fields{text};
    plan.effective = fields.Take();
    while (!fields.AtEnd()) {
        BandPlanRow row;
        row.Band = fields.Take();
        row.Class = fields.Take();
        row.Mode = fields.Take();
        row.Low = fields.TakeFloat();
        row.High = fields.TakeFloat();
        plan.rows.push_back(std::move(row));
    }
}

}  // namespace tallyhut
