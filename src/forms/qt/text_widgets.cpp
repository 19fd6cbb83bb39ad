#include "forms/qt/text_widgets.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "forms/qt/program_style.h"
#include "forms/qt/text_change.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

/// The field that keys go to stands out by its ground, the others by nothing.
QPalette FieldPalette(const Control& control, bool focused, const QPalette& desktop) {
    const Theme theme = ThemeOf(desktop);
    const ControlState& state = control.State();
    const bool page = state.multiLine;  // so large a ground would dazzle
    const QColor own = focused && !page ? theme.focusField : theme.field;
    const QColor ground = state.backColor >= 0 ? ToQColor(state.backColor, theme) : own;
    const QColor plain = state.backColor >= 0 ? TextOn(ground) : (focused && !page ? theme.focusText : theme.text);
    const QColor text = state.foreColor >= 0 ? Readable(ToQColor(state.foreColor, theme), ground) : plain;
    QPalette palette = desktop;
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, state.enabled ? text : Mixed(text, ground, 0.6));
    palette.setColor(QPalette::Highlight, focused ? theme.accent : theme.quietSelection);
    palette.setColor(QPalette::PlaceholderText, Readable(theme.quietText, ground));
    palette.setColor(QPalette::HighlightedText, focused ? TextOn(theme.accent) : theme.text);
    return palette;
}

/// What the widget of a secret text holds in place of each character: not even Qt is given the text.
constexpr QChar kDot{0x25CF};

struct Edit {
    const char* caption;
    bool changes;
    bool needsSelection;
    void (*run)(Desk& desk, TextBox& box);
};

void SelectAll(Desk& /*desk*/, TextBox& box) {
    box.Select(0, static_cast<int>(box.Text().size()));
}

constexpr std::array kEdits{
    Edit{"Cu&t", true, true,
         [](Desk& desk, TextBox& box) {
             desk.clipboard.SetText(box.SelectedText());
             box.Delete();
         }},
    Edit{"&Copy", false, true, [](Desk& desk, TextBox& box) { desk.clipboard.SetText(box.SelectedText()); }},
    Edit{"&Paste", true, false, [](Desk& desk, TextBox& box) { box.Paste(desk.clipboard.Text()); }},
    Edit{"Select &All", false, false, SelectAll},
};

}  // namespace

void TextMouse::Press(Qt::MouseButton button, int position, const QPoint& globalPosition) {
    const auto pressed = ToButton(button);
    if (!pressed) {
        return;
    }
    input_.Click(box_, *pressed);
    switch (*pressed) {
        case kLeftButton:
            anchor_ = position;
            Select(position, position);
            break;
        case kMiddleButton: {
            Select(position, position);
            const std::string text = FromQt(QGuiApplication::clipboard()->text(QClipboard::Selection));
            input_.DoWhileThere(&widget_, [this, text] {
                if (box_.HasFocus()) {
                    box_.Paste(text);
                }
            });
            break;
        }
        case kRightButton:
            OpenMenu(globalPosition);
            break;
    }
}

void TextMouse::DragTo(int position) {
    if (anchor_) {
        Select(*anchor_, position);
    }
}

void TextMouse::Release() {
    const std::string selected = box_.SelectedText();
    if (anchor_ && !selected.empty()) {
        QGuiApplication::clipboard()->setText(Latin1ToQt(selected), QClipboard::Selection);
    }
    anchor_.reset();
}

void TextMouse::DoubleClick(Qt::MouseButton button) {
    if (button != Qt::LeftButton) {
        return;
    }
    Select(0, static_cast<int>(box_.Text().size()));
    if (box_.DblClick) {
        input_.ClickAgain(box_, kLeftButton, &widget_);
    }
}

void TextMouse::Replace(const QString& text) {
    input_.DoWhileThere(&widget_, [this, text = FromQt(text)] { box_.ReplaceByPaste(text); });
}

void TextMouse::Select(int from, int to) {
    input_.DoWhileThere(&widget_, [this, from, to] {
        if (box_.HasFocus()) {  // else a handler kept the focus from coming here
            box_.Select(std::min(from, to), std::abs(to - from));
        }
    });
}

