#pragma once

#include "app/program.h"

namespace tallyhut {

/// The program with the units that tests speak of by their own names, whichever part holds them.
struct ProgramUnits : Program {
    using Program::Program;

    Directories& directories = supportPart.directories;
    SharedPreferences& shared = supportPart.shared;
    frmPorts& portsForm = supportPart.portsForm;
    Form5& helpForm = supportPart.helpForm;

    Form1& form1 = logPart.form1;
    frmEditCon& editForm = logPart.editForm;
    frmStationID& stationForm = logPart.stationForm;
    Form6& colourForm = logPart.colourForm;
    Preferences& preferences = logPart.contest.preferences;
    ContactLog& log = logPart.contest.log;
    SectionTable& sections = logPart.contest.sections;
    PreferencesFile& preferencesFile = logPart.preferencesFile;
    LogFile& logFile = logPart.logFile;
    EntryFields& fields = logPart.panel.fields;
    ContestDisplay& display = logPart.display;
    ContactList& list = logPart.display.list;
    RateLabels& rates = logPart.display.rates;
    Prompts& prompts = logPart.prompts;
    OperatingTime& time = logPart.time;
    BandSelection& band = logPart.band;
    Duplicates& duplicates = logPart.duplicates;
    LogReload& reload = logPart.reload;
    Commit& commit = logPart.commit;
    EntryFlow& entry = logPart.entry;
    ContactEditing& editing = logPart.editing;
    LogCopies& copies = logPart.copies;
    Station& station = logPart.station;
    UtcOffsetCheck& utcOffset = logPart.utcOffset;
    StartQuestion& question = logPart.question;

    Form2& form2 = reportsPart.form2;

    RigControlfrm& rigForm = rigPart.rigForm;
    frmRigTune& tuneForm = rigPart.tuneForm;
    frmFrequencyTest& frequencyTestForm = rigPart.frequencyTestForm;
    SerialPort& comComm1 = *rigPart.comComm1;
    RigSettings& rigSettings = rigPart.rigSettings;
    RigState& rigState = rigPart.rigState;
    RigPoll& rigPoll = rigPart.rigPoll;
    RigCommands& rigCommands = rigPart.rigCommands;
    RigSetup& rigSetup = rigPart.rigSetup;

    /// The main form with a contest's tables and no questions.
    void ShowWithoutQuestions() {
        form1.Form_Load = {};
        sections.Fill();
        display.grid.Fill();
    }
};

}  // namespace tallyhut
