#include "contest/call_history.h"

#include <algorithm>

#include "values/text.h"
#include "values/text_lines.h"
#include "values/utf8.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kDirective = "!!";
constexpr std::string_view kOrder = "!!ORDER!!";
constexpr std::string_view kMapStateToSect = "!!MAPSTATETOSECT!!";
constexpr std::size_t kLongestSection = 4;

enum ColumnKind : std::size_t { kCall, kSect, kCk, kState };
constexpr std::array<std::string_view, 4> kColumns{"CALL", "SECT", "CK", "STATE"};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsLetterOrDigit(char character) {
    return IsDigit(character) || (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// Whether the text begins with the word, which is in capitals, in either case.
bool BeginsWith(std::string_view text, std::string_view word) {
    return text.size() >= word.size() && UpperCase(text.substr(0, word.size())) == word;
}

std::string_view TakeField(std::string_view& line, char separator) {
    const std::size_t length = std::min(line.find(separator), line.size());
    const std::string_view field = line.substr(0, length);
    line.remove_prefix(std::min(length + 1, line.size()));
    return Bare(field);
}

std::string_view CheckIn(std::string_view field) {
    const bool isYear = field.size() == 4 && (field.starts_with("19") || field.starts_with("20"));
    const std::string_view check = isYear ? field.substr(2) : field;
    return check.size() == 2 && std::ranges::all_of(field, IsDigit) ? check : std::string_view{};
}

std::string_view SectionIn(std::string_view field) {
    const bool isWord = field.size() <= kLongestSection && std::ranges::all_of(field, IsLetterOrDigit);
    return isWord ? field : std::string_view{};
}

/// Where the columns stand that count here.
struct Order {
    char separator = ',';
    std::array<std::optional<std::size_t>, kColumns.size()> places = {};
    std::size_t columns = 0;  ///< up to the last of them

    /// From what stands behind the word.
    static Order Named(std::string_view names) {
        Order order{.separator = names.find(';') < names.find(',') ? ';' : ','};
        TakeField(names, order.separator);  // what the word itself stands in
        for (std::size_t place = 0; !names.empty(); ++place) {
            const std::string_view field = TakeField(names, order.separator);
            constexpr std::size_t kLongestName = 5;
            const std::string name = field.size() > kLongestName ? "" : UpperCase(field);
            const auto* const column = std::ranges::find(kColumns, name);
            if (column != kColumns.end()) {
                order.places.at(static_cast<std::size_t>(column - kColumns.begin())) = place;
                order.columns = place + 1;
            }
        }
        return order;
    }
};

struct Reader {
    CallHistory history = {};
    std::optional<Order> order = {};
    bool stateIsSection = false;

    void Read(std::string_view text) {
        for (TextLines lines{text}; !lines.AtEnd();) {
            const std::string_view line = lines.Take();
            if (line.empty() || line.front() == '#') {
                continue;
            }
            if (line.starts_with(kDirective)) {
                Obey(line);
            } else if (order) {
                TakeRow(line);
            }
        }
        if (!order) {
            throw ValueError{"It is no call history: no line begins with !!Order!! and names its columns."};
        }
        history.Settle();
    }

private:
    void Obey(std::string_view line) {
        stateIsSection = stateIsSection || BeginsWith(line, kMapStateToSect);
        if (!BeginsWith(line, kOrder)) {
            return;
        }
        order = Order::Named(line.substr(kOrder.size()));
        if (!order->places.at(kCall)) {
            throw ValueError{"It is no call history: its line !!Order!! names no column Call."};
        }
    }

    void TakeRow(std::string_view line) {
        std::array<std::string_view, kColumns.size()> fields{};
        for (std::size_t place = 0; place < order->columns && !line.empty(); ++place) {
            const std::string_view field = TakeField(line, order->separator);
            for (std::size_t column = 0; column < kColumns.size(); ++column) {
                if (order->places[column] == place) {
                    fields[column] = field;
                }
            }
        }
        const std::string_view section = fields[kSect].empty() && stateIsSection ? fields[kState] : fields[kSect];
        if (const std::optional<CallKey> call = KeyOfListedCall(fields[kCall])) {
            history.Add(*call, CheckIn(fields[kCk]), SectionIn(section));
        }
    }
};

}  // namespace

std::optional<KnownExchange> CallHistory::Find(std::string_view call) const {
    const std::optional<CallKey> key = KeyOfCall(call);
    const auto found = key ? std::ranges::lower_bound(rows_, *key, {}, &Row::call) : rows_.end();
    if (found == rows_.end() || found->call != *key) {
        return std::nullopt;
    }
    const std::string_view check{found->check.data(), found->check.size()};
    const std::string_view section{found->section.data(), found->section.size()};
    return KnownExchange{.check = std::string{check.substr(0, check.find('\0'))},
                         .section = UpperCase(section.substr(0, section.find('\0')))};
}

std::vector<CallKey> CallHistory::Calls() const {
    std::vector<CallKey> calls(rows_.size());
    std::ranges::transform(rows_, calls.begin(), &Row::call);
    return calls;
}

void CallHistory::Add(CallKey call, std::string_view check, std::string_view section) {
    Row& row = rows_.emplace_back(Row{.call = call});
    check.copy(row.check.data(), row.check.size());
    section.copy(row.section.data(), row.section.size());
}

void CallHistory::Settle() {
    if (!std::ranges::is_sorted(rows_, {}, &Row::call)) {
        std::ranges::stable_sort(rows_, {}, &Row::call);
    }
    std::size_t kept = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool isLast = i + 1 == rows_.size() || rows_[i + 1].call != rows_[i].call;
        if (isLast) {
            rows_[kept++] = rows_[i];
        }
    }
    rows_.resize(kept);
    rows_.shrink_to_fit();
}

CallHistory ReadCallHistory(std::string_view fileBytes) {
    std::string room;
    Reader reader;
    reader.Read(PlainBytesOf(fileBytes, room));
    return std::move(reader.history);
}

}  // namespace tallyhut
