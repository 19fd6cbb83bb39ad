#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The radio's settings. The form stays loaded while it is hidden: the poll runs by its timer.
struct RigControlfrm : Form {
    explicit RigControlfrm(Desk& owner);

    List List1;  ///< the radios

    FrameBox fraBaud;
    Option optBaud12;
    Option optBaud24;
    Option optBaud48;
    Option optBaud96;
    Option optBaud144;
    Option optBaud192;
    Option optBaud288;
    Option optBaud384;
    Option optBaud560;
    FrameBox fraPort;
    ControlArray<Option> optComm;  ///< 0 to 9, ports 1 to 10
    FrameBox fraPower;
    Option optPowerNone;
    Option optPowerRTS;
    Option optPowerDTR;
    FrameBox fraParity;
    Option optParityOdd;
    Option optParityNone;
    Option optParityEven;
    FrameBox fraData;
    Option optData7;
    Option optData8;
    FrameBox fraStop;
    Option optStop1;
    Option optStop2;
    FrameBox fraPoll;
    Option optPollFast;
    Option optPollMed;
    Option optPollSlow;
    Option optReallySlow;
    FrameBox Frame1;
    Option OptRig;
    Option OptFreq;
    Option OptDont;
    CheckBox chkFrequency;
    FrameBox fraRigServer;  ///< in the place of the port and its settings
    Label lblRigHost;
    TextBox txtRigHost;
    Label lblRigPort;
    TextBox txtRigPort;
    Label lblRigLinkCaption;
    Label lblRigLink;

    Label lblFreqString;
    TextBox txtFreq;
    Label lblModeString;
    TextBox txtMode;
    CheckBox chkConvToHex;
    Label Label10;  ///< about the radio's address

    Button Command1;  ///< Test
    Button Command2;  ///< End Test
    Label Label2;     ///< shown while the radio is polled
    Button Command3;  ///< Change Frequency
    Button cmdDone;

    Label lblFreqCaption;
    Label lblFreq;
    Label lblModeCaption;
    Label lblMode;
    Label Label9;
    CheckBox ChkConvHex;
    Label lblUnProcessCaption;
    Label lblUnProcess;
    Button Command4;  ///< copies what came back

    Label Label8;
    Label Label12;
    Label Label11;

    Timer tmrGetData;
    Timer tmrCommand;  ///< the waits of a command to the radio
};

}  // namespace tallyhut
