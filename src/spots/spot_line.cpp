#include "spots/spot_line.h"

#include <algorithm>

#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLeadLength = 3;      ///< "DX "
constexpr std::size_t kSpotterLength = 35;  ///< of a post from "de" on: the spotter, the frequency and the call
constexpr std::size_t kTailLength = 12;     ///< time and locator

/// Looked for in this order. The first one has no blank behind it, so that NEEDED is one too.
constexpr std::array<std::string_view, 5> kRequests{" NEED", " SPOT ", " POST ", " PSE ", " PLEASE "};

constexpr std::string_view kContestLetters = "KANWVCX";

/// Ontario's calls say no section, of which it has several; an operator reads the province.
constexpr std::array<std::string_view, 2> kOntarioPrefixes{"VE3", "VA3"};
constexpr std::string_view kOntario = " ON ";

/// So many characters from a position that counts from 1; what the text does not have is left out.
std::string_view Columns(std::string_view text, std::size_t first, std::size_t length) {
    return first > text.size() ? std::string_view{} : text.substr(first - 1, length);
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Where the station is operated from, as the call says behind or before its last stroke.
std::string PortablePrefix(std::string_view call, std::size_t stroke) {
    const double middle = static_cast<double>(call.size()) / 2 + 1;
    if (static_cast<double>(stroke + 1) < middle) {
        return std::string{call.substr(0, stroke)};
    }
    const std::string_view behind = call.substr(stroke + 1);
    if (!IsNumeric(behind)) {
        return std::string{behind};
    }
    const std::string_view letters{call.begin(), std::ranges::find_if(call, IsDigit)};
    return std::string{letters} + std::string{behind};
}

}  // namespace

bool BeginsPost(std::string_view line) {
    return UpperCase(line.substr(0, 2)) == "DX";
}

PostColumns ColumnsOf(std::string_view line) {
    return {.frequency = Trim(Columns(line, 16, 9)), .call = Trim(Columns(line, 27, 13))};
}

std::string PostOf(std::string_view line) {
    return Trim(Columns(line, kLeadLength + 1, line.size()));
}

bool IsRepeat(std::string_view line, std::string_view terminal) {
    const std::size_t first = std::max<std::size_t>(terminal.size(), kRepeatReach + 1) - kRepeatReach;
    const std::string_view recent = Columns(terminal, first, terminal.size());
    return line.size() <= recent.size() && UpperCase(recent).find(UpperCase(line)) != std::string::npos;
}

bool IsRequest(std::string_view post) {
    return std::ranges::any_of(kRequests,
                               [post](std::string_view word) { return post.find(word) != std::string_view::npos; });
}

bool MayBeOfTheContest(std::string_view call) {
    return !call.empty() && kContestLetters.find(call.front()) != std::string_view::npos;
}

std::string_view SectionOfPrefix(std::string_view call, const SectionList& list) {
    if (const int section = list.OfCall(call); section != 0) {
        return list.Section(section).word;
    }
    const auto begins = [call](std::string_view prefix) { return call.starts_with(prefix); };
    return std::ranges::any_of(kOntarioPrefixes, begins) ? kOntario : std::string_view{};
}

std::string SpotTextOf(std::string_view post, std::string_view section) {
    if (post.size() > kSpotterLength) {
        post.remove_prefix(kSpotterLength);
    }
    std::string comment{post};
    if (comment.size() > kTailLength) {
        comment.resize(comment.size() - kTailLength);
        comment += "  ";
        comment += section;
    }
    return ' ' + Trim(comment) + "  ";
}

std::string CallPrefix(std::string_view call) {
    if (call.size() < 3) {
        return {};
    }
    if (const std::size_t stroke = call.rfind('/'); stroke != std::string_view::npos) {
        return PortablePrefix(call, stroke);
    }
    const std::size_t lastDigit = call.find_last_of("0123456789");
    return std::string{call.substr(0, lastDigit == std::string_view::npos ? call.size() : lastDigit + 1)};
}

PostTexts PostTextsOf(std::string_view post, std::string_view section) {
    const std::string whole = Trim(post) + std::string{section};
    return {.comment = Trim(Columns(whole, 1, 11)) + "    " + Trim(Columns(whole, 35, 25)) + std::string{section},
            .behind = Trim(Columns(whole, 62, 5)),
            .time = std::string{Columns(whole, 68, 4)},
            .locator = Trim(Columns(whole, 73, 4))};
}

}  // namespace tallyhut
