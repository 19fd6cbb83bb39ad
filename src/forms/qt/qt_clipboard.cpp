#include "forms/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "forms/qt/text_codec.h"

namespace tallyhut {

std::string QtClipboard::Text() const {
    return FromQt(QGuiApplication::clipboard()->text());
}

void QtClipboard::SetText(const std::string& text) {
    QGuiApplication::clipboard()->setText(Latin1ToQt(text));
}

}  // namespace tallyhut
