#include "log/duplicates.h"

#include "contest/worked_before.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr Tick kRedLineMs = 3'000;

/// Keys that belong to a call: digits, capitals, and what lies between them and "." and "/".
bool BelongsToCall(int character) {
    return character > 45 && character < 91;
}

}  // namespace

void Duplicates::dupcheck() {
    gIsDupe = 0;
    const std::string& call = panel.form.txtCall.Text();
    if (const std::optional<std::int32_t> row = WorkedBefore(contest.log, call)) {
        Report(*row);
    }
    if (gIsDupe == 1) {
        panel.fields.First().SetFocus();
        panel.fields.Empty();
    }
}

void Duplicates::Report(std::int32_t row) {
    const Contact& contact = contest.log.Row(row);
    const std::string date = FormatDateText(contact.Date, "mm/dd", panel.desk.clock.Now().year);
    panel.message.WriteOn(kDialogDupe, "Duplicate " + contact.Call + " " + contact.Sec + " " + date + " " +
                                           contact.Time + " ON " + contact.Bnd + "  Rec# " + NumberForm(row) +
                                           "  Serial Rcvd: " + contact.Nr);
    panel.message.BlankPartials();
    panel.desk.dialogs.Beep();
    prompts.BlindKeyPhone("Dupe");
    if (contest.preferences.gVoiceNav != 0) {
        prompts.AwaitEnd();
    }
    gIsDupe = 1;
    gDupeAt = panel.desk.clock.Now();
    redLineUntil = panel.desk.clock.TickMs() + kRedLineMs;
}

void Duplicates::ShowPartials(int KeyAscii) {
    panel.form.lblDialog.SetBackColor(kDialogNormal);
    panel.message.BlankPartials();
    const std::string& before = panel.form.txtCall.Text();
    const std::string begin = before + static_cast<char>(KeyAscii);
    std::string list;
    if (gPartialOn == 1 && BelongsToCall(KeyAscii)) {
        list = PartialCalls(contest.log, begin);
        panel.form.lblDupe.SetBackColor(list.empty() ? kButtonFace : kDialogNormal);
        panel.form.lblDupe.SetCaption(list);
    }
    if (!list.empty() && before.size() > 2) {
        panel.message.Write("Possible Duplicate!");
    } else if (time.gTimeOn == 1) {
        panel.message.Write(" ");
    }
    if (begin.size() == 3 && BelongsToCall(KeyAscii)) {
        if (HasCallAreaDigit(begin)) {
            panel.message.Write(" ");
        } else {
            panel.desk.dialogs.Beep();
            panel.message.Refuse("The second or third character is not numeric!");
        }
    }
}

void Duplicates::cmdDup_Click() {
    panel.form.lblDupe.SetBackColor(kButtonFace);
    gPartialOn = gPartialOn == 1 ? 0 : 1;
    panel.form.cmdDup.SetCaption(gPartialOn == 1 ? "On" : "Off");
    panel.fields.First().SetFocus();
}

std::optional<Tick> Duplicates::HoldsKey(const Key& key) const {
    const bool reachesField = key.code != kKeyEsc && key.code != kKeyTab && (key.shift & (kCtrl | kAlt)) == 0;
    if (gIsDupe == 0 || !reachesField || typingIsSent()) {
        return std::nullopt;
    }
    return redLineUntil;
}

}  // namespace tallyhut
