#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace tallyhut {

/// Starts a program, found as a shell finds it; `prepare` runs in the new process before the program does.
pid_t StartProcess(const std::vector<std::string>& words, const std::function<void()>& prepare);

/// Starts a program that writes a line to the descriptor `{}` of its words when it is ready, and waits for that line;
/// nothing else that it writes is seen. It ends with this process. Throws std::runtime_error when no line comes.
std::string StartAndReadLine(pid_t& process, std::vector<std::string> words, const std::function<void()>& prepare);

/// Sends the signal, unless it is 0, and waits for the end. Returns the status, 128 and the signal's number where one
/// ended it, 0 for a process that was never started or has been ended before.
int EndProcess(pid_t& process, int signal);

}  // namespace tallyhut
