#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog for what the entry file and the summary sheet say beside the log.
struct Form2 : Form {
    explicit Form2(Desk& owner);

    ControlArray<Label> lblText;  ///< 1 to 11, beside the text box of the same number

    // What the entry file takes.
    FrameBox fraCategory;
    Option Option11;  ///< single operator
    Option Option12;  ///< single operator, assisted
    Option Option13;  ///< multi operator
    Option Option14;  ///< multi two
    Option Option15;  ///< multi multi
    Option Option16;  ///< school club
    Option Option17;  ///< check log
    FrameBox fraPower;
    Option Option18;  ///< high
    Option Option19;  ///< low
    Option Option20;  ///< QRP
    FrameBox fraAssisted;
    Option OptCatYes;
    Option optCatNo;
    TextBox Text2;          ///< calls of all operators
    TextBox Text5;          ///< name
    TextBox Text6;          ///< address, first line
    TextBox Text7;          ///< address, second line
    TextBox Text8;          ///< e-mail
    TextBox Text10;         ///< club
    TextBox Text11;         ///< soapbox
    Label lblMissing;       ///< what of the station the entry will lack; empty where it lacks nothing
    CheckBox chkCabrillo3;  ///< tags and values of today in the file's head
    Button Command4;        ///< writes the Cabrillo file

    // What the summary sheet has beside it.
    FrameBox Frame1;  ///< the class of the call used; the own call joins its caption at load
    Option Option1;   ///< Novice
    Option Option2;   ///< Technician
    Option Option3;   ///< Other
    TextBox Text1;    ///< call of the operator
    FrameBox fraOperatorClass;
    Option Option4;  ///< Novice
    Option Option8;  ///< Technician
    Option Option5;  ///< Other
    FrameBox fraOperator;
    Option Option6;  ///< single
    Option Option7;  ///< multiple
    FrameBox fraClub;
    Option Option9;   ///< yes
    Option Option10;  ///< no
    FrameBox fraEquipment;
    TextBox Text3;    ///< rigs
    TextBox Text4;    ///< antennas
    TextBox Text9;    ///< power
    Button Command1;  ///< writes the summary sheet
    Button Command2;  ///< prints the summary sheet

    Button cmdKept;   ///< fills in what was typed before; hidden while that is what stands there
    Button Command3;  ///< done
};

}  // namespace tallyhut
