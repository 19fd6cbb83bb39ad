#pragma once

#include <memory>

#include "keying/code_practice.h"
#include "keying/cw_setup.h"
#include "keying/cw_strings.h"
#include "keying/winkey_setup.h"
#include "log/log_part.h"

namespace tallyhut {

/// Morse: the sender, the messages with their form, and the list of them.
struct KeyingPart {
    KeyingPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log);

    CWFrm form;
    frmCWStrings stringsForm;
    frmWinKey winKeyForm;
    frmCodePractice practiceForm;

    std::unique_ptr<SerialPort> comm;
    KeyLine line;
    MorseSender sender;
    CwMessages messages;
    CwSetup setup;
    CwStrings strings;

    WinKey device;
    WinKeySetup winKey;
    CodePractice practice;

    /// What the start does: the form is loaded, and its file read.
    void ReadMessages();
    /// Before the main window closes: what waits is not sent any more. False while a character is still on its way.
    bool MayClose();

    void AddTo(ToldNames& told) const;

private:
    void Bind(LogPart& log);
    void BindMessages();
    void BindOutput();
    void BindSpeed();
    void BindTiming();
    void BindStrings();
    void BindWinKey();
    void BindPractice();
};

}  // namespace tallyhut
