#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("lblFreq", "txtFreq:12 Command1", RowLook::Data),
    // In order of size, which is not that of their indices.
    Grid("lblUp", "cmdTune(0) cmdTune(8) cmdTune(6) cmdTune(4) cmdTune(2)", 5),
    Grid("lblDown", "cmdTune(1) cmdTune(9) cmdTune(7) cmdTune(5) cmdTune(3)", 5),
    Group("fraBand"),
    Grid("", "cmdBand(0-15)", 8),
    Group("fraMode"),
    Grid("", "cmdCW cmdUSB cmdLSB cmdAM cmdFM cmdRTTY", 6),
    Group(),
    OneLine("", "chkScan"),
    OneLine("lblFrom", "txtFrom:10 lblTo txtTo:10", RowLook::Data),
    OneLine("Frame1", "Option4 Option3 Option2 Option1 Option5"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmRigTuneTable{kRows};

}  // namespace tallyhut
