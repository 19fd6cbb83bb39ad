// What lies between a key of a recorded message and the sound of it: the player on the desktop's sound, of which the
// card is a pipe that this program reads. Prints the least, the middle and the most of each, in milliseconds.
//
//     tallyhut_sound_bench [ROUNDS]

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/real/posix_files.h"
#include "platform/real/sdl_sound.h"
#include "tests/platform/sound_disk.h"
#include "tests/platform/temporary_folder.h"
#include "tests/platform/wave_bytes.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;
using Moment = SteadyClock::time_point;

constexpr auto kPatience = 10s;
constexpr auto kLook = 200us;
constexpr auto kMessageTimer = 40ms;  // by which the program looks for the end of a message

/// A buffer of 16 ms is longer than what lies between the player and the pipe, so that all comes out at once.
constexpr WaveHead kHead{.channels = 2, .rate = 48'000, .blockBytes = 8, .bits = 32};
constexpr WaveHead kOtherHead{.channels = 2, .rate = 44'100, .blockBytes = 8, .bits = 32};
constexpr std::size_t kBytesASecond = 48'000 * 8;

double Milliseconds(SteadyClock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

void Print(const char* what, std::vector<double> times) {
    std::ranges::sort(times);
    std::printf("%-62s %7.1f %7.1f %7.1f\n", what, times.front(), times[times.size() / 2], times.back());
}

struct Bench {
    explicit Bench(int asked) : rounds{asked} {
        files.Write(first, WaveBytes(kHead, std::string(kBytesASecond * 5, '1')));
        files.Write(second, WaveBytes(kHead, std::string(kBytesASecond * 5, '2')));
        files.Write(otherFormat, WaveBytes(kOtherHead, std::string(kBytesASecond * 5, '2')));
        files.Write(brief, WaveBytes(kHead, std::string(kBytesASecond * 3 / 10, '3')));
    }

    const int rounds;
    PosixFiles files;
    SoundDisk card{SoundDisk::Pace::Real};
    SdlSound sound{files};
    std::unique_ptr<WavePlayer> player = sound.NewPlayer("PhoneFrm");
    const std::string first = card.folder.At("first.wav");
    const std::string second = card.folder.At("second.wav");
    const std::string otherFormat = card.folder.At("other.wav");
    const std::string brief = card.folder.At("brief.wav");

    /// What a function key does.
    Moment Press(const std::string& path) {
        const Moment pressed = SteadyClock::now();
        player->Close();
        player->Open(path);
        player->Play();
        return pressed;
    }

    /// When a sample of the kind comes out.
    Moment Heard(char sample) {
        for (const Moment begun = SteadyClock::now(); SteadyClock::now() < begun + kPatience;) {
            if (card.Take().find(sample) != std::string::npos) {
                return SteadyClock::now();
            }
            std::this_thread::sleep_for(kLook);
        }
        std::puts("nothing is heard");
        std::exit(1);
    }

    /// When the last sample that is no silence comes out, in what comes for a while.
    Moment LastHeard(SteadyClock::duration time) {
        Moment last = SteadyClock::now();
        for (const Moment end = last + time; SteadyClock::now() < end;) {
            if (card.Take().find_first_not_of('\0') != std::string::npos) {
                last = SteadyClock::now();
            }
            std::this_thread::sleep_for(kLook);
        }
        return last;
    }

    void Rest() {
        player->Close();
        LastHeard(300ms);
    }

    std::vector<double> Times(const std::optional<std::string>& during, const std::string& path, char sample) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            if (during) {
                Press(*during);
                Heard('1');
                LastHeard(std::chrono::milliseconds{100 + round % 20});
            }
            const Moment pressed = Press(path);
            times.push_back(Milliseconds(Heard(sample) - pressed));
            Rest();
        }
        return times;
    }

    std::vector<double> TimesFromTheStart() {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            player = sound.NewPlayer("PhoneFrm");
            const Moment pressed = Press(first);
            times.push_back(Milliseconds(Heard('1') - pressed));
            Rest();
        }
        return times;
    }

    /// What Close, Open and Play take of the program's thread while something plays.
    std::vector<double> TimesOfTheCall() {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const Moment pressed = Press(round % 2 == 0 ? first : otherFormat);
            times.push_back(Milliseconds(SteadyClock::now() - pressed));
            LastHeard(30ms);
        }
        Rest();
        return times;
    }

    std::vector<double> TimesToSilence() {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            Press(first);
            Heard('1');
            LastHeard(std::chrono::milliseconds{100 + round % 20});
            const Moment stopped = SteadyClock::now();
            player->Stop();
            times.push_back(Milliseconds(std::max(LastHeard(200ms) - stopped, SteadyClock::duration{0})));
        }
        return times;
    }

    /// From the last sample's coming out to the end of the mode, seen by one who looks again and again or by a timer.
    std::vector<double> TimesOfTheEnd(SteadyClock::duration timer) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const Moment pressed = Press(brief);
            Moment last = pressed;
            Moment looks = pressed + timer + std::chrono::milliseconds{round % 40};
            for (;;) {
                const Moment now = SteadyClock::now();
                if (card.Take().find('3') != std::string::npos) {
                    last = now;
                }
                if (now >= looks) {
                    if (player->Mode() != WavePlayer::kPlaying) {
                        break;
                    }
                    looks += timer;
                }
                std::this_thread::sleep_for(kLook);
            }
            times.push_back(Milliseconds(SteadyClock::now() - last));
            Rest();
        }
        return times;
    }

    /// Processor time of ten seconds, and how often a thread woke.
    static void PrintIdle(const char* what) {
        constexpr auto kTime = 10s;
        rusage before{};
        rusage after{};
        getrusage(RUSAGE_SELF, &before);
        std::this_thread::sleep_for(kTime);
        getrusage(RUSAGE_SELF, &after);
        const auto microseconds = [](const rusage& use) {
            return (use.ru_utime.tv_sec + use.ru_stime.tv_sec) * 1'000'000 + use.ru_utime.tv_usec +
                   use.ru_stime.tv_usec;
        };
        std::printf("%-62s %ld us of the processor, %ld times awake, this one's own once\n", what,
                    microseconds(after) - microseconds(before), after.ru_nvcsw - before.ru_nvcsw);
    }

    void Run() {
        PrintIdle("ten seconds before the first message");
        std::printf("%-62s %7s %7s %7s\n", "", "least", "middle", "most");
        Print("press to first sample, the sound system not connected", TimesFromTheStart());
        Print("press to first sample, at rest", Times({}, first, '1'));
        Print("press to first sample, while another plays", Times(first, second, '2'));
        Print("press to first sample, while one of another format plays", Times(first, otherFormat, '2'));
        Print("what the press takes of the program's time", TimesOfTheCall());
        Print("Stop to silence", TimesToSilence());
        Print("last sample to the end of the mode", TimesOfTheEnd(1ms));
        Print("last sample to the timer that sees it, every 40 ms", TimesOfTheEnd(kMessageTimer));
        PrintIdle("ten seconds behind the last message");
        PrintIdle("and ten more");
    }
};

}  // namespace
}  // namespace tallyhut

int main(int argc, char** argv) {
    constexpr int kRounds = 40;
    tallyhut::Bench{argc > 1 ? std::max(std::atoi(argv[1]), 1) : kRounds}.Run();
}
