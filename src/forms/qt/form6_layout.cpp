#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1), Group(), OneLine("", "Label1:* Command3"), OneLine("", "Label2:* Command1"), Main("Command6"),
};

}  // namespace

const FormTable kForm6Table{kRows};

}  // namespace tallyhut
