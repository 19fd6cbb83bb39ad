#include "platform/real/sdl_sound.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "platform/real/posix_files.h"
#include "platform/wave_format.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/sound_disk.h"
#include "tests/platform/wave_bytes.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;

constexpr int kPlaying = WavePlayer::kPlaying;
constexpr auto kLongEnough = 20s;  // for whatever has to happen; none of it takes a tenth of that

/// Makes a thread and waits until the system has forgotten it, a moment after it was joined.
void MakeAThread() {
    pid_t number = 0;
    std::thread{[&number] { number = gettid(); }}.join();
    while (fs::exists("/proc/self/task/" + std::to_string(number))) {
        std::this_thread::sleep_for(1ms);
    }
}

/// Of this process. The thread sanitizer adds one of its own to the first that is made, so one is made before any
/// count.
std::ptrdiff_t Threads() {
    [[maybe_unused]] static const bool made = (MakeAThread(), true);
    return std::distance(fs::directory_iterator{"/proc/self/task"}, fs::directory_iterator{});
}

/// Whether it becomes true.
template <class Condition>
bool Comes(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + kLongEnough;
    while (std::chrono::steady_clock::now() < end) {
        if (condition()) {
            return true;
        }
        std::this_thread::sleep_for(1ms);
    }
    return false;
}

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

struct SdlSoundTest : testing::Test {
    TemporaryFolder folder;
    PosixFiles files;
    SdlSound sound{files};

    /// A file in the folder.
    std::string Put(const std::string& name, const std::string& content) {
        files.Write(folder.At(name), content);
        return folder.At(name);
    }
};

/// Played into a pipe, much faster than it is heard.
struct SdlPlayerTest : SdlSoundTest {
    SoundDisk disk{SoundDisk::Pace::Fast};
    std::unique_ptr<WavePlayer> player = sound.NewPlayer("PhoneFrm");
    std::string heard;

    void Listen() { heard += disk.Take(); }

    void PlayToTheEnd(const std::string& path) {
        player->Open(path);
        player->Play();
        EXPECT_TRUE(Comes([&] {
            Listen();
            return player->Mode() != kPlaying;
        }));
    }

    /// All that was heard until the player's end, and the silence behind it.
    const std::string& HeardInAll() {
        player.reset();
        Listen();
        return heard;
    }
};

