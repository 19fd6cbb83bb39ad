#include "forms/qt/paragraph.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace tallyhut {
namespace {

constexpr int kLongestLine = 64;  ///< in characters
constexpr int kShortestLine = 24;

QString WithLines(QString text) {
    return text.remove('\r').replace('\n', QChar::LineSeparator);
}

/// Puts the text into lines of this width and returns what they take.
QSizeF Lay(QTextLayout& layout, double width, double lineHeight) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QSizeF size;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, size.height()});
        size = {std::max(size.width(), line.naturalTextWidth()), size.height() + lineHeight};
    }
    layout.endLayout();
    return size;
}

}  // namespace

Paragraph::Paragraph(const QString& text, const QFont& font) : QLabel{text} {
    setTextFormat(Qt::PlainText);
    setFont(font);
    const int character = fontMetrics().averageCharWidth();
    const int longest =
        std::min(character * kLongestLine, QGuiApplication::primaryScreen()->availableSize().width() * 3 / 4);
    const int wanted = static_cast<int>(std::ceil(Laid(longest).width()));
    setFixedWidth(std::clamp(wanted, std::min(character * kShortestLine, longest), longest));
    setFixedHeight(Needed().height());
}

QSize Paragraph::Needed() const {
    const QSizeF laid = Laid(width());
    return {static_cast<int>(std::ceil(laid.width())), static_cast<int>(std::ceil(laid.height()))};
}

QSizeF Paragraph::Laid(double width) const {
    QTextLayout layout{WithLines(text()), font(), this};
    return Lay(layout, width, fontMetrics().lineSpacing());
}

void Paragraph::paintEvent(QPaintEvent* /*event*/) {
    QTextLayout layout{WithLines(text()), font(), this};
    Lay(layout, width(), fontMetrics().lineSpacing());
    QPainter painter{this};
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {});
}

}  // namespace tallyhut
