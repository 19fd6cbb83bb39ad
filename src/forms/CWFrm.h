#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The messages of the function keys, and how they are keyed. The form stays loaded while it is hidden: it is what a
/// message is sent from.
struct CWFrm : Form {
    explicit CWFrm(Desk& owner);

    ControlArray<Label> lblKey;  ///< 1 to 12, "F1" to "F12"
    TextBox Text1;
    TextBox Text2;
    TextBox Text3;
    TextBox Text4;
    TextBox Text5;
    TextBox Text6;
    TextBox Text7;
    TextBox Text8;
    TextBox Text9;
    TextBox Text12;  ///< F10
    TextBox Text13;  ///< F11
    Label Label22;   ///< F12
    Label lblPreviewCaption;
    Label lblPreview;  ///< what the message with the focus would send now
    Label lblMessages;
    Label lblWildcards;

    FrameBox fraKeying;
    Option Option1;  ///< RTS
    Option Option2;  ///< DTR
    Option Option3;  ///< parallel port
    Option Option4;  ///< none
    Option Option5;  ///< WinKey
    Button cmdConfWinkey;
    Label lblPort;
    TextBox Text10;   ///< serial port number, 0 for none
    Label lblDevice;  ///< what stands behind the number
    Label lblAddress;
    TextBox Text14;     ///< base address
    Label lblRegister;  ///< what stands behind the address
    Label lblLines;     ///< what is amiss with the output, or shared with the radio

    FrameBox fraSpeed;
    Label lblWPM;
    TextBox Text11;
    Button Command2;  ///< Faster
    Button Command3;  ///< Slower
    Label lblSpace;
    TextBox txtSpace;
    Button Command5;  ///< Less
    Button Command6;  ///< More
    Label lblCWLoop;
    TextBox txtCWLoop;  ///< seconds between repeats of F1
    Label lblRepeat;
    CheckBox Check1;
    Label lblArrows;
    Label lblFinally;
    Label lblMode;

    FrameBox fraTiming;
    Option optTimer;
    Label lblTimer;
    Label lblTimerCost;
    Option OptSleep;
    Label lblSleep;
    Label lblSleepCost;
    Option optLoop;
    Label lblByLoop;
    Label lblLoopCost;
    Label lblLoop;
    TextBox txtLoop;
    Button cmdLoopFaster;
    Button cmdLoopSlower;
    Label lblPreferred;
    Label lblSideTone;

    FrameBox fraProsigns;
    ControlArray<Label> lblProsign;  ///< 1 to 5

    Button Command7;  ///< code practice
    Label Label23;    ///< shown during a test
    Button Command4;  ///< Test
    Button Command1;  ///< Done

    Timer tmrRepeat;
};

}  // namespace tallyhut
