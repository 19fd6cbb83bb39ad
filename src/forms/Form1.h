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
    Label lblDialog;
    Label lblPossDup;
    Label lblDupe;
    Button cmdDup;

    // The contacts.
    Label lblRecentContacts;
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
    ControlArray<Label> Label10;  ///< 1 to 83, one a section

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
    MenuEntry mnuExit;
    MenuEntry mnuTabOrder;
    MenuEntry numopt;
    MenuEntry callopt;
    MenuEntry mnuCallTwice;

    Timer Timer1;
};

}  // namespace tallyhut
