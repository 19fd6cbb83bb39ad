#pragma once

#include "contest/contact_log.h"
#include "forms/frmbndstats.h"

namespace tallyhut {

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
