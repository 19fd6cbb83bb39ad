#include "log/contact_list.h"

#include <algorithm>
#include <array>

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kRecent = 20;
constexpr std::size_t kRecColumn = 0;

/// The columns behind the row number; a date or time has a picture.
struct ContactColumn {
    std::string Contact::*field;
    std::string_view picture;
};

constexpr std::array kContactColumns{
    ContactColumn{&Contact::Ns, ""},        ContactColumn{&Contact::Nr, ""},       ContactColumn{&Contact::P, ""},
    ContactColumn{&Contact::Call, ""},      ContactColumn{&Contact::Ck, ""},       ContactColumn{&Contact::Sec, ""},
    ContactColumn{&Contact::Date, "mm/dd"}, ContactColumn{&Contact::Time, "h:nn"}, ContactColumn{&Contact::Bnd, ""},
};

}  // namespace

void ContactList::ListContacts() {
    const std::int32_t newest = contest.log.gContactCount();
    const std::int32_t listed = gListAll == 1 ? newest : std::min(newest, kRecent);
    form.ListView1.SetRows(static_cast<std::size_t>(listed), [this, newest](std::size_t row, std::size_t column) {
        return CellText(newest - static_cast<std::int32_t>(row), column);
    });
}

std::int32_t ContactList::LogRowAt(int listRow) const {
    if (listRow < 0 || static_cast<std::size_t>(listRow) >= form.ListView1.RowCount()) {
        return 0;
    }
    return ToInt32(TrimmedNumber(form.ListView1.Cell(static_cast<std::size_t>(listRow), kRecColumn)));
}

std::string ContactList::CellText(std::int32_t logRow, std::size_t column) const {
    if (column == kRecColumn) {
        return PlainText(logRow);
    }
    const ContactColumn& shown = kContactColumns.at(column - 1);
    const std::string& text = contest.log.Row(logRow).*shown.field;
    return shown.picture.empty() ? text : FormatDateText(text, shown.picture, clock.Now().year);
}

}  // namespace tallyhut
