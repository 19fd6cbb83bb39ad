#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1), Group(), Fill("", "Text1"), Left("Command2"), Main("Command1"),
};

}  // namespace

const FormTable kForm5Table{kRows};

}  // namespace tallyhut
