#include "log/start_question.h"

#include "platform/platform_error.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

const MessageBox kOpenExistingBox{
    .title = "Open existing log?",
    .text =
        "Do you want to continue an existing contest? (Yes opens your existing log, No erases any existing log and "
        "starts a new log.)",
    .buttons = Buttons::YesNo,
    .icon = Icon::Question,
};

/// One step, whose failure is told and holds nothing up. LogWriteError is none of these types and passes.
template <typename Step>
void TellingFailure(Dialogs& dialogs, Step step) {
    const auto tell = [&dialogs](const std::exception& failure) {
        dialogs.Show({.title = "Error.", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    };
    try {
        step();
    } catch (const PlatformError& failure) {
        tell(failure);
    } catch (const ValueError& failure) {
        tell(failure);
    }
}

}  // namespace

void StartQuestion::PromptLogStart() {
    TellingFailure(desk.dialogs, [this] { station.mnuSetup_Click(); });
    const bool goesOn = desk.dialogs.Show(kOpenExistingBox) == Answer::Yes;
    TellingFailure(desk.dialogs, [this, goesOn] {
        if (goesOn) {
            reload.mnuopen2();
        } else {
            fileMenu.StartNewLog();
        }
    });
    if (TabMode(contest.preferences) == 2) {
        entry.SetTabPositions();
    }
}

}  // namespace tallyhut
