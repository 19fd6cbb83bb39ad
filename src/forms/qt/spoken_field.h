#pragma once

namespace tallyhut {

/// Fields of one line as a screen reader reads them, in the forms and in the boxes: the toolkit below leaves out the
/// last character where a reader asks for the line that the caret stands behind. For all fields that are first asked
/// about after this.
void SpeakWholeFields();

}  // namespace tallyhut
