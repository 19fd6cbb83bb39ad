#include "support/form_scaling.h"

#include <algorithm>
#include <utility>

#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kLargestFontRatio = 1.5;
constexpr double kTitleBar = 170;

bool IsSize(const ScreenSize& size) {
    return size.width > 0 && size.height > 0;
}

std::string Told(const ScreenSize& size) {
    return PlainText(size.width) + " by " + PlainText(size.height);
}

/// What has no extent of its own (a timer, a menu entry) is passed over.
void ScaleControl(Control& control, const Ratios& ratios) {
    const ControlState* const design = control.Design();
    if (design == nullptr || control.kind == ControlKind::Timer || control.kind == ControlKind::Menu) {
        return;
    }
    if (control.kind == ControlKind::Line) {
        static_cast<Line&>(control).SetEnds(design->x1 * ratios.width, design->y1 * ratios.height,
                                            design->x2 * ratios.width, design->y2 * ratios.height);
        return;
    }
    control.SetPlace(Scaled(design->place, ratios));
    control.SetFontSize(design->fontSize * ratios.Font());
    if (control.kind == ControlKind::ListView) {
        std::vector<ListColumn> columns = design->columns;
        for (ListColumn& column : columns) {
            column.width *= ratios.width;
        }
        static_cast<ListView&>(control).SetColumns(std::move(columns));
    }
}

/// From the last to the first.
void ScaleControls(const Form& form, const Ratios& ratios) {
    std::for_each(form.Controls().rbegin(), form.Controls().rend(),
                  [&ratios](Control* control) { ScaleControl(*control, ratios); });
}

}  // namespace

double Ratios::Font() const {
    return std::min(width, kLargestFontRatio);
}

Ratios RatiosOf(const ScreenSize& newSize, const ScreenSize& oldSize) {
    if (!IsSize(newSize) || !IsSize(oldSize)) {
        throw ValueError{"A form cannot be scaled from " + Told(oldSize) + " to " + Told(newSize) + "."};
    }
    return {.width = newSize.width / oldSize.width, .height = newSize.height / oldSize.height};
}

Place Scaled(const Place& place, const Ratios& ratios) {
    return {.left = place.left * ratios.width,
            .top = place.top * ratios.height,
            .width = place.width * ratios.width,
            .height = place.height * ratios.height};
}

Place Centred(const ScreenSize& form, const ScreenSize& screen) {
    return {.left = (screen.width - form.width) / 2,
            .top = (screen.height - form.height) / 2 - kTitleBar,
            .width = form.width,
            .height = form.height};
}

double FontRatioOf(const Form& form) {
    return Ratios{.width = form.FormPlace().width / form.design.width}.Font();
}

void ScaleSmallForm(Form& form, const Screen& screen) {
    const ScreenSize whole = screen.Whole();
    ScaleFormToSize(form,
                    {.NewHeight = whole.height,
                     .NewWidth = whole.width,
                     .OldHeight = kDesignScreen.height,
                     .OldWidth = kDesignScreen.width},
                    whole);
}

void ScaleFormToSize(Form& form, const SizeChange& change, const ScreenSize& screen) {
    try {
        const ScreenSize newSize{.width = change.NewWidth, .height = change.NewHeight};
        const Ratios ratios = RatiosOf(newSize, {.width = change.OldWidth, .height = change.OldHeight});
        const ScreenSize grown{.width = form.design.width * ratios.width, .height = form.design.height * ratios.height};
        form.SetFormPlace(Centred(change.SetSize ? newSize : grown, screen));
        ScaleControls(form, ratios);
    } catch (const ValueError& failure) {
        form.desk.dialogs.Show(MessageBox{
            .title = "Form Resize Error", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    }
}

}  // namespace tallyhut
