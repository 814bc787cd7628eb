#pragma once
// H.264 with libx264 through libavcodec, set up the way the movie writer needs it: yuv420p, no
// B-frames (decode order is display order, so no composition offsets), an IDR frame every second,
// BT.709 limited range in the stream's VUI, output ready for MP4 (length-prefixed NAL units).

#include "FFmpegHandles.h"

#include <cstdint>
#include <vector>

struct EncodedFrame {
    std::vector<uint8_t> data;  // length-prefixed NAL units
    bool keyFrame = false;
};

class H264Encoder {
public:
    H264Encoder(int width, int height, int fps);  // throws SampleGenError

    // The frame to draw the next picture into.
    AVFrame& canvas();
    // Encodes the canvas as the next frame; returns whatever frames the encoder has finished.
    std::vector<EncodedFrame> encode();
    // Drains the encoder at the end of the movie.
    std::vector<EncodedFrame> finish();

    const std::vector<uint8_t>& avcConfig() const { return avcConfig_; }

private:
    std::vector<EncodedFrame> send(const AVFrame* frame);

    CodecContextPtr context_;
    FramePtr canvas_;
    PacketPtr packet_;
    std::vector<uint8_t> avcConfig_;
    int64_t nextPts_ = 0;
};
