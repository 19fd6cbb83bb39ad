#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rig/rig_reply.h"

namespace tallyhut {

/// What a server of radios is asked for, or told to do.
enum class ServerRequest {
    Introduction,  ///< how it wants to be spoken to, and whether it has a radio
    Modes,         ///< the names of the radio's modes
    Frequency,
    Mode,
    SetMode,
    SetFrequency,
};

/// What a server has said of itself and its radio on this connection.
struct ServerFacts {
    bool namesVfo = false;          ///< its commands want the name of a VFO first
    bool owesIntroduction = false;  ///< its answer to Introduction may yet come, before any other
    bool hasRadio = true;           ///< else nothing that it says of frequency and mode is true
    bool knowsModes = true;         ///< else it is to be asked for them
    /// As the radio names them, where the server leaves the names to it; at most kMostServerModes.
    std::vector<std::string> modes = {};

    bool operator==(const ServerFacts&) const = default;
};

inline constexpr std::size_t kMostServerModes = 100;

struct ServerOrder {
    ServerRequest request = ServerRequest::Introduction;
    std::int64_t hertz = 0;  ///< of SetFrequency
    std::string mode = {};   ///< of SetMode, as the server names it
};

struct ServerAnswer {
    enum class Kind {
        NotYet,   ///< more bytes belong to it
        Good,     ///< whole, and nothing follows
        Refused,  ///< whole: the server, or its radio, cannot or will not
        Broken,   ///< no answer to this request, whatever else comes
    };

    Kind kind = Kind::NotYet;
    RigReading reading = {};  ///< of a good answer to Frequency or Mode; a mode that nobody can tell stays empty
    std::optional<ServerFacts> facts = {};  ///< what is known from now on, where that is something else
};

/// What a server tells as the frequency: plain decimal hertz, below 1000 GHz. Anything else is broken, and zero is
/// refused, since no radio stands there.
ServerAnswer FrequencyTold(std::string_view hertz);

/// How one kind of server is spoken to: functions of bytes, which know no socket and no time. What a server says is
/// hostile until it is parsed: of any length, in any pieces, of any bytes. No function fails.
struct ServerDialect {
    std::int32_t introductionWait;   ///< ms that the answer to Introduction is waited for
    bool mayIgnoreIntroduction;      ///< what gives no answer in that time is asked on, as it is at the beginning
    std::int32_t introductionAgain;  ///< ms, after which it is asked again; 0 for once a connection
    ServerFacts atTheBeginning;

    /// The bytes of one request.
    std::string (*request)(const ServerOrder&, const ServerFacts&);
    /// What the server says to it.
    ///
    /// @param received  all bytes that have come since the request
    ServerAnswer (*read)(ServerRequest, const ServerFacts&, std::string_view received);
    /// The server's name for a mode of the plan; empty for one that it has no name for.
    std::string (*modeNamed)(std::string_view planMode, const ServerFacts&);
};

}  // namespace tallyhut
