#pragma once

#include <optional>

#include "contest/preferences.h"
#include "network/network_settings.h"
#include "network/news_sender.h"
#include "network/radio_document.h"
#include "rig/rig_line.h"

namespace tallyhut {

/// Tells other programs of the radio: whenever its frequency or mode is another one, and ten seconds after it was told
/// last. Of a radio that does not answer, or of none, nothing is told.
struct RadioNews {
    static constexpr std::int32_t kRepeatMs = 10'000;

    RadioNews(Desk& owner, const RigLine& radioLine, const NewsChoice& radioChoice, const NewsOrigin& newsOrigin,
              NewsSender& newsSender);

    /// Behind each poll, when polling ends, and when what is chosen to be sent is another thing.
    void Look();
    /// Tells it at the next look, whether it was told before or not.
    void Forget() { told_.reset(); }

private:
    std::optional<RadioFacts> Facts() const;

    const RigLine& rigLine_;
    const NewsChoice& choice_;
    const NewsOrigin& origin_;
    NewsSender& sender_;
    std::optional<RadioFacts> told_;
    Alarm repeat_;
};

}  // namespace tallyhut
