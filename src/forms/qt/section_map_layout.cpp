#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    Sheet("Picture1", true),
    OnSheet("lblPanel(1-6) lblCounty(0-93)", SheetText::Within),
    OneLine("", "lblRegion:* lblWorked lblNeeded", RowLook::Reading),
    Left("cmdSave Label1"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kSectionMapTable{kRows};

}  // namespace tallyhut
