#include "console/line_source.h"

#include <unistd.h>

#include <array>

namespace tallyhut {
namespace {

constexpr std::size_t kChunk = 65'536;

}  // namespace

LineSource::LineSource(PolledDescriptors& descriptors, int input)
    : input_{input},
      more_{descriptors.Watch(input, [this] { ReadMore(); })},
      signal_{descriptors.Watch(signals_.Number(), [this] { EndBySignal(); })} {}

std::optional<std::string> LineSource::Take() {
    if (!HoldsLine() && !(ended_ && !buffer_.empty())) {
        return std::nullopt;
    }
    const std::size_t end = buffer_.find('\n', searched_);
    std::string line = buffer_.substr(0, end);
    buffer_.erase(0, end == std::string::npos ? end : end + 1);
    searched_ = 0;
    LookOn();
    return line;
}

void LineSource::ReadMore() {
    if (ended_) {
        return;
    }
    std::array<char, kChunk> chunk{};
    const ssize_t count = read(input_, chunk.data(), chunk.size());
    if (count > 0) {
        buffer_.append(chunk.data(), static_cast<std::size_t>(count));
    } else {
        ended_ = true;
    }
    LookOn();
}

void LineSource::EndBySignal() {
    ended_ = true;
    buffer_.clear();
    searched_ = 0;
    endedBySignal();
}

bool LineSource::HoldsLine() {
    const std::size_t end = buffer_.find('\n', searched_);
    searched_ = end == std::string::npos ? buffer_.size() : end;
    return end != std::string::npos;
}

void LineSource::LookOn() {
    if (!ended_ && !HoldsLine()) {
        more_->Rearm();
    }
}

}  // namespace tallyhut
