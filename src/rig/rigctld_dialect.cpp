#include "rig/rigctld_dialect.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "contest/bands.h"
#include "rig/reply_numbers.h"

namespace tallyhut {
namespace {

/// The longest answer is a frequency with its name, under a hundred bytes.
constexpr std::size_t kLongestAnswer = 1'024;

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
    if (order.request == ServerRequest::Introduction || order.request == ServerRequest::Modes) {
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

ServerAnswer Answered(ServerAnswer::Kind kind, const ServerFacts& facts) {
    return {.kind = kind, .facts = facts};
}

/// One line: "0" or "1", in newer and in older servers behind a word. A server that does not know the question has no
/// such manner.
ServerAnswer ReadIntroduction(const ServerFacts& facts, std::string_view line) {
    ServerAnswer answer = Answered(ServerAnswer::Kind::Good, facts);
    const bool refused = ReportOf(line).value_or(0) < 0;
    for (const std::string_view word : {"CHKVFO ", "ChkVFO: "}) {
        if (line.starts_with(word)) {
            line.remove_prefix(word.size());
        }
    }
    answer.facts.namesVfo = line == "1";
    if (line != "0" && line != "1" && !refused) {
        answer.kind = ServerAnswer::Kind::Broken;
    }
    return answer;
}

std::optional<float> FrequencyOf(std::string_view text) {
    constexpr std::size_t kMostDigits = 20;
    const bool isNumber = !text.empty() && text.size() <= kMostDigits && text.front() != '.' &&
                          text.find_first_not_of("0123456789.") == std::string_view::npos &&
                          std::ranges::count(text, '.') <= 1;
    return isNumber ? MegahertzOfHertz(text) : std::nullopt;
}

/// A radio that is asked for its mode and has no such command is a good radio with a mode that nobody can tell.
bool HasNoSuchCommand(ServerRequest request, int report) {
    constexpr int kNotImplemented = -4;
    constexpr int kNotAvailable = -11;
    return request == ServerRequest::Mode && (report == kNotImplemented || report == kNotAvailable);
}

ServerAnswer ReadValue(ServerRequest request, const ServerFacts& facts, std::optional<std::string_view> value) {
    ServerAnswer answer = Answered(ServerAnswer::Kind::Good, facts);
    if (request == ServerRequest::Frequency) {
        answer.reading.frequency = value ? FrequencyOf(*value) : std::nullopt;
        if (!answer.reading.frequency) {
            answer.kind = ServerAnswer::Kind::Broken;
        } else if (*answer.reading.frequency <= 0) {
            answer = Answered(ServerAnswer::Kind::Refused, facts);
        }
    } else if (request == ServerRequest::Mode && value && !value->empty()) {
        answer.reading.mode = *value == "CW" || *value == "CWR" ? kCw : kPhone;
    }
    return answer;
}

ServerAnswer Read(ServerRequest request, const ServerFacts& facts, std::string_view received) {
    const ServerAnswer broken = Answered(ServerAnswer::Kind::Broken, facts);
    if (received.size() > kLongestAnswer) {
        return broken;
    }
    if (request == ServerRequest::Introduction || request == ServerRequest::Modes) {
        const std::optional<std::string_view> line = TakeLine(received);
        if (!line) {
            return Answered(ServerAnswer::Kind::NotYet, facts);
        }
        return received.empty() ? ReadIntroduction(facts, *line) : broken;
    }
    const CommandRow& command = CommandOf(request);
    bool isNamed = false;
    std::optional<std::string_view> value;
    while (const std::optional<std::string_view> line = TakeLine(received)) {
        if (const std::optional<int> report = ReportOf(*line)) {
            if (!received.empty() || *report > 0 || (*report == 0 && !isNamed)) {
                return broken;
            }
            const bool isGood = *report == 0 || HasNoSuchCommand(request, *report);
            return isGood ? ReadValue(request, facts, *report == 0 ? value : std::nullopt)
                          : Answered(ServerAnswer::Kind::Refused, facts);
        }
        if (!isNamed) {
            isNamed = line->starts_with(command.name);
            if (!isNamed) {
                return broken;
            }
        } else if (!command.key.empty() && line->starts_with(command.key)) {
            value = line->substr(command.key.size());
        }
    }
    return Answered(ServerAnswer::Kind::NotYet, facts);
}

std::string ModeNamed(std::string_view planMode, const ServerFacts&) {
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
