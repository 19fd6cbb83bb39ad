#include "voice/phone_messages.h"

#include <algorithm>

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

const MessageBox kInvalidPortBox{
    .title = "Invalid port.",
    .text = "The port you have selected for Phone keying is invalid.  Please select another or enter 0 for none.",
    .buttons = Buttons::OK,
    .icon = Icon::Exclamation};

bool IsPlaying(const WavePlayer& player) {
    return player.Mode() == WavePlayer::kPlaying;
}

}  // namespace

void PhoneMessages::FKeyPhone(int KeyCode) {
    const auto* const key = std::ranges::find(kPhoneKeys, KeyCode, &PhoneKey::code);
    if (key == kPhoneKeys.end()) {
        return;
    }
    form.Load();  // its timer is what ends a message
    player.Close();
    if (KeyCode == kKeyF1 && ParseNumber(form.txtPHLoop.Text()).value_or(0) > 0) {
        gPhoneRepeat = 1;
    }
    try {
        const std::string path = PathOf(*key);
        if (path.empty() || !files.FileExists(path)) {
            return;  // a line that was down is let up by the timer
        }
        PutDown();
        player.Open(path);
        player.Play();
        form.Timer1.SetTimerEnabled(true);
        return;
    } catch (const PlatformError&) {
        // No wave file, a cable that was pulled.
    } catch (const ValueError&) {
        // A port or an address that is no number.
    }
    line.Release();
}

/// Paths are bytes, and umlauts of a name are mostly two of them; what is typed is one byte a character.
std::string PhoneMessages::PathOf(const PhoneKey& key) const {
    const std::string typed = Trim((form.*key.file).Text());
    const std::string path = WholePath(directories, typed);
    const std::string encoded = WholePath(directories, Latin1ToUtf8(typed));
    return encoded != path && !files.FileExists(path) && files.FileExists(encoded) ? encoded : path;
}

void PhoneMessages::PutDown() {
    if (TrimmedNumber(form.Text10.Text()) > 0 && !line.IsOpen()) {
        PhoneSetup();
    }
    line.Set(true);
}

void PhoneMessages::PhoneSetup() {
    try {
        if (TrimmedNumber(form.Text10.Text()) > 0) {
            line.Open();
        }
        return;
    } catch (const PlatformError&) {
        // Told below, like a text that is no number.
    } catch (const ValueError&) {
        // The same.
    }
    dialogs.Beep();
    dialogs.Show(kInvalidPortBox);
    if (!form.IsVisible()) {
        form.ShowModal();
    }
}

void PhoneMessages::Timer1_Elapsed() {
    if (IsPlaying(player)) {
        return;
    }
    form.Timer1.SetTimerEnabled(false);
    LetGo();
    if (gPhoneRepeat == 1) {
        form.tmrRepeat.SetTimerEnabled(true);
    }
}

void PhoneMessages::LetGo() {
    try {
        line.Set(false);
    } catch (const PlatformError&) {
        // A cable that was pulled; what is left is done below.
    } catch (const ValueError&) {
        // The same for an address that is no number any more.
    }
    line.Release();  // what was put down by another choice than the present one
}

void PhoneMessages::LetGoWhenOver() {
    if (form.Timer1.Enabled() && !IsPlaying(player)) {
        line.Release();
    }
}

void PhoneMessages::Silence() {
    gPhoneRepeat = 0;
    form.tmrRepeat.SetTimerEnabled(false);
    form.Timer1.SetTimerEnabled(false);
    player.Close();
    line.Release();
}

void PhoneMessages::tmrRepeat_Elapsed() {
    form.tmrRepeat.SetTimerEnabled(false);
    FKeyPhone(kKeyF1);
}

void PhoneMessages::EndRepeat() {
    if (gPhoneRepeat > 0) {
        gPhoneRepeat = 0;
        form.tmrRepeat.SetTimerEnabled(false);
    }
}

bool PhoneMessages::StopsAtEsc() {
    if (!IsPlaying(player)) {
        return false;
    }
    player.Stop();
    return true;
}

}  // namespace tallyhut
