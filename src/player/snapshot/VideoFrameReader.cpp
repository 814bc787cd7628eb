#include "VideoFrameReader.h"

#include "MovieFile.h"

extern "C" {
#include <libavutil/mathematics.h>
}

#include <algorithm>
#include <limits>
#include <span>

struct OpenedVideo {
    MovieFile movie;
    CodecContextPtr decoder;
    // Where the player's clock starts, in microseconds of the file's own time.
    int64_t movieStart = 0;
};

namespace {

// The first time of a stream from the header or, failing that, from the container's index.
std::optional<int64_t> headerStart(AVStream& stream) {
    if (stream.start_time != AV_NOPTS_VALUE) return stream.start_time;
    if (avformat_index_get_entries_count(&stream) > 0) return avformat_index_get_entry(&stream, 0)->timestamp;
    return std::nullopt;
}

// Where the player's clock starts, as FFmpeg counts it once it has read the stream details: the
// earliest start of the sound and picture streams. MP4 and MOV tell each stream's start in the
// header or its index, which saves reading the details: that decodes the first frames, a fifth of
// a second at 4K. Nothing when the header does not tell.
std::optional<int64_t> movieStartFromHeader(const AVFormatContext& format) {
    if ((format.ctx_flags & AVFMTCTX_NOHEADER) != 0) return std::nullopt;
    std::optional<int64_t> earliest;
    for (AVStream* stream : std::span(format.streams, format.nb_streams)) {
        const AVMediaType type = stream->codecpar->codec_type;
        if (type != AVMEDIA_TYPE_VIDEO && type != AVMEDIA_TYPE_AUDIO) continue;
        const std::optional<int64_t> start = headerStart(*stream);
        if (!start || stream->time_base.den <= 0) return std::nullopt;
        const int64_t microseconds = av_rescale_q(*start, stream->time_base, AV_TIME_BASE_Q);
        earliest = std::min(earliest.value_or(microseconds), microseconds);
    }
    return earliest;
}

std::unique_ptr<OpenedVideo> openVideo(const std::filesystem::path& file) {
    std::optional<MovieFile> movie = MovieFile::open(file);
    if (!movie) return nullptr;
    std::optional<int64_t> movieStart = movieStartFromHeader(movie->format());
    if (!movieStart) {
        movie->readStreamDetails();
        const int64_t start = movie->format().start_time;
        movieStart = start == AV_NOPTS_VALUE ? 0 : start;
    }
    const AVStream& stream = movie->videoStream();
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (codec == nullptr) return nullptr;
    AVFormatContext& format = movie->format();
    for (unsigned i = 0; i < format.nb_streams; ++i) {
        if (format.streams[i] != &stream) format.streams[i]->discard = AVDISCARD_ALL;
    }

    CodecContextPtr decoder(avcodec_alloc_context3(codec));
    if (!decoder) return nullptr;
    // The snapshot waits for every frame from the keyframe on: decode them on every core. Threads
    // change when frames come out of the decoder, never what they hold.
    decoder->thread_count = 0;
    if (avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0 ||
        avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        return nullptr;
    }
    return std::make_unique<OpenedVideo>(OpenedVideo{std::move(*movie), std::move(decoder), *movieStart});
}

// The time in the stream's time base. Players count from the movie's start time, FFmpeg's
// timestamps from the file's zero. Rounded down, so that a time between two frames names the
// earlier; half a unit of the player's time is added first, so that a time the player rounded to
// its own precision (a microsecond) does not fall just short of its frame.
std::optional<int64_t> streamTimestamp(const OpenedVideo& input, MediaTime time) {
    const AVRational timeBase = input.movie.videoStream().time_base;
    if (!time.isValid() || timeBase.num <= 0 || timeBase.den <= 0) return std::nullopt;
    int64_t halfUnits = 0;
    int64_t halfUnitsPerTick = 0;
    if (__builtin_mul_overflow(time.value, 2, &halfUnits) || __builtin_add_overflow(halfUnits, 1, &halfUnits) ||
        __builtin_mul_overflow(int64_t{time.timescale} * 2, int64_t{timeBase.num}, &halfUnitsPerTick)) {
        return std::nullopt;
    }
    const int64_t at = av_rescale_rnd(halfUnits, timeBase.den, halfUnitsPerTick, AV_ROUND_DOWN);
    const int64_t start = av_rescale_q(input.movieStart, AV_TIME_BASE_Q, timeBase);
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
DecodedFrame decodeUpTo(OpenedVideo& input, int64_t target, bool fromKeyframe) {
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
int64_t streamStart(const OpenedVideo& input) {
    AVStream& stream = input.movie.videoStream();
    return headerStart(stream).value_or(av_rescale_q(input.movieStart, AV_TIME_BASE_Q, stream.time_base));
}

// How far back reading may start again before it starts from the beginning: 64 seconds.
constexpr int kLongestStepBack = 7;

// The frame on screen at target. MP4, MOV and MKV seek to the keyframe before target through their
// index; MPEG-TS and MPEG-PS have none and may land between keyframes, so that the first keyframe
// read comes after target. Then reading starts again further back, twice as far each time, and at
// last from the beginning, where every packet is decoded.
FramePtr decodeFrameAt(const std::filesystem::path& file, std::unique_ptr<OpenedVideo>& input, int64_t target) {
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
            input = openVideo(file);
            if (!input) return nullptr;
        }
        avcodec_flush_buffers(input->decoder.get());
        DecodedFrame decoded = decodeUpTo(*input, target, !fromStart);
        if (fromStart || (decoded.frame && !decoded.beganAfterTarget)) return std::move(decoded.frame);
    }
}

}  // namespace

VideoFrameReader::VideoFrameReader(std::filesystem::path movie, std::unique_ptr<OpenedVideo> video)
    : movie_(std::move(movie)), video_(std::move(video)) {}
VideoFrameReader::VideoFrameReader(VideoFrameReader&&) noexcept = default;
VideoFrameReader& VideoFrameReader::operator=(VideoFrameReader&&) noexcept = default;
VideoFrameReader::~VideoFrameReader() = default;

std::optional<VideoFrameReader> VideoFrameReader::open(const std::filesystem::path& movie) {
    std::unique_ptr<OpenedVideo> video = openVideo(movie);
    if (!video) return std::nullopt;
    return VideoFrameReader(movie, std::move(video));
}

FramePtr VideoFrameReader::frameAt(MediaTime time) {
    if (!video_) return nullptr;
    const std::optional<int64_t> target = streamTimestamp(*video_, time);
    if (!target) return nullptr;
    return decodeFrameAt(movie_, video_, *target);
}
