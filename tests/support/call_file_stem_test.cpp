#include "support/call_file_stem.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tallyhut {
namespace {

TEST(CallFileStem, EndsBeforeTheFirstCharacterThatIsNoDigitAndNoUpperCaseLetter) {
    struct Row {
        std::string_view call;
        std::string_view stem;
    };
    for (const auto& [call, stem] : {
             Row{"W1ABC", "W1ABC"}, Row{"W1ABC/7", "W1ABC"}, Row{"/7", "YourCall"}, Row{"", "YourCall"},
             Row{"W1abc", "W1"}, Row{"w1abc", "YourCall"}, Row{"W1 ABC", "W1"}, Row{"09AZ", "09AZ"},
             Row{"A:", "A"},    // behind "9"
             Row{"A@", "A"},    // before "A"
             Row{"A[", "A"},    // behind "Z"
             Row{"A\xC4", "A"}  // beyond ASCII
         }) {
        EXPECT_EQ(CallToFileStem(call), stem) << call;
    }
}

}  // namespace
}  // namespace tallyhut
