#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    Fill("lblPorts", "lstPorts", 4),
    Fill("lblDevices", "lstDevices"),
    OneLine("lblDevice", "txtDevice:*", RowLook::Data),
    Text("lblNote"),
    Left("cmdUse cmdLook"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmPortsTable{kRows};

}  // namespace tallyhut
