#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/descriptor_watch.h"

namespace tallyhut {

struct Desk;

/// A device that has something for a handler. The handler runs when events run, once a round however often the source
/// was signalled: a flood delays a key by one round of the sources. It never runs inside itself.
///
/// All on the one thread: what goes on in another thread is handed over through a descriptor. A source ends before its
/// desk does, inside its own handler if it likes.
struct IoSource {
    /// Signalled by Signal alone.
    IoSource(Desk& owner, std::function<void()> handler);
    /// Signalled too whenever the descriptor has something to read. The handler need not read all of it: what is left
    /// signals anew. The end of what comes, a failure and a hang-up signal on and on until the source is gone, which
    /// must be before the descriptor is closed.
    IoSource(Desk& owner, int descriptor, std::function<void()> handler);
    ~IoSource();
    IoSource(const IoSource&) = delete;
    IoSource& operator=(const IoSource&) = delete;
    IoSource(IoSource&&) = delete;
    IoSource& operator=(IoSource&&) = delete;

    /// At any time, also inside the handler, which then has another turn in the next round.
    void Signal() { signalled_ = true; }

private:
    friend struct Desk;

    Desk& desk_;
    std::function<void()> handler_;
    bool signalled_ = false;
    std::uint64_t ranIn_;                     ///< the last round that it has had a turn in
    std::unique_ptr<DescriptorWatch> watch_;  ///< null without a descriptor
};

}  // namespace tallyhut
