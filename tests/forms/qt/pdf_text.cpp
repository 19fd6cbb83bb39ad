#include "tests/forms/qt/pdf_text.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <algorithm>

namespace tallyhut {
namespace {

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString PdfToText(const QStringList& options, const QString& path) {
    return OutputOf("pdftotext", options + QStringList{"-enc", "UTF-8", path, "-"});
}

}  // namespace

std::string PdfPageSize(const QString& path) {
    static const QRegularExpression size{R"(Page size: *(.*))"};
    return size.match(OutputOf("pdfinfo", {path})).captured(1).toStdString();
}

std::vector<std::vector<std::string>> PdfPages(const QString& path) {
    QStringList texts = PdfToText({"-fixed", "6"}, path).split('\f');
    texts.removeLast();  // each page ends with one
    std::vector<std::vector<std::string>> pages;
    std::size_t margin = std::string::npos;
    for (const QString& text : texts) {
        std::vector<std::string>& lines = pages.emplace_back();
        for (const QString& line : text.split('\n')) {
            lines.push_back(line.toStdString());
            margin = std::min(margin, lines.back().find_first_not_of(' '));
        }
        while (!lines.empty() && lines.back().empty()) {
            lines.pop_back();
        }
    }
    for (auto& lines : pages) {
        for (std::string& line : lines) {
            line.erase(0, margin);
        }
    }
    return pages;
}

std::vector<PdfWord> PdfWords(const QString& path) {
    static const QRegularExpression word{
        R"re(<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*)</word>)re"};
    std::vector<PdfWord> words;
    auto found = word.globalMatch(PdfToText({"-bbox", "-f", "1", "-l", "1"}, path));
    while (found.hasNext()) {
        const auto match = found.next();
        words.push_back({.text = match.captured(5).toStdString(),
                         .left = match.captured(1).toDouble(),
                         .right = match.captured(3).toDouble(),
                         .top = match.captured(2).toDouble(),
                         .bottom = match.captured(4).toDouble()});
    }
    return words;
}

}  // namespace tallyhut
