#include "console/line_source.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace tallyhut {
namespace {

constexpr std::size_t kChunk = 65'536;

int OpenSignals() {
    sigset_t set{};
    sigemptyset(&set);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&set, signal);
    }
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

}  // namespace

LineSource::LineSource(int descriptor) : descriptor_{descriptor}, signals_{OpenSignals()} {}

LineSource::~LineSource() {
    close(signals_);
}

std::optional<std::string> LineSource::TakeLine() {
    const std::size_t end = buffer_.find('\n', searched_);
    if (end == std::string::npos && !(ended_ && !buffer_.empty())) {
        searched_ = buffer_.size();
        return std::nullopt;
    }
    std::string line = buffer_.substr(0, end);
    buffer_.erase(0, end == std::string::npos ? end : end + 1);
    searched_ = 0;
    return line;
}

void LineSource::ReadMore() {
    std::array<char, kChunk> chunk{};
    const ssize_t count = read(descriptor_, chunk.data(), chunk.size());
    if (count > 0) {
        buffer_.append(chunk.data(), static_cast<std::size_t>(count));
    } else {
        ended_ = true;
    }
}

std::optional<std::string> LineSource::Next(int milliseconds) {
    for (;;) {
        if (std::optional<std::string> line = TakeLine()) {
            return line;
        }
        if (ended_) {
            return std::nullopt;
        }
        std::array<pollfd, 2> waiting{{{descriptor_, POLLIN, 0}, {signals_, POLLIN, 0}}};
        if (poll(waiting.data(), waiting.size(), milliseconds) <= 0) {
            return std::nullopt;
        }
        if (waiting[1].revents != 0) {
            ended_ = true;
            buffer_.clear();
        } else {
            ReadMore();
        }
    }
}

}  // namespace tallyhut
