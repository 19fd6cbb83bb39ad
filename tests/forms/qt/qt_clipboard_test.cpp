#include "forms/qt/qt_clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

namespace tallyhut {
namespace {

TEST(QtClipboard, LineEndsAndBytesGoOutAndComeBackAsTheyAre) {
    QtClipboard clipboard;
    std::string every;
    for (int byte = 1; byte < 256; ++byte) {
        every += static_cast<char>(byte);
    }
    for (const std::string& text : {std::string{"Call\tSec\r\nW1XX\tMDC\r\n"}, std::string{"J\xF6rg"}, every}) {
        clipboard.SetText(text);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromLatin1(text.c_str()));
        EXPECT_EQ(clipboard.Text(), text);
    }
}

TEST(QtClipboard, BytesThatHappenToBeUtf8AreNotGuessedAt) {
    QtClipboard clipboard;
    clipboard.SetText("\xC3\xA9");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("\u00C3\u00A9"));
    EXPECT_EQ(clipboard.Text(), "\xC3\xA9");
}

TEST(QtClipboard, CharactersBeyondLatin1AreLeftOut) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8("W1\u20ACXX"));
    EXPECT_EQ(QtClipboard{}.Text(), "W1XX");
}

}  // namespace
}  // namespace tallyhut
