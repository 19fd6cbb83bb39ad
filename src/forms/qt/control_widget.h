#pragma once

#include <QString>
#include <QWidget>

#include "forms/qt/operator_input.h"
#include "forms/qt/theme.h"
#include "toolkit/control.h"

namespace tallyhut {

/// How a frame is drawn.
enum class FrameLook {
    Box,    ///< a line around what lies in it, below its caption
    Panel,  ///< a panel, its caption on it
    Line,   ///< its caption alone, beside what lies in it
};

/// How a layout wants a control to be drawn, beyond what the control says itself.
struct Look {
    double pixels = 13;  ///< size of the text
    bool data = false;   ///< in fixed pitch, for what is compared by eye
    bool bold = false;
    bool quiet = false;    ///< a caption beside something more important
    bool trimmed = false;  ///< without the blanks and dots that only place the text
    bool boxed = false;    ///< on a ground of its own, like a field
    bool wrapped = false;  ///< text that does not fit goes on in the next line
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    QColor ground;           ///< what lies under the widget; invalid: the panel
    QString spokenName;      ///< for screen readers, before the control's own text; may be empty
    bool announced = false;  ///< its text is announced when it changes
    bool accented = false;   ///< the main button of its form
    QString aside;           ///< quietly behind the caption of a choice
    QString placeholder;     ///< in a field that is empty
    FrameLook frame = FrameLook::Box;
    QRect captionRoom;  ///< of a frame that is no box

    bool operator==(const Look&) const = default;
};

QFont FontOf(const Look& look);

/// A logical control on the screen. The widget shows what the control holds each time Sync is called, changes nothing
/// of it, and hands over what the operator does.
class ControlWidget {
public:
    explicit ControlWidget(Control& control, const OperatorInput& input) : control_{control}, input_{input} {}
    virtual ~ControlWidget() = default;
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    ControlWidget(ControlWidget&&) = delete;
    ControlWidget& operator=(ControlWidget&&) = delete;

    virtual QWidget& Widget() = 0;
    void Sync();
    void SetLook(const Look& look);
    /// The room in which all of it can be read in its look; a text that wraps is told by the width of its lines.
    virtual QSize Needed(int width) const = 0;
    Control& Logical() const { return control_; }
    QFont Font() const { return FontOf(TheLook()); }

protected:
    virtual void ShowState() = 0;
    virtual void ShowLook() = 0;

    Look TheLook() const { return look_.value_or(Look{}); }
    const OperatorInput& Input() const { return input_; }
    /// Keys go to it.
    bool HasLogicalFocus() const;

private:
    void TellName();

    Control& control_;
    const OperatorInput& input_;
    std::optional<Look> look_;
};

/// The widget of a control, as a child of `parent`, which owns it; null for kinds that are not seen in a form.
ControlWidget* MakeWidget(Control& control, const OperatorInput& input, QWidget& parent);

/// What each of the widgets is made of: one of the desktop's, and the control.
template <typename QtWidget>
class WidgetOf : public QtWidget, public ControlWidget {
public:
    WidgetOf(Control& control, const OperatorInput& input, QWidget* parent)
        : QtWidget{parent}, ControlWidget{control, input} {
        this->setObjectName(QString::fromStdString(control.FullName()));
    }

    QWidget& Widget() override { return *this; }
    QSize Needed(int /*width*/) const override { return QtWidget::sizeHint().expandedTo({0, 0}); }

protected:
    void ShowLook() override { this->setFont(FontOf(TheLook())); }
};

/// Without the blanks and dots that push a text to its place in a proportional font.
QString WithoutFill(QString text);
/// What a caption says: without them and without the mark of its access key.
QString CaptionText(std::string_view caption);

/// With the units of frequency spelt as everywhere else: a caption may say "KHz".
QString WithUnits(QString caption);

/// A tool tip that is not taken for a marked-up text.
QString PlainToolTip(const std::string& text);

}  // namespace tallyhut
