#pragma once

#include <string_view>

#include "forms/Form1.h"

namespace tallyhut {

inline constexpr std::string_view kNotOnTime = "Click Log \"Time On\"!";

/// The one-line prompt and error line of the main form, and the line of partial calls under it.
struct MessageLine {
    Form1& form;

    /// Writes the text and leaves the colour: the last writer wins, colour and text apart.
    void Write(std::string_view text) {
        form.lblDialog.SetCaption(text);
        Hint("");
    }
    void WriteNormal(std::string_view text) {
        form.lblDialog.SetBackColor(kDialogNormal);
        Write(text);
    }
    void WriteOn(Colour ground, std::string_view text) {
        form.lblDialog.SetBackColor(ground);
        Write(text);
    }
    /// The same as Write, for what the program does not take or misses.
    void Refuse(std::string_view text) {
        Write(text);
        form.lblDialog.SetRefused(true);
    }
    /// Stands beside the message until the next one is written; empty for none.
    void Hint(std::string_view text) {
        form.lblHint.SetCaption(text);
        form.lblHint.SetVisible(!text.empty());
    }
    void BlankPartials() {
        form.lblDupe.SetBackColor(kButtonFace);
        form.lblDupe.SetCaption("");
    }
};

}  // namespace tallyhut
