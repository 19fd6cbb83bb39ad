#include "app/start_up.h"

#include "platform/platform_error.h"
#include "rig/rig_table.h"
#include "support/directory_rules.h"
#include "support/fresh_installation.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kFirstMessage = "Select a band from the menu bar and click Log \"Time On\" below!";
constexpr double kMinutesAnHour = 60;

/// What the program knows of an operator whom it meets for the first time: the machine's offset, so that no question
/// comes.
Preferences FirstPreferences(const Clock& clock) {
    Preferences first;
    first.gUtcOffset = static_cast<float>(RoundedTo(2, clock.MinutesToUtc() / kMinutesAnHour));
    return first;
}

}  // namespace

void StartUp::PrepareFolders() {
    SetUpDirectories(machine.files, machine.environment, machine.dialogs, support.directories, support.shared);
    if (IsFreshInstallation(machine.files, support.directories)) {
        MakeFreshInstallation(machine.files, support.directories, machine.dataFolder,
                              WritePreferences(FirstPreferences(machine.clock)));
    }
}

void StartUp::Form1_Load() {
    try {
        LoadSteps();
    } catch (const PlatformError&) {
        // A settings file that cannot be read ends the load where it is, and logging goes on.
    } catch (const ValueError&) {
        // The same for one that is damaged.
    }
}

void StartUp::LoadSteps() {
    Form1& form1 = log.form1;
    const Preferences& preferences = log.contest.preferences;
    log.sectionChoice.TakeFromFolder();
    log.knownCalls.TakeStored();
    log.superCheck.Show();
    log.display.offTime.ReadSettings();
    layout.LayOutMainForm();
    log.panel.message.Write(kFirstMessage);
    form1.lblNumCurCon.SetCaption(" " + NumberForm(log.contest.log.gContactCount() + 1));
    log.preferencesFile.Load();
    log.time.gOpSecondsNow = preferences.gOpSeconds;
    form1.mnuDXSpotsColor.SetChecked(preferences.gColorNeededSpots == 1);
    form1.mnuAudioAlert.SetChecked(preferences.gAudioAlert == 1);
    layout.ShowTaskbarOption();
    log.utcOffset.CheckUtcOffset();
    if (preferences.gFormScale != kUnscaled) {
        layout.LayOutMainForm();
    }
    log.band.ShowBand();
    log.entry.CheckTabModeEntry();
    readVoiceSettings();
    if (asksForSections) {
        log.sectionSetup.AskForNewContest();
    }
    log.question.PromptLogStart();
    if (sectionsAreGiven) {
        log.sectionSetup.TellLost();
    }
    readCwMessages();
    openSpotSource();
    layout.LayOutMainForm();
    if (RigNamed(preferences.gRigName).link != RigLink::None) {
        openRigPort();
    }
}

}  // namespace tallyhut
