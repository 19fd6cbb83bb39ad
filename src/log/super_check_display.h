#pragma once

#include "contest/contest.h"
#include "forms/Form1.h"
#include "log/known_call_files.h"

namespace tallyhut {

/// The line beneath the possible duplicates with the known calls that hold what stands in the call field. While there
/// are none to show it has no room on the form.
struct SuperCheckDisplay {
    Form1& form;
    const Contest& contest;
    const KnownCallFiles& known;

    /// To be called whenever the call changes, and the choice of its calls.
    void Show();
};

}  // namespace tallyhut