void TextMouse::OpenMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu{&widget_};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Edit& edit : kEdits) {
        const bool hasSelection = box_.SelLength() > 0 && !box_.IsSecret();
        const bool open = !(edit.changes && box_.State().locked) && (hasSelection || !edit.needsSelection);
        QAction* action = menu->addAction(edit.caption);
        action->setEnabled(open && box_.State().enabled);
        QObject::connect(action, &QAction::triggered, &widget_, [this, run = edit.run] {
            input_.DoWhileThere(&widget_, [this, run] { run(input_.TheDesk(), box_); });
        });
    }
    menu->popup(globalPosition);
}

FieldWidget::FieldWidget(TextBox& box, const OperatorInput& input, QWidget* parent)
    : WidgetOf{box, input, parent}, box_{box}, mouse_{box, input, *this} {
    setFocusPolicy(Qt::TabFocus);
    setAcceptDrops(false);
    setDragEnabled(false);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    setProperty(kFocusMark, false);
    if (box.IsSecret()) {
        setEchoMode(Password);  // which a screen reader says
    }
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!showing_ && !(box_.IsSecret() && text.contains(kDot))) {  // a change within dots says nothing
            mouse_.Replace(text);
        }
    });
}

QSize FieldWidget::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height() * 5 / 4};
}

QSize FieldWidget::minimumSizeHint() const {
    return sizeHint();
}

QSize FieldWidget::Needed(int /*width*/) const {
    constexpr int kEdges = 4;
    constexpr int kSome = 3;
    constexpr int kFewest = 2;  // of a text that may be longer than any field
    constexpr int kShort = 12;
    const int limit = box_.State().maxLength;
    const int characters = limit > 0 && limit <= kShort ? std::min(limit, kSome) : kFewest;
    const QMargins margins = textMargins();
    const int inside = fontMetrics().horizontalAdvance('W') * characters;
    return {inside + margins.left() + margins.right(), fontMetrics().height() + kEdges};
}

void FieldWidget::ShowState() {
    const ControlState& state = box_.State();
    showing_ = true;
    shown_ = ShownText{state.secret ? std::string(state.text.size(), '*') : state.text};
    PutText(state.secret ? QString{static_cast<int>(state.text.size()), kDot} : shown_.Text());
    const int begin = shown_.Shown(state.selStart);
    const int end = shown_.Shown(state.selStart + state.selLength);
    if (begin == end) {
        if (hasSelectedText() || cursorPosition() != begin) {  // else what is being composed would be lost
            deselect();
            setCursorPosition(begin);
        }
    } else if (state.caretAtStart) {
        setSelection(end, begin - end);
    } else {
        setSelection(begin, end - begin);
    }
    showing_ = false;
    const QPalette wanted = FieldPalette(box_, HasLogicalFocus(), parentWidget()->palette());
    if (palette() != wanted) {
        setPalette(wanted);
    }
    if (property(kRefusedMark).toBool() != state.refused) {
        setProperty(kRefusedMark, state.refused);
        update();
    }
}

/// Puts in what is new, as a key would: a screen reader would take a text that is set for another one.
void FieldWidget::PutText(const QString& wanted) {
    const TextChange change = ChangeBetween(text(), wanted);
    if (change.removed == text().size()) {
        if (text() != wanted) {
            setText(wanted);
        }
        return;
    }
    if (change.removed > 0 || !change.inserted.isEmpty()) {
        setCursorPosition(change.at + change.removed);
        for (int i = 0; i < change.removed; ++i) {
            backspace();
        }
    }
    if (!change.inserted.isEmpty()) {
        insert(change.inserted);
    }
}

void FieldWidget::ShowLook() {
    setFont(FontOf(TheLook()));
    setPlaceholderText(TheLook().placeholder);
    setAlignment(TheLook().alignment);
    const int side = qRound(TheLook().pixels * 0.25);
    setTextMargins(side, 0, side, 0);
}

int FieldWidget::PositionAt(const QMouseEvent& event) {
    return shown_.Byte(cursorPositionAt(event.position().toPoint()));
}

