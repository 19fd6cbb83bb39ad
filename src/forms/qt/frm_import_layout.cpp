#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1), Group(), Text("lblReport"), Fill("lblLines", "lstReport", 1, RowLook::Data), Main("cmdDone"),
};

}  // namespace

const FormTable kFrmImportTable{kRows};

}  // namespace tallyhut
