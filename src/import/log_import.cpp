#include "import/log_import.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

#include "contest/score.h"
#include "log/log_file.h"
#include "log/section_choice.h"
#include "platform/platform_error.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kTitle = "Import";

struct StationValue {
    std::string Preferences::*value;
    std::string ImportedStation::*told;
};

constexpr std::array kStationValues{
    StationValue{&Preferences::gOwnCall, &ImportedStation::call},
    StationValue{&Preferences::gOwnPrec, &ImportedStation::precedence},
    StationValue{&Preferences::gOwnCheck, &ImportedStation::check},
};

MessageBox FailedBox(const std::string& reason) {
    return {.title = kTitle,
            .text = "Nothing was imported.\r\n\r\n" + reason,
            .buttons = Buttons::OK,
            .icon = Icon::Exclamation};
}

std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
    return PlainText(count) + ' ' + std::string{count == 1 ? one : many};
}

std::string PathIn(const std::string& folder, const std::string& name) {
    return folder + '/' + name;
}

/// An alias becomes its code, and what counts otherwise than one might think has a note. Returns the notes.
ImportNotes CountContacts(std::vector<ImportedContact>& contacts, SectionTable& sections) {
    ImportNotes notes;
    std::unordered_map<std::string, std::size_t> firstOfCall;
    for (std::size_t n = 1; n <= contacts.size(); ++n) {
        Contact& contact = contacts[n - 1].contact;
        const std::size_t line = contacts[n - 1].line;
        contact.Sec = sections.List().CodeOf(contact.Sec);
        if (const int section = sections.Find(contact.Sec); section != 0) {
            sections.Count(section);
        } else {
            notes.Add(line, contact.Call + ' ' + contact.Sec, "Kept: " + contact.Sec + " is no section of the list");
        }
        const auto [first, isNew] = firstOfCall.emplace(contact.Call, n);
        if (!isNew) {
            notes.Add(line, contact.Call, "Kept: a duplicate of contact " + PlainText(first->second));
        }
    }
    return notes;
}

/// The first that the list holds, by its code; those before it have remarks. Empty for none.
std::string OwnSectionOf(const ImportedStation& station, const SectionList& list, ImportNotes& remarks) {
    for (const OwnSection& section : station.sections) {
        std::string code{list.CodeOf(section.text)};
        if (list.Find(code) != 0) {
            return code;
        }
        remarks.Add(section.line, section.text, "Not taken as the own section: it is none of the list");
    }
    return "";
}

std::string LogTextOf(const std::vector<ImportedContact>& contacts) {
    std::string text;
    for (const ImportedContact& imported : contacts) {
        text += WriteRecord(imported.contact);
    }
    return text;
}

/// Both in the order of the file.
ImportNotes Joined(ImportNotes notes, ImportNotes others) {
    notes.count += others.count;
    std::ranges::move(others.kept, std::back_inserter(notes.kept));
    std::ranges::stable_sort(notes.kept, {}, &ImportNote::line);
    return notes;
}

/// How many of the notes are not in the list.
std::string MoreNotes(const ImportNotes& notes) {
    const std::size_t more = notes.count - notes.kept.size();
    return more == 0 ? "" : " The list ends before " + Counted(more, "more remark.", "more remarks.");
}

}  // namespace

void LogImport::mnuImport_Click() {
    const std::optional<std::string> path = desk.dialogs.OpenFile({.title = "Import a log",
                                                                   .filter = std::string{kLogsFilter},
                                                                   .folder = directories.WorkingDirectory,
                                                                   .name = ""});
    if (!path) {
        return;
    }
    try {
        Import(WholePath(directories, *path));
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(FailedBox(failure.what()));
    }
}

