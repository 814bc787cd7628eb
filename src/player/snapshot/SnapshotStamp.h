#pragma once
// Draws the stamp on a snapshot: a semi-opaque dark band across the bottom of the picture with
// the items (speed, place, date and time) in the read-outs' faces. The faces' size follows the
// picture's height, so the stamp reads the same on a small frame as on a 4K one; items that do
// not fit on one line go on to the next, and faces too wide for the picture are made smaller.

#include "RgbImage.h"

#include <QFont>

#include <optional>
#include <string>
#include <vector>

// One item: its text in the LED face, then a unit in the plain face, as the read-outs show the
// speed's unit ("KM/H" in seven segments would read as something else).
struct StampItem {
    std::string text;
    std::string unit;  // may be empty
    friend bool operator==(const StampItem&, const StampItem&) = default;
};

// The read-outs' two faces; the stamp sets their sizes.
struct StampFaces {
    QFont led;
    QFont plain;
};

// The rows the band covers, across the whole width.
struct StampBand {
    int top = 0;
    int height = 0;
};

class SnapshotStamp {
public:
    SnapshotStamp() = delete;

    // Nothing is drawn, and nothing returned, without items or for an empty picture. Only the
    // band's rows change. Usable off the UI thread: Qt 6 renders text on a QImage in any thread.
    static std::optional<StampBand> draw(RgbImage& image, const std::vector<StampItem>& items, StampFaces faces);
};
