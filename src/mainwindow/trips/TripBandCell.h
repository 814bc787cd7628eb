#pragma once
// The playlist's cells with its trips drawn in: a coloured band down the left of each trip's rows
// (alternating colours, so neighbouring trips stand apart), a line above each trip's first row, a
// label on that row with the trip's start, length and distance, and a marked row for a clip whose
// file no longer opens.

#include "GPSTextCell.h"

class TripBandCell final : public GPSTextCell {
    Q_OBJECT

public:
    explicit TripBandCell(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    static constexpr int kBandWidth = 4;
    // The band's colour of a trip, by its number from 1.
    static QColor bandColour(int tripNumber);
    static QColor problemColour();
};
