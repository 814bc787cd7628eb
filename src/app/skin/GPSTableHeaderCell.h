#pragma once
// One section of the playlist's column header: a dark field with a centred white title, ringed by
// white lines 1 pixel wide. Neighbours share the line between them, so only the leftmost section
// draws a line at its left end.

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

class GPSTableHeaderCell {
public:
    explicit GPSTableHeaderCell(QString title);

    // Paints the section into frame; leftmost is true for the first visible section only.
    void paint(QPainter& painter, const QRect& frame, bool leftmost) const;

    // The field inside the lines, where the title goes.
    static QRect interiorRect(const QRect& frame, bool leftmost);
    // The system font at 16 device-independent pixels.
    static QFont titleFont();
    // Room for the title, its 2-pixel drop and the lines.
    static int preferredHeight();
    // Room for the whole title in the title font, with a margin each side and the lines.
    static int preferredWidth(const QString& title);

private:
    QString title_;
};
