#include "platform/real/ini_text.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <random>
#include <string>
#include <vector>

#include "platform/real/posix_files.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

std::string EveryByte() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::vector<std::string> Values() {
    return {
        "",
        "W1XX",
        " blanks around ",
        "\ttab\t",
        "a, b",
        "a;b",
        "a=b",
        "\"quoted\"",
        "'x'?",
        "C:\\old\\x41\\n",
        "line\r\nend",
        "@Invalid()",
        "@ByteArray(x)",
        "@String(x)",
        "@",
        "@@",
        "%41",
        "[Settings]",
        "; no comment",
        "\xE9",
        "\xC3\xA9",
        "\xC3",
        "\xEF\xBB\xBF",
        "\xEF\xBB\xBFtext",
        "\xED\xA0\x80",
        "\xEF\xBF\xBF",
        "\xC0\x80",
        "\xF0\x9F\x93\xBB",
        "\xF4\x90\x80\x80",
        "x\xE9y\xC3\xA9z",
        "\xE9\x61\x31",
        "\x01",
        "\x1F\x30",
        "\x7F",
        "\x80",
        "\xFF)",
        std::string("a\0b1", 4),
        std::string("\xE9\0b1", 4),
        EveryByte(),
    };
}

/// What the desktop's own reader of such files makes of it.
std::string DesktopReads(const std::string& file, const std::string& name) {
    const TemporaryFolder folder;
    PosixFiles files;
    files.Write(folder.At("a.ini"), file);
    const QSettings settings(QString::fromStdString(folder.At("a.ini")), QSettings::IniFormat);
    const QVariant value = settings.value(QString::fromStdString(name));
    const bool isList = value.typeId() == QMetaType::QStringList;
    return (isList ? QVariant(value.toStringList().join(", ")) : value).toByteArray().toStdString();
}

/// What the desktop's own writer makes of a value in the file.
std::string DesktopWrites(const std::string& file, const std::string& name, const QVariant& value) {
    const TemporaryFolder folder;
    PosixFiles files;
    files.Write(folder.At("a.ini"), file);
    {
        QSettings settings(QString::fromStdString(folder.At("a.ini")), QSettings::IniFormat);
        settings.setValue(QString::fromStdString(name), value);
    }
    return files.Read(folder.At("a.ini"));
}

TEST(IniText, FileReadsAsItsSectionsKeysAndValues) {
    std::string file;
    file = WithIniValue(file, "Machine", "Folder", "/home/jos\xC3\xA9/contest log");
    file = WithIniValue(file, "Settings", "Port 2", "a;b");
    file = WithIniValue(file, "Settings", "Name", "Jos\xE9");
    file = WithIniValue(file, "Machine", "Jos\xE9/Left", "@1200");
    EXPECT_EQ(file,
              "[Machine]\n"
              "Folder=/home/jos\xC3\xA9/contest log\n"
              "Jos%E9\\Left=@@1200\n"
              "\n"
              "[Settings]\n"
              "Port%202=\"a;b\"\n"
              "Name=@ByteArray(Jos\\xe9)\n");
}

TEST(IniText, EveryTextOfBytesComesBack) {
    for (const std::string& value : Values()) {
        EXPECT_EQ(IniValue(WithIniValue("", "Settings", "Key", value), "Settings", "Key"), value);
    }
}

TEST(IniText, DesktopReadsEveryValueAsItWasMeant) {
    for (const std::string& value : Values()) {
        const std::string file = WithIniValue("", "Settings", "Key", value);
        EXPECT_EQ(DesktopReads(file, "Settings/Key"), value) << file;
    }
}

TEST(IniText, WhatTheDesktopWroteIsReadAsItWasMeant) {
    for (const std::string& value : Values()) {
        const QByteArray bytes = QByteArray::fromStdString(value);
        const QString text = QString::fromUtf8(bytes);
        const bool isText = text.toUtf8() == bytes;
        const std::string file = DesktopWrites("", "Settings/Key 1", isText ? QVariant(text) : QVariant(bytes));
        EXPECT_EQ(IniValue(file, "Settings", "Key 1"), value) << file;
        EXPECT_EQ(IniValue(DesktopWrites("", "Settings/Key", bytes), "Settings", "Key"), value);
    }
}

TEST(IniText, OrdinaryFileStaysTheSameWhoeverWritesIt) {
    for (const std::string& value : Values()) {
        const QByteArray bytes = QByteArray::fromStdString(value);
        const QString text = QString::fromUtf8(bytes);
        const bool isText = text.toUtf8() == bytes;
        EXPECT_EQ(WithIniValue("", "Settings", "Key", value),
                  DesktopWrites("", "Settings/Key", isText ? QVariant(text) : QVariant(bytes)));
    }
}

