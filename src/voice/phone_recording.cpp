#include "voice/phone_recording.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/platform_error.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

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
    return std::string(strokes, '|') + std::string(kMeterLength - strokes, '.');
}

std::string SecondsText(std::chrono::milliseconds length) {
    return PlainText(RoundedTo(1, static_cast<double>(length.count()) / kMsASecond)) + " s";
}

}  // namespace

std::string PhoneRecording::NameOf(int key) const {
    return "F" + std::to_string(key) + ".wav";
}

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
    return !files.FileExists(path) || desk.dialogs.Show({.title = "Record",
                                                         .text = name + " stands in the working directory already. Do "
                                                                        "you want to record over it?",
                                                         .buttons = Buttons::YesNo,
                                                         .icon = Icon::Question}) == Answer::Yes;
}

void PhoneRecording::Begin(int key) {
    key_ = key;
    peak_ = 0;
    last_ = WorkingFile(directories, NameOf(key));
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
    peak_ = std::max(peak_, level);
    ShowLevel(level);
    form.lblRecording.SetCaption("Recording " + NameOf(key_) + ", " + SecondsText(recorder.Length()));
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
    if (key_ == 0) {
        return;
    }
    form.tmrLevel.SetTimerEnabled(false);
    const std::string length = SecondsText(recorder.Length());
    peak_ = std::max(peak_, recorder.Level());
    try {
        recorder.Stop();
        Keep();
        Tell("Recorded " + NameOf(key_) + ", " + length + '.' + std::string{RowOf(peak_).advice});
    } catch (const PlatformError& failure) {
        Tell(std::string{"The recording could not be kept. "} + failure.what());
    }
    key_ = 0;
    form.cmdStopRecord.SetEnabled(false);
    form.lblMeter.SetCaption("");
    form.lblLevel.SetCaption("");
}

void PhoneRecording::Keep() {
    (form.*kPhoneKeys.at(static_cast<std::size_t>(key_ - 1)).file).SetText(last_);
    form.cmdPlayBack.SetEnabled(true);
}

void PhoneRecording::Tell(std::string_view words) {
    form.lblRecording.SetCaption(words);
    desk.Announce(words);
}

void PhoneRecording::cmdPlayBack_Click() {
    messages.Silence();
    try {
        messages.player.Open(last_);
        messages.player.Play();
    } catch (const PlatformError& failure) {
        Tell(std::string{"The recording cannot be played. "} + failure.what());
    }
}

void PhoneRecording::PhoneFrm_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEsc && key_ != 0) {
        KeyAscii = 0;
        cmdStopRecord_Click();
    }
}

}  // namespace tallyhut
