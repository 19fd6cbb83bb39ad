#pragma once

#include <array>

#include "contest/contact_log.h"
#include "forms/frmbndstats.h"

namespace tallyhut {

/// The contacts of the contest's bands, from 160 to 10 metres. Those of other bands are counted in no column.
using BandCounts = std::array<std::int32_t, frmbndstats::kBands>;
BandCounts ContactsByBand(const ContactLog& log);

/// Whole percent of all, what is over cut off; 0 of none.
std::int32_t ShareInPercent(std::int32_t count, std::int32_t all);

/// The table of contacts by band, as it stands when the form is loaded.
struct BandStats {
    frmbndstats& form;
    const ContactLog& log;

    void frmbndstats_Load();
    void Command1_Click();

    /// As it stands now, on the screen.
    void Open();
};

}  // namespace tallyhut
