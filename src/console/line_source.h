#pragma once

#include <optional>
#include <string>

#include "platform/clock.h"

namespace tallyhut {

/// Lines from a descriptor, and the signals to terminate. Reads no further than it must wait for.
class LineSource {
public:
    /// Takes over SIGTERM, SIGINT and SIGHUP: they end the input. Closes nothing that is not its own.
    explicit LineSource(int descriptor);
    ~LineSource();
    LineSource(const LineSource&) = delete;
    LineSource& operator=(const LineSource&) = delete;
    LineSource(LineSource&&) = delete;
    LineSource& operator=(LineSource&&) = delete;

    /// The next line without its end; nothing when the time is over first, or when the input has ended. -1 waits for
    /// ever.
    std::optional<std::string> Next(int milliseconds);
    bool HasEnded() const { return ended_ && buffer_.empty(); }

private:
    std::optional<std::string> TakeLine();
    void ReadMore();

    int descriptor_;
    int signals_;
    std::string buffer_;
    std::size_t searched_ = 0;
    bool ended_ = false;
};

}  // namespace tallyhut
