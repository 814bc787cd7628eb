#include "FFmpegVideoTrackProbe.h"

#include "FFmpegHandles.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace {

// Only real movie containers count. libavformat also has pseudo-demuxers that present other
// files as video (tty renders text files, image2 and the *_pipe demuxers show a picture), which
// would let a text file or a PNG named .mp4 into the playlist. Among the containers, only those
// that declare their streams and codec types in their headers are listed, since the stream list
// is read without decoding: MPEG program streams and FLV announce streams only as packets arrive.
constexpr std::array<std::string_view, 6> movieContainers = {
    "mov,mp4,m4a,3gp,3g2,mj2",  // MP4 and QuickTime, what dash cameras mostly write
    "avi",
    "matroska,webm",
    "mpegts",  // .ts files of some cameras
    "asf",
    "ogg",
};

using FormatContext = FormatContextPtr;

class Options {
public:
    Options() = default;
    ~Options() { av_dict_free(&dictionary_); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    void set(const char* key, const char* value) { av_dict_set(&dictionary_, key, value, 0); }
    AVDictionary** get() { return &dictionary_; }

private:
    AVDictionary* dictionary_ = nullptr;
};

bool isMovieContainer(const AVInputFormat* format) {
    return format != nullptr && format->name != nullptr &&
           std::find(movieContainers.begin(), movieContainers.end(), format->name) != movieContainers.end();
}

// Cover art comes as a video stream holding one picture; it does not make a movie.
bool isVideoTrack(const AVStream* stream) {
    return stream->codecpar != nullptr && stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
           (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
}

FormatContext openContainer(const std::filesystem::path& file) {
    Options options;
    // The "file:" prefix and the protocol list keep a name such as "concat:a|b" or "http:x"
    // from being taken as another protocol.
    options.set("protocol_whitelist", "file");
    const std::string url = "file:" + file.string();
    AVFormatContext* context = nullptr;
    if (avformat_open_input(&context, url.c_str(), nullptr, options.get()) < 0) return nullptr;
    return FormatContext(context);
}

}  // namespace

FFmpegVideoTrackProbe::FFmpegVideoTrackProbe() {
    // Unreadable files are an expected answer here, not something to print; set once for the
    // process, as libavformat's log level is global.
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });
}

bool FFmpegVideoTrackProbe::hasVideoTrack(const std::filesystem::path& file) const {
    // An embedded NUL would make the C libraries test a shorter, different name.
    if (file.empty() || file.native().find('\0') != std::string::npos) return false;
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) return false;
    const FormatContext context = openContainer(file);
    if (!context || !isMovieContainer(context->iformat)) return false;
    const auto streams = std::span(context->streams, context->nb_streams);
    return std::any_of(streams.begin(), streams.end(), isVideoTrack);
}

std::shared_ptr<const VideoTrackProbe> defaultVideoTrackProbe() {
    static const std::shared_ptr<const VideoTrackProbe> probe = std::make_shared<const FFmpegVideoTrackProbe>();
    return probe;
}
