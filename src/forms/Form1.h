#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The background of the message line in its normal state, and for a duplicate.
inline constexpr Colour kDialogNormal = 0xC0C000;
inline constexpr Colour kDialogDupe = 0x0000FF;

/// The main form: where contacts are typed and the state of the contest is seen.
struct Form1 : Form {
    explicit Form1(Desk& owner);

    // The entry row.
    ControlArray<Label> lblEntryHeading;  ///< 1 to 5, above the fields in the order of the exchange
    TextBox txtNum;
    TextBox txtPre;
    TextBox txtCall;
    TextBox txtCK;
    TextBox txtSec;
    Button cmdClear;
    Label lblSending;
    Label lblNumCurCon;
    ControlArray<Label> lblStation;  ///< 0 to 3, above what the station sends, in the order of Label1 to Label4
    Label Label1;                    ///< own precedence
    Label Label2;                    ///< own call
    Label Label3;                    ///< own check
    Label Label4;                    ///< own section
    Label lblPostConTime;
    TextBox txtPostConTime;
    Label lblPostConDate;
    TextBox txtPostConDate;
    Label lblDialog;
    Label lblHint;  ///< what helps with what is refused there
    Label lblPossDup;
    Label lblDupe;
    Label lblScp;  ///< known calls that hold what is typed
    Button cmdDup;

    // Clocks, operating time, band.
    Label Label11;
    Label lblutctime;
    Label lblLocalTime;
    Label lblCurTime;
    Label Label16;  ///< AM or PM of the local time
    Label Label12;
    Label lblttrack;  ///< total operating time
    Label Label14;
    Label lbltimeon;      ///< time on the current band
    Label lblClockState;  ///< whether the operating time runs
    Button cmdLogOn;
    Label lblBandSwitch;
    Label Label30;  ///< the band
    Label lblMode;  ///< CW or Phone
    Label lblRig;   ///< the radio's frequency, or that it does not answer
    Label lblLeftCaption;
    Label lblLeft;        ///< hours and minutes left to operate
    Label lblOffCaption;  ///< when the present silence is off
    Label lblOff;         ///< hours and minutes of the present silence

    // The contacts.
    Label lblRecentContacts;
    Button cmdEdit;
    Button cmdDelete;
    Button cmdList;
    ListView ListView1;

    // The section grid.
    Label lblSecWkd;
    Label lblSecOne;
    Label lblSecTwo;
    Label lblSecThre;
    Label lblSecFour;
    Label lblSecFive;
    Label lblSecSix;
    Label lblSecSeven;
    Label lblSecEight;
    Label lblSecNine;
    Label lblSecZero;
    Label lblSecCA;
    ControlArray<Label> lblLegend;  ///< 0 and 1: how a needed and a worked section look
    ControlArray<Label> Label10;    ///< from 1, one a section; those behind the last one are hidden

    // The spots, on a map of the band or in a list.
    Label lblDX;  ///< the map's frame
    Line LineDX;  ///< the scale, the low end first
    ControlArray<Label> lblFreqSpot;
    ControlArray<Line> LineSpot;  ///< from a label of the map to its mark, where it stands beside it
    ControlArray<Label> lblDXSpot;
    ListView txtDX;

    // Score and rates.
    ControlArray<Label> lblScoreCaption;  ///< 1 to 6, beside the values below in this order
    Label lblTotCon;
    Label lblTotSec;
    Label lblsectogo;
    Label lblTotScore;
    Label lblAQSO60;
    Label lblAQSO20;

    // Menus.
    MenuEntry mnuFile;
    MenuEntry mnuOpen;
    MenuEntry mnuNew;
    MenuEntry mnuArchive;
    MenuEntry mnuRestore;
    MenuEntry mnuCabrillo;
    MenuEntry mnuSummary;
    MenuEntry mnuCheckLog;
    MenuEntry expADIF;
    MenuEntry expADIFX;
    MenuEntry mnuExport;
    MenuEntry mnuImport;
    MenuEntry mnuMakeHistory;
    MenuEntry mnuCopyListtoClipboard;
    MenuEntry mnuprintrec;
    MenuEntry mnuPrintLog;
    MenuEntry mnuPrintDupe;
    MenuEntry mnuPostContest;
    MenuEntry mnuExit;
    MenuEntry mnuSettings;
    MenuEntry mnuSetup;
    MenuEntry mnuRig;
    MenuEntry mnuCW;
    MenuEntry mnuPhone;
    MenuEntry mnuPacket;
    MenuEntry mnuBlind;
    MenuEntry mnuPorts;
    MenuEntry mnuSections;
    MenuEntry mnuKnownCalls;
    MenuEntry mnuNetwork;
    MenuEntry mnuBand;
    MenuEntry mnu160;
    MenuEntry mnu80;
    MenuEntry mnu40;
    MenuEntry mnu20;
    MenuEntry mnu15;
    MenuEntry mnu10;
    MenuEntry mnuTabOrder;
    MenuEntry numopt;
    MenuEntry callopt;
    MenuEntry mnuCallTwice;
    MenuEntry mnuAppearance;
    MenuEntry mnuFormSize;
    MenuEntry mnuTaskbar;
    MenuEntry mnuColors;
    MenuEntry mnuDXSpotsColor;
    MenuEntry mnuAudioAlert;
    MenuEntry mnuLook;
    MenuEntry mnuLookDesktop;
    MenuEntry mnuLookLight;
    MenuEntry mnuLookDark;
    MenuEntry mnuView;
    MenuEntry mnuMap;
    MenuEntry mnuPrivileges;
    MenuEntry mnuViewSpectrumMap;
    MenuEntry mnuGraph;
    MenuEntry mnuBandStats;
    MenuEntry mnuCWStrings;
    MenuEntry mnuRigTune;
    MenuEntry mnuOffTime;
    MenuEntry mnuReports;
    MenuEntry mnuWriteLog;
    MenuEntry mnuWriteDupe;
    MenuEntry mnuHelpTitle;
    MenuEntry mnuHelp;
    MenuEntry mnuAbout;

    Timer Timer1;  ///< rates
    Timer Timer2;  ///< clocks
};

}  // namespace tallyhut
