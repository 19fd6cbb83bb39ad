#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// Tunes the radio from the keyboard and steps it through a range.
struct frmRigTune : Form {
    explicit frmRigTune(Desk& owner);

    Label lblFreq;
    TextBox txtFreq;  ///< MHz
    Button Command1;  ///< go there
    Label lblUp;
    Label lblDown;
    ControlArray<Button> cmdTune;  ///< 0 to 9; even ones tune up, odd ones down
    FrameBox fraBand;
    ControlArray<Button> cmdBand;  ///< 0 to 15
    FrameBox fraMode;
    Button cmdCW;
    Button cmdUSB;
    Button cmdLSB;
    Button cmdAM;
    Button cmdFM;
    Button cmdRTTY;
    CheckBox chkScan;
    Label lblFrom;
    TextBox txtFrom;  ///< MHz
    Label lblTo;
    TextBox txtTo;    ///< MHz
    FrameBox Frame1;  ///< scan steps
    Option Option5;   ///< 2.5 kHz
    Option Option1;   ///< 500 Hz
    Option Option2;   ///< 100 Hz
    Option Option3;   ///< 30 Hz
    Option Option4;   ///< 10 Hz
    Button cmdDone;

    Timer Timer1;  ///< the scan
};

}  // namespace tallyhut
