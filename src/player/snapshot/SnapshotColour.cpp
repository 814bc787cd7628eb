#include "SnapshotColour.h"

extern "C" {
#include <libswscale/swscale.h>
}

namespace {

// The matrices swscale has coefficients for, by their colour-space tag.
int swsMatrixFor(AVColorSpace colorspace) {
    switch (colorspace) {
        case AVCOL_SPC_BT709:
            return SWS_CS_ITU709;
        case AVCOL_SPC_FCC:
            return SWS_CS_FCC;
        case AVCOL_SPC_BT470BG:
        case AVCOL_SPC_SMPTE170M:
            return SWS_CS_ITU601;
        case AVCOL_SPC_SMPTE240M:
            return SWS_CS_SMPTE240M;
        case AVCOL_SPC_BT2020_NCL:
        case AVCOL_SPC_BT2020_CL:
            return SWS_CS_BT2020;
        default:
            return 0;  // untagged, or a matrix swscale cannot apply
    }
}

}  // namespace

SnapshotColour SnapshotColour::forFrame(AVColorSpace colorspace, AVColorRange range, int width, int height) {
    SnapshotColour colour;
    colour.swsColorspace = swsMatrixFor(colorspace);
    if (colour.swsColorspace == 0) {
        colour.swsColorspace = (width >= 1280 || height > 576) ? SWS_CS_ITU709 : SWS_CS_ITU601;
    }
    colour.fullRange = range == AVCOL_RANGE_JPEG;
    return colour;
}
