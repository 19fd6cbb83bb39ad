#include "log/log_reload.h"

#include "platform/platform_error.h"
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
        display.ShowCounts();
        display.rates.TimeStats();
        if (contest.log.gSavedCount == 0) {
            contest.log.gSavedCount = static_cast<float>(contest.log.gContactCount);
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
    contest.log.gContactCount = 0;
    contest.sections.Clear();
    display.grid.ShowAllNeeded();
}

void LogReload::ReadAll() {
    const std::string text = file.Read();
    FieldReader fieldReader{text};
    while (!fieldReader.AtEnd()) {
        ++contest.log.gContactCount;
        Contact& contact = contest.log.Row(contest.log.gContactCount);
        contact = ReadRecord(fieldReader);
        CountSection(contact);
    }
}

void LogReload::CountSection(const Contact& contact) {
    const int section = contest.sections.Find(contact.Sec);
    if (section != 0 && contest.sections.Count(section)) {
        display.grid.ShowWorked(section);
    }
}

}  // namespace tallyhut
