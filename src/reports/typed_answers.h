#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Form2.h"

namespace tallyhut {

/// What was typed and chosen in the entry form, for as long as the program runs: the form begins with its defaults each
/// time, and one button fills all of it in again. What no default is told for stands there at once.
struct TypedAnswers {
    explicit TypedAnswers(Form2& form) : dialog{form} {}

    Form2& dialog;

    /// Of the form's end, however it ends.
    void Keep();
    /// Of the form's load, behind the steps that fill its fields.
    void Offer();
    /// Of cmdKept.
    void FillIn();

private:
    bool WouldChangeSomething() const;

    std::vector<std::pair<TextBox*, std::string>> texts_;
    std::vector<std::pair<Option*, bool>> choices_;
};

}  // namespace tallyhut
