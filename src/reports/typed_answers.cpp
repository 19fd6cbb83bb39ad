#include "reports/typed_answers.h"

#include <algorithm>
#include <array>

namespace tallyhut {
namespace {

/// Only the summary sheet takes these, and nothing else fills them.
constexpr std::array kWithoutDefault{&Form2::Text1, &Form2::Text3, &Form2::Text4, &Form2::Text9};

}  // namespace

void TypedAnswers::Keep() {
    texts_.clear();
    choices_.clear();
    for (Control* control : dialog.Controls()) {
        if (control->kind == ControlKind::TextBox) {
            auto* box = static_cast<TextBox*>(control);
            texts_.emplace_back(box, box->Text());
        } else if (control->kind == ControlKind::Option) {
            auto* option = static_cast<Option*>(control);
            choices_.emplace_back(option, option->Value());
        }
    }
}

void TypedAnswers::Offer() {
    for (const auto& [box, text] : texts_) {
        const bool withoutDefault = std::ranges::any_of(
            kWithoutDefault, [this, kept = box](TextBox Form2::*member) { return &(dialog.*member) == kept; });
        if (withoutDefault) {
            box->SetText(text);
        }
    }
    dialog.cmdKept.SetVisible(WouldChangeSomething());
}

void TypedAnswers::FillIn() {
    for (const auto& [box, text] : texts_) {
        box->SetText(text);
    }
    for (const auto& [option, chosen] : choices_) {
        option->SetValue(chosen);
    }
    dialog.Text2.SetFocus();
    dialog.cmdKept.SetVisible(false);
}

bool TypedAnswers::WouldChangeSomething() const {
    return std::ranges::any_of(texts_, [](const auto& kept) { return kept.first->Text() != kept.second; }) ||
           std::ranges::any_of(choices_, [](const auto& kept) { return kept.first->Value() != kept.second; });
}

}  // namespace tallyhut
