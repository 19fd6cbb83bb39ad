#include "log/duplicates.h"

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr Tick kRedLineMs = 3'000;
constexpr std::size_t kListLength = 125;

/// Keys that belong to a call: digits, capitals, and what lies between them and "." and "/".
bool BelongsToCall(int character) {
    return character > 45 && character < 91;
}

}  // namespace

void Duplicates::dupcheck() {
    gIsDupe = 0;
    const std::string& call = fields.form.txtCall.Text();
    for (std::int32_t row = 1; row <= log.gContactCount; ++row) {
        if (log.Row(row).Call == call) {
            Report(row);
            break;
        }
    }
    if (gIsDupe == 1) {
        fields.First().SetFocus();
        fields.Empty();
    }
}

void Duplicates::Report(std::int32_t row) {
    const Contact& contact = log.Row(row);
    const std::string date = FormatDateText(contact.Date, "mm/dd", desk.clock.Now().year);
    message.WriteOn(kDialogDupe, "Duplicate " + contact.Call + " " + contact.Sec + " " + date + " " + contact.Time +
                                     " ON " + contact.Bnd + "  Rec# " + NumberForm(row) +
                                     "  Serial Rcvd: " + contact.Nr);
    message.BlankPartials();
    desk.dialogs.Beep();
    prompts.BlindKeyPhone("Dupe");
    if (preferences.gVoiceNav != 0) {
        prompts.AwaitEnd();
    }
    gIsDupe = 1;
    gDupeAt = desk.clock.TickMs();
}

std::string Duplicates::PartialList(const std::string& begin) const {
    std::string list;
    for (std::int32_t row = 1; row <= log.gContactCount && list.size() <= kListLength; ++row) {
        const std::string& call = log.Row(row).Call;
        if (call.starts_with(begin)) {
            list.insert(0, call + ' ');
        }
    }
    return list;
}

void Duplicates::ShowPartials(int KeyAscii) {
    message.form.lblDialog.SetBackColor(kDialogNormal);
    message.BlankPartials();
    const std::string& before = fields.form.txtCall.Text();
    const std::string begin = before + static_cast<char>(KeyAscii);
    std::string list;
    if (gPartialOn == 1 && BelongsToCall(KeyAscii)) {
        list = PartialList(begin);
        message.form.lblDupe.SetBackColor(list.empty() ? kButtonFace : kDialogNormal);
        message.form.lblDupe.SetCaption(list);
    }
    if (!list.empty() && before.size() > 2) {
        message.Write("Possible Duplicate!");
    } else if (time.gTimeOn == 1) {
        message.Write(" ");
    }
    if (begin.size() == 3 && BelongsToCall(KeyAscii)) {
        if (HasCallAreaDigit(begin)) {
            message.Write(" ");
        } else {
            desk.dialogs.Beep();
            message.Write("The second or third character is not numeric!");
        }
    }
}

void Duplicates::cmdDup_Click() {
    message.form.lblDupe.SetBackColor(kButtonFace);
    gPartialOn = gPartialOn == 1 ? 0 : 1;
    fields.form.cmdDup.SetCaption(gPartialOn == 1 ? "On" : "Off");
    fields.First().SetFocus();
}

std::optional<Tick> Duplicates::HoldsKey(const Key& key) const {
    const bool reachesField = key.code != kKeyEsc && key.code != kKeyTab && (key.shift & (kCtrl | kAlt)) == 0;
    if (gIsDupe == 0 || !reachesField) {
        return std::nullopt;
    }
    return gDupeAt + kRedLineMs;
}

bool HasCallAreaDigit(std::string_view firstThree) {
    const auto numeric = [](char character) { return character >= '/' && character <= '9'; };
    return numeric(firstThree[1]) || numeric(firstThree[2]);
}

}  // namespace tallyhut
