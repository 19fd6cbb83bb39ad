#include "rig/flrig_dialect.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <optional>
#include <pugixml.hpp>
#include <utility>

#include "contest/bands.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestHead = 4'096;
constexpr std::size_t kLongestBody = 65'536;
constexpr std::size_t kLongestModeName = 16;
constexpr std::string_view kHeadEnd = "\r\n\r\n";

const ServerAnswer kBroken{.kind = ServerAnswer::Kind::Broken};

struct MethodRow {
    ServerRequest request;
    std::string_view method;
};

constexpr std::array kMethods{
    MethodRow{ServerRequest::Introduction, "rig.get_xcvr"}, MethodRow{ServerRequest::Modes, "rig.get_modes"},
    MethodRow{ServerRequest::Frequency, "rig.get_vfo"},     MethodRow{ServerRequest::Mode, "rig.get_mode"},
    MethodRow{ServerRequest::SetMode, "rig.set_mode"},      MethodRow{ServerRequest::SetFrequency, "rig.set_vfo"},
};

/// A mode of the plan, and the names that radios give it, the best first.
struct ModeRow {
    std::string_view plan;
    std::array<std::string_view, 10> names;
};

constexpr std::array kModes{
    ModeRow{"CW", {"CW", "CW-U", "CWU", "CW-USB", "CW-L", "CWL", "CW-LSB"}},
    ModeRow{"CW-R", {"CW-R", "CWR", "CW-L", "CWL", "CW-LSB"}},
    ModeRow{"LSB", {"LSB"}},
    ModeRow{"USB", {"USB"}},
    ModeRow{"AM", {"AM"}},
    ModeRow{"FM", {"FM"}},
    ModeRow{"RTTY", {"RTTY", "FSK", "RTTY-L", "RTTY-LSB"}},
    ModeRow{"RTTY-R", {"RTTY-R", "RTTYR", "FSK-R", "RTTY-U", "RTTY-USB"}},
    ModeRow{"FSK", {"FSK", "RTTY", "RTTY-L", "RTTY-LSB"}},
    ModeRow{"DIG", {"USB-D", "USB-D1", "DATA-U", "DATA-USB", "PKTUSB", "PKT-U", "DIGU", "DIG", "DATA", "PKT"}},
    ModeRow{"PKT", {"USB-D", "USB-D1", "DATA-U", "DATA-USB", "PKTUSB", "PKT-U", "PKT", "DIGU", "DATA", "DIG"}},
};

bool IsSame(char left, char right) {
    return std::toupper(static_cast<unsigned char>(left)) == std::toupper(static_cast<unsigned char>(right));
}

bool IsSameWord(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, IsSame);
}

std::string ParameterOf(const ServerOrder& order) {
    switch (order.request) {
        case ServerRequest::SetMode:
            return "<param><value><string>" + order.mode + "</string></value></param>";
        case ServerRequest::SetFrequency:  // any other type of number is refused
            return "<param><value><double>" + std::to_string(order.hertz) + "</double></value></param>";
        default:
            return {};
    }
}

std::string Request(const ServerOrder& order, const ServerFacts& /*facts*/) {
    const auto* row = std::ranges::find(kMethods, order.request, &MethodRow::request);
    const std::string body = "<?xml version=\"1.0\"?>\n<methodCall><methodName>" + std::string{row->method} +
                             "</methodName><params>" + ParameterOf(order) + "</params></methodCall>\n";
    return "POST /RPC2 HTTP/1.1\r\nHost: localhost\r\nUser-Agent: tallyhut\r\nContent-Type: text/xml\r\n"
           "Content-length: " +
           std::to_string(body.size()) + std::string{kHeadEnd} + body;
}

std::optional<std::size_t> LengthOf(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    std::size_t length = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), length);
    const bool isNumber = !text.empty() && failure == std::errc{} && end == text.data() + text.size();
    return isNumber && length <= kLongestBody ? std::optional{length} : std::nullopt;
}

/// The length of the body that a head tells; nothing of a head that is no good answer's.
std::optional<std::size_t> BodyLength(std::string_view head) {
    constexpr std::string_view kLengthName = "Content-length:";
    if (!head.starts_with("HTTP/1.1 200") && !head.starts_with("HTTP/1.0 200")) {
        return std::nullopt;
    }
    std::optional<std::size_t> length;
    while (!head.empty()) {
        const std::size_t end = std::min(head.find("\r\n"), head.size());
        const std::string_view line = head.substr(0, end);
        if (IsSameWord(line.substr(0, kLengthName.size()), kLengthName)) {
            if (length) {
                return std::nullopt;  // two lengths are none
            }
            length = LengthOf(line.substr(kLengthName.size()));
            if (!length) {
                return std::nullopt;
            }
        }
        head.remove_prefix(std::min(end + 2, head.size()));
    }
    return length;
}

/// The text of a value: bare, or in an element that names its type.
std::string TextOf(const pugi::xml_node& value) {
    const pugi::xml_node inner =
        value.find_child([](const pugi::xml_node& child) { return child.type() == pugi::node_element; });
    return inner.empty() ? value.text().get() : inner.text().get();
}

