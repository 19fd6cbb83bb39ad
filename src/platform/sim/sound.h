#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/sound.h"

namespace tallyhut::sim {

/// Sound that nobody hears: a file plays as long as it lasts on the machine's clock. Records what the players do that
/// changes anything, the latest, as many as kKept at least and twice that at most. A recorder's microphone hears
/// nothing but its level.
struct Sound : tallyhut::Sound {
    Sound(const tallyhut::Clock& machineClock, tallyhut::Files& machineFiles)
        : clock{machineClock}, files{machineFiles} {}

    std::unique_ptr<tallyhut::WavePlayer> NewPlayer(std::string name) override;
    std::unique_ptr<tallyhut::WaveRecorder> NewRecorder() override;

    const tallyhut::Clock& clock;
    tallyhut::Files& files;

    static constexpr std::size_t kKept = 4'096;

    // What the program has done.
    struct Command {
        Microtick at = 0;
        std::string player;
        std::string command;  ///< open, play, stop or close
        std::string file;     ///< that is open, or was until this close

        bool operator==(const Command&) const = default;
    };
    std::vector<Command> commands;

    // What a test arranges.
    std::string refusal;       ///< while it is not empty an Open fails with this reason
    bool isPluggedIn = true;   ///< while it is not, nothing plays, and what was playing has ended
    bool isHanging = false;    ///< nothing that plays comes to its end before a second too late
    std::string inputRefusal;  ///< while it is not empty a Start fails with this reason
    double inputLevel = 0;     ///< 0 to 1

    /// Told as it happens.
    std::function<void(const Command& command)> onCommand = [](const Command&) {};

    /// A player has done something.
    void Note(const std::string& player, const std::string& command, const std::string& file);
};

}  // namespace tallyhut::sim
