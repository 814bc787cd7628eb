#include "RgbConverter.h"

#include "FFmpegHandles.h"
#include "SnapshotColour.h"

#include <cstring>

std::optional<RgbImage> RgbConverter::convert(const AVFrame& frame) {
    const int width = frame.width;
    const int height = frame.height;
    if (width <= 0 || height <= 0) return std::nullopt;
    const auto format = static_cast<AVPixelFormat>(frame.format);
    // The ffmpeg program's own conversion, so a snapshot equals the frame it extracts.
    SwsContextPtr scaler(sws_getContext(width, height, format, width, height, AV_PIX_FMT_RGB24,
                                        SWS_BICUBIC | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
    if (!scaler) return std::nullopt;

    const SnapshotColour colour = SnapshotColour::forFrame(frame.colorspace, frame.color_range, width, height);
    const int* matrix = sws_getCoefficients(colour.swsColorspace);
    // RGB sources have no matrix; swscale refuses the details then and converts them as they are.
    sws_setColorspaceDetails(scaler.get(), matrix, colour.fullRange ? 1 : 0, matrix, 1, 0, 1 << 16, 1 << 16);

    FramePtr rgb(av_frame_alloc());
    if (!rgb) return std::nullopt;
    rgb->format = AV_PIX_FMT_RGB24;
    rgb->width = width;
    rgb->height = height;
    if (av_frame_get_buffer(rgb.get(), 0) < 0) return std::nullopt;
    if (sws_scale(scaler.get(), frame.data, frame.linesize, 0, height, rgb->data, rgb->linesize) != height) {
        return std::nullopt;
    }

    RgbImage image;
    image.width = width;
    image.height = height;
    image.pixels.resize(image.rowBytes() * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        std::memcpy(image.pixels.data() + image.rowBytes() * static_cast<std::size_t>(y),
                    rgb->data[0] + static_cast<std::ptrdiff_t>(rgb->linesize[0]) * y, image.rowBytes());
    }
    return image;
}
