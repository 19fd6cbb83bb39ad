#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

namespace tallyhut {

using Json = nlohmann::ordered_json;

/// The lines that the driver reads, in order. Between a `ready` and the driver's next line nothing is printed: what
/// happens in that time comes out when the line has been read.
class JsonOutput {
public:
    explicit JsonOutput(std::ostream& out) : out_{out} {}

    /// What an event bears as its moment; none with a real clock.
    std::function<std::string()> virtualNow;

    /// Something that happened: {"event": NAME, ..., "at": ...}.
    void Event(Json event);
    /// The answer to a command.
    void Result(const Json& result) { Print(result); }
    void Error(const std::string& why);
    /// The last line before the driver's turn. Said once: until LineRead, further calls are the same turn.
    void Ready(const Json& ready);
    void LineRead();
    /// The last line of all.
    void Exit(int status);

private:
    void Print(const Json& line);
    void Flush();

    std::ostream& out_;
    std::string held_;
    bool driversTurn_ = false;
};

}  // namespace tallyhut
