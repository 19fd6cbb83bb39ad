#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyhut {

/// A node of a cluster as a user meets it who comes in by Telnet: it asks for the call, of one who is registered for
/// the password too, which it echoes, greets, and from then on ends whatever it says with its prompt, which no line end
/// follows.
class ClusterNode {
public:
    explicit ClusterNode(std::string password = {}) : password_{std::move(password)} {}

    /// What it says at once. The question has no line end.
    static std::string Greeting();
    /// Takes bytes in whatever pieces and returns what it says to the lines that they end.
    std::string Hear(std::string_view bytes);
    /// A post for everybody, rung in by the bell, and the prompt anew. The columns move where the spotter's call is
    /// longer than theirs.
    std::string Posted(std::string_view spotter, double kilohertz, std::string_view call,
                       std::string_view comment) const;

    const std::string& User() const { return user_; }
    const std::vector<std::string>& Lines() const { return lines_; }  ///< of one who is inside
    bool HasSaidGoodbye() const { return hasSaidGoodbye_; }

private:
    std::string Answer(const std::string& line);
    std::string Greet();
    std::string Prompt() const;

    std::string password_;  ///< empty for one who has none
    std::string line_;
    std::string user_;
    bool isInside_ = false;
    std::vector<std::string> lines_;
    bool hasSaidGoodbye_ = false;
};

}  // namespace tallyhut
