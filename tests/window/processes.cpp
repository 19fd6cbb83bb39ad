#include "tests/window/processes.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace tallyhut {

pid_t StartProcess(const std::vector<std::string>& words, const std::function<void()>& prepare) {
    const pid_t process = fork();
    if (process != 0) {
        return process;
    }
    std::vector<std::string> copy = words;
    std::vector<char*> arguments;
    for (std::string& word : copy) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    prepare();
    execvp(arguments[0], arguments.data());
    _exit(127);
}

std::string StartAndReadLine(pid_t& process, std::vector<std::string> words, const std::function<void()>& prepare) {
    std::array<int, 2> pipeEnds{};
    if (pipe(pipeEnds.data()) != 0) {
        throw std::runtime_error{"pipe"};
    }
    const auto [readEnd, writeEnd] = pipeEnds;
    for (std::string& word : words) {
        if (const std::size_t place = word.find("{}"); place != std::string::npos) {
            word.replace(place, 2, std::to_string(writeEnd));
        }
    }
    process = StartProcess(words, [&prepare, &pipeEnds] {
        close(pipeEnds[0]);
        const int nothing = open("/dev/null", O_WRONLY);
        dup2(nothing, 1);
        dup2(nothing, 2);
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        prepare();
    });
    close(writeEnd);
    std::array<char, 256> text{};
    std::string line;
    for (ssize_t count = 1; count > 0 && line.find('\n') == std::string::npos;) {
        count = read(readEnd, text.data(), text.size());
        line.append(text.data(), static_cast<std::size_t>(count > 0 ? count : 0));
    }
    close(readEnd);
    if (line.find('\n') == std::string::npos) {
        throw std::runtime_error{words.front() + " does not start"};
    }
    return line.substr(0, line.find('\n'));
}

int EndProcess(pid_t& process, int signal) {
    if (process <= 0) {
        return 0;
    }
    if (signal != 0) {
        kill(process, signal);
    }
    int status = 0;
    waitpid(process, &status, 0);
    process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace tallyhut
