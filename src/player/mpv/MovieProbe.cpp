#include "MovieProbe.h"

#include "MovieFile.h"
#include "MpvLogging.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <span>

std::optional<MovieInfo> probeMovie(const std::filesystem::path& file) {
    std::optional<MovieFile> movie = MovieFile::open(file);
    if (!movie) {
        qCDebug(lcMpv) << "not a movie:" << file.c_str();
        return std::nullopt;
    }
    // Most containers give the duration in their header; the others (MPEG-TS) need a look at the
    // packets.
    if (movie->format().duration == AV_NOPTS_VALUE) movie->readStreamDetails();

    const AVFormatContext& format = movie->format();
    const AVCodecParameters& video = *movie->videoStream().codecpar;
    MovieInfo info;
    info.hasVideo = true;
    info.width = video.width;
    info.height = video.height;
    for (const AVStream* stream : std::span(format.streams, format.nb_streams)) {
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO) info.hasAudio = true;
    }
    static_assert(AV_TIME_BASE == kMicrosecondsPerSecond);
    if (format.duration != AV_NOPTS_VALUE && format.duration >= 0)
        info.duration = MediaTime::make(format.duration, kMicrosecondsPerSecond);
    return info;
}
