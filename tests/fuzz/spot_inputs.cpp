#include "tests/fuzz/spot_inputs.h"

#include <string>

#include "spots/spot_line.h"
#include "values/text.h"

namespace tallyhut {
namespace {

bool ColumnsFit(std::string_view line) {
    const PostColumns columns = ColumnsOf(line);
    return columns.frequency.size() <= 9 && columns.call.size() <= 13 && columns.call == Trim(columns.call) &&
           columns.frequency == Trim(columns.frequency);
}

bool TextStandsBetweenBlanks(std::string_view post, std::string_view section) {
    const std::string text = SpotTextOf(post, section);
    return text.size() >= 3 && text.starts_with(' ') && text.ends_with("  ") &&
           text.size() <= post.size() + section.size() + 3;
}

bool ListFits(std::string_view post, std::string_view section) {
    const PostTexts texts = PostTextsOf(post, section);
    return texts.comment.size() <= 11 + 4 + 25 + section.size() && texts.behind.size() <= 5 && texts.time.size() <= 4 &&
           texts.locator.size() <= 4;
}

bool IsItsOwnRepeat(std::string_view line) {
    return line.empty() || line.size() > kRepeatReach || IsRepeat(line, UpperCase(line));
}

}  // namespace

bool TakesSpotInput(std::string_view bytes) {
    const std::string post = UpperCase(PostOf(bytes));
    const std::string_view section = SectionOfPrefix(bytes);
    const std::string call = ColumnsOf(bytes).call;
    // Where no digit stands before the stroke, what is behind it may come twice.
    const bool prefixesFit = CallPrefix(bytes).size() <= 2 * bytes.size() && CallPrefix(call).size() <= 2 * call.size();
    const bool sectionIsOfTheContest = section.empty() || MayBeOfTheContest(bytes);
    return ColumnsFit(bytes) && TextStandsBetweenBlanks(post, section) && ListFits(post, section) &&
           IsItsOwnRepeat(bytes) && prefixesFit && sectionIsOfTheContest && BeginsPost("dx" + post) &&
           (!IsRequest(post) || IsRequest(post + post));
}

}  // namespace tallyhut
