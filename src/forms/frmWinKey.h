#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The keyer device: its port, its settings, opening and closing it. The form stays loaded while it is hidden.
struct frmWinKey : Form {
    explicit frmWinKey(Desk& owner);

    FrameBox fraDevice;
    Label lblComPort;
    TextBox txtWKComPort;
    Label lblDevice;  ///< what stands behind the number
    Label lblOpenCaption;
    Label lblOpenStatus;
    Label lblVersionCaption;
    Label lblVersion;
    Label lblTrouble;  ///< what is amiss, in plain words; empty where nothing is
    Button cmdOpenWinkey;
    Button cmdCloseWinkey;

    FrameBox fraSending;
    Label lblWPM;
    TextBox txtWKWPM;
    Label lblWeight;
    TextBox txtWeight;
    Label lblWeightHint;
    Label lblRatio;
    TextBox txtRatio;
    Label lblRatioHint;
    Label lblLeadIn;
    TextBox txtLeadIn;
    Label lblLeadInHint;
    Label lblTail;
    TextBox txtTail;
    Label lblTailHint;

    FrameBox fraMode;
    Option optIambicB;
    Option optIambicA;
    Option optUltimatic;
    Option optBug;
    FrameBox fraPins;
    Option optKey5Off3Out;
    Option optPTT;
    Option optTone;
    Option optKey5Out3Off;

    Button Command3;  ///< Test
    Button cmdStop;
    Button cmdDone;

    Timer tmrTrouble;  ///< looks at the device while the form is shown
};

}  // namespace tallyhut
