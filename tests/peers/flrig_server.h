#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "tests/peers/loopback_service.h"

namespace tallyhut {

/// A radio's control program with its server, as its public description tells: calls in XML over HTTP, whose head must
/// tell the length. Without a radio it answers as if all were well.
class FlrigServer {
public:
    std::string radio = "TS-2000";  ///< empty before one is initialised
    long hertz = 14'025'000;
    std::string mode = "CW";
    std::vector<std::string> modes{"LSB", "USB", "CW", "FM", "AM", "FSK", "CW-R", "FSK-R"};
    bool knowsModes = true;         ///< an old one has no such method
    bool hangsUp = false;           ///< in the middle of its next answer
    std::vector<std::string> sets;  ///< commands that it has obeyed, "set_vfo 7035000"

    int Port() const { return service_.Port(); }
    int Connections() const { return service_.Connections(); }
    /// Does something with the server while its thread rests, and hands on what that gives.
    auto With(const auto& step) {
        const std::lock_guard held{mutex_};
        return step();
    }

private:
    void Talk(ServedClient& client);
    /// Takes a request from what has come, and answers it; empty where none is whole, or will ever be.
    std::string Answer(std::string& received);
    std::string Obey(const std::string& method, const std::string& body);

    std::mutex mutex_;
    LoopbackService service_{[this](ServedClient& client) { Talk(client); }};
};

}  // namespace tallyhut