void LogImport::Import(const std::string& path) {
    ImportedLog log = reading.Read(path, OwnLogs::Refused);
    if (log.contacts.size() > static_cast<std::size_t>(ContactLog::kMostContacts)) {
        throw PlatformError{path + ": It holds " + PlainText(log.contacts.size()) + " contacts, and a log at most " +
                            PlainText(ContactLog::kMostContacts) + '.'};
    }
    if (log.contacts.empty()) {
        const std::string more = MoreNotes(log.notes);
        Report("No contact of " + path + " was imported, and nothing was written." + more, std::move(log.notes));
        return;
    }
    const std::string folder = AskFolder();
    if (folder.empty()) {
        return;
    }
    SectionTable sections = SectionsFor(folder);
    ImportNotes remarks = CountContacts(log.contacts, sections);
    const std::string ownSection = OwnSectionOf(log.station, sections.List(), remarks);
    WriteNewContest(machine.files,
                    {.folder = folder,
                     .log = LogTextOf(log.contacts),
                     .sections = SectionsFile(folder),
                     .preferences = PreferencesFor(folder, log.station, ownSection)},
                    machine.dataFolder);
    const auto count = static_cast<std::int32_t>(log.contacts.size());
    std::string told = Counted(log.contacts.size(), "contact", "contacts") + ", " +
                       Counted(sections.gSectionsWorked, "section", "sections") + ", score " +
                       PlainText(Score(sections.gSectionsWorked, count)) + ", now in " + folder + ". " +
                       Counted(log.notes.count, "line was", "lines were") + " not imported.";
    ImportNotes all = Joined(Joined(std::move(log.notes), std::move(log.remarks)), std::move(remarks));
    const std::string more = MoreNotes(all);
    Report(told + more, std::move(all));
}

std::string LogImport::AskFolder() {
    const std::string& here = directories.WorkingDirectory;
    const std::optional<std::string> chosen = desk.dialogs.ChooseFolder(
        {.title = "Choose a folder without contacts for the imported log", .folder = here.substr(0, here.rfind('/'))});
    if (!chosen) {
        return "";
    }
    std::string folder = WholePath(directories, *chosen);
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    if (folder == here || machine.files.IsSameFile(PathIn(folder, "nspref.txt"), PathIn(here, "nspref.txt"))) {
        throw PlatformError{folder + ": This is the folder of the contest that is open. Choose another one."};
    }
    CheckHoldsNoContacts(machine.files, folder);
    return folder;
}

/// A list of the folder's own first, then that of the contest that is open, which goes along.
SectionTable LogImport::SectionsFor(const std::string& folder) const {
    SectionTable sections;
    const std::string own = PathIn(folder, kSectionsFile);
    if (!machine.files.FolderExists(folder) || !machine.files.FileExists(own)) {
        sections.Choose(contest.sections.chosen);
        return sections;
    }
    try {
        sections.Choose(ReadSectionList(machine.files.Read(own)));
    } catch (const ValueError& damage) {
        throw PlatformError{own + ": " + damage.what()};
    }
    return sections;
}

std::string LogImport::SectionsFile(const std::string& folder) const {
    const bool hasOwn = machine.files.FolderExists(folder) && machine.files.FileExists(PathIn(folder, kSectionsFile));
    return hasOwn || contest.sections.Chosen() == nullptr ? ""
                                                          : machine.files.Read(WorkingFile(directories, kSectionsFile));
}

/// What the folder has already stays, as far as it can be read, where the log says nothing else.
Preferences LogImport::PreferencesFor(const std::string& folder, const ImportedStation& station,
                                      const std::string& ownSection) const {
    Preferences preferences;
    preferences.gUtcOffset = contest.preferences.gUtcOffset;
    const std::string path = PathIn(folder, "nspref.txt");
    if (machine.files.FolderExists(folder) && machine.files.FileExists(path)) {
        try {
            ReadPreferences(machine.files.Read(path), preferences);
        } catch (const ValueError&) {  // what stands behind the damage is as in a fresh contest
        }
    }
    for (const auto& [value, told] : kStationValues) {
        preferences.*value = (station.*told).empty() ? preferences.*value : station.*told;
    }
    preferences.gOwnSection = ownSection.empty() ? preferences.gOwnSection : ownSection;
    if (station.phone) {
        preferences.gContestMode = *station.phone ? 1 : 0;
    }
    return preferences;
}

void LogImport::Report(std::string told, ImportNotes notes) {
    summary = std::move(told);
    lines = std::move(notes.kept);
    dialog.ShowModal();
    dialog.Unload();
}

void LogImport::frmImport_Load() {
    dialog.lblReport.SetCaption(summary);
    dialog.lstReport.SetRows(lines.size(), [this](std::size_t row, std::size_t column) {
        const ImportNote& note = lines.at(row);
        return column == 0 ? PlainText(note.line) : column == 1 ? note.finding : note.text;
    });
    desk.Announce(summary);
}

void LogImport::cmdDone_Click() {
    dialog.Hide();
}

}  // namespace tallyhut
