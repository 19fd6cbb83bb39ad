#include "forms/qt/spoken_field.h"

#include <QAccessibleWidget>
#include <QLineEdit>
#include <QSpinBox>

namespace tallyhut {
namespace {

class SpokenField : public QAccessibleWidget, public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
public:
    explicit SpokenField(QLineEdit& field) : QAccessibleWidget{&field, QAccessible::EditableText}, field_{field} {}

    void* interface_cast(QAccessible::InterfaceType kind) override {
        switch (kind) {
            case QAccessible::TextInterface:
                return static_cast<QAccessibleTextInterface*>(this);
            case QAccessible::EditableTextInterface:
                return static_cast<QAccessibleEditableTextInterface*>(this);
            default:
                return QAccessibleWidget::interface_cast(kind);
        }
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? field_.displayText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = !field_.isReadOnly();
        state.readOnly = field_.isReadOnly();
        state.selectableText = true;
        state.passwordEdit = field_.echoMode() != QLineEdit::Normal;
        return state;
    }

    int selectionCount() const override { return field_.hasSelectedText() ? 1 : 0; }
    void selection(int /*index*/, int* start, int* end) const override {
        *start = field_.hasSelectedText() ? field_.selectionStart() : 0;
        *end = *start + field_.selectionLength();
    }
    void addSelection(int start, int end) override { field_.setSelection(start, end - start); }
    void removeSelection(int /*index*/) override { field_.deselect(); }
    void setSelection(int /*index*/, int start, int end) override { addSelection(start, end); }
    int cursorPosition() const override { return field_.cursorPosition(); }
    void setCursorPosition(int position) override { field_.setCursorPosition(position); }

    QString text(int start, int end) const override { return field_.displayText().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(field_.displayText().size()); }
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override {
        if (boundary != QAccessible::LineBoundary && boundary != QAccessible::ParagraphBoundary) {
            return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
        }
        *start = 0;
        *end = characterCount();
        return field_.displayText();
    }
    QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }
    QRect characterRect(int offset) const override {
        const QFontMetrics metrics = field_.fontMetrics();
        const QString text = field_.displayText();
        const int left = field_.textMargins().left() + metrics.horizontalAdvance(text.left(offset));
        const QRect place{left, (field_.height() - metrics.height()) / 2,
                          metrics.horizontalAdvance(text.mid(offset, 1)), metrics.height()};
        return {field_.mapToGlobal(place.topLeft()), place.size()};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return field_.cursorPositionAt(field_.mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int end) override {
        field_.setCursorPosition(end);
        field_.setCursorPosition(start);
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        field_.setText(field_.text().replace(start, end - start, text));
    }

private:
    QLineEdit& field_;
};

/// The field of a spin box is read by its box.
QAccessibleInterface* MakeSpokenField(const QString& /*className*/, QObject* object) {
    auto* field = qobject_cast<QLineEdit*>(object);
    const bool alone = field != nullptr && qobject_cast<QAbstractSpinBox*>(field->parentWidget()) == nullptr;
    return alone ? new SpokenField{*field} : nullptr;
}

}  // namespace

void SpeakWholeFields() {
    QAccessible::installFactory(MakeSpokenField);
}

}  // namespace tallyhut
