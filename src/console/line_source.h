#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/real/polled_descriptors.h"
#include "platform/real/termination_signals.h"

namespace tallyhut {

/// The driver's lines from a descriptor. They come in whenever the descriptors are looked at; what follows a line that
/// nobody has taken yet is left where it is.
class LineSource {
public:
    /// Takes over the signals to terminate: they end the input. Closes nothing that is not its own.
    LineSource(PolledDescriptors& descriptors, int input);

    /// The signal has come: notes it and does nothing else.
    std::function<void()> endedBySignal = [] {};

    /// The next line without its end; nothing where none has come yet, or the input has ended.
    std::optional<std::string> Take();
    /// Nothing is left and nothing will come.
    bool HasEnded() const { return ended_ && buffer_.empty(); }

private:
    void ReadMore();
    void EndBySignal();
    bool HoldsLine();
    /// Looks for more unless a line waits.
    void LookOn();

    int input_;
    std::string buffer_;
    std::size_t searched_ = 0;
    bool ended_ = false;
    TerminationSignals signals_;
    std::unique_ptr<DescriptorWatch> more_;
    std::unique_ptr<DescriptorWatch> signal_;
};

}  // namespace tallyhut
