#include "voice/phone_recording.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/platform_error.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr const char* kTitle = "Record";
constexpr const char* kTryAgain = "\n\nIt is not lost yet: Stop Recording tries again.";
constexpr int kMeterLength = 20;
constexpr double kMsASecond = 1000;

/// From which level on the words hold.
struct LevelRow {
    double from;
    std::string_view told;    ///< beside the meter
    std::string_view advice;  ///< behind a recording whose greatest level it was
};
constexpr std::array kLevels{
    LevelRow{0.98, "too loud", " It is too loud and will be distorted: turn the input down."},
    LevelRow{0.2, "good", ""},
    LevelRow{0.02, "low", " It is low: turn the input up, or go nearer to the microphone."},
    LevelRow{0, "silent", " Nothing can be heard on it: is the microphone connected and switched on?"},
};

const LevelRow& RowOf(double level) {
    return *std::ranges::find_if(kLevels, [level](const LevelRow& row) { return level >= row.from; });
}

/// A stroke each twentieth.
std::string MeterOf(double level) {
    const auto strokes = static_cast<std::size_t>(std::clamp(std::ceil(level * kMeterLength), 0.0, 1.0 * kMeterLength));
    return std::string(strokes, '|') + std::string(kMeterLength - strokes, '-');
}

std::string SecondsText(std::chrono::milliseconds length) {
    return PlainText(RoundedTo(1, static_cast<double>(length.count()) / kMsASecond)) + " s";
}

std::string NameOf(int key) {
    return "F" + std::to_string(key) + ".wav";
}

}  // namespace

void PhoneRecording::cmdRecord_Click(int key) {
    Stop();
    const std::string name = NameOf(key);
    const std::string path = WorkingFile(directories, name);
    try {
        if (MayReplace(path, name)) {
            messages.Silence();
            recorder.Start(path);
            Begin(key);
        }
    } catch (const PlatformError& failure) {
        Tell(std::string{"Nothing can be recorded. "} + failure.what());
    }
}

bool PhoneRecording::MayReplace(const std::string& path, const std::string& name) const {
    return !files.FileExists(path) || desk.dialogs.Show({.title = kTitle,
                                                         .text = name + " stands in the working directory already. Do "
                                                                        "you want to record over it?",
                                                         .buttons = Buttons::YesNo,
                                                         .icon = Icon::Question}) == Answer::Yes;
}

void PhoneRecording::Begin(int key) {
    recorded = key;
    peak = 0;
    last = WorkingFile(directories, NameOf(key));
    form.cmdPlayBack.SetEnabled(false);
    form.cmdStopRecord.SetEnabled(true);
    form.cmdStopRecord.SetFocus();
    form.tmrLevel.SetTimerEnabled(true);
    desk.Announce("Recording F" + std::to_string(key));
    tmrLevel_Elapsed();
}

void PhoneRecording::tmrLevel_Elapsed() {
    if (!recorder.IsRecording()) {
        Stop();
        return;
    }
    const double level = recorder.Level();
    peak = std::max(peak, level);
    ShowLevel(level);
    form.lblRecording.SetCaption("Recording " + NameOf(recorded) + ", " + SecondsText(recorder.Length()));
}

void PhoneRecording::ShowLevel(double level) {
    form.lblMeter.SetCaption(MeterOf(level));
    form.lblLevel.SetCaption(RowOf(level).told);
}

void PhoneRecording::cmdStopRecord_Click() {
    Stop();
    form.cmdPlayBack.SetFocus();
}

void PhoneRecording::Stop() {
    if (recorded == 0) {
        return;
    }
    form.tmrLevel.SetTimerEnabled(false);
    const std::string length = SecondsText(recorder.Length());
    peak = std::max(peak, recorder.Level());
    form.lblMeter.SetCaption("");
    form.lblLevel.SetCaption("");
    try {
        recorder.Stop();
        Keep();
        Tell("Recorded " + NameOf(recorded) + ", " + length + '.' + std::string{RowOf(peak).advice});
    } catch (const PlatformError& failure) {
        Tell(std::string{"The recording could not be kept. "} + failure.what());
        if (recorder.Length().count() > 0) {
            desk.dialogs.Show({.title = kTitle,
                               .text = form.lblRecording.Caption() + kTryAgain,
                               .buttons = Buttons::OK,
                               .icon = Icon::Exclamation});
            return;
        }
    }
    recorded = 0;
    form.cmdStopRecord.SetEnabled(false);
}

void PhoneRecording::Keep() {
    (form.*kPhoneKeys.at(static_cast<std::size_t>(recorded - 1)).file).SetText(last);
    form.cmdPlayBack.SetEnabled(true);
}

void PhoneRecording::Tell(std::string_view words) {
    form.lblRecording.SetCaption(words);
    desk.Announce(words);
}

void PhoneRecording::cmdPlayBack_Click() {
    messages.Silence();
    try {
        messages.player.Open(last);
        messages.player.Play();
    } catch (const PlatformError& failure) {
        Tell(std::string{"The recording cannot be played. "} + failure.what());
    }
}

void PhoneRecording::PhoneFrm_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEsc && recorded != 0) {
        KeyAscii = 0;
        cmdStopRecord_Click();
    }
}

}  // namespace tallyhut
