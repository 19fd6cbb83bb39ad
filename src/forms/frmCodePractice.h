#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// Morse practice on the air: random groups, pasted text, or what is typed.
struct frmCodePractice : Form {
    explicit frmCodePractice(Desk& owner);

    Label Label1;  ///< what the form is for
    Label lblToSend;
    TextBox Text1;  ///< to send
    Label lblSent;
    TextBox Text2;  ///< sent

    FrameBox fraGenerate;
    Label lblGenerate;
    TextBox Text3;  ///< groups
    Label lblGroups;
    TextBox Text4;  ///< characters in a group
    Label lblCharacters;
    FrameBox fraInclude;
    Option Option1;   ///< letters only
    Option Option2;   ///< all
    Button Command2;  ///< generate
    Button Command1;  ///< paste

    Label lblType;
    TextBox Text5;  ///< each key is sent
    Label Label7;
    Label Label8;     ///< the speed
    Button Command7;  ///< faster
    Button Command8;  ///< slower

    Button Command6;  ///< clears what is to send
    Button Command5;  ///< clears what was sent
    Button Command4;  ///< stop
    Button Command3;  ///< send
};

}  // namespace tallyhut
