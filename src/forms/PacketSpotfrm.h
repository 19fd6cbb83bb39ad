#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// Where the spots come from, and a small terminal to that source. The form stays loaded while it is hidden: the
/// source runs by its timer.
struct PacketSpotfrm : Form {
    explicit PacketSpotfrm(Desk& owner);

    Label lblSelect;
    List List1;  ///< the kinds of source
    FrameBox Frame2;
    Option OptBand;
    Option OptList;
    CheckBox chkDX;
    Label Label5;  ///< which spots the main form shows

    TextBox txtUnProcessed;  ///< the terminal
    Label Label6;            ///< how to send
    TextBox txtSent;
    Label Label4;     ///< shown while the source is meant to be open: it is the flag of that
    Button Command1;  ///< Open Port
    Button Command2;  ///< Close Port
    Button Command3;  ///< Spot Last
    Button cmdDone;

    Label Label3;
    TextBox txtTelnetHost;
    Label Label7;
    TextBox txtTelnetPort;
    Label lblEngine;
    TextBox txtEngine;  ///< HOST:PORT of the packet engine

    CheckBox chkLogin;  ///< the program logs in and reconnects
    Label lblLogin;
    TextBox txtLogin;  ///< empty for the own call
    Label lblPassword;
    TextBox txtPassword;
    CheckBox chkKeepPassword;
    Label lblLoginSend;
    TextBox txtLoginSend;  ///< sent once inside, one a line
    Label lblNodes;
    List lstNodes;  ///< HOST:PORT
    Button cmdAddNode;
    Button cmdRemoveNode;
    CheckBox chkNeededOnly;
    CheckBox chkNearOnly;

    Label Label1;
    TextBox txtHex;
    Label Label2;  ///< what the TNC needs
    CheckBox chkConvToHex;
    FrameBox fraPort;
    ControlArray<Option> optComm;  ///< 0 to 9, ports 1 to 10
    FrameBox fraBaud;
    Option optBaud12;
    Option optBaud24;
    Option optBaud48;
    Option optBaud96;
    Option optBaud144;
    Option optBaud192;
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
    FrameBox fraHandshaking;
    Option Option1;
    Option Option2;
    Option Option3;
    Option Option4;
    FrameBox fraPower;
    Option optPowerNone;
    Option optPowerRTS;
    Option optPowerDTR;

    Timer Timer1;
};

}  // namespace tallyhut
