#pragma once

namespace tallyhut {

/// Sets a flag for the length of a procedure, also when the program ends inside it. Whose flag it is must outlive the
/// procedure; the desk's Watch is for what a handler may end.
class Running {
public:
    explicit Running(bool& flag, bool on = true) : flag_{flag} { flag_ = on; }
    ~Running() { flag_ = false; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    Running(Running&&) = delete;
    Running& operator=(Running&&) = delete;

private:
    bool& flag_;
};

}  // namespace tallyhut
