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

/// Whether a reload would take the whole text.
bool LogWithoutFault(std::string_view text) try {
    FieldReader fields{text};
    std::int32_t records = 0;
    for (; !fields.AtEnd(); ++records) {
        ReadRecord(fields);
    }
    return records <= ContactLog::kMostContacts;
} catch (const ValueError&) {
    return false;
}

}  // namespace

void LogReload::mnuopen2(const std::function<void()>& beforeTheEnd) {
    const auto giveUp = [this, &beforeTheEnd] {
        if (beforeTheEnd) {
            beforeTheEnd();
        }
        desk.dialogs.Show(kFileErrorBox);
        desk.pump.EndProgram(1);
    };
    try {
        Clear();
        Take(file.Open());
        display.ShowCounts();
        display.ShowTimes();
        if (contest.log.gSavedCount == 0) {
            contest.log.gSavedCount = static_cast<float>(contest.log.gContactCount());
        }
        opened = true;
    } catch (const PlatformError&) {
        giveUp();
    } catch (const ValueError&) {
        giveUp();
    } catch (const LogFullError&) {
        giveUp();
    }
}

void LogReload::FollowDisk() {
    const std::optional<std::string> onDisk = TextOnDisk();
    const std::string text = onDisk.value_or(LogText(contest.log));
    opened = opened || onDisk;
    Clear();
    Take(text);
    display.ShowCounts();
    display.ShowTimes();
}

/// Nothing where the disk does not say, or says what no reload would take.
std::optional<std::string> LogReload::TextOnDisk() {
    try {
        std::string text = file.Open();
        return LogWithoutFault(text) ? std::optional{std::move(text)} : std::nullopt;
    } catch (const PlatformError&) {
        return std::nullopt;
    }
}

void LogReload::Clear() {
    contest.log.Clear();
    contest.sections.Clear();
    display.grid.ShowAllNeeded();
}

void LogReload::Take(std::string_view text) {
    FieldReader fields{text};
    contest.log.AddAll([&fields] { return !fields.AtEnd(); },
                       [this, &fields](Contact& contact) {
                           ReadRecord(fields, contact);
                           CountSection(contact);
                       });
}

void LogReload::CountSection(const Contact& contact) {
    const int section = contest.sections.Find(contact.Sec);
    if (section != 0 && contest.sections.Count(section)) {
        display.grid.ShowWorked(section);
    }
}

}  // namespace tallyhut
