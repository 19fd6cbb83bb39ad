#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct TextLengthsTest : ProgramFixture {};

TEST_F(TextLengthsTest, EveryTextThatCanBeTypedHasALongestLength) {
    MakeProgram();
    int boxes = 0;
    for (const Form* form : program->desk.Forms()) {
        for (const Control* control : form->Controls()) {
            if (control->kind == ControlKind::TextBox && !control->State().locked) {
                ++boxes;
                EXPECT_GT(control->State().maxLength, 0) << form->name << '.' << control->FullName();
            }
        }
    }
    EXPECT_GT(boxes, 0);
}

}  // namespace
}  // namespace tallyhut
