#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1), Group(), Fill("lblFindings", "lstFindings"), Left("cmdEdit"), Main("cmdDone"),
};

}  // namespace

const FormTable kFrmCheckLogTable{kRows};

}  // namespace tallyhut
