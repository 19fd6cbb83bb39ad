#include "spots/spot_terminal.h"

#include <algorithm>

#include "spots/spot_line.h"
#include "spots/terminal_text.h"

namespace tallyhut {

void SpotTerminal::Replace(std::string_view text) {
    box.SetText("");
    Append(text);
}

/// The caret stands before the last character, so that the view follows the text.
void SpotTerminal::Append(std::string_view text) {
    const auto before = static_cast<int>(box.Text().size());
    const int caret = box.SelStart();
    const int selected = box.SelLength();
    const bool reads = box.HasFocus() && caret < before - 1;
    box.SetText(WithText(box.Text(), ShownText(text)));
    const auto length = static_cast<int>(box.Text().size());
    if (reads) {
        const int gone = before + static_cast<int>(text.size()) - length;
        box.Select(std::max(caret - gone, 0), selected);
    } else if (length > 2) {
        box.SetCaret(length - 1);
    }
}

bool SpotTerminal::HasShown(std::string_view text) const {
    return IsRepeat(ShownText(text), box.Text());
}

}  // namespace tallyhut
