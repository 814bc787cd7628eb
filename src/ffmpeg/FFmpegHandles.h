#pragma once
// Owning handles for FFmpeg objects: each frees its object the way FFmpeg wants it freed.

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswscale/swscale.h>
}

#include <memory>

struct FormatContextCloser {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
struct CodecContextFreer {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
struct FrameFreer {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct PacketFreer {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct SwsContextFreer {
    void operator()(SwsContext* context) const { sws_freeContext(context); }
};

using FormatContextPtr = std::unique_ptr<AVFormatContext, FormatContextCloser>;
using CodecContextPtr = std::unique_ptr<AVCodecContext, CodecContextFreer>;
using FramePtr = std::unique_ptr<AVFrame, FrameFreer>;
using PacketPtr = std::unique_ptr<AVPacket, PacketFreer>;
using SwsContextPtr = std::unique_ptr<SwsContext, SwsContextFreer>;
