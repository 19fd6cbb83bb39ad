#pragma once

#include <QLabel>

namespace tallyhut {

/// Plain text in lines of a readable length, never longer than the screen is wide. A word that is longer than a line,
/// such as a path, goes on in the next one.
class Paragraph : public QLabel {
public:
    Paragraph(const QString& text, const QFont& font);

    /// The room that the text takes in its lines.
    QSize Needed() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSizeF Laid(double width) const;
};

}  // namespace tallyhut
