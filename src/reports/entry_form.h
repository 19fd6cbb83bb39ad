#pragma once

#include "contest/contest.h"
#include "forms/Form1.h"
#include "forms/Form2.h"
#include "platform/machine.h"
#include "reports/cabrillo.h"
#include "reports/summary_sheet.h"
#include "reports/typed_answers.h"
#include "support/directories.h"
#include "support/shared_preferences.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// The form that gathers what an entry says beside the log, and writes the entry: the Cabrillo file, and the sheet that
/// went to the sponsor before it. It changes nothing in the log.
struct EntryForm {
    Form1& form1;
    Form2& dialog;
    Desk& desk;
    const Directories& directories;
    const Contest& contest;
    SharedPreferences& shared;
    Machine& machine;

    /// Of mnuCabrillo and mnuSummary; returns when the form has been closed.
    void Open();

    // The form.
    void Form2_Load();
    /// Enter goes from field to field.
    void Form2_KeyPress(int& KeyAscii);
    static void Text2_KeyPress(int& KeyAscii);
    /// The Cabrillo file.
    void Command4_Click();
    /// The summary sheet as a file. Throws PlatformError.
    void Command1_Click();
    /// The summary sheet on paper; the form stays open. Throws PlatformError.
    void Command2_Click();
    void Command3_Click();

    TypedAnswers typed{dialog};

private:
    CabrilloEntry Entry() const;
    SummaryAnswers Answers() const;
    void WriteCabrilloFile(const std::string& path);
    void KeepAnswers();
    void WarnOfOldFormat();
};

}  // namespace tallyhut
