#pragma once

#include <sys/types.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace tallyhut {

/// What a process has taken so far, user and system together.
inline double ProcessorSecondsOf(pid_t process) {
    std::ifstream stat{"/proc/" + std::to_string(process) + "/stat"};
    std::string skipped;
    constexpr int kFieldsBefore = 13;
    for (int i = 0; i < kFieldsBefore; ++i) {
        stat >> skipped;
    }
    double user = 0;
    double system = 0;
    stat >> user >> system;
    return (user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

}  // namespace tallyhut
