#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// A pipe of the system's. Neither end ever makes its user wait.
class Pipe {
public:
    Pipe() {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
        readEnd_ = Descriptor{ends[0]};
        writeEnd_ = Descriptor{ends[1]};
    }

    int ReadEnd() const { return readEnd_.Number(); }
    /// How many of the bytes it took.
    std::size_t Write(std::string_view bytes) const {
        const ssize_t count = write(writeEnd_.Number(), bytes.data(), bytes.size());
        return count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    /// What is there, at most so many bytes.
    std::string Read(std::size_t most = 65'536) const {
        std::string bytes(most, '\0');
        const ssize_t count = read(readEnd_.Number(), bytes.data(), bytes.size());
        bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
        return bytes;
    }
    void CloseWriteEnd() { writeEnd_ = Descriptor{}; }

private:
    Descriptor readEnd_;
    Descriptor writeEnd_;
};

}  // namespace tallyhut
