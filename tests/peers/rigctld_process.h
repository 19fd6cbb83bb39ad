#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tallyhut {

/// Hamlib's own server, on a free port of this machine.
class RigctldProcess {
public:
    static bool IsInstalled();

    /// With arguments beside the port: "-m", "1" is a radio that is none.
    explicit RigctldProcess(std::vector<std::string> arguments);
    ~RigctldProcess() { Kill(); }
    RigctldProcess(const RigctldProcess&) = delete;
    RigctldProcess& operator=(const RigctldProcess&) = delete;
    RigctldProcess(RigctldProcess&&) = delete;
    RigctldProcess& operator=(RigctldProcess&&) = delete;

    int Port() const { return port_; }
    /// On the same port as before.
    void Start();
    /// Ends it with no chance to tidy up.
    void Kill();

private:
    std::vector<std::string> arguments_;
    int port_;
    pid_t process_ = -1;
};

}  // namespace tallyhut
