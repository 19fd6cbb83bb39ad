#pragma once

#include <QString>
#include <string>
#include <vector>

namespace tallyhut {

/// A word on a page, with the place of its box in points from the left and from the top.
struct PdfWord {
    std::string text;
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
};

/// The pages of a PDF file in plain lines of 10 points, with the lines of each as they stand on it, blanks included;
/// what all lines have before them is the margin, and left out.
std::vector<std::vector<std::string>> PdfPages(const QString& path);

/// Its first page, "612 x 792 pts (letter)".
std::string PdfPageSize(const QString& path);

/// The words of its first page in reading order.
std::vector<PdfWord> PdfWords(const QString& path);

}  // namespace tallyhut
