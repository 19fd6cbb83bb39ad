#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "platform/keyring.h"
#include "platform/sim/event_pump.h"

namespace tallyhut::sim {

/// The simulated keyring: there or absent, quick or slow, willing or not.
struct Keyring : tallyhut::Keyring {
    explicit Keyring(EventPump& machinePump) : pump{machinePump} {}

    EventPump& pump;

    // What a test arranges.
    std::optional<std::string> absence = {};  ///< why there is none
    std::optional<std::string> refusal = {};  ///< it keeps nothing and gives nothing away
    bool isSlow = false;                      ///< answers come with Unlock
    std::map<std::string, std::string> kept = {};
    /// The operator has unlocked it.
    void Unlock();

    // What the program has done.
    int looks = 0;
    bool isShielded = false;

    void Look() override;
    void Fetch(const std::string& place) override;
    void Keep(const std::string& place, const std::string& secret) override;
    void Forget(const std::string& place) override;
    KeyringAnswer Take() override;
    int EventDescriptor() const override;
    void ShieldMemory() override { isShielded = true; }

private:
    bool Refuses(const std::string& place);
    void Answer(KeyringAnswer answer);

    std::deque<KeyringAnswer> answers_ = {};
};

}  // namespace tallyhut::sim
