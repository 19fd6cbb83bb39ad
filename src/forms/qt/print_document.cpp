#include "forms/qt/print_document.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <map>

namespace tallyhut {
namespace {

/// Six lines an inch at 10 points, whatever the font asks for: a report's page of 57 lines fits a sheet.
constexpr double kLinePitch = 1.2;
/// Where in its line a text stands.
constexpr double kBaseline = 0.8;
constexpr double kPointsAnInch = 72;

QFont FixedFont(int points) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setKerning(false);
    font.setPointSize(points);
    return font;
}

double WidthOf(const PrintDocument& document, QPagedPaintDevice& device) {
    std::map<int, QFontMetricsF> metrics;
    double widest = 0;
    for (const auto& page : document.pages) {
        for (const PrintDocument::Line& line : page) {
            const auto& sized = metrics.try_emplace(line.points, FixedFont(line.points), &device).first->second;
            widest = std::max(widest, sized.horizontalAdvance(line.text));
        }
    }
    return widest;
}

}  // namespace

QString PrintedText(std::string_view line) {
    QString text = QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control) {
            character = ' ';
        }
    }
    while (text.endsWith(' ')) {
        text.chop(1);
    }
    return text;
}

bool PaintDocument(const PrintDocument& document, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const double width = WidthOf(document, device);
    const double scale = width > device.width() ? device.width() / width : 1;
    const double height = device.height() / scale;
    painter.scale(scale, scale);
    const std::size_t pages = document.pages.size();
    for (std::size_t n = 0; n < pages; ++n) {
        const auto& page = document.pages[n];
        if (n > 0 && n + 1 == pages && page.empty()) {
            break;
        }
        if (n > 0 && !device.newPage()) {
            return false;
        }
        double top = 0;
        for (const PrintDocument::Line& line : page) {
            const double pitch = line.points * kLinePitch * device.logicalDpiY() / kPointsAnInch;
            if (top > 0 && top + pitch > height) {
                if (!device.newPage()) {
                    return false;
                }
                top = 0;
            }
            painter.setFont(FixedFont(line.points));
            painter.drawText(QPointF{0, top + kBaseline * pitch}, line.text);
            top += pitch;
        }
    }
    return painter.end();
}

}  // namespace tallyhut
