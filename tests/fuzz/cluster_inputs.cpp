#include "tests/fuzz/cluster_inputs.h"

#include <algorithm>
#include <string>
#include <vector>

#include "spots/cluster_text.h"
#include "spots/spot_filter.h"
#include "values/text.h"

namespace tallyhut {
namespace {

/// The lines, and behind them what is unfinished.
std::vector<std::string> TextsOf(std::string_view bytes, std::size_t piece) {
    ClusterText text;
    std::vector<std::string> texts;
    std::string line;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
        text.Add(bytes.substr(0, piece));
        while (text.Take(line)) {
            texts.push_back(line);
        }
    }
    texts.push_back(text.Unfinished());
    return texts;
}

bool IsOneLine(const std::string& text) {
    constexpr std::string_view kNoText{"\r\n\0", 3};
    return text.size() <= ClusterText::kLongestLine && text.find_first_of(kNoText) == std::string::npos;
}

bool PromptIsAtTheEnd(const std::string& text) {
    return !PromptIn(text) || (PromptIn(TrimEnd(text)) == PromptIn(text) && !PromptIn(text + "x"));
}

/// The secret is a part of the text, so that it occurs.
bool SecretIsNotShown(const std::string& text) {
    const std::string secret = text.substr(text.size() / 3, 3);
    if (secret.empty() || secret.find('*') != std::string::npos) {
        return true;
    }
    const std::string whole = WithoutSecret(text, secret, true);
    bool goesOn = UpperCase(whole).find(UpperCase(secret)) == std::string::npos;
    for (std::size_t cut = 0; cut <= std::min<std::size_t>(text.size(), 40); ++cut) {
        goesOn = goesOn && whole.starts_with(WithoutSecret(text.substr(0, cut), secret, false));
    }
    return goesOn;
}

}  // namespace

bool TakesClusterInput(std::string_view bytes) {
    const std::vector<std::string> texts = TextsOf(bytes, bytes.size());
    [[maybe_unused]] const bool isNear = IsNear(SpotterOf("DE " + texts.front()));
    return texts == TextsOf(bytes, 1) && texts == TextsOf(bytes, 7) && std::ranges::all_of(texts, IsOneLine) &&
           std::ranges::all_of(texts, PromptIsAtTheEnd) && std::ranges::all_of(texts, SecretIsNotShown);
}

}  // namespace tallyhut
