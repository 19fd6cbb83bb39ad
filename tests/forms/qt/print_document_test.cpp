#include "forms/qt/print_document.h"

#include <gtest/gtest.h>

#include <QPageLayout>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <string>

#include "tests/forms/qt/pdf_text.h"

namespace tallyhut {
namespace {

using Page = std::vector<std::string>;

constexpr double kPointsAnInch = 72;

struct PrintDocumentTest : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath("document.pdf");
    QPageLayout layout{QPageSize{QPageSize::Letter}, QPageLayout::Portrait,
                       QMarginsF{kPointsAnInch, kPointsAnInch, kPointsAnInch, kPointsAnInch}};
    PrintDocument document;

    void Add(std::string_view text, int points = 10) { document.pages.back().push_back({PrintedText(text), points}); }
    void Print() {
        QPdfWriter writer{path};
        writer.setPageLayout(layout);
        ASSERT_TRUE(PaintDocument(document, writer));
    }
    /// The box of the only word of this text on the first page.
    PdfWord Word(const std::string& text) {
        for (const PdfWord& word : PdfWords(path)) {
            if (word.text == text) {
                return word;
            }
        }
        ADD_FAILURE() << text << " is not on the page";
        return {};
    }
};

TEST_F(PrintDocumentTest, LinesStandOneUnderTheOtherWithTheirBlanks) {
    Add("Bnd  Date      Call");
    Add("");
    Add("40   11/07     W1XX");
    Add("160  11/08     K1AB/QRP");
    Print();
    EXPECT_EQ(PdfPages(path),
              (std::vector<Page>{{"Bnd  Date      Call", "", "40   11/07     W1XX", "160  11/08     K1AB/QRP"}}));
}

TEST_F(PrintDocumentTest, EveryCharacterTakesTheSameWidth) {
    Add("iiiiiiii A");
    Add("WWWWWWWW B");
    Add("         C");
    Print();
    EXPECT_NEAR(Word("A").left, Word("B").left, 0.01);
    EXPECT_NEAR(Word("A").left, Word("C").left, 0.01);
    const PdfWord wide = Word("WWWWWWWW");
    EXPECT_NEAR((wide.right - wide.left) / 8, (Word("C").left - wide.left) / 9, 0.01);
}

TEST_F(PrintDocumentTest, SixPlainLinesStandInAnInch) {
    Add("first");
    for (int n = 1; n < 6; ++n) {
        Add("");
    }
    Add("seventh");
    Print();
    EXPECT_NEAR(Word("seventh").top - Word("first").top, kPointsAnInch, 0.01);
}

TEST_F(PrintDocumentTest, LineOfALargerSizeIsLarger) {
    Add("HEAD", 16);
    Add("LINE", 8);
    Print();
    const PdfWord head = Word("HEAD");
    const PdfWord line = Word("LINE");
    EXPECT_NEAR((head.right - head.left) / (line.right - line.left), 2, 0.02);
    EXPECT_GE(line.top, head.bottom - 2);
}

TEST_F(PrintDocumentTest, TooLongALineMakesTheWholeDocumentSmallerByTheSameShare) {
    Add(std::string(199, ' ') + "X");
    Add("HEAD", 16);
    Add("LINE", 8);
    Print();
    EXPECT_NEAR(Word("X").right, 8.5 * kPointsAnInch - kPointsAnInch, 0.1);
    EXPECT_NEAR(Word("HEAD").left, kPointsAnInch, 0.1);
    EXPECT_NEAR((Word("HEAD").right - Word("HEAD").left) / (Word("LINE").right - Word("LINE").left), 2, 0.02);
    EXPECT_NEAR(Word("LINE").right - Word("LINE").left, 6.5 * kPointsAnInch / 200 * 4 * 0.8, 0.1);
}

TEST_F(PrintDocumentTest, BlanksAtTheEndOfALineMakeNothingSmaller) {
    Add("LINE");
    Print();
    const double usual = Word("LINE").right;
    document = {};
    Add("LINE" + std::string(300, ' '));
    Print();
    EXPECT_NEAR(Word("LINE").right, usual, 0.01);
}

TEST_F(PrintDocumentTest, NewPageBeginsAtTheTopOfAnother) {
    Add("one");
    document.pages.emplace_back();
    document.pages.emplace_back();
    Add("three");
    Print();
    EXPECT_EQ(PdfPages(path), (std::vector<Page>{{"one"}, {}, {"three"}}));
}

TEST_F(PrintDocumentTest, BreakBehindTheLastPageIsNoPage) {
    Add("one");
    document.pages.emplace_back();
    Print();
    EXPECT_EQ(PdfPages(path), std::vector<Page>{{"one"}});
}

TEST_F(PrintDocumentTest, DocumentWithoutALineIsOneEmptyPage) {
    Print();
    EXPECT_EQ(PdfPages(path), std::vector<Page>{Page{}});
}

TEST_F(PrintDocumentTest, FullPageGoesOnOnAnotherWithinTheMargins) {
    Page all;
    for (int n = 1; n <= 150; ++n) {
        all.push_back("line" + std::to_string(n));
        Add(all.back());
    }
    Print();
    const std::vector<Page> pages = PdfPages(path);
    ASSERT_EQ(pages.size(), 3U);
    Page together;
    for (const Page& page : pages) {
        together.insert(together.end(), page.begin(), page.end());
    }
    EXPECT_EQ(together, all);
    EXPECT_EQ(pages[0].size(), pages[1].size());
    const std::vector<PdfWord> words = PdfWords(path);
    EXPECT_GE(words.front().top, kPointsAnInch - 2);
    EXPECT_LE(words.back().bottom, 11 * kPointsAnInch - kPointsAnInch + 2);
}

TEST_F(PrintDocumentTest, ReportPageOfFiftySevenLinesFitsALetterPage) {
    layout.setMargins(QMarginsF{36, 36, 36, 36});
    for (int n = 0; n < 57; ++n) {
        Add("W1XX");
    }
    Print();
    EXPECT_EQ(PdfPages(path).size(), 1U);
}

TEST_F(PrintDocumentTest, Latin1ArrivesAsItsCharacters) {
    Add("Andr\xE9 M\xFCller \xD8\xB1");
    Print();
    EXPECT_EQ(PdfPages(path), std::vector<Page>{{"André Müller Ø±"}});
}

TEST_F(PrintDocumentTest, ControlCharactersAreBlanks) {
    EXPECT_EQ(PrintedText("a\tb\x01\x80"
                          "c\r\n")
                  .toStdString(),
              "a b  c");
}

TEST_F(PrintDocumentTest, DeviceThatCannotBeOpenedRefuses) {
    QPdfWriter writer{folder.filePath("missing/document.pdf")};
    Add("one");
    EXPECT_FALSE(PaintDocument(document, writer));
}

}  // namespace
}  // namespace tallyhut
