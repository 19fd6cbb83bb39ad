#include "app/about.h"

#include "values/text.h"

namespace tallyhut {

std::string_view ProgramVersion() {
    return TALLYHUT_VERSION;
}

MessageBox AboutBox() {
    const std::string gap = std::string{kLineEnd} + std::string{kLineEnd};
    return {.title = "About Tallyhut Log",
            .text = "Tallyhut Log " + std::string{ProgramVersion()} + gap +
                    "A contest logger for the ARRL November Sweepstakes." + gap +
                    "Free software under the MIT licence.",
            .buttons = Buttons::OK,
            .icon = Icon::Information};
}

}  // namespace tallyhut
