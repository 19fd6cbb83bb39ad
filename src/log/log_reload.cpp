#include "log/log_reload.h"

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

const MessageBox kFileErrorBox{
    .title = "File Error",
    .text =
        "Error opening file.  This error is annoying but correctable.  In all likelihood, a character such as a quote "
        "got into your data or one of your entries has an invalid date/time format.  Close this program and open "
        "log.txt in the program's working directory with a text editor such as notepad.  Inspect the data and fix any "
        "errors you see (remove any extra quotes and make sure your date and time entries are valid).",
    .buttons = Buttons::OK,
    .icon = Icon::Critical,
};

}  // namespace

void LogReload::mnuopen2() {
    const auto giveUp = [this] {
        desk.dialogs.Show(kFileErrorBox);
        desk.pump.EndProgram(1);
    };
    try {
        Clear();
        ReadAll();
        ShowCounts();
        rates.TimeStats();
        if (log.gSavedCount == 0) {
            log.gSavedCount = static_cast<float>(log.gContactCount);
        }
    } catch (const PlatformError&) {
        giveUp();
    } catch (const ValueError&) {
        giveUp();
    } catch (const LogFullError&) {
        giveUp();
    }
}

void LogReload::Clear() {
    log.gContactCount = 0;
    sections.Clear();
    for (int i = 1; i <= sections.gSectionCount; ++i) {
        ShowNeeded(form.Label10(i), preferences.gColorNeeded);
    }
}

void LogReload::ReadAll() {
    const std::string text = file.Read();
    FieldReader fieldReader{text};
    while (!fieldReader.AtEnd()) {
        ++log.gContactCount;
        Contact& contact = log.Row(log.gContactCount);
        contact = ReadRecord(fieldReader);
        CountSection(contact);
    }
}

void LogReload::CountSection(const Contact& contact) {
    const int section = sections.Find(contact.Sec);
    if (section != 0 && sections.Count(section)) {
        ShowWorked(form.Label10(section), preferences.gColorWorked);
    }
}

void LogReload::ShowCounts() {
    ShowTotals();
    form.lblNumCurCon.SetCaption(log.gContactCount == 0 ? "1" : NumberForm(log.NextSerial()));
    form.lblsectogo.SetCaption(" " + NumberForm(sections.gSectionCount - sections.gSectionsWorked));
}

/// The number form behind a further blank: two blanks stand before a number until the next commit writes none.
void LogReload::ShowTotals() {
    form.lblTotSec.SetCaption(" " + NumberForm(sections.gSectionsWorked));
    form.lblTotScore.SetCaption(" " + NumberForm(Score(sections.gSectionsWorked, log.gContactCount)));
    list.ListContacts();
    form.lblTotCon.SetCaption(" " + NumberForm(log.gContactCount));
}

}  // namespace tallyhut
