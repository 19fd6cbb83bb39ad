#pragma once

#include "contest/contest.h"
#include "log/commit.h"
#include "log/known_call_files.h"

namespace tallyhut {

/// What is suggested for an empty check and an empty section: what the call sent in an earlier contest. The fields hold
/// it themselves (TextBox::Suggest) and so are logged as they are seen.
struct ExchangeSuggestions {
    Panel& panel;
    const Contest& contest;
    const Commit& commit;
    const KnownCallFiles& known;

    /// The call has been left and is no duplicate. While a commit checks the entry nothing is filled: what nobody has
    /// seen counts as empty for that Enter.
    void CallLeft();
    /// What was suggested was for another call.
    void CallChanged();
};

}  // namespace tallyhut