TEST_F(SdlPlayerTest, EverySampleReachesTheDeviceByteForByte) {
    const std::vector<WaveHead> heads{
        {.channels = 1, .rate = 8'000, .blockBytes = 2, .bits = 16},
        {.channels = 1, .rate = 11'025, .blockBytes = 1, .bits = 8},
        {.channels = 1, .rate = 22'050, .blockBytes = 2, .bits = 16},
        {.channels = 2, .rate = 44'100, .blockBytes = 4, .bits = 16},
        {.channels = 2, .rate = 48'000, .blockBytes = 8, .bits = 32},
        {.coding = 3, .channels = 1, .rate = 48'000, .blockBytes = 4, .bits = 32},
    };
    std::size_t at = 0;
    for (const WaveHead& head : heads) {
        const std::string samples = Pattern(std::size_t{12'345} * head.blockBytes, head.rate + head.bits);
        PlayToTheEnd(Put("cq.wav", WaveBytes(head, samples)));
        player = sound.NewPlayer("PhoneFrm");  // the former's end puts out the last
        Listen();
        const std::size_t found = heard.find(samples, at);
        ASSERT_NE(found, std::string::npos) << head.rate << ' ' << head.bits;
        at = found + samples.size();
    }
}

TEST_F(SdlPlayerTest, FilesOneAfterTheOtherAreHeardInTheirOrderEachOnce) {
    std::vector<std::string> samples;
    for (std::uint32_t file = 0; file < 5; ++file) {
        samples.push_back(Pattern(20'000, file));
        PlayToTheEnd(Put("f.wav", WaveBytes({.rate = file == 3 ? 44'100U : 22'050U}, samples.back())));
    }
    HeardInAll();
    std::size_t at = 0;
    for (const std::string& each : samples) {
        EXPECT_EQ(Count(heard, each), 1U);
        EXPECT_GE(heard.find(each), at);
        at = heard.find(each) + each.size();
    }
    EXPECT_EQ(heard.find_first_not_of('\0', at), std::string::npos);
}

TEST_F(SdlPlayerTest, TwentyFourBitsAreWidenedToThirtyTwo) {
    const std::string triples = Pattern(3 * 5'000, 1);
    std::string wide;
    for (std::size_t at = 0; at < triples.size(); at += 3) {
        wide += '\0' + triples.substr(at, 3);
    }
    PlayToTheEnd(Put("cq.wav", WaveBytes({.rate = 48'000, .blockBytes = 3, .bits = 24}, triples)));
    EXPECT_NE(HeardInAll().find(wide), std::string::npos);
}

TEST_F(SdlPlayerTest, PackedFilesAreUnpacked) {
    std::string packed;
    std::string samples;
    for (int i = 0; i < 1'000; ++i) {  // silence, the loudest, the loudest the other way round: mu-law
        packed +=
            "\xFF\x80"
            "\0"s;
        samples += LowFirst(0, 2) + LowFirst(32'124, 2) + LowFirst(0x1'0000 - 32'124, 2);
    }
    const WaveHead head{.coding = 7, .rate = 8'000, .blockBytes = 1, .bits = 8};
    player->Open(Put("cq.wav", WaveBytes(head, packed)));
    EXPECT_EQ(player->Length(), 375ms);
    PlayToTheEnd(folder.At("cq.wav"));
    EXPECT_NE(HeardInAll().find(samples), std::string::npos);
}

TEST_F(SdlPlayerTest, PathMayHaveBlanksAndBytesOfAnyKind) {
    const std::string samples = Pattern(5'000, 1);
    PlayToTheEnd(
        Put("CQ f\xC3\xBCr \xFC"
            "ber all\n.wav",
            WaveBytes({}, samples)));
    EXPECT_NE(HeardInAll().find(samples), std::string::npos);
}

TEST_F(SdlPlayerTest, PlayDuringPlayBeginsAnew) {
    const std::string samples = Pattern(400'000, 1);
    player->Open(Put("cq.wav", WaveBytes({}, samples)));
    player->Play();
    ASSERT_TRUE(Comes([&] {
        Listen();
        return heard.size() > 20'000;
    }));
    PlayToTheEnd(folder.At("cq.wav"));
    HeardInAll();
    const std::string begin = samples.substr(0, 100);
    EXPECT_EQ(Count(heard, begin), 2U);
    EXPECT_EQ(Count(heard, samples), 1U);
    const std::size_t broken = heard.find(begin);
    EXPECT_EQ(heard.substr(broken, 15'000), samples.substr(0, 15'000));
    EXPECT_GT(heard.find(samples), broken);
}

TEST_F(SdlPlayerTest, StopIsSilenceAtOnceAndTheModeKnowsIt) {
    const std::string samples = Pattern(400'000, 1);
    player->Open(Put("cq.wav", WaveBytes({}, samples)));
    player->Play();
    ASSERT_TRUE(Comes([&] {
        Listen();
        return heard.size() > 20'000;
    }));
    player->Stop();
    EXPECT_EQ(player->Mode(), 0);
    HeardInAll();
    const std::size_t begin = heard.find(samples.substr(0, 100));
    const std::size_t end = heard.find_last_not_of('\0') + 1;
    ASSERT_NE(begin, std::string::npos);
    EXPECT_LT(end - begin, samples.size());
    EXPECT_EQ(heard.substr(begin, end - begin), samples.substr(0, end - begin));
}

TEST_F(SdlPlayerTest, FileThatIsRemovedWhileItPlaysGoesOnToItsEnd) {
    const std::string samples = Pattern(100'000, 1);
    player->Open(Put("cq.wav", WaveBytes({}, samples)));
    files.Remove(folder.At("cq.wav"));
    player->Play();
    EXPECT_TRUE(Comes([&] {
        Listen();
        return player->Mode() != kPlaying;
    }));
    EXPECT_NE(HeardInAll().find(samples), std::string::npos);
}

TEST_F(SdlPlayerTest, FileThatIsCutWhileItPlaysEndsThere) {
    player->Open(Put("cq.wav", WaveBytes({}, Pattern(44'100 * 60, 1))));
    fs::resize_file(folder.At("cq.wav"), 50'044);
    player->Play();
    EXPECT_TRUE(Comes([&] {
        Listen();
        return player->Mode() != kPlaying;
    }));
    EXPECT_EQ(HeardInAll().find_last_not_of('\0') + 1 - heard.find_first_not_of('\0'), 50'000U);
}

TEST_F(SdlPlayerTest, ThreeHoursAreOpenedAtOnceAndStopped) {
    constexpr std::uint64_t kBytes = 3ULL * 3'600 * 44'100 * 4;
    const WaveHead head{.channels = 2, .rate = 44'100, .blockBytes = 4};
    Put("cq.wav", Riff(FormatChunk(head) + "data" + LowFirst(kBytes, 4)));
    fs::resize_file(folder.At("cq.wav"), 44 + kBytes);  // holes: nothing lies on the disk
    player->Open(folder.At("cq.wav"));
    EXPECT_EQ(player->Length(), 3h);
    player->Play();
    EXPECT_TRUE(Comes([&] {
        Listen();
        return heard.size() > 100'000;
    }));
    EXPECT_EQ(player->Mode(), kPlaying);
    player->Close();
    EXPECT_EQ(player->Mode(), 0);
}

TEST_F(SdlPlayerTest, FileWithoutSamplesIsOverAtOnceAndAsksNothingOfTheSoundSystem) {
    const auto before = Threads();
    player->Open(Put("cq.wav", WaveBytes({}, "")));
    player->Play();
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(Threads(), before);
}

TEST_F(SdlPlayerTest, WhatCannotBePlayedIsToldWithItsPathAndLeavesNothingOpen) {
    Put("text.wav", "no wave");
    player->Open(Put("cq.wav", WaveBytes({}, Pattern(400'000, 1))));
    player->Play();
    EXPECT_EQ(FailureOf([&] { player->Open(folder.At("none.wav")); }),
              folder.At("none.wav") + ": No such file or directory");
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(FailureOf([&] { player->Open(folder.At("text.wav")); }), folder.At("text.wav") + ": Not a wave file");
    EXPECT_EQ(FailureOf([&] { player->Open(folder.Path()); }), folder.Path() + ": Is a directory");
    EXPECT_EQ(FailureOf([&] { player->Open(disk.path); }), disk.path + ": Not a regular file");
    player->Play();
    player->Stop();
    player->Close();
    EXPECT_EQ(player->Mode(), 0);
    EXPECT_EQ(player->Length(), 0ms);
}

TEST_F(SdlPlayerTest, DamagedPackedFileIsTold) {
    const WaveHead head{.coding = 17, .blockBytes = 5, .bits = 4};
    Put("cq.wav", WaveBytes(head, "xx"));
    EXPECT_TRUE(FailureOf([&] { player->Open(folder.At("cq.wav")); }).starts_with(folder.At("cq.wav") + ": "));
}

TEST_F(SdlPlayerTest, TwoPlayersAreHeardAtOnce) {
    const std::string messages = Pattern(600'000, 1);
    const std::string prompts = Pattern(60'000, 2);
    player->Open(Put("cq.wav", WaveBytes({}, messages)));
    player->Play();
    ASSERT_TRUE(Comes([&] {
        Listen();
        return heard.size() > 20'000;
    }));
    SoundDisk other{SoundDisk::Pace::Fast};
    auto prompter = sound.NewPlayer("BlindFrm");
    prompter->Open(Put("Call.wav", WaveBytes({}, prompts)));
    prompter->Play();
    EXPECT_EQ(player->Mode(), kPlaying);
    std::string prompted;
    EXPECT_TRUE(Comes([&] {
        Listen();
        prompted += other.Take();
        return player->Mode() != kPlaying && prompter->Mode() != kPlaying;
    }));
    prompter.reset();
    EXPECT_NE((prompted + other.Take()).find(prompts), std::string::npos);
    EXPECT_NE(HeardInAll().find(messages), std::string::npos);
}

TEST_F(SdlPlayerTest, ThousandPlaysEndInTheLastOne) {
    const std::string last = Pattern(50'000, 7);
    const std::string first = Put("cq.wav", WaveBytes({.rate = 44'100}, Pattern(400'000, 1)));
    Put("qrz.wav", WaveBytes({}, last));
    for (int press = 0; press < 1'000; ++press) {
        player->Open(press % 2 == 0 ? first : folder.At("qrz.wav"));
        player->Play();
        Listen();
    }
    EXPECT_TRUE(Comes([&] {
        Listen();
        return player->Mode() != kPlaying;
    }));
    EXPECT_NE(HeardInAll().find(last), std::string::npos);
}

TEST_F(SdlPlayerTest, NoThreadStandsBeforeTheFirstPlayNorBehindThePlayersEnd) {
    const auto before = Threads();
    player->Open(Put("cq.wav", WaveBytes({}, Pattern(2'000, 1))));
    EXPECT_EQ(Threads(), before);
    PlayToTheEnd(folder.At("cq.wav"));
    EXPECT_TRUE(Comes([&] {  // the player's own thread rests, without a device
        Listen();
        return Threads() == before + 1;
    }));
    player.reset();
    EXPECT_TRUE(Comes([&] { return Threads() == before; }));
}

TEST_F(SdlPlayerTest, SignalsToTerminateStayTheProgramsOwn) {
    PlayToTheEnd(Put("cq.wav", WaveBytes({}, Pattern(2'000, 1))));
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction action {};
        sigaction(number, nullptr, &action);
        EXPECT_EQ(action.sa_handler, SIG_DFL) << number;
    }
}

struct SdlPaceTest : SdlSoundTest {
    SoundDisk disk{SoundDisk::Pace::Real};
    const std::unique_ptr<WavePlayer> player = sound.NewPlayer("PhoneFrm");
};

TEST_F(SdlPaceTest, ModeIsPlayingAsLongAsTheFileLasts) {
    player->Open(Put("cq.wav", WaveBytes({}, Pattern(44'100 / 2, 1))));
    const auto begun = std::chrono::steady_clock::now();
    player->Play();
    EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
    EXPECT_GE(std::chrono::steady_clock::now() - begun, 500ms);
    EXPECT_EQ(player->Length(), 500ms);
}

TEST_F(SdlPaceTest, DeviceThatIsUnpluggedEndsThePlaying) {
    player->Open(Put("cq.wav", WaveBytes({.rate = 44'100}, Pattern(44'100 * 2 * 60, 1))));
    player->Play();
    ASSERT_TRUE(Comes([&] { return !disk.Take().empty(); }));
    EXPECT_EQ(player->Mode(), kPlaying);
    disk.Unplug();
    EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
}

struct SdlFailureTest : SdlSoundTest {
    const std::unique_ptr<WavePlayer> player = sound.NewPlayer("PhoneFrm");
    const std::string minute = Put("cq.wav", WaveBytes({}, Pattern(44'100 * 60, 1)));
};

TEST_F(SdlFailureTest, MachineWithoutSoundPlaysNothingAndSaysSoInTheMode) {
    setenv("SDL_AUDIODRIVER", "bogus", 1);
    for (int attempt = 0; attempt < 3; ++attempt) {
        player->Open(minute);
        player->Play();
        EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
    }
}

TEST_F(SdlFailureTest, SoundThatIsThereByNowIsHeardByTheNextPlay) {
    setenv("SDL_AUDIODRIVER", "bogus", 1);
    player->Open(minute);
    player->Play();
    EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
    SoundDisk disk{SoundDisk::Pace::Real};
    player->Play();
    EXPECT_TRUE(Comes([&] { return !disk.Take().empty(); }));
    EXPECT_EQ(player->Mode(), kPlaying);
}

TEST_F(SdlFailureTest, SoundSystemThatHangsWhenTheDeviceIsOpenedHoldsNobodyUp) {
    const std::string pipe = folder.At("pipe");
    std::signal(SIGPIPE, SIG_IGN);             // the device wakes when nobody reads any more
    EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);  // one that nobody reads makes whoever opens it wait
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", pipe.c_str(), 1);
    for (int attempt = 0; attempt < 2; ++attempt) {
        player->Open(Put("short.wav", WaveBytes({}, Pattern(4'410, 1))));
        const auto begun = std::chrono::steady_clock::now();
        player->Play();
        EXPECT_EQ(player->Mode(), kPlaying);
        EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
        EXPECT_GE(std::chrono::steady_clock::now() - begun, 1'100ms);
    }
    const Descriptor letGo{open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)};
}

TEST_F(SdlFailureTest, SoundSystemThatHangsWhileItPlaysHoldsNobodyUpAndIsSilentWhenItComesToItself) {
    const auto before = Threads();
    SoundDisk disk{SoundDisk::Pace::Fast};  // with nobody reading it is soon full
    player->Open(minute);
    player->Play();
    EXPECT_TRUE(Comes([&] { return player->Mode() != kPlaying; }));
    const std::size_t heard = disk.Take().size();
    std::string later;
    EXPECT_TRUE(Comes([&] {  // the device is closed
        later += disk.Take();
        return Threads() == before + 1;
    }));
    EXPECT_LT(heard + later.size(), files.Read(minute).size() / 2);
}

struct SdlRecorderTest : SdlSoundTest {
    SoundDisk disk{SoundDisk::Pace::Fast};  // of which the input is a file
    const std::unique_ptr<WaveRecorder> recorder = sound.NewRecorder();
    const std::string samples = Pattern(200'000, 1);
    const std::string path = folder.At("new.wav");

    SdlRecorderTest() { setenv("SDL_DISKAUDIOFILEIN", Put("input", samples).c_str(), 1); }

    bool Records(std::size_t bytes) {
        return Comes([&] { return recorder->Length().count() * 88'200 / 1'000 >= static_cast<std::int64_t>(bytes); });
    }
};

TEST_F(SdlRecorderTest, WhatTheInputBringsIsInTheFileByteForByte) {
    recorder->Start(path);
    EXPECT_TRUE(recorder->IsRecording());
    EXPECT_TRUE(Records(250'000));
    EXPECT_FALSE(files.FileExists(path));
    recorder->Stop();
    EXPECT_FALSE(recorder->IsRecording());
    EXPECT_EQ(recorder->Length(), 0ms);
    const std::string file = files.Read(path);
    EXPECT_EQ(file.substr(44, samples.size()), samples);
    EXPECT_EQ(file, WaveFile(44'100, file.substr(44)));
    const auto player = sound.NewPlayer("PhoneFrm");
    player->Open(path);
    EXPECT_GE(player->Length(), 2'800ms);
}

TEST_F(SdlRecorderTest, LevelIsThePeakSinceItWasLastAskedFor) {
    files.Write(folder.At("input"), LowFirst(0, 2) + LowFirst(16'384, 2) + LowFirst(0x1'0000 - 8'192, 2));
    recorder->Start(path);
    EXPECT_TRUE(Records(10'000));
    EXPECT_EQ(recorder->Level(), 0.5);
    EXPECT_EQ(recorder->Level(), 0);  // the input has ended, and is silent from then on
}

TEST_F(SdlRecorderTest, FileIsReplacedByStopAlone) {
    Put("new.wav", "the former");
    recorder->Start(path);
    EXPECT_TRUE(Records(10'000));
    EXPECT_EQ(files.Read(path), "the former");
    recorder->Start(path);
    EXPECT_EQ(files.Read(path), "the former");
    EXPECT_TRUE(Records(10'000));
    recorder->Stop();
    EXPECT_TRUE(files.Read(path).starts_with("RIFF"));
    Put("new.wav", "another");
    recorder->Stop();
    EXPECT_EQ(files.Read(path), "another");
}

TEST_F(SdlRecorderTest, RecordingThatCannotBeSavedIsKeptForAnotherStop) {
    const std::string below = folder.At("none/new.wav");
    recorder->Start(below);
    EXPECT_TRUE(Records(10'000));
    EXPECT_EQ(FailureOf([&] { recorder->Stop(); }), below + ": No such file or directory");
    EXPECT_FALSE(recorder->IsRecording());
    EXPECT_GT(recorder->Length(), 0ms);
    files.MakeFolder(folder.At("none"));
    recorder->Stop();
    EXPECT_TRUE(files.Read(below).starts_with("RIFF"));
}

TEST_F(SdlRecorderTest, RecorderThatEndsThrowsTheRecordingAway) {
    const auto before = Threads();
    {
        const auto another = sound.NewRecorder();
        another->Start(path);
    }
    EXPECT_FALSE(files.FileExists(path));
    EXPECT_TRUE(Comes([&] { return Threads() == before; }));
}

TEST_F(SdlRecorderTest, MachineWithoutAnInputSaysWhy) {
    setenv("SDL_DISKAUDIOFILEIN", folder.At("none").c_str(), 1);
    EXPECT_NE(FailureOf([&] { recorder->Start(path); }), "");
    EXPECT_FALSE(recorder->IsRecording());
    recorder->Stop();
    EXPECT_FALSE(files.FileExists(path));
}

TEST_F(SdlRecorderTest, MachineWithoutSoundSaysWhy) {
    setenv("SDL_AUDIODRIVER", "bogus", 1);
    EXPECT_EQ(FailureOf([&] { recorder->Start(path); }), "Audio target 'bogus' not available");
}

TEST_F(SdlRecorderTest, SoundSystemThatHangsIsTold) {
    const std::string pipe = folder.At("pipe");
    EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    setenv("SDL_DISKAUDIOFILEIN", pipe.c_str(), 1);
    EXPECT_EQ(FailureOf([&] { recorder->Start(path); }), "The sound system does not answer");
    const Descriptor letGo{open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)};
}

}  // namespace
}  // namespace tallyhut
