#include "log/commit.h"

#include <array>

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
        TextBox& box = panel.form.*required.field;
        if (box.Text().size() < required.leastLength) {
            panel.message.Refuse(required.message);
            gIncomplete = 1;
            box.SetFocus();
        }
    }
}

void Commit::ValidateSection() {
    gBadSection = contest.sections.Find(SectionCode()) == 0 ? 1 : 0;
    if (gBadSection == 1) {
        panel.message.Refuse("Invalid Section");
        panel.message.Hint(hintOnSection(panel.form.txtSec.Text()));
    }
}

void Commit::TallySection() {
    const int section = contest.sections.Find(SectionCode());
    if (section != 0 && contest.sections.Count(section)) {
        display.grid.ShowWorked(section);
    }
}

void Commit::Mains() {
    if (committing) {
        return;
    }
    const Running running{committing};
    // What is typed ahead belongs to the next contact: it waits until the fields are empty and the focus is back.
    const Desk::InputHold hold{panel.desk};
    guard.OpenIfUnopened();
    if (time.gTimeOn == 0) {
        time.cmdLogOn_Click();
    }
    if (postContest.IsOn() && !postContest.CheckDateAndTime()) {
        EndWithMessage();
        return;
    }
    frmcmp();
    ValidateSection();
    duplicates.dupcheck();
    if (gIncomplete == 0 && duplicates.gIsDupe == 0 && gBadSection == 0 && !LogContact()) {
        EndWithMessage();
        return;
    }
    const bool refused = gBadSection == 1 || gIncomplete == 1;
    if (!refused) {
        BeginNextEntry();
    }
    panel.message.BlankPartials();
    {
        const Running standing{messageStands, refused};
        panel.desk.RunPending();
    }
    display.ShowTimes();
    contest.log.gFrq.clear();
}

/// The focus events that wait run here, so that leaving the call field adds nothing to the line and throws nothing
/// away.
void Commit::EndWithMessage() {
    const Running standing{messageStands};
    panel.desk.RunFocusEvents();
}

/// False where the log has not taken the contact, which was told: the entry stays as it is.
bool Commit::LogContact() {
    if (!guard.Add(EnteredContact())) {
        panel.message.WriteNormal("This contact is not logged yet!");
        return false;
    }
    logged(contest.log.gContactCount());
    panel.form.lblTotCon.SetCaption(NumberForm(contest.log.gContactCount()));
    display.list.ListContacts();
    panel.message.WriteNormal("");
    // Focus events wait: leaving the call field now would find the contact just logged and call it a duplicate.
    panel.desk.RunBetweenSteps();
    TallySection();
    panel.desk.RunBetweenSteps();
    display.ShowScore();
    panel.message.Write(" ");
    return true;
}

std::string_view Commit::SectionCode() const {
    return contest.sections.List().CodeOf(panel.form.txtSec.Text());
}

Contact Commit::EnteredContact() const {
    const DateTime utc = time.utc.Now();
    return {
        .Ns = PlainText(contest.log.NextSerial()),
        .Nr = panel.form.txtNum.Text(),
        .P = panel.form.txtPre.Text(),
        .Call = panel.form.txtCall.Text(),
        .Ck = panel.form.txtCK.Text(),
        .Sec = std::string{SectionCode()},
        .Date = postContest.IsOn() ? panel.form.txtPostConDate.Text() : FormatDateTime(utc, "yyyy/mm/dd"),
        .Time = postContest.IsOn() ? panel.form.txtPostConTime.Text() : FormatDateTime(utc, "hh:mm:ss"),
        .Bnd = contest.preferences.gBand,
        .Frq = contest.log.gFrq,
    };
}

void Commit::BeginNextEntry() {
    panel.fields.Empty();
    panel.fields.gPassedCallTwice = false;
    panel.fields.ShowNextSerial();
    panel.fields.First().SetFocus();
}

}  // namespace tallyhut
