// What must hold for every box of the program, whatever the size and the scale of the screen. Their texts are found
// where they are written: in the sources.

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QScreen>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "forms/qt/ask_box.h"
#include "forms/qt/paragraph.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

std::string ContentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream{file}.rdbuf();
    return content.str();
}

std::string Unescaped(std::string literal) {
    for (const auto& [written, meant] : {std::pair{"\\r", "\r"}, {"\\n", "\n"}, {"\\\"", "\""}}) {
        for (std::size_t at = literal.find(written); at != std::string::npos; at = literal.find(written)) {
            literal.replace(at, 2, meant);
        }
    }
    return literal;
}

/// All that the program can say, the pieces of a text that goes over several lines of a source put together.
std::set<std::string> TextsOfTheProgram() {
    static const std::regex kLiteral{R"re("((?:[^"\\\n]|\\.)*)"(?:\s*"((?:[^"\\\n]|\\.)*)")*)re"};
    static const std::regex kPiece{R"re("((?:[^"\\\n]|\\.)*)")re"};
    std::set<std::string> texts;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{TALLYHUT_SOURCES}) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") {
            continue;
        }
        const std::string source = ContentOf(entry.path());
        for (std::sregex_iterator literal{source.begin(), source.end(), kLiteral}, none; literal != none; ++literal) {
            const std::string whole = literal->str();
            std::string text;
            for (std::sregex_iterator piece{whole.begin(), whole.end(), kPiece}; piece != none; ++piece) {
                text += (*piece)[1].str();
            }
            constexpr std::size_t kShortest = 12;  // what is shorter is no sentence
            if (text.size() >= kShortest && text.find(' ') != std::string::npos) {
                texts.insert(Unescaped(text));
            }
        }
    }
    return texts;
}

const std::string kLongPath =
    "/home/operator/contests/2026/november-sweepstakes-phone-multi-operator/exports/"
    "W9ZZZ-2026-11-21-with-a-name-that-somebody-thought-about-for-a-long-time.log";

struct BoxWalkTest : testing::Test {
    static void CheckOnScreen(QDialog& box, const std::string& text) {
        box.show();
        QApplication::processEvents();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_LE(box.width(), screen.width()) << text;
        EXPECT_LE(box.height(), screen.height()) << text;
    }

    static void CheckWhole(AskBox& box, const std::string& text) {
        CheckOnScreen(box, text);
        int paragraphs = 0;
        for (QLabel* label : box.findChildren<QLabel*>()) {
            if (const auto* paragraph = dynamic_cast<Paragraph*>(label)) {
                ++paragraphs;
                EXPECT_LE(paragraph->Needed().width(), paragraph->width()) << text;
                EXPECT_LE(paragraph->Needed().height(), paragraph->height()) << text;
                EXPECT_TRUE(box.rect().contains(paragraph->geometry())) << text;
            }
        }
        EXPECT_EQ(paragraphs, 2) << "title and text";
        for (const QPushButton* button : box.findChildren<QPushButton*>()) {
            EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width()) << text;
            EXPECT_GE(button->height(), button->fontMetrics().height()) << text;
        }
    }
};

TEST_F(BoxWalkTest, EveryTextOfTheProgramIsWholeInABox) {
    const std::set<std::string> texts = TextsOfTheProgram();
    EXPECT_GT(texts.size(), 100U);
    EXPECT_TRUE(texts.contains("Please enter only numeric values."));
    for (const std::string& text : texts) {
        constexpr std::size_t kLongestTitle = 80;
        AskBox box{MessageBox{.title = text.substr(0, kLongestTitle),
                              .text = text,
                              .buttons = Buttons::OKCancel,
                              .icon = Icon::Information},
                   nullptr};
        CheckWhole(box, text);
    }
}

TEST_F(BoxWalkTest, SoIsAPathThatIsLongerThanALine) {
    const std::string text = "The file was successfully written to the directory:\r\n\r\n" + kLongPath + '.';
    AskBox box{MessageBox{.title = "File Written Successfully.", .text = text, .icon = Icon::Information}, nullptr};
    CheckWhole(box, text);
    AskBox question{InputBox{.title = kLongPath, .text = text, .preset = kLongPath}, nullptr};
    CheckWhole(question, text);
}

TEST_F(BoxWalkTest, NothingOfATextIsDrawnOutsideOfItsParagraph) {
    const std::string text = "In my last correspondence " + kLongPath + "\r\ngjpqy";
    QWidget around;
    Paragraph paragraph{QString::fromStdString(text), DialogFont()};
    around.resize(paragraph.size() + QSize{40, 40});
    paragraph.setParent(&around);
    paragraph.move(20, 20);
    QPalette ink;
    ink.setColor(QPalette::Window, Qt::white);
    ink.setColor(QPalette::WindowText, Qt::black);
    around.setPalette(ink);
    paragraph.setPalette(ink);
    const QImage picture = around.grab().toImage();
    const auto inked = [&picture](int y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).lightness() < 128) {
                return true;
            }
        }
        return false;
    };
    const double scale = picture.devicePixelRatio();
    const int bottom = qRound((20 + paragraph.height()) * scale);
    int lastInked = 0;
    for (int y = 0; y < picture.height(); ++y) {
        lastInked = inked(y) ? y : lastInked;
    }
    EXPECT_LT(lastInked, bottom);
    EXPECT_GT(lastInked, bottom - qRound(2 * paragraph.fontMetrics().height() * scale)) << "the last line is drawn";
}

TEST_F(BoxWalkTest, TheToolkitsOwnDialogsStandOnAScreenThatCanHoldThem) {
    constexpr QSize kLeastOfAFileDialog{640, 420};  // its own doing: no size of ours makes it smaller
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    if (screen.width() < kLeastOfAFileDialog.width() || screen.height() < kLeastOfAFileDialog.height()) {
        GTEST_SKIP() << "a screen of " << screen.width() << " by " << screen.height();
    }
    QFileDialog file;
    QColorDialog colour;
    file.setOption(QFileDialog::DontUseNativeDialog);
    colour.setOption(QColorDialog::DontUseNativeDialog);
    for (QDialog* dialog : {static_cast<QDialog*>(&file), static_cast<QDialog*>(&colour)}) {
        dialog->setFont(DialogFont());
        CheckOnScreen(*dialog, dialog->metaObject()->className());
    }
}

}  // namespace
}  // namespace tallyhut
