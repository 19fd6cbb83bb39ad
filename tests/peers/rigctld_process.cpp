#include "tests/peers/rigctld_process.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <utility>

#include "tests/platform/loopback_server.h"

namespace tallyhut {

bool RigctldProcess::IsInstalled() {
    const char* path = std::getenv("PATH");
    std::istringstream folders{path == nullptr ? "" : path};
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (access((std::filesystem::path{folder} / "rigctld").c_str(), X_OK) == 0) {
            return true;
        }
    }
    return false;
}

/// A port that somebody has just had is free for a while.
RigctldProcess::RigctldProcess(std::vector<std::string> arguments)
    : arguments_{std::move(arguments)}, port_{LoopbackServer{}.Port()} {
    Start();
}

void RigctldProcess::Start() {
    std::vector<std::string> all{"rigctld", "-T", "127.0.0.1", "-t", std::to_string(port_)};
    all.insert(all.end(), arguments_.begin(), arguments_.end());
    std::vector<char*> words;
    for (std::string& one : all) {
        words.push_back(one.data());
    }
    words.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
        for (const int standard : {0, 1, 2}) {
            dup2(nothing, standard);
        }
        execvp(words.front(), words.data());
        _exit(127);
    }
}

void RigctldProcess::Kill() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    process_ = -1;
}

}  // namespace tallyhut
