#include "tests/fuzz/server_inputs.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <string>

#include "contest/bands.h"
#include "rig/flrig_dialect.h"
#include "rig/rigctld_dialect.h"

namespace tallyhut {
namespace {

using Kind = ServerAnswer::Kind;

constexpr std::size_t kMostBytes = 70'000;  // of any answer, its head included
constexpr std::array kRequests{ServerRequest::Introduction, ServerRequest::Modes,   ServerRequest::Frequency,
                               ServerRequest::Mode,         ServerRequest::SetMode, ServerRequest::SetFrequency};
constexpr std::array kPlanModes{"CW", "CW-R", "LSB", "USB", "AM", "FM", "RTTY", "RTTY-R", "FSK", "DIG", "PKT"};

bool ReadingIsGood(ServerRequest request, const ServerAnswer& answer) {
    const RigReading& reading = answer.reading;
    if (reading.frequency && (request != ServerRequest::Frequency || !std::isfinite(*reading.frequency) ||
                              *reading.frequency <= 0 || *reading.frequency > 1'000'000)) {
        return false;
    }
    if (reading.mode && (request != ServerRequest::Mode || (*reading.mode != kCw && *reading.mode != kPhone))) {
        return false;
    }
    const bool tells = reading.frequency || reading.mode;
    return !tells || answer.kind == Kind::Good;
}

bool IsPlainName(std::string_view name) {
    return name.size() <= 16 &&
           std::ranges::all_of(name, [](unsigned char one) { return std::isalnum(one) != 0 || one == '-'; });
}

bool FactsAreBounded(const ServerDialect& dialect, const ServerFacts& facts) {
    return facts.modes.size() <= kMostServerModes && std::ranges::all_of(kPlanModes, [&](std::string_view mode) {
               return IsPlainName(dialect.modeNamed(mode, facts));
           });
}

bool Takes(const ServerDialect& dialect, ServerRequest request, const ServerFacts& facts, std::string_view bytes) {
    const ServerAnswer answer = dialect.read(request, facts, bytes);
    const bool isWhole = answer.kind == Kind::Good || answer.kind == Kind::Refused;
    if (isWhole && dialect.read(request, facts, std::string{bytes} + 'x').kind != Kind::Broken) {
        return false;
    }
    if (bytes.size() > kMostBytes && answer.kind != Kind::Broken) {
        return false;
    }
    return ReadingIsGood(request, answer) && FactsAreBounded(dialect, answer.facts.value_or(facts));
}

}  // namespace

bool TakesServerInput(std::string_view bytes) {
    const std::array known{ServerFacts{}, ServerFacts{.namesVfo = true}, ServerFacts{.owesIntroduction = true},
                           ServerFacts{.hasRadio = false, .knowsModes = false}};
    return std::ranges::all_of(std::array{&kRigctld, &kFlrig}, [&](const ServerDialect* dialect) {
        return std::ranges::all_of(kRequests, [&](ServerRequest request) {
            return std::ranges::all_of(known, [&](const ServerFacts& facts) {
                return Takes(*dialect, request, facts, bytes) &&
                       Takes(*dialect, request, facts, bytes.substr(0, bytes.size() / 2));
            });
        });
    });
}

}  // namespace tallyhut
