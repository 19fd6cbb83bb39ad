#include "voice/voice_prompts.h"

#include <array>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kWhere = "Put the audio wave files in this program's working directory: ";
constexpr Tick kLate = 1'000;         // ms behind the end of a file
constexpr Microtick kLookUs = 5'000;  // no processor is held in a wait

/// By the level.
constexpr std::array kLevels{&BlindFrm::Option1, &BlindFrm::Option2, &BlindFrm::Option3};

}  // namespace

void VoicePrompts::BlindKeyPhone(std::string_view name) {
    player.Close();
    try {
        player.Open(store.Path(name));
        player.Play();
    } catch (const PlatformError&) {
        // Without the recordings the program is quiet.
    }
}

void VoicePrompts::AwaitEnd() {
    const Tick latest = clock.TickMs() + static_cast<Tick>(player.Length().count()) + kLate;
    while (player.Mode() == WavePlayer::kPlaying && clock.TickMs() < latest) {
        clock.SleepUs(kLookUs);
        whileWaiting();
    }
}

void VoicePrompts::BlindFrm_Load() {
    form.Label7.SetCaption(std::string{kWhere} + store.directories.WorkingDirectory);
    if (preferences.gVoiceNav < kLevels.size()) {
        loading = true;
        (form.*kLevels.at(preferences.gVoiceNav)).SetValue(true);
        loading = false;
    }
}

void VoicePrompts::BlindFrm_Unload() {
    player.Close();
}

void VoicePrompts::Option1_Click() {
    if (!loading) {
        BlindKeyPhone("NavDis");
    }
}

void VoicePrompts::Option2_Click() {
    if (!loading) {
        BlindKeyPhone("NavEn");
        AwaitEnd();
        BlindKeyPhone("Call");
    }
}

void VoicePrompts::Option3_Click() {
    if (!loading) {
        BlindKeyPhone("NavEn");
    }
}

void VoicePrompts::Command1_Click() {
    for (std::size_t level = 0; level < kLevels.size(); ++level) {
        if ((form.*kLevels.at(level)).Value()) {
            preferences.gVoiceNav = static_cast<std::uint8_t>(level);
        }
    }
    preferencesFile.SavePref();
    form.Hide();
}

}  // namespace tallyhut