void FieldWidget::mousePressEvent(QMouseEvent* event) {
    mouse_.Press(event->button(), PositionAt(*event), event->globalPosition().toPoint());
}

void FieldWidget::mouseMoveEvent(QMouseEvent* event) {
    mouse_.DragTo(PositionAt(*event));
}

void FieldWidget::mouseReleaseEvent(QMouseEvent* /*event*/) {
    mouse_.Release();
}

void FieldWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mouse_.DoubleClick(event->button());
}

void FieldWidget::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();  // opened by the press already
}

PageWidget::PageWidget(TextBox& box, const OperatorInput& input, QWidget* parent)
    : WidgetOf{box, input, parent}, box_{box}, mouse_{box, input, *this} {
    setFocusPolicy(Qt::TabFocus);
    setAcceptDrops(false);
    setUndoRedoEnabled(false);
    setFrameShape(NoFrame);
    setTabChangesFocus(true);
    viewport()->setCursor(Qt::IBeamCursor);
    setProperty(kFocusMark, false);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!showing_) {
            mouse_.Replace(toPlainText());
        }
    });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { scrolledUp_ = verticalScrollBar()->sliderPosition() < verticalScrollBar()->maximum(); });
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& /*part*/, int scrolled) {
        if (scrolled != 0) {
            viewport()->update();  // or the edge would be moved with the text
        }
    });
}

QSize PageWidget::Needed(int /*width*/) const {
    return {0, fontMetrics().height() * 5 / 2};
}

void PageWidget::ShowState() {
    const ControlState& state = box_.State();
    showing_ = true;
    QScrollBar& bar = *verticalScrollBar();
    const bool keepsView = state.locked && scrolledUp_;
    int inView = bar.value();
    if (state.text != text_ || toPlainText() != shown_.Text()) {
        text_ = state.text;
        shown_ = ShownText{text_};
        const TextChange change = ChangeBetween(toPlainText(), shown_.Text());
        QTextCursor place{document()};
        place.setPosition(change.at);
        place.setPosition(change.at + change.removed, QTextCursor::KeepAnchor);
        if (change.at == 0) {
            inView -= static_cast<int>(place.selectedText().count(QChar::ParagraphSeparator));
        }
        place.insertText(change.inserted);
    }
    const int begin = shown_.Shown(state.selStart);
    const int end = shown_.Shown(state.selStart + state.selLength);
    QTextCursor cursor = textCursor();
    const int anchor = state.caretAtStart ? end : begin;
    const int caret = state.caretAtStart ? begin : end;
    if (cursor.anchor() != anchor || cursor.position() != caret) {
        cursor.setPosition(anchor);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
    if (keepsView) {
        bar.setValue(inView);  // what comes below must not take away what is being read
    }
    showing_ = false;
    const QPalette wanted = FieldPalette(box_, HasLogicalFocus(), parentWidget()->palette());
    if (palette() != wanted) {
        setPalette(wanted);
    }
}

void PageWidget::paintEvent(QPaintEvent* event) {
    QPlainTextEdit::paintEvent(event);
    QPainter painter{viewport()};
    if (IsFocusMarked(*this)) {
        DrawFocusEdge(painter, *this, viewport()->rect());
    } else {
        DrawBox(painter, viewport()->rect(), Qt::transparent, ThemeOf(parentWidget()->palette()).fieldEdge);
    }
}

void PageWidget::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    if (!scrolledUp_) {
        ensureCursorVisible();
    }
}

int PageWidget::PositionAt(const QMouseEvent& event) const {
    return shown_.Byte(cursorForPosition(event.position().toPoint()).position());
}

void PageWidget::mousePressEvent(QMouseEvent* event) {
    mouse_.Press(event->button(), PositionAt(*event), event->globalPosition().toPoint());
}

void PageWidget::mouseMoveEvent(QMouseEvent* event) {
    mouse_.DragTo(PositionAt(*event));
}

void PageWidget::mouseReleaseEvent(QMouseEvent* /*event*/) {
    mouse_.Release();
}

void PageWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mouse_.DoubleClick(event->button());
}

void PageWidget::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

}  // namespace tallyhut
