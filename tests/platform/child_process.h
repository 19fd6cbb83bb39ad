#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

namespace tallyhut {

/// A forked copy of the test, for what one process cannot show. It is killed with its owner.
class ChildProcess {
public:
    /// Runs the work in the child, which sends its text here. One that `stays` then waits until it is killed.
    explicit ChildProcess(const std::function<std::string()>& work, bool stays = false);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { Kill(); }

    /// What the work returned, or "failed: ..." for an exception; waits for it.
    std::string Text() const;
    bool IsRunning();
    /// Ends it with no chance to tidy up.
    void Kill();

private:
    pid_t process_ = -1;
    int channel_ = -1;
};

/// The text of work that a child does.
std::string InChild(const std::function<std::string()>& work);
/// The same without the rights of the superuser, which no mode of a file stops.
std::string InUnprivilegedChild(const std::function<std::string()>& work);

}  // namespace tallyhut
