#include "MovieProbe.h"

#include "FFmpegHandles.h"
#include "MpvLogging.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

#include <memory>
#include <string_view>

namespace {

using FormatContext = FormatContextPtr;

FormatContext openInput(const std::filesystem::path& file) {
    AVFormatContext* raw = nullptr;
    if (avformat_open_input(&raw, file.c_str(), nullptr, nullptr) < 0)
        return {};  // avformat_open_input frees the context itself on failure
    return FormatContext(raw);
}

// FFmpeg reads a still picture as a one-frame video; a picture is no movie.
bool isStillImage(const AVInputFormat* format) {
    const std::string_view name = format->name;
    return name == "image2" || name.ends_with("_pipe");
}

}  // namespace

std::optional<MovieInfo> probeMovie(const std::filesystem::path& file) {
    // libavformat would print its complaints about foreign files on stderr; the caller only needs
    // the verdict.
    av_log_set_level(AV_LOG_FATAL);
    FormatContext context = openInput(file);
    if (!context) {
        qCDebug(lcMpv) << "not a readable container:" << file.c_str();
        return std::nullopt;
    }
    if (isStillImage(context->iformat)) {
        qCDebug(lcMpv) << "a still picture, not a movie:" << file.c_str();
        return std::nullopt;
    }
    MovieInfo info;
    // MP4 and MOV carry their streams and duration in the header; only other containers need the
    // slower stream probe.
    if (context->nb_streams == 0 || context->duration == AV_NOPTS_VALUE)
        avformat_find_stream_info(context.get(), nullptr);
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        const AVCodecParameters* codec = context->streams[i]->codecpar;
        const bool coverArt = context->streams[i]->disposition & AV_DISPOSITION_ATTACHED_PIC;
        if (codec->codec_type == AVMEDIA_TYPE_VIDEO && !coverArt && !info.hasVideo) {
            info.hasVideo = true;
            info.width = codec->width;
            info.height = codec->height;
        } else if (codec->codec_type == AVMEDIA_TYPE_AUDIO) {
            info.hasAudio = true;
        }
    }
    if (!info.hasVideo && !info.hasAudio) {
        qCDebug(lcMpv) << "no audio or video stream:" << file.c_str();
        return std::nullopt;
    }
    static_assert(AV_TIME_BASE == kMicrosecondsPerSecond);
    if (context->duration != AV_NOPTS_VALUE && context->duration >= 0)
        info.duration = MediaTime::make(context->duration, kMicrosecondsPerSecond);
    return info;
}
