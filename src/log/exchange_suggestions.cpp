#include "log/exchange_suggestions.h"

namespace tallyhut {
namespace {

void SuggestIfEmpty(TextBox& field, std::string_view text) {
    if (field.Text().empty()) {
        field.Suggest(text);
    }
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
    SuggestIfEmpty(panel.form.txtCK, exchange->check);
    const std::string_view section = contest.sections.List().CodeOf(exchange->section);
    if (contest.sections.Find(section) != 0) {
        SuggestIfEmpty(panel.form.txtSec, section);
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
