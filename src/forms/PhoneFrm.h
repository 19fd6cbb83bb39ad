#pragma once

#include <array>

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The wave files of the function keys in a phone contest, how the transmitter is keyed while one plays, and their
/// recording. The form stays loaded while it is hidden: it is what a message is played from.
struct PhoneFrm : Form {
    explicit PhoneFrm(Desk& owner);

    static constexpr int kKeys = 9;  ///< F1 to F9

    ControlArray<Label> lblKey;  ///< 1 to 9, "F1" to "F9"
    TextBox Text1;
    TextBox Text2;
    TextBox Text3;
    TextBox Text4;
    TextBox Text5;
    TextBox Text6;
    TextBox Text7;
    TextBox Text8;
    TextBox Text9;
    Button Command2;  ///< Browse, F1
    Button Command3;
    Button Command4;
    Button Command5;
    Button Command6;
    Button Command7;
    Button Command8;
    Button Command9;
    Button Command10;
    ControlArray<Button> cmdRecord;  ///< 1 to 9
    Label lblLineOut;
    Label lblCaution;

    FrameBox fraKeying;
    Option Option1;  ///< RTS
    Option Option2;  ///< DTR
    Option Option3;  ///< parallel port
    Label lblPort;
    TextBox Text10;   ///< serial port number, 0 for none
    Label lblDevice;  ///< what stands behind the number
    Label lblAddress;
    TextBox Text11;     ///< base address
    Label lblRegister;  ///< what stands behind the address
    Label lblLines;     ///< what is amiss with the line, or shared with the radio
    Label lblByHand;

    FrameBox fraRepeat;
    Label lblPHLoop;
    TextBox txtPHLoop;  ///< seconds between repeats of F1
    Label lblRepeat;

    FrameBox fraRecording;
    Label lblRecording;  ///< what is being recorded, or why nothing can be
    Label lblLevelCaption;
    Label lblMeter;  ///< a bar as long as the level
    Label lblLevel;  ///< the level in words
    Button cmdStopRecord;
    Button cmdPlayBack;

    Label lblTest;
    Button Command12;  ///< Stop
    Button Command11;  ///< Test
    Button Command1;   ///< Done

    Timer Timer1;     ///< looks for the end of what plays
    Timer tmrRepeat;  ///< once, for F1 again
    Timer tmrLevel;   ///< looks at what is being recorded
};

/// A function key with its controls.
struct PhoneKey {
    int code;
    TextBox PhoneFrm::*file;
    Button PhoneFrm::*browse;
};

/// F1 to F9 in order.
inline constexpr std::array kPhoneKeys{
    PhoneKey{kKeyF1, &PhoneFrm::Text1, &PhoneFrm::Command2},
    PhoneKey{kKeyF1 + 1, &PhoneFrm::Text2, &PhoneFrm::Command3},
    PhoneKey{kKeyF1 + 2, &PhoneFrm::Text3, &PhoneFrm::Command4},
    PhoneKey{kKeyF1 + 3, &PhoneFrm::Text4, &PhoneFrm::Command5},
    PhoneKey{kKeyF1 + 4, &PhoneFrm::Text5, &PhoneFrm::Command6},
    PhoneKey{kKeyF1 + 5, &PhoneFrm::Text6, &PhoneFrm::Command7},
    PhoneKey{kKeyF1 + 6, &PhoneFrm::Text7, &PhoneFrm::Command8},
    PhoneKey{kKeyF1 + 7, &PhoneFrm::Text8, &PhoneFrm::Command9},
    PhoneKey{kKeyF1 + 8, &PhoneFrm::Text9, &PhoneFrm::Command10},
};

}  // namespace tallyhut
