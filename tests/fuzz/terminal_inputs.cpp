#include "tests/fuzz/terminal_inputs.h"

#include <algorithm>
#include <string>
#include <vector>

#include "spots/terminal_text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestLine = 65'537;  // with its line feed
constexpr std::size_t kMostShown = 10'000;

std::vector<std::string> LinesOf(std::string_view bytes, std::size_t piece) {
    ReceivedLines received;
    std::vector<std::string> lines;
    std::string line;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
        received.Add(bytes.substr(0, piece));
        while (received.HasLine() && received.Take(line)) {
            lines.push_back(line);
        }
    }
    return lines;
}

bool LinesAreWhole(std::string_view bytes) {
    const std::vector<std::string> lines = LinesOf(bytes, bytes.size());
    return lines == LinesOf(bytes, 3) && std::ranges::count(bytes, '\n') == static_cast<std::ptrdiff_t>(lines.size()) &&
           std::ranges::all_of(lines, [](const std::string& line) {
               return line.size() <= kLongestLine && line.find('\n') == line.size() - 1;
           });
}

bool IsShownAsText(std::string_view bytes) {
    const std::string shown = ShownText(bytes);
    const std::string terminal = WithText(WithText("", shown), shown);
    return shown.size() == bytes.size() && terminal.size() <= kMostShown &&
           (terminal.ends_with(shown) || shown.ends_with(terminal)) && std::ranges::none_of(shown, [](char character) {
               const auto code = static_cast<unsigned char>(character);
               return (code < ' ' && character != '\r' && character != '\n') || (code >= 127 && code < 160);
           });
}

}  // namespace

bool TakesTerminalInput(std::string_view bytes) {
    return LinesAreWhole(bytes) && IsShownAsText(bytes);
}

}  // namespace tallyhut
