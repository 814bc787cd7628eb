#include "FrameGrabber.h"

#include "FFmpegHandles.h"
#include "MovieFile.h"
#include "SnapshotColour.h"

extern "C" {
#include <libavutil/mathematics.h>
}

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

struct VideoInput {
    MovieFile movie;
    CodecContextPtr decoder;
};

std::optional<VideoInput> openVideo(const std::filesystem::path& file) {
    std::optional<MovieFile> movie = MovieFile::open(file);
    if (!movie) return std::nullopt;
    movie->readStreamDetails();
    const AVStream& stream = movie->videoStream();
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (codec == nullptr) return std::nullopt;
    AVFormatContext& format = movie->format();
    for (unsigned i = 0; i < format.nb_streams; ++i) {
        if (format.streams[i] != &stream) format.streams[i]->discard = AVDISCARD_ALL;
    }

    CodecContextPtr decoder(avcodec_alloc_context3(codec));
    if (!decoder || avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0 ||
        avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        return std::nullopt;
    }
    return VideoInput{std::move(*movie), std::move(decoder)};
}

// The time in the stream's time base. Players count from the movie's start time, FFmpeg's
// timestamps from the file's zero. Rounded down, so that a time between two frames names the
// earlier; half a unit of the player's time is added first, so that a time the player rounded to
// its own precision (a microsecond) does not fall just short of its frame.
std::optional<int64_t> streamTimestamp(const VideoInput& input, MediaTime time) {
    const AVRational timeBase = input.movie.videoStream().time_base;
    if (!time.isValid() || timeBase.num <= 0 || timeBase.den <= 0) return std::nullopt;
    int64_t halfUnits = 0;
    int64_t halfUnitsPerTick = 0;
    if (__builtin_mul_overflow(time.value, 2, &halfUnits) || __builtin_add_overflow(halfUnits, 1, &halfUnits) ||
        __builtin_mul_overflow(int64_t{time.timescale} * 2, int64_t{timeBase.num}, &halfUnitsPerTick)) {
        return std::nullopt;
    }
    const int64_t at = av_rescale_rnd(halfUnits, timeBase.den, halfUnitsPerTick, AV_ROUND_DOWN);
    const int64_t movieStart = input.movie.format().start_time;
    const int64_t start = movieStart == AV_NOPTS_VALUE ? 0 : av_rescale_q(movieStart, AV_TIME_BASE_Q, timeBase);
    int64_t target = 0;
    if (at == std::numeric_limits<int64_t>::min() || __builtin_add_overflow(at, start, &target)) {
        return std::nullopt;
    }
    return target;
}

struct DecodedFrame {
    FramePtr frame;
    // The first frame the decoder gave came after target: reading began past the keyframe needed.
    bool beganAfterTarget = false;
};

// Decodes from where reading stands up to the frame on screen at target. After a seek, packets
// before the first keyframe are left out: decoded without their reference they give broken
// pictures (MPEG-2) or none (H.264).
DecodedFrame decodeUpTo(VideoInput& input, int64_t target, bool fromKeyframe) {
    AVFormatContext* format = &input.movie.format();
    AVCodecContext* decoder = input.decoder.get();
    const int streamIndex = input.movie.videoStreamIndex();
    PacketPtr packet(av_packet_alloc());
    FramePtr decoded(av_frame_alloc());
    DecodedFrame result{FramePtr(av_frame_alloc())};
    if (!packet || !decoded || !result.frame) return {};
    bool haveShown = false;
    bool draining = false;
    bool waitingForKeyframe = fromKeyframe;

    for (;;) {
        const int received = avcodec_receive_frame(decoder, decoded.get());
        if (received == 0) {
            const int64_t pts = decoded->best_effort_timestamp;
            const bool later = pts != AV_NOPTS_VALUE && pts > target;
            // The first frame after target ends the search, unless nothing came before it.
            if (later && haveShown) break;
            av_frame_unref(result.frame.get());
            av_frame_move_ref(result.frame.get(), decoded.get());
            haveShown = true;
            if (later) {
                result.beganAfterTarget = true;
                break;
            }
            continue;
        }
        if (received != AVERROR(EAGAIN) || draining) break;  // the end, or a broken stream

        if (av_read_frame(format, packet.get()) < 0) {
            avcodec_send_packet(decoder, nullptr);  // flush the frames still inside the decoder
            draining = true;
            continue;
        }
        if (packet->stream_index == streamIndex) {
            waitingForKeyframe = waitingForKeyframe && (packet->flags & AV_PKT_FLAG_KEY) == 0;
            // A damaged packet is skipped; the decoder picks up again at the next good one.
            if (!waitingForKeyframe) avcodec_send_packet(decoder, packet.get());
        }
        av_packet_unref(packet.get());
    }
    if (!haveShown) result.frame.reset();
    return result;
}

// The first time of the video stream, in its time base.
int64_t streamStart(const VideoInput& input) {
    const AVStream& stream = input.movie.videoStream();
    if (stream.start_time != AV_NOPTS_VALUE) return stream.start_time;
    const int64_t movieStart = input.movie.format().start_time;
    return movieStart == AV_NOPTS_VALUE ? 0 : av_rescale_q(movieStart, AV_TIME_BASE_Q, stream.time_base);
}

// How far back reading may start again before it starts from the beginning: 64 seconds.
constexpr int kLongestStepBack = 7;

// The frame on screen at target. MP4, MOV and MKV seek to the keyframe before target through their
// index; MPEG-TS and MPEG-PS have none and may land between keyframes, so that the first keyframe
// read comes after target. Then reading starts again further back, twice as far each time, and at
// last from the beginning, where every packet is decoded.
FramePtr decodeFrameAt(const std::filesystem::path& file, std::optional<VideoInput>& input, int64_t target) {
    const int64_t start = streamStart(*input);
    const int64_t oneSecond =
        std::max<int64_t>(1, av_rescale_q(1, AVRational{1, 1}, input->movie.videoStream().time_base));
    for (int step = 0;; ++step) {
        const int64_t back = step == 0 ? 0 : oneSecond << (step - 1);
        int64_t from = 0;
        bool fromStart = step > kLongestStepBack || __builtin_sub_overflow(target, back, &from) || from <= start;
        bool moved = step > 0;
        if (!fromStart) {
            moved = true;
            fromStart =
                av_seek_frame(&input->movie.format(), input->movie.videoStreamIndex(), from, AVSEEK_FLAG_BACKWARD) < 0;
        }
        if (fromStart && moved) {
            // Only a newly opened file stands at its first packet in every container: a seek by time
            // finds MPEG-PS packets by their decoding time, a seek to the first byte confuses MKV.
            input.reset();
            std::optional<VideoInput> reopened = openVideo(file);
            if (!reopened) return nullptr;
            input.emplace(std::move(*reopened));
        }
        avcodec_flush_buffers(input->decoder.get());
        DecodedFrame decoded = decodeUpTo(*input, target, !fromStart);
        if (fromStart || (decoded.frame && !decoded.beganAfterTarget)) return std::move(decoded.frame);
    }
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
    const FramePtr frame = decodeFrameAt(movie, input, *target);
    if (!frame) return std::nullopt;
    return toRgb(*frame);
}
