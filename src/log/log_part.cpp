#include "log/log_part.h"

#include <array>

namespace tallyhut {
namespace {

struct ContactField {
    std::string_view name;
    std::string Contact::*field;
};

constexpr std::array kContactFields{
    ContactField{"Ns", &Contact::Ns},     ContactField{"Nr", &Contact::Nr},     ContactField{"P", &Contact::P},
    ContactField{"Call", &Contact::Call}, ContactField{"Ck", &Contact::Ck},     ContactField{"Sec", &Contact::Sec},
    ContactField{"Date", &Contact::Date}, ContactField{"Time", &Contact::Time}, ContactField{"Bnd", &Contact::Bnd},
    ContactField{"Frq", &Contact::Frq},
};

}  // namespace

LogPart::LogPart(Machine& machine, Desk& desk, SupportPart& support)
    : form1{desk},
      editForm{desk},
      stationForm{desk},
      colourForm{desk},
      sectionsForm{desk},
      knownCallsForm{desk},
      preferencesFile{machine.files, support.directories, contest.preferences},
      logFile{machine.files, support.directories},
      records{machine.files, support.directories, machine.environment.ShortDatePicture()},
      panel{form1, desk, {form1, contest}, {form1}},
      utc{machine.clock, contest},
      display{form1, contest, utc, machine.settings},
      sectionChoice{machine.files, support.directories, machine.dialogs, contest, display.grid},
      time{panel, contest, preferencesFile, records, utc},
      band{form1, contest.preferences, preferencesFile, time, desk},
      postContest{panel},
      duplicates{panel, contest, time, prompts},
      reload{desk, contest, logFile, display},
      guard{desk, contest, logFile, reload},
      commit{panel, contest, guard, time, postContest, duplicates, display},
      entry{panel, contest, preferencesFile, time, duplicates, commit, prompts},
      editing{panel, editForm, contest, guard, display.list},
      copies{machine.clock, contest, logFile},
      fileMenu{desk, contest, guard, copies, time, preferencesFile},
      station{form1, stationForm, desk, contest.preferences, preferencesFile, machine.settings},
      utcOffset{desk, contest.preferences, preferencesFile},
      question{desk, station, fileMenu, reload, entry, contest},
      colours{colourForm, desk, contest.preferences, preferencesFile, guard},
      shippedSections{machine.files, machine.dataFolder + "/sections"},
      sectionSetup{sectionsForm, desk, sectionChoice, shippedSections, guard},
      knownCalls{machine.files, support.directories, machine.settings, machine.dialogs},
      superCheck{form1, contest, knownCalls},
      suggestions{panel, contest, commit, knownCalls},
      knownCallsSetup{knownCallsForm, desk, knownCalls, superCheck} {
    display.grid.PlaceLabels();
    station.SetSharedPreference = [&support](std::string_view key, std::string_view value, bool saveNow) {
        support.shared.SetSharedPreference(key, value, saveNow);
    };
    commit.hintOnSection = [this](std::string_view code) { return HintOn(code, shippedSections.Lists()); };
    preferencesFile.onKept = [this](const std::string& path) {
        panel.message.Write("The settings could not be read; the file is kept as " + path);
    };
    Bind(support);
}

void LogPart::Bind(SupportPart& support) {
    BindEntryFields();
    BindPostContest();
    BindContacts();
    BindEditForm();
    BindStationForm();
    BindColourForm();
    BindSectionsForm();
    BindKnownCallsForm();
    BindMenus();
    form1.mnuPorts.Click = [&support] { support.ports.mnuPorts_Click(); };
    form1.mnuHelp.Click = [&support] { support.help.mnuHelp_Click(); };
    form1.Timer1.Elapsed = [this] { display.rates.TimeStats(); };
    form1.Timer2.Elapsed = [this] {
        time.Timer2_Elapsed();
        display.offTime.Show();
    };
    form1.cmdClear.Click = [this] { entry.cmdClear_Click(); };
    form1.cmdDup.Click = [this] { duplicates.cmdDup_Click(); };
    form1.cmdLogOn.Click = [this] { time.cmdLogOn_Click(); };
    form1.Label30.DblClick = [this] { band.Label30_DblClick(); };
}

void LogPart::BindEntryFields() {
    form1.txtNum.KeyPress = [this](int& KeyAscii) { entry.txtNum_KeyPress(KeyAscii); };
    form1.txtPre.KeyPress = [this](int& KeyAscii) { entry.txtPre_KeyPress(KeyAscii); };
    form1.txtCall.KeyPress = [this](int& KeyAscii) { entry.txtCall_KeyPress(KeyAscii); };
    form1.txtCK.KeyPress = [this](int& KeyAscii) { entry.txtCK_KeyPress(KeyAscii); };
    form1.txtSec.KeyPress = [this](int& KeyAscii) { entry.txtSec_KeyPress(KeyAscii); };
    form1.txtNum.GotFocus = [this] { entry.txtNum_GotFocus(); };
    form1.txtPre.GotFocus = [this] { entry.txtPre_GotFocus(); };
    form1.txtCall.GotFocus = [this] { entry.txtCall_GotFocus(); };
    form1.txtCK.GotFocus = [this] { entry.txtCK_GotFocus(); };
    form1.txtSec.GotFocus = [this] { entry.txtSec_GotFocus(); };
    form1.txtCall.LostFocus = [this] {
        entry.txtCall_LostFocus();
        suggestions.CallLeft();
    };
    form1.txtCall.Change = [this] {
        suggestions.CallChanged();
        superCheck.Show();
        callChanged();
    };
    form1.txtNum.KeyGate = [this](const Key& key) { return duplicates.HoldsKey(key); };
    form1.txtPre.KeyGate = [this](const Key& key) { return entry.txtPre_HoldsKey(key); };
    form1.txtCall.KeyGate = [this](const Key& key) { return duplicates.HoldsKey(key); };
}

void LogPart::BindPostContest() {
    form1.txtPostConTime.GotFocus = [this] { postContest.txtPostConTime_GotFocus(); };
    form1.txtPostConDate.GotFocus = [this] { postContest.txtPostConDate_GotFocus(); };
    form1.txtPostConTime.KeyPress = [this](int& KeyAscii) {
        if (postContest.txtPostConTime_KeyPress(KeyAscii)) {
            commit.Mains();
        }
    };
    form1.txtPostConDate.KeyPress = [this](int& KeyAscii) {
        if (postContest.txtPostConDate_KeyPress(KeyAscii)) {
            commit.Mains();
        }
    };
}

void LogPart::BindContacts() {
    form1.cmdEdit.Click = [this] { editing.cmdEdit_Click(); };
    form1.cmdDelete.Click = [this] { editing.cmdDelete_Click(); };
    form1.cmdList.Click = [this] { editing.cmdList_Click(); };
    form1.ListView1.Click = [this] { editing.ListView1_Click(); };
    form1.ListView1.MouseDown = [this](MouseButton button) { editing.ListView1_MouseDown(button); };
    form1.ListView1.KeyDown = [this](int& KeyCode, int Shift) { editing.ListView1_KeyDown(KeyCode, Shift); };
    form1.ListView1.ColumnClick = [this](int column) { editing.ListView1_ColumnClick(column); };
}

void LogPart::BindEditForm() {
    editForm.Form_Load = [this] { editing.frmEditCon_Load(); };
    for (TextBox* field : {&editForm.txtEditNum, &editForm.txtEditPre, &editForm.txtEditCall, &editForm.txtEditCk,
                           &editForm.txtEditSec, &editForm.txtEditBnd}) {
        field->KeyPress = [this](int& KeyAscii) { editing.TextField_KeyPress(KeyAscii); };
    }
    editForm.txtEditNumSent.KeyPress = [this](int& KeyAscii) { editing.txtEditNumSent_KeyPress(KeyAscii); };
    editForm.txtEditDate.KeyPress = [this](int& KeyAscii) { editing.txtEditDate_KeyPress(KeyAscii); };
    editForm.txtEditTime.KeyPress = [this](int& KeyAscii) { editing.txtEditTime_KeyPress(KeyAscii); };
    editForm.txtEditDate.LostFocus = [this] { editing.txtEditDate_LostFocus(); };
    editForm.txtEditTime.LostFocus = [this] { editing.txtEditTime_LostFocus(); };
    editForm.cmdDone.Click = [this] { editing.cmdDone_Click(); };
    editForm.cmdDeleteDupe.Click = [this] { editing.cmdDeleteDupe_Click(); };
}

void LogPart::BindStationForm() {
    stationForm.Form_Load = [this] { station.frmStationID_Load(); };
    for (TextBox* field : {&stationForm.Text1, &stationForm.Text3, &stationForm.Text4, &stationForm.Text5}) {
        field->KeyPress = [this](int& KeyAscii) { station.TextField_KeyPress(KeyAscii); };
    }
    stationForm.Text6.KeyPress = [this](int& KeyAscii) { station.Text6_KeyPress(KeyAscii); };
    stationForm.Text6.LostFocus = [this] { station.Text6_LostFocus(); };
    stationForm.Command1.Click = [this] { station.Command1_Click(); };
}

void LogPart::BindColourForm() {
    colourForm.Form_Load = [this] { colours.Form6_Load(); };
    colourForm.Command1.Click = [this] { colours.Command1_Click(); };
    colourForm.Command3.Click = [this] { colours.Command3_Click(); };
    colourForm.Command6.Click = [this] { colours.Command6_Click(); };
}

void LogPart::BindSectionsForm() {
    sectionsForm.Form_Load = [this] { sectionSetup.frmSections_Load(); };
    sectionsForm.lstSections.Click = [this] { sectionSetup.lstSections_Click(); };
    sectionsForm.lstSections.KeyPress = [this](int& KeyAscii) { sectionSetup.lstSections_KeyPress(KeyAscii); };
    sectionsForm.cmdUse.Click = [this] { sectionSetup.cmdUse_Click(); };
    sectionsForm.cmdDone.Click = [this] { sectionSetup.cmdDone_Click(); };
    form1.mnuSections.Click = [this] { sectionSetup.mnuSections_Click(); };
}

void LogPart::BindKnownCallsForm() {
    knownCallsForm.Form_Load = [this] { knownCallsSetup.frmKnownCalls_Load(); };
    knownCallsForm.txtHistory.KeyPress = [this](int& KeyAscii) { knownCallsSetup.txtHistory_KeyPress(KeyAscii); };
    knownCallsForm.txtScp.KeyPress = [this](int& KeyAscii) { knownCallsSetup.txtScp_KeyPress(KeyAscii); };
    knownCallsForm.cmdHistory.Click = [this] { knownCallsSetup.cmdHistory_Click(); };
    knownCallsForm.cmdScp.Click = [this] { knownCallsSetup.cmdScp_Click(); };
    knownCallsForm.chkHistory.Click = [this] { knownCallsSetup.chkHistory_Click(); };
    knownCallsForm.chkScp.Click = [this] { knownCallsSetup.chkScp_Click(); };
    knownCallsForm.cmdDone.Click = [this] { knownCallsSetup.cmdDone_Click(); };
}

void LogPart::BindMenus() {
    form1.mnuOpen.Click = [this] { guard.Reopen(); };
    form1.mnuNew.Click = [this] { fileMenu.mnuNew_Click(); };
    form1.mnuArchive.Click = [this] { fileMenu.mnuArchive_Click(); };
    form1.mnuRestore.Click = [this] { fileMenu.mnuRestore_Click(); };
    form1.mnuPostContest.Click = [this] { postContest.mnuPostContest_Click(); };
    form1.mnuKnownCalls.Click = [this] { knownCallsSetup.mnuKnownCalls_Click(); };
    form1.mnuSetup.Click = [this] { station.mnuSetup_Click(); };
    for (const BandRow& row : kBands) {
        (form1.*row.entry).Click = [this, &row] { band.ChooseBand(row.band); };
    }
    form1.numopt.Click = [this] { entry.numopt_Click(); };
    form1.callopt.Click = [this] { entry.callopt_Click(); };
    form1.mnuCallTwice.Click = [this] { entry.mnuCallTwice_Click(); };
    form1.mnuColors.Click = [this] { colours.mnuColors_Click(); };
    form1.mnuOffTime.Click = [this] { display.offTime.mnuOffTime_Click(); };
    form1.mnuDXSpotsColor.Click = [this] { Toggle(form1.mnuDXSpotsColor, contest.preferences.gColorNeededSpots); };
    form1.mnuAudioAlert.Click = [this] { Toggle(form1.mnuAudioAlert, contest.preferences.gAudioAlert); };
}

void LogPart::Toggle(MenuEntry& menuEntry, std::uint8_t& value) {
    value = value == 1 ? 0 : 1;
    menuEntry.SetChecked(value == 1);
    preferencesFile.SavePref();
}

void LogPart::AddTo(ToldNames& told) const {
    AddEntry(told);
    AddPreferences(told);
    AddContacts(told);
    AddSections(told);
}

void LogPart::AddEntry(ToldNames& told) const {
    told.Add("gCarryKey", entry.gCarryKey);
    told.Add("gCarryFrom", entry.gCarryFrom);
    told.Add("gPassedCallTwice", panel.fields.gPassedCallTwice);
    told.Add("gIncomplete", commit.gIncomplete);
    told.Add("gBadSection", commit.gBadSection);
    told.Add("gIsDupe", duplicates.gIsDupe);
    told.Add("gDupeAt", duplicates.gDupeAt);
    told.Add("gPartialOn", duplicates.gPartialOn);
    told.Add("gListAll", display.list.gListAll);
    told.Add("gTimeOn", time.gTimeOn);
    told.Add("gOpSecondsNow", time.gOpSecondsNow);
    told.Add("gLogOnAt", time.gLogOnAt);
    told.Add("gBandOnAt", time.gBandOnAt);
}

void LogPart::AddPreferences(ToldNames& told) const {
    const Preferences& p = contest.preferences;
    told.Add("gOwnCall", p.gOwnCall);
    told.Add("gOwnPrec", p.gOwnPrec);
    told.Add("gOwnCheck", p.gOwnCheck);
    told.Add("gOwnSection", p.gOwnSection);
    told.Add("gUtcOffset", p.gUtcOffset);
    told.Add("gContestMode", p.gContestMode);
    told.Add("gTabMode", p.gTabMode);
    told.Add("gStationSet", p.gStationSet);
    told.Add("gBand", p.gBand);
    told.Add("gOpSeconds", p.gOpSeconds);
    told.Add("gColorWorked", p.gColorWorked);
    told.Add("gColorNeeded", p.gColorNeeded);
    told.Add("gFormScale", p.gFormScale);
    told.Add("gVoiceNav", p.gVoiceNav);
    told.Add("gRigName", p.gRigName);
    told.Add("gTaskbar", p.gTaskbar);
    told.Add("gColorNeededSpots", p.gColorNeededSpots);
    told.Add("gAudioAlert", p.gAudioAlert);
}

void LogPart::AddContacts(ToldNames& told) const {
    told.Add("gContactCount", [this] { return contest.log.gContactCount(); });
    told.Add("gSavedCount", contest.log.gSavedCount);
    told.Add("gFrq", contest.log.gFrq);
    for (const auto& [name, field] : kContactFields) {
        told.AddTable(std::string{name}, [this, field = field](int row) {
            const bool isContact = row >= 1 && row <= contest.log.gContactCount();
            return isContact ? std::optional{ToldNames::Told(contest.log.Row(row).*field)} : std::nullopt;
        });
    }
}

void LogPart::AddSections(ToldNames& told) const {
    told.Add("gSectionCount", contest.sections.gSectionCount);
    told.Add("gSectionsWorked", contest.sections.gSectionsWorked);
    const auto add = [this, &told](const char* name, auto valueOf) {
        told.AddTable(name, [this, valueOf](int section) {
            const bool isSection = section >= 1 && section <= contest.sections.gSectionCount;
            return isSection ? std::optional{ToldNames::Told(valueOf(section))} : std::nullopt;
        });
    };
    add("SectionCode", [this](int section) { return contest.sections.Code(section); });
    add("SectionName", [this](int section) { return contest.sections.Name(section); });
    add("SectionQsos",
        [this](int section) { return contest.sections.SectionQsos.at(static_cast<std::size_t>(section)); });
}

}  // namespace tallyhut
