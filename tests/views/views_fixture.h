#pragma once

#include <string>
#include <vector>

#include "tests/log/program_fixture.h"

namespace tallyhut {

/// A contact on a band, at a second of the contest's first day and the days behind it.
inline Contact WorkedAt(std::int64_t second, const std::string& band = "40") {
    const DateTime at = AddSeconds({2026, 11, 7, 21, 0, 0}, second);
    Contact contact = Worked("W1XX");
    contact.Date = FormatDateTime(at, "yyyy/mm/dd");
    contact.Time = FormatDateTime(at, "hh:mm:ss");
    contact.Bnd = band;
    return contact;
}

/// The whole program and the forms that show its log.
struct ViewsFixture : ProgramFixture {
    ViewsPart& Views() { return program->viewsPart; }

    /// How many labels, lines and all else a form has.
    static std::size_t ControlsOf(const Form& form) { return form.Controls().size(); }
};

}  // namespace tallyhut
