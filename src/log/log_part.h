#pragma once

#include "forms/Form6.h"
#include "log/band_selection.h"
#include "log/contact_editing.h"
#include "log/entry_flow.h"
#include "log/exchange_suggestions.h"
#include "log/known_calls_setup.h"
#include "log/section_colours.h"
#include "log/section_setup.h"
#include "log/start_question.h"
#include "log/utc_offset_check.h"
#include "platform/machine.h"
#include "support/support_part.h"

namespace tallyhut {

/// The contest: the main form, entry and commit, the log with its copies, operating time, band and station.
struct LogPart {
    LogPart(Machine& machine, Desk& desk, SupportPart& support);

    Form1 form1;
    frmEditCon editForm;
    frmStationID stationForm;
    Form6 colourForm;
    frmSections sectionsForm;
    frmKnownCalls knownCallsForm;

    Contest contest;
    PreferencesFile preferencesFile;
    LogFile logFile;
    TimeRecords records;
    Panel panel;
    UtcClock utc;
    ContestDisplay display;
    SectionChoice sectionChoice;
    Prompts prompts;  ///< silent until somebody speaks
    OperatingTime time;
    BandSelection band;
    PostContest postContest;
    Duplicates duplicates;
    LogReload reload;
    LogGuard guard;
    Commit commit;
    EntryFlow entry;
    ContactEditing editing;
    LogCopies copies;
    FileMenu fileMenu;
    Station station;
    UtcOffsetCheck utcOffset;
    StartQuestion question;
    SectionColours colours;
    ShippedSections shippedSections;
    SectionSetup sectionSetup;
    KnownCallFiles knownCalls;
    SuperCheckDisplay superCheck;
    ExchangeSuggestions suggestions;
    KnownCallsSetup knownCallsSetup;

    std::function<void()> callChanged = [] {};  ///< in the call field; behind what this part does

    void AddTo(ToldNames& told) const;

private:
    void Bind(SupportPart& support);
    void BindEntryFields();
    void BindPostContest();
    void BindContacts();
    void BindEditForm();
    void BindStationForm();
    void BindColourForm();
    void BindSectionsForm();
    void BindKnownCallsForm();
    void BindMenus();
    void AddEntry(ToldNames& told) const;
    void AddPreferences(ToldNames& told) const;
    void AddContacts(ToldNames& told) const;
    void AddSections(ToldNames& told) const;
    void Toggle(MenuEntry& entry, std::uint8_t& value);
};

}  // namespace tallyhut
