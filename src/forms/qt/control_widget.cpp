#include "forms/qt/control_widget.h"

#include <QFontDatabase>

#include "forms/qt/button_widgets.h"
#include "forms/qt/label_widget.h"
#include "forms/qt/picture_widgets.h"
#include "forms/qt/program_style.h"
#include "forms/qt/rows_widget.h"
#include "forms/qt/text_codec.h"
#include "forms/qt/text_widgets.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {
namespace {

QString WithoutMnemonic(QString caption) {
    return caption.remove('&').trimmed();
}

QString SpokenName(const Control& control, const Look& look) {
    if (!look.spokenName.isEmpty()) {
        return look.spokenName;
    }
    const bool captioned = control.kind != ControlKind::TextBox && !control.State().text.empty();
    return captioned ? WithoutMnemonic(ToQt(control.State().text)) : ToQt(control.State().toolTip);
}

}  // namespace

QFont FontOf(const Look& look) {
    QFont font = look.data ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                           : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(std::max(1, qRound(look.pixels)));
    font.setBold(look.bold);
    return font;
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
    widget.setAccessibleName(SpokenName(control_, TheLook()));
    widget.setAccessibleDescription(toolTip);
    if (const bool marked = HasLogicalFocus(); IsFocusMarked(widget) != marked) {
        widget.setProperty(kFocusMark, marked);
        widget.update();
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