bool IsPlain(std::string_view text) {
    return std::ranges::all_of(text, [](unsigned char one) { return one >= ' ' && one < 127; });
}

/// A name, and no number in the place of one.
bool IsModeName(std::string_view text) {
    return !text.empty() && text.size() <= kLongestModeName && IsPlain(text) &&
           std::isalpha(static_cast<unsigned char>(text.front())) != 0;
}

std::vector<std::string> ModesIn(const pugi::xml_node& value) {
    std::vector<std::string> modes;
    for (const pugi::xml_node& one : value.child("array").child("data").children("value")) {
        std::string name = TextOf(one);
        if (IsModeName(name) && modes.size() < kMostServerModes) {
            modes.push_back(std::move(name));
        }
    }
    return modes;
}

ServerAnswer ReadMode(std::string_view text) {
    ServerAnswer answer{.kind = ServerAnswer::Kind::Good};
    if (text.empty()) {
        return answer;
    }
    if (!IsModeName(text)) {
        return kBroken;
    }
    answer.reading.mode = IsSameWord(text.substr(0, kCw.size()), kCw) ? kCw : kPhone;
    return answer;
}

ServerAnswer ReadModes(const pugi::xml_node& value) {
    std::vector<std::string> modes = ModesIn(value);
    const bool known = !modes.empty();
    return {.kind = ServerAnswer::Kind::Good, .facts = ServerFacts{.knowsModes = known, .modes = std::move(modes)}};
}

/// Without a radio it goes on telling frequencies and modes, which are none. With one, its modes may be another
/// radio's than before.
ServerAnswer ReadRadio(std::string_view name, const ServerFacts& facts) {
    ServerAnswer answer{.kind = ServerAnswer::Kind::Good, .facts = facts};
    answer.facts->hasRadio = !name.empty();
    answer.facts->knowsModes = false;
    return answer;
}

ServerAnswer ReadValue(ServerRequest request, const ServerFacts& facts, const pugi::xml_node& value) {
    switch (request) {
        case ServerRequest::Introduction:
            return ReadRadio(TextOf(value), facts);
        case ServerRequest::Modes:
            return ReadModes(value);
        case ServerRequest::Frequency:
            return FrequencyTold(TextOf(value));
        case ServerRequest::Mode:
            return ReadMode(TextOf(value));
        default:
            return {.kind = ServerAnswer::Kind::Good};
    }
}

/// One that cannot tell its radio has none; one that cannot tell the modes does well without.
ServerAnswer ReadFault(ServerRequest request, const ServerFacts& facts) {
    if (request == ServerRequest::Introduction) {
        return ReadRadio("", facts);
    }
    if (request == ServerRequest::Modes) {
        return {.kind = ServerAnswer::Kind::Good, .facts = ServerFacts{}};
    }
    return {.kind = ServerAnswer::Kind::Refused};
}

ServerAnswer ReadBody(ServerRequest request, const ServerFacts& facts, std::string_view body) {
    pugi::xml_document document;
    const bool isDocument = document.load_buffer(body.data(), body.size(), pugi::parse_default, pugi::encoding_utf8);
    const pugi::xml_node response = document.child("methodResponse");
    if (isDocument && !response.child("fault").empty()) {
        return ReadFault(request, facts);
    }
    const pugi::xml_node value = response.child("params").child("param").child("value");
    return isDocument && !value.empty() ? ReadValue(request, facts, value) : kBroken;
}

ServerAnswer Read(ServerRequest request, const ServerFacts& facts, std::string_view received) {
    const std::size_t headEnd = received.substr(0, kLongestHead).find(kHeadEnd);
    if (headEnd == std::string_view::npos) {
        return received.size() < kLongestHead ? ServerAnswer{} : kBroken;
    }
    const std::optional<std::size_t> length = BodyLength(received.substr(0, headEnd));
    const std::string_view body = received.substr(headEnd + kHeadEnd.size());
    if (!length || body.size() > *length) {
        return kBroken;
    }
    return body.size() < *length ? ServerAnswer{} : ReadBody(request, facts, body);
}

std::string ModeNamed(std::string_view planMode, const ServerFacts& facts) {
    const auto* row = std::ranges::find(kModes, planMode, &ModeRow::plan);
    if (row == kModes.end()) {
        return {};
    }
    for (const std::string_view name : row->names) {
        const auto found =
            std::ranges::find_if(facts.modes, [&](const std::string& one) { return IsSameWord(one, name); });
        if (!name.empty() && found != facts.modes.end()) {
            return *found;
        }
    }
    return {};
}

}  // namespace

const ServerDialect kFlrig{
    .introductionWait = 5'000,
    .mayIgnoreIntroduction = false,
    .introductionAgain = 3'000,
    .atTheBeginning = {.hasRadio = false, .knowsModes = false},
    .request = Request,
    .read = Read,
    .modeNamed = ModeNamed,
};

}  // namespace tallyhut
