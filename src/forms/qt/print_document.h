#pragma once

#include <QString>
#include <string_view>
#include <vector>

class QPagedPaintDevice;

namespace tallyhut {

/// A document as it goes to paper, in a fixed-pitch font.
struct PrintDocument {
    struct Line {
        QString text;
        int points = 0;
    };

    QString title;
    std::vector<std::vector<Line>> pages{{}};
};

/// Latin-1 as it is printed: without the blanks at its end, and with a blank for each control character, so that the
/// columns behind it stay where they are.
QString PrintedText(std::string_view line);

/// Paints the document within the margins of the device's page. Where its longest line is wider than that, all of it is
/// made smaller by the same share; a page with more lines than fit goes on on another. A last page without lines is
/// left out, for it is only the break behind the page before.
///
/// @return false when the device refuses; what it has got by then is its own affair
bool PaintDocument(const PrintDocument& document, QPagedPaintDevice& device);

}  // namespace tallyhut
