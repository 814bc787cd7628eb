#pragma once
// Which YUV matrix and range turn a decoded frame into the colours the screen shows.
//
// The stream's own matrix and range tags win when present. Untagged frames get the guess mpv makes
// for its picture: BT.709 for HD (at least 1280 wide or taller than 576 lines), BT.601 otherwise,
// limited range. Guessing the same way keeps a saved snapshot looking like the screen.

extern "C" {
#include <libavutil/pixfmt.h>
}

struct SnapshotColour {
    int swsColorspace = 0;  // a SWS_CS_* matrix for sws_getCoefficients
    bool fullRange = false;

    static SnapshotColour forFrame(AVColorSpace colorspace, AVColorRange range, int width, int height);
    friend bool operator==(const SnapshotColour&, const SnapshotColour&) = default;
};
