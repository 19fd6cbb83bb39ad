#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/files.h"
#include "platform/sim/sound.h"
#include "platform/wave_format.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/wave_bytes.h"

namespace tallyhut {
namespace {

using Command = sim::Sound::Command;

constexpr int kPlaying = WavePlayer::kPlaying;

struct SimSound : testing::Test {
    sim::Clock clock;
    sim::Files files;
    sim::Sound sound{clock, files};
    const std::unique_ptr<WavePlayer> player = sound.NewPlayer("PhoneFrm");
    const std::unique_ptr<WaveRecorder> recorder = sound.NewRecorder();

    SimSound() {
        files.Put("/contest/cq.wav", WaveFile(1'000, std::string(6'000, 'x')));
        files.Put("/contest/short.wav", WaveFile(44'100, std::string(4, 'x')));
        files.Put("/contest/empty.wav", WaveFile(1'000, ""));
    }
};

TEST_F(SimSound, FilePlaysAsLongAsItLasts) {
    player->Open("cq.wav");
    EXPECT_EQ(player->Length().count(), 3'000);
    EXPECT_EQ(player->Mode(), 0);
    player->Play();
    clock.Advance(2'999);
    EXPECT_EQ(player->Mode(), kPlaying);
    clock.Advance(1);
    EXPECT_EQ(player->Mode(), 0);
}

TEST_F(SimSound, LengthIsExactToTheMicrosecond) {
    player->Open("short.wav");
    player->Play();
    clock.SleepUs(45);
    EXPECT_EQ(player->Mode(), kPlaying);
    clock.SleepUs(1);
    EXPECT_EQ(player->Mode(), 0);
}

TEST_F(SimSound, FileWithoutSamplesIsOverAtOnce) {
    player->Open("empty.wav");
    player->Play();
    EXPECT_EQ(player->Mode(), 0);
}

TEST_F(SimSound, PlayBeginsAnewAndStopAndCloseAreSilence) {
    player->Open("cq.wav");
    player->Play();
    clock.Advance(2'000);
    player->Play();
    clock.Advance(2'000);
    EXPECT_EQ(player->Mode(), kPlaying);
    player->Stop();
    EXPECT_EQ(player->Mode(), 0);
    player->Play();
    EXPECT_EQ(player->Mode(), kPlaying);
    player->Close();
    EXPECT_EQ(player->Mode(), 0);
    player->Play();
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(player->Length().count(), 0);
}

TEST_F(SimSound, WhatChangesSomethingIsRecordedAndToldAsItHappens) {
    std::string told;
    sound.onCommand = [&](const Command& command) { told += command.player + ' ' + command.command + '\n'; };
    player->Close();
    player->Stop();
    player->Open("cq.wav");
    player->Play();
    clock.Advance(10);
    player->Stop();
    player->Close();
    EXPECT_EQ(sound.commands, (std::vector<Command>{{0, "PhoneFrm", "open", "cq.wav"},
                                                    {0, "PhoneFrm", "play", "cq.wav"},
                                                    {10'000, "PhoneFrm", "stop", "cq.wav"},
                                                    {10'000, "PhoneFrm", "close", "cq.wav"}}));
    EXPECT_EQ(told, "PhoneFrm open\nPhoneFrm play\nPhoneFrm stop\nPhoneFrm close\n");
}

TEST_F(SimSound, RecordKeepsTheLatest) {
    constexpr std::size_t kKept = sim::Sound::kKept;
    player->Open("empty.wav");
    for (std::size_t count = 0; count < 5 * kKept; ++count) {
        player->Play();
        ASSERT_LE(sound.commands.size(), 2 * kKept);
    }
    EXPECT_GE(sound.commands.size(), kKept);
}

TEST_F(SimSound, PlayersPlayEachByItself) {
    const auto prompts = sound.NewPlayer("BlindFrm");
    player->Open("cq.wav");
    prompts->Open("cq.wav");
    player->Play();
    prompts->Play();
    player->Stop();
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(prompts->Mode(), kPlaying);
}

TEST_F(SimSound, OpenThatFailsLeavesNoFileOpenAndIsNotRecorded) {
    files.Put("/contest/text.wav", "no wave");
    player->Open("cq.wav");
    player->Play();
    sound.commands.clear();
    EXPECT_EQ(FailureOf([&] { player->Open("none.wav"); }), "none.wav: No such file or directory");
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(FailureOf([&] { player->Open("text.wav"); }), "text.wav: Not a wave file");
    sound.refusal = "Too many open files";
    EXPECT_EQ(FailureOf([&] { player->Open("cq.wav"); }), "cq.wav: Too many open files");
    player->Play();
    player->Close();
    EXPECT_EQ(sound.commands, std::vector<Command>{});
}

TEST_F(SimSound, UnpluggedSoundEndsWhatPlaysForGood) {
    player->Open("cq.wav");
    player->Play();
    sound.isPluggedIn = false;
    EXPECT_EQ(player->Mode(), 0);
    player->Play();
    EXPECT_EQ(player->Mode(), 0);
    sound.isPluggedIn = true;
    EXPECT_EQ(player->Mode(), 0);
    player->Play();
    EXPECT_EQ(player->Mode(), kPlaying);
}

TEST_F(SimSound, SoundThatHangsEndsASecondBehindTheFile) {
    sound.isHanging = true;
    player->Open("cq.wav");
    player->Play();
    clock.Advance(3'999);
    EXPECT_EQ(player->Mode(), kPlaying);
    clock.Advance(1);
    EXPECT_EQ(player->Mode(), 0);
}

TEST_F(SimSound, RecordingTakesTheFilesPlaceWhenItStops) {
    sound.inputLevel = 0.5;
    recorder->Start("/contest/cq.wav");
    EXPECT_TRUE(recorder->IsRecording());
    clock.Advance(1'500);
    EXPECT_EQ(recorder->Level(), 0.5);
    EXPECT_EQ(recorder->Length().count(), 1'500);
    EXPECT_EQ(files.contents["/contest/cq.wav"], WaveFile(1'000, std::string(6'000, 'x')));
    recorder->Stop();
    EXPECT_FALSE(recorder->IsRecording());
    EXPECT_EQ(recorder->Length().count(), 0);
    player->Open("cq.wav");
    EXPECT_EQ(player->Length().count(), 1'500);
}

TEST_F(SimSound, RecordingThatCannotBeSavedIsKept) {
    recorder->Start("/contest/new.wav");
    clock.Advance(1'000);
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(FailureOf([&] { recorder->Stop(); }), "/contest/new.wav: No space left on device");
    EXPECT_FALSE(recorder->IsRecording());
    clock.Advance(1'000);
    recorder->Stop();
    player->Open("new.wav");
    EXPECT_EQ(player->Length().count(), 1'000);
}

TEST_F(SimSound, RecordingEndsAfterTenMinutesByItself) {
    recorder->Start("/contest/new.wav");
    clock.Advance(599'999);
    EXPECT_TRUE(recorder->IsRecording());
    clock.Advance(1'000);
    EXPECT_FALSE(recorder->IsRecording());
    recorder->Stop();
    player->Open("new.wav");
    EXPECT_EQ(player->Length().count(), 600'000);
}

TEST_F(SimSound, NothingRecordedTouchesNoFile) {
    recorder->Start("/contest/cq.wav");
    const int before = files.Operations();
    EXPECT_EQ(FailureOf([&] { recorder->Stop(); }), "Nothing was recorded");
    recorder->Stop();
    EXPECT_EQ(files.Operations(), before);
}

TEST_F(SimSound, InputThatIsNotThereSaysWhy) {
    sound.inputRefusal = "No microphone";
    EXPECT_EQ(FailureOf([&] { recorder->Start("/contest/cq.wav"); }), "No microphone");
    EXPECT_FALSE(recorder->IsRecording());
    recorder->Stop();
}

}  // namespace
}  // namespace tallyhut
