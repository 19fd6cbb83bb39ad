#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// A node of a cluster as a user meets it who comes in by Telnet: it asks for the call, greets, and from then on ends
/// whatever it says with its prompt, which no line end follows.
class ClusterNode {
public:
    /// What it says at once. The question has no line end.
    static std::string Greeting();
    /// Takes bytes in whatever pieces and returns what it says to the lines that they end.
    std::string Hear(std::string_view bytes);
    /// A post for everybody, rung in by the bell, and the prompt anew. The columns move where the spotter's call is
    /// longer than theirs.
    std::string Posted(std::string_view spotter, double kilohertz, std::string_view call,
                       std::string_view comment) const;

    const std::string& User() const { return user_; }
    bool HasSaidGoodbye() const { return hasSaidGoodbye_; }

private:
    std::string Answer(const std::string& line);
    std::string Prompt() const;

    std::string line_;
    std::string user_;
    bool hasSaidGoodbye_ = false;
};

}  // namespace tallyhut