TEST(IniText, EditedLinesAreReadAsTheDesktopReadsThem) {
    for (const std::string line : {
             "Key = 1500",
             "  Key\t=\t1500  ",
             "Key=one, two",
             "Key=one,two , three",
             "Key=\"one, two\"",
             "Key=\"one\" , two",
             "Key=one \"two\" three",
             "Key=\" one \" ; a comment",
             "Key=one;a comment",
             "Key=a=b",
             "Key=",
             "Key=\"\"",
             "Key=caf\\xe9",
             "Key=\\101\\x42",
             "Key=C:\\old",
             "Key=end\\",
             "Key=blank\\x20",
             "Key=@Invalid()",
             "Key=@@x",
             "Key=@String(a b)",
             "Key=first\nKey=second",
             "%4bey=percent",
             "; Key=comment\nKey=1",
         }) {
        const std::string file = "[Settings]\n" + line + "\n";
        EXPECT_EQ(IniValue(file, "Settings", "Key"), DesktopReads(file, "Settings/Key")) << line;
    }
}

TEST(IniText, ValueEndsWithItsLineSoThatAStrayQuoteHidesNoOther) {
    const std::string file = "[Settings]\nBad=\"no end\nWorse=x\\\nKey=1\n";
    EXPECT_EQ(IniValue(file, "Settings", "Key"), "1");
    EXPECT_EQ(WithIniValue(file, "Settings", "Key", "2"), "[Settings]\nBad=\"no end\nWorse=x\\\nKey=2\n");
}

TEST(IniText, EveryOtherLineStaysByteForByte) {
    const std::string hostile =
        "\xEF\xBB\xBF; a comment\r\n"
        "without a section=1\r\n"
        "[Settings\r\n"
        "Key=1 ; beside it\r\n"
        "\xE9\xFF=\x01\r\n"
        "no equals sign\r\n"
        "\r\n"
        "[Other]\r\n"
        "Key=3\r\n"
        "[settings]\n"
        "Key=4";
    std::string expected = hostile;
    expected.replace(expected.find("Key=1 ; beside it"), 17, "Key=2");
    EXPECT_EQ(IniValue(hostile, "Settings", "Key"), "1");
    EXPECT_EQ(WithIniValue(hostile, "Settings", "Key", "2"), expected);

    expected = hostile;
    expected.insert(expected.find("\r\n[Other]"), "New=5\r\n");
    EXPECT_EQ(WithIniValue(hostile, "Settings", "New", "5"), expected);
    EXPECT_EQ(WithIniValue(hostile, "settings", "New", "5"), hostile + "\r\nNew=5\r\n");
    EXPECT_EQ(WithIniValue(hostile, "Machine", "Port1", "6"), hostile + "\r\n\r\n[Machine]\r\nPort1=6\r\n");
}

TEST(IniText, OfTwoLinesTheLaterOneCountsAndIsChanged) {
    const std::string file = "[A]\nKey=1\nKey=2\n[B]\nKey=x\n[A]\nKey=3\n";
    EXPECT_EQ(IniValue(file, "A", "Key"), "3");
    EXPECT_EQ(WithIniValue(file, "A", "Key", "4"), "[A]\nKey=1\nKey=2\n[B]\nKey=x\n[A]\nKey=4\n");
}

TEST(IniText, NoFileIsTooStrangeToTakeAValueAndGiveItBack) {
    constexpr std::string_view kPieces[] = {"[", "]", "[Settings]", "=",    "Key",  "Key=1", "\"",       "\\", ";",
                                            ",", "%", "%4",         "\n",   "\r",   "\r\n",  " ",        "\t", "@",
                                            "(", ")", "\\x",        "\\x4", "\xE9", "\xC3",  "@String(", "a",  "[B]"};
    std::mt19937 random{20261107};
    std::uniform_int_distribution<std::size_t> piece{0, std::size(kPieces) - 1};
    for (int times = 0; times < 20'000; ++times) {
        std::string file;
        for (int n = 0; n < 12; ++n) {
            file += kPieces[piece(random)];
        }
        std::string value;
        for (int n = 0; n < 4; ++n) {
            value += kPieces[piece(random)];
        }
        const auto before = IniValue(file, "B", "Key");
        const std::string with = WithIniValue(file, "Settings", "Key", value);
        ASSERT_EQ(IniValue(with, "Settings", "Key"), value) << file;
        ASSERT_EQ(IniValue(with, "B", "Key"), before) << file;
    }
}

}  // namespace
}  // namespace tallyhut
