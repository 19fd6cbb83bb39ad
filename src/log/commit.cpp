#include "log/commit.h"

#include <array>

#include "log/utc.h"
#include "toolkit/running.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

struct RequiredField {
    TextBox Form1::*field;
    std::size_t leastLength;
    std::string_view message;
};

/// Last in the exchange first: all are tested, and the message and focus of the last test that fails remain.
constexpr std::array kRequiredFields{
    RequiredField{&Form1::txtSec, 1, "Need Section!"},        RequiredField{&Form1::txtCK, 1, "Need Check!"},
    RequiredField{&Form1::txtCall, 3, "Need Call Sign!"},     RequiredField{&Form1::txtPre, 1, "Need Precedence!"},
    RequiredField{&Form1::txtNum, 1, "Need Contact Number!"},
};

}  // namespace

void Commit::frmcmp() {
    gIncomplete = 0;
    for (const RequiredField& required : kRequiredFields) {
        TextBox& box = form.*required.field;
        if (box.Text().size() < required.leastLength) {
            message.Write(required.message);
            gIncomplete = 1;
            box.SetFocus();
        }
    }
}

void Commit::ValidateSection() {
    gBadSection = sections.Find(form.txtSec.Text()) == 0 ? 1 : 0;
    if (gBadSection == 1) {
        message.Write("Invalid Section");
    }
}

void Commit::TallySection() {
    const int section = sections.Find(form.txtSec.Text());
    if (section != 0 && sections.Count(section)) {
        ShowWorked(form.Label10(section), preferences.gColorWorked);
    }
}

void Commit::Mains() {
    if (committing) {
        return;
    }
    const Running running{committing};
    // What is typed ahead belongs to the next contact: it waits until the fields are empty and the focus is back.
    const Desk::InputHold hold{desk};
    if (time.gTimeOn == 0) {
        time.cmdLogOn_Click();
    }
    if (postContest.IsOn() && !postContest.CheckDateAndTime()) {
        return;
    }
    frmcmp();
    ValidateSection();
    duplicates.dupcheck();
    if (gIncomplete == 0 && duplicates.gIsDupe == 0 && gBadSection == 0) {
        LogContact();
    }
    if (gBadSection == 0 && gIncomplete == 0) {
        BeginNextEntry();
    }
    message.BlankPartials();
    desk.RunPending();
    rates.TimeStats();
    log.gFrq.clear();
}

void Commit::LogContact() {
    Keep(EnteredContact());
    form.lblTotCon.SetCaption(NumberForm(log.gContactCount));
    list.ListContacts();
    message.WriteNormal("");
    // Focus events wait: leaving the call field now would find the contact just logged and call it a duplicate.
    desk.RunTimersAndIo();
    TallySection();
    desk.RunTimersAndIo();
    ShowScore();
    message.Write(" ");
}

Contact Commit::EnteredContact() const {
    const DateTime utc = UtcNow(desk.clock, preferences);
    return {
        .Ns = PlainText(log.NextSerial()),
        .Nr = form.txtNum.Text(),
        .P = form.txtPre.Text(),
        .Call = form.txtCall.Text(),
        .Ck = form.txtCK.Text(),
        .Sec = form.txtSec.Text(),
        .Date = postContest.IsOn() ? form.txtPostConDate.Text() : FormatDateTime(utc, "yyyy/mm/dd"),
        .Time = postContest.IsOn() ? form.txtPostConTime.Text() : FormatDateTime(utc, "hh:mm:ss"),
        .Bnd = preferences.gBand,
        .Frq = log.gFrq,
    };
}

void Commit::Keep(const Contact& contact) {
    ++log.gContactCount;
    try {
        log.Row(log.gContactCount) = contact;
    } catch (const LogFullError& full) {
        throw ContactNotLogged(contact, full.what());
    }
    file.Append(contact);
}

void Commit::ShowScore() {
    form.lblTotSec.SetCaption(PlainText(sections.gSectionsWorked));
    form.lblsectogo.SetCaption(PlainText(sections.gSectionCount - sections.gSectionsWorked));
    form.lblTotScore.SetCaption(PlainText(Score(sections.gSectionsWorked, log.gContactCount)));
}

void Commit::BeginNextEntry() {
    fields.Empty();
    fields.gPassedCallTwice = false;
    fields.ShowNextSerial();
    fields.First().SetFocus();
}

}  // namespace tallyhut
