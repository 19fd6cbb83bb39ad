#include "rig/rigctld_dialect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "contest/bands.h"

namespace tallyhut {
namespace {

/// The longest answer is a frequency with its name, under a hundred bytes.
constexpr std::size_t kLongestAnswer = 1'024;

const ServerAnswer kBroken{.kind = ServerAnswer::Kind::Broken};

struct CommandRow {
    ServerRequest request;
    std::string_view command;
    std::string_view name;  ///< that the answer begins with
    std::string_view key;   ///< of the value in the answer
};

/// The plus asks for the extended manner.
constexpr std::array kCommands{
    CommandRow{ServerRequest::Frequency, "+f", "get_freq:", "Frequency: "},
    CommandRow{ServerRequest::Mode, "+m", "get_mode:", "Mode: "},
    CommandRow{ServerRequest::SetMode, "+M", "set_mode:", ""},
    CommandRow{ServerRequest::SetFrequency, "+F", "set_freq:", ""},
};

/// A server of this kind is never asked for modes: their names are known.
bool IsIntroduction(ServerRequest request) {
    return request == ServerRequest::Introduction || request == ServerRequest::Modes;
}

const CommandRow& CommandOf(ServerRequest request) {
    return *std::ranges::find(kCommands, request, &CommandRow::request);
}

struct ModeRow {
    std::string_view plan;
    std::string_view server;
};

constexpr std::array kModes{
    ModeRow{"CW", "CW"},    ModeRow{"CW-R", "CWR"},   ModeRow{"LSB", "LSB"},    ModeRow{"USB", "USB"},
    ModeRow{"AM", "AM"},    ModeRow{"FM", "FM"},      ModeRow{"RTTY", "RTTY"},  ModeRow{"RTTY-R", "RTTYR"},
    ModeRow{"FSK", "RTTY"}, ModeRow{"DIG", "PKTUSB"}, ModeRow{"PKT", "PKTUSB"},
};

std::string Request(const ServerOrder& order, const ServerFacts& facts) {
    if (IsIntroduction(order.request)) {
        return "\\chk_vfo\n";
    }
    std::string line{CommandOf(order.request).command};
    line += facts.namesVfo ? " currVFO" : "";
    if (order.request == ServerRequest::SetMode) {
        line += ' ' + order.mode + " -1";  // the width stays as the operator has set it
    } else if (order.request == ServerRequest::SetFrequency) {
        line += ' ' + std::to_string(order.hertz);
    }
    return line + '\n';
}

/// Takes a whole line, without its end; nothing where it has not come yet.
std::optional<std::string_view> TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// The number behind the word that ends an answer; nothing on another line.
std::optional<int> ReportOf(std::string_view line) {
    constexpr std::string_view kReport = "RPRT ";
    if (!line.starts_with(kReport)) {
        return std::nullopt;
    }
    line.remove_prefix(kReport.size());
    int report = 0;
    const auto [end, failure] = std::from_chars(line.data(), line.data() + line.size(), report);
    return failure == std::errc{} && end == line.data() + line.size() ? std::optional{report} : std::nullopt;
}

/// Whether a line says that commands want the name of a VFO: "0" or "1", in older and in newer servers behind a word.
/// One that does not know the question has no such manner.
std::optional<bool> NamesVfo(std::string_view line) {
    for (const std::string_view word : {"CHKVFO ", "ChkVFO: "}) {
        if (line.starts_with(word)) {
            line.remove_prefix(word.size());
        }
    }
    if (line == "0" || line == "1") {
        return line == "1";
    }
    return ReportOf(line).value_or(0) < 0 ? std::optional{false} : std::nullopt;
}

ServerAnswer ReadIntroduction(const ServerFacts& facts, std::string_view received) {
    const std::optional<std::string_view> line = TakeLine(received);
    if (!line) {
        return {};
    }
    const std::optional<bool> namesVfo = NamesVfo(*line);
    if (!namesVfo || !received.empty()) {
        return kBroken;
    }
    ServerAnswer answer{.kind = ServerAnswer::Kind::Good, .facts = facts};
    answer.facts->namesVfo = *namesVfo;
    return answer;
}

ServerAnswer ReadValue(ServerRequest request, std::string_view value) {
    if (request == ServerRequest::Frequency) {
        return FrequencyTold(value);
    }
    ServerAnswer answer{.kind = ServerAnswer::Kind::Good};
    if (request == ServerRequest::Mode && !value.empty()) {
        answer.reading.mode = value == "CW" || value == "CWR" ? kCw : kPhone;
    }
    return answer;
}

/// Lines up to the one that ends the answer: first what was asked, then values behind their names.
ServerAnswer ReadLines(const CommandRow& command, std::string_view received) {
    bool isNamed = false;
    std::string_view value;
    while (const std::optional<std::string_view> line = TakeLine(received)) {
        if (const std::optional<int> report = ReportOf(*line)) {
            if (!received.empty() || *report > 0 || (*report == 0 && !isNamed)) {
                return kBroken;
            }
            if (*report < 0) {
                return {.kind = ServerAnswer::Kind::Refused};
            }
            return ReadValue(command.request, value);
        }
        if (!isNamed && !line->starts_with(command.name)) {
            return kBroken;
        }
        if (isNamed && !command.key.empty() && line->starts_with(command.key)) {
            value = line->substr(command.key.size());
        }
        isNamed = true;
    }
    return {};
}

ServerAnswer Read(ServerRequest request, const ServerFacts& facts, std::string_view received) {
    if (received.size() > kLongestAnswer) {
        return kBroken;
    }
    if (IsIntroduction(request)) {
        return ReadIntroduction(facts, received);
    }
    const CommandRow& command = CommandOf(request);
    if (!facts.owesIntroduction) {
        return ReadLines(command, received);
    }
    std::string_view behind = received;
    const std::optional<bool> namesVfo = NamesVfo(TakeLine(behind).value_or(""));
    if (namesVfo.value_or(false)) {
        return kBroken;  // it waits for the name that the request lacks
    }
    ServerAnswer answer = ReadLines(command, namesVfo ? behind : received);
    answer.facts = facts;
    answer.facts->owesIntroduction = answer.kind == ServerAnswer::Kind::NotYet;
    return answer;
}

std::string ModeNamed(std::string_view planMode, const ServerFacts& /*facts*/) {
    const auto* row = std::ranges::find(kModes, planMode, &ModeRow::plan);
    return row == kModes.end() ? std::string{} : std::string{row->server};
}

}  // namespace

const ServerDialect kRigctld{
    .introductionWait = 2'000,
    .mayIgnoreIntroduction = true,
    .introductionAgain = 0,
    .atTheBeginning = {},
    .request = Request,
    .read = Read,
    .modeNamed = ModeNamed,
};

}  // namespace tallyhut
