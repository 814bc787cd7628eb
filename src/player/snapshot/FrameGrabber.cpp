#include "FrameGrabber.h"

#include "FFmpegHandles.h"
#include "SnapshotColour.h"

extern "C" {
#include <libavutil/mathematics.h>
}

#include <cstring>
#include <limits>

namespace {

struct VideoInput {
    FormatContextPtr format;
    CodecContextPtr decoder;
    int streamIndex = -1;
};

std::optional<VideoInput> openVideo(const std::filesystem::path& movie) {
    AVFormatContext* opened = nullptr;
    // On failure FFmpeg frees the context itself.
    if (avformat_open_input(&opened, movie.c_str(), nullptr, nullptr) < 0) return std::nullopt;
    VideoInput input;
    input.format.reset(opened);
    if (avformat_find_stream_info(input.format.get(), nullptr) < 0) return std::nullopt;

    const AVCodec* codec = nullptr;
    input.streamIndex = av_find_best_stream(input.format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (input.streamIndex < 0 || codec == nullptr) return std::nullopt;
    for (unsigned i = 0; i < input.format->nb_streams; ++i) {
        if (static_cast<int>(i) != input.streamIndex) input.format->streams[i]->discard = AVDISCARD_ALL;
    }

    input.decoder.reset(avcodec_alloc_context3(codec));
    if (!input.decoder ||
        avcodec_parameters_to_context(input.decoder.get(), input.format->streams[input.streamIndex]->codecpar) < 0 ||
        avcodec_open2(input.decoder.get(), codec, nullptr) < 0) {
        return std::nullopt;
    }
    return input;
}

// The time in the stream's time base. Players count from the movie's start time, FFmpeg's
// timestamps from the file's zero.
std::optional<int64_t> streamTimestamp(const VideoInput& input, MediaTime time) {
    if (!time.isValid()) return std::nullopt;
    const AVRational timeBase = input.format->streams[input.streamIndex]->time_base;
    const int64_t at = av_rescale_q_rnd(time.value, AVRational{1, time.timescale}, timeBase, AV_ROUND_NEAR_INF);
    const int64_t start = input.format->start_time == AV_NOPTS_VALUE
                              ? 0
                              : av_rescale_q(input.format->start_time, AV_TIME_BASE_Q, timeBase);
    int64_t target = 0;
    if (at == std::numeric_limits<int64_t>::min() || __builtin_add_overflow(at, start, &target)) {
        return std::nullopt;
    }
    return target;
}

// Decodes from the keyframe at or before target up to the frame on screen at target.
FramePtr decodeFrameAt(VideoInput& input, int64_t target) {
    AVFormatContext* format = input.format.get();
    AVCodecContext* decoder = input.decoder.get();
    // A failed seek leaves reading at the start, which only costs time.
    if (av_seek_frame(format, input.streamIndex, target, AVSEEK_FLAG_BACKWARD) >= 0) {
        avcodec_flush_buffers(decoder);
    }

    PacketPtr packet(av_packet_alloc());
    FramePtr decoded(av_frame_alloc());
    FramePtr shown(av_frame_alloc());
    if (!packet || !decoded || !shown) return nullptr;
    bool haveShown = false;
    bool draining = false;

    for (;;) {
        const int received = avcodec_receive_frame(decoder, decoded.get());
        if (received == 0) {
            const int64_t pts = decoded->best_effort_timestamp;
            const bool later = pts != AV_NOPTS_VALUE && pts > target;
            // The first frame after target ends the search, unless nothing came before it.
            if (later && haveShown) break;
            av_frame_unref(shown.get());
            av_frame_move_ref(shown.get(), decoded.get());
            haveShown = true;
            if (later) break;
            continue;
        }
        if (received != AVERROR(EAGAIN) || draining) break;  // the end, or a broken stream

        if (av_read_frame(format, packet.get()) < 0) {
            avcodec_send_packet(decoder, nullptr);  // flush the frames still inside the decoder
            draining = true;
            continue;
        }
        if (packet->stream_index == input.streamIndex) {
            // A damaged packet is skipped; the decoder picks up again at the next good one.
            avcodec_send_packet(decoder, packet.get());
        }
        av_packet_unref(packet.get());
    }
    return haveShown ? std::move(shown) : nullptr;
}

std::optional<RgbImage> toRgb(const AVFrame& frame) {
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

}  // namespace

std::optional<RgbImage> FrameGrabber::frameAt(const std::filesystem::path& movie, MediaTime time) {
    std::optional<VideoInput> input = openVideo(movie);
    if (!input) return std::nullopt;
    const std::optional<int64_t> target = streamTimestamp(*input, time);
    if (!target) return std::nullopt;
    const FramePtr frame = decodeFrameAt(*input, *target);
    if (!frame) return std::nullopt;
    return toRgb(*frame);
}
