#include "console/json_output.h"

#include <utility>

namespace tallyhut {

void JsonOutput::Print(const Json& line) {
    held_ += line.dump(-1, ' ', false, Json::error_handler_t::replace);
    held_ += '\n';
}

void JsonOutput::Flush() {
    out_ << std::exchange(held_, {}) << std::flush;
}

void JsonOutput::Event(Json event) {
    if (virtualNow) {
        event["at"] = virtualNow();
    }
    Print(event);
}

void JsonOutput::Error(const std::string& why) {
    Print({{"error", why}});
}

void JsonOutput::Ready(const Json& ready) {
    if (std::exchange(driversTurn_, true)) {
        return;
    }
    Print(ready);
    Flush();
}

void JsonOutput::LineRead() {
    driversTurn_ = false;
}

void JsonOutput::Exit(int status) {
    Event({{"event", "exit"}, {"status", status}});
    Flush();
}

}  // namespace tallyhut
