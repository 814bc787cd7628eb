#include "GPSTableHeaderCell.h"

#include "SkinColours.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int kTitleSize = 16;
// The title sits this much below the field's centre, which balances letters without descenders.
constexpr int kTitleDrop = 2;
constexpr int kMinimumHeight = 28;

}  // namespace

GPSTableHeaderCell::GPSTableHeaderCell(QString title) : title_(std::move(title)) {}

QRect GPSTableHeaderCell::interiorRect(const QRect& frame, bool leftmost) {
    QRect interior = frame.adjusted(1, 1, -1, -1);
    // Every section but the first reaches back over its own left line: the line to its left is
    // the previous section's right one.
    if (!leftmost) interior.adjust(-1, 0, 0, 0);
    return interior;
}

QFont GPSTableHeaderCell::titleFont() {
    QFont font = QApplication::font();
    font.setPixelSize(kTitleSize);
    return font;
}

int GPSTableHeaderCell::preferredHeight() {
    return std::max(kMinimumHeight, QFontMetrics(titleFont()).height() + 2 * kTitleDrop + 4);
}

int GPSTableHeaderCell::preferredWidth(const QString& title) {
    constexpr int kMargin = 6;
    return QFontMetrics(titleFont()).horizontalAdvance(title) + 2 * kMargin + 2;
}

void GPSTableHeaderCell::paint(QPainter& painter, const QRect& frame, bool leftmost) const {
    painter.save();
    painter.fillRect(frame, SkinColours::headerLine());
    const QRect interior = interiorRect(frame, leftmost);
    painter.fillRect(interior, SkinColours::headerBackground());
    const QFont font = titleFont();
    painter.setFont(font);
    painter.setPen(SkinColours::headerText());
    painter.setClipRect(interior);
    const QRect titleArea = interior.translated(0, kTitleDrop);
    const QString shown = QFontMetrics(font).elidedText(title_, Qt::ElideRight, titleArea.width());
    painter.drawText(titleArea, Qt::AlignCenter | Qt::TextSingleLine, shown);
    painter.restore();
}
