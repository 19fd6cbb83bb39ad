#include "log/exchange_suggestions.h"

namespace tallyhut {
namespace {

/// True if there is something new to be seen.
bool SuggestIfEmpty(TextBox& field, std::string_view text) {
    const bool fills = field.Text().empty() && !text.empty();
    if (fills) {
        field.Suggest(text);
    }
    return fills;
}

}  // namespace

void ExchangeSuggestions::CallLeft() {
    const bool entryIsChecked = commit.committing && !commit.messageStands;
    if (!known.fillsIn || entryIsChecked) {
        return;
    }
    const std::optional<KnownExchange> exchange = known.history.Find(panel.form.txtCall.Text());
    if (!exchange) {
        return;
    }
    bool filled = SuggestIfEmpty(panel.form.txtCK, exchange->check);
    const std::string_view section = contest.sections.List().CodeOf(exchange->section);
    if (contest.sections.Find(section) != 0) {
        filled = SuggestIfEmpty(panel.form.txtSec, section) || filled;
    }
    if (filled && commit.messageStands) {
        panel.message.Write("Filled in from the call history");  // what the refusal missed stands there now
    }
}

void ExchangeSuggestions::CallChanged() {
    for (TextBox* field : {&panel.form.txtCK, &panel.form.txtSec}) {
        if (field->IsSuggested()) {
            field->SetText("");
        }
    }
}

}  // namespace tallyhut
