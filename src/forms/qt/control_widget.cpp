#include "forms/qt/control_widget.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "forms/qt/button_widgets.h"
#include "forms/qt/label_widget.h"
#include "forms/qt/picture_widgets.h"
#include "forms/qt/program_style.h"
#include "forms/qt/rows_widget.h"
#include "forms/qt/text_codec.h"
#include "forms/qt/text_widgets.h"
#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "toolkit/form.h"

namespace tallyhut {
namespace {

/// Never empty: what tells nothing of itself is called by where it stands.
QString SpokenName(const Control& control, const Look& look) {
    const ControlState& state = control.State();
    const QString own = control.kind == ControlKind::TextBox ? QString{} : CaptionText(state.text);
    QString spoken = (look.spokenName + ' ' + own).simplified();
    if (!spoken.isEmpty()) {
        return spoken;
    }
    if (!state.toolTip.empty()) {
        return ToQt(state.toolTip);
    }
    return CaptionText(control.Frame() == nullptr ? control.form.Caption() : control.Frame()->State().text);
}

}  // namespace

QFont FontOf(const Look& look) {
    QFont font = look.data ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                           : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // In points, which unlike pixels have fractions: small text on a magnified screen needs them.
    constexpr double kPointsPerInch = 72;
    const double dotsPerInch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    font.setPointSizeF(std::max(look.pixels, 1.0) * kPointsPerInch / dotsPerInch);
    font.setBold(look.bold);
    return font;
}

QString CaptionText(std::string_view caption) {
    QString text = ToQt(caption);
    constexpr QChar kPlaceholder{QChar::Null};
    text.replace("&&", kPlaceholder).remove('&').replace(kPlaceholder, '&');
    return WithoutFill(text);
}

QString WithoutFill(QString text) {
    while (text.endsWith('.') || text.endsWith(' ')) {
        text.chop(1);
    }
    return text.trimmed();
}

QString WithUnits(QString caption) {
    return caption.replace(" KHz", " kHz");
}

QString PlainToolTip(const std::string& text) {
    const QString shown = ToQt(text);
    return Qt::mightBeRichText(shown) ? shown.toHtmlEscaped() : shown;
}

void ControlWidget::Sync() {
    QWidget& widget = Widget();
    const ControlState& state = control_.State();
    ShowState();
    if (widget.isHidden() == control_.IsShown()) {
        widget.setVisible(control_.IsShown());
    }
    widget.setEnabled(state.enabled);
    const QString toolTip = PlainToolTip(state.toolTip);
    widget.setToolTip(toolTip);
    TellName();
    if (widget.accessibleDescription() != toolTip) {
        widget.setAccessibleDescription(toolTip);
    }
    if (const bool marked = HasLogicalFocus(); IsFocusMarked(widget) != marked) {
        widget.setProperty(kFocusMark, marked);
        widget.update();
    }
}

void ControlWidget::TellName() {
    QWidget& widget = Widget();
    const QString name = SpokenName(control_, TheLook());
    if (widget.accessibleName() == name) {
        return;
    }
    widget.setAccessibleName(name);  // which tells the new name to whoever listens
    if (TheLook().announced && widget.isVisible()) {
        input_.TheDesk().Announce(control_.State().text);
    }
}

bool ControlWidget::HasLogicalFocus() const {
    return control_.HasFocus() && control_.CanTakeFocus() && control_.form.IsActive();
}

void ControlWidget::SetLook(const Look& look) {
    if (look_ == look) {
        return;
    }
    look_ = look;
    ShowLook();
    Sync();
}

ControlWidget* MakeWidget(Control& control, const OperatorInput& input, QWidget& parent) {
    switch (control.kind) {
        case ControlKind::TextBox:
            if (control.State().multiLine) {
                return new PageWidget{static_cast<TextBox&>(control), input, &parent};
            }
            return new FieldWidget{static_cast<TextBox&>(control), input, &parent};
        case ControlKind::Label:
            return new LabelWidget{control, input, &parent};
        case ControlKind::Button:
            return new ButtonWidget{control, input, &parent};
        case ControlKind::Option:
            return new OptionWidget{control, input, &parent};
        case ControlKind::CheckBox:
            return new CheckBoxWidget{control, input, &parent};
        case ControlKind::Frame:
            return new FrameWidget{control, input, &parent};
        case ControlKind::List:
        case ControlKind::ListView:
            return new RowsWidget{control, input, &parent};
        case ControlKind::Line:
            return new LineWidget{control, input, &parent};
        case ControlKind::Raster:
            return new RasterWidget{static_cast<Raster&>(control), input, &parent};
        case ControlKind::Menu:
        case ControlKind::Timer:
            return nullptr;
    }
    return nullptr;
}

}  // namespace tallyhut
