#include "tests/peers/cluster_node.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace tallyhut {

std::string ClusterNode::Greeting() {
    return "Welcome to the node Q7ZZQ-2\r\nPlease enter your call: ";
}

std::string ClusterNode::Hear(std::string_view bytes) {
    std::string said;
    for (const char byte : bytes) {
        if (byte == '\n') {
            said += Answer(line_);
            line_.clear();
        } else if (byte != '\r') {
            line_ += byte;
        }
    }
    return said;
}

std::string ClusterNode::Answer(const std::string& line) {
    if (user_.empty()) {
        user_ = line;
        return password_.empty() ? Greet() : "\r\n\xFF\xFB\x01password: ";
    }
    if (!isInside_) {
        const std::string echo = line + "\r\n";
        if (line == password_) {
            return echo + Greet();
        }
        user_.clear();
        return echo + "Sorry.\r\n" + Greeting();
    }
    lines_.push_back(line);
    if (line == "bye") {
        hasSaidGoodbye_ = true;
        return "73 de Q7ZZQ-2\r\n";
    }
    if (line == "sh/dx") {
        return "  14025.3  Q5XX         7-Nov-2026 2101Z  CQ SS                        <K3LR>\r\n" + Prompt();
    }
    std::array<char, 16> call{};
    double kilohertz = 0;
    if (std::sscanf(line.c_str(), "DX %lf %15s", &kilohertz, call.data()) == 2) {
        return Posted(user_, kilohertz, call.data(), "");
    }
    return "No such command\a\r\n" + Prompt();
}

std::string ClusterNode::Greet() {
    isInside_ = true;
    return "\r\nHello " + user_ + ", 212 users are here.\r\n" + Prompt();
}

std::string ClusterNode::Posted(std::string_view spotter, double kilohertz, std::string_view call,
                                std::string_view comment) const {
    std::array<char, 160> line{};
    std::snprintf(line.data(), line.size(), "DX de %-7s%11.1f  %-12s %-30s 2104Z\a\a\r\n",
                  (std::string{spotter} + ':').c_str(), kilohertz, std::string{call}.c_str(),
                  std::string{comment}.c_str());
    return line.data() + Prompt();
}

std::string ClusterNode::Prompt() const {
    return user_ + " de Q7ZZQ-2  7-Nov-2026 2104Z >";
}

}  // namespace tallyhut
