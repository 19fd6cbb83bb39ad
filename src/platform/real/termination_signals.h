#pragma once

#include <array>
#include <csignal>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// The signals to terminate (TERM, INT, HUP), made something to read. Nothing is blocked, so it does not matter in
/// which thread the system runs the handler: a library's threads, whenever they start, need to know nothing of this.
///
/// There may be one at a time; with its end the signals do again what they did before.
class TerminationSignals {
public:
    /// Throws PlatformError.
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    TerminationSignals(TerminationSignals&&) = delete;
    TerminationSignals& operator=(TerminationSignals&&) = delete;

    /// Has something to read once a signal has come.
    int Number() const { return arrived_.Number(); }
    /// Forgets the signals that have come.
    void Clear() const;

private:
    static constexpr std::array kTerminations{SIGTERM, SIGINT, SIGHUP};

    Descriptor arrived_;
    std::array<struct sigaction, kTerminations.size()> before_{};
};

}  // namespace tallyhut
