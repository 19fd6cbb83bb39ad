#include "tests/platform/child_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>
#include <stdexcept>

namespace tallyhut {

namespace {

std::string TextOf(const std::function<std::string()>& work) {
    try {
        return work();
    } catch (const std::exception& error) {
        return std::string("failed: ") + error.what();
    }
}

}  // namespace

ChildProcess::ChildProcess(const std::function<std::string()>& work, bool stays) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    process_ = fork();
    if (process_ == 0) {
        close(ends[0]);
        const std::string text = TextOf(work);
        const bool sent = write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        close(ends[1]);
        if (stays) {
            sigset_t none{};
            sigemptyset(&none);
            sigsuspend(&none);  // until it is killed
        }
        _exit(sent ? 0 : 1);
    }
    close(ends[1]);
    channel_ = ends[0];
    if (process_ < 0) {
        close(channel_);
        throw std::runtime_error("no child process");
    }
}

std::string ChildProcess::Text() const {
    std::string text;
    std::array<char, 1024> block{};
    for (ssize_t count = 1; count > 0;) {
        count = read(channel_, block.data(), block.size());
        text.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return text;
}

bool ChildProcess::IsRunning() {
    if (process_ > 0 && waitpid(process_, nullptr, WNOHANG) != 0) {
        process_ = -1;
    }
    return process_ > 0;
}

void ChildProcess::Kill() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = -1;
    }
    if (channel_ >= 0) {
        close(channel_);
        channel_ = -1;
    }
}

std::string InChild(const std::function<std::string()>& work) {
    return ChildProcess(work).Text();
}

std::string InUnprivilegedChild(const std::function<std::string()>& work) {
    return InChild([&]() -> std::string {
        const uid_t nobody = 65534;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) {
            return "the rights cannot be given up";
        }
        return work();
    });
}

}  // namespace tallyhut
