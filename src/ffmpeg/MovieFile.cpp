#include "MovieFile.h"

#include "MovieDemuxer.h"

extern "C" {
#include <libavutil/log.h>
}

#include <mutex>
#include <span>

namespace {

// What reading stream details may cost at most: two megabytes and two seconds of movie.
constexpr int64_t kDetailBytes = 2 * 1024 * 1024;
constexpr int64_t kDetailDuration = 2 * AV_TIME_BASE;

// A file that is not a movie is an expected answer, not something to print. libavformat's log
// level is global, so it is set once for the whole process.
void quietFFmpeg() {
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_level(AV_LOG_QUIET); });
}

// A movie is read from its own file only: a demuxer that wants to open another file or a network
// address (a playlist, a reference to external media) is refused.
int refuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) { return AVERROR(EPERM); }

bool isRealVideo(const AVStream* stream) {
    const AVCodecParameters* codec = stream->codecpar;
    return codec != nullptr && codec->codec_type == AVMEDIA_TYPE_VIDEO && codec->codec_id != AV_CODEC_ID_NONE &&
           (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
}

int firstRealVideo(const AVFormatContext& format) {
    const auto streams = std::span(format.streams, format.nb_streams);
    for (std::size_t i = 0; i < streams.size(); ++i) {
        if (isRealVideo(streams[i])) return static_cast<int>(i);
    }
    return -1;
}

}  // namespace

MovieFile::MovieFile(std::unique_ptr<LocalFileInput> input, FormatContextPtr format)
    : input_(std::move(input)), format_(std::move(format)) {}

std::optional<MovieFile> MovieFile::open(const std::filesystem::path& file) {
    quietFFmpeg();
    std::unique_ptr<LocalFileInput> input = LocalFileInput::open(file);
    if (!input) return std::nullopt;

    // The demuxer is chosen and judged before it reads anything beyond the probe.
    const std::string name = file.string();
    const AVInputFormat* demuxer = nullptr;
    if (av_probe_input_buffer2(input->io(), &demuxer, name.c_str(), nullptr, 0, 0) < 0 || demuxer == nullptr ||
        !isMovieDemuxer(*demuxer)) {
        return std::nullopt;
    }

    AVFormatContext* opened = avformat_alloc_context();
    if (opened == nullptr) return std::nullopt;
    opened->pb = input->io();
    opened->flags |= AVFMT_FLAG_CUSTOM_IO;
    opened->io_open = refuseToOpen;
    // On failure avformat_open_input frees the context itself.
    if (avformat_open_input(&opened, name.c_str(), demuxer, nullptr) < 0) return std::nullopt;

    MovieFile movie(std::move(input), FormatContextPtr(opened));
    movie.videoStreamIndex_ = firstRealVideo(*opened);
    // Containers that announce streams as their packets arrive (MPEG-PS, FLV) may not have named
    // one yet; MPEG-TS usually has, from its program table.
    if (movie.videoStreamIndex_ < 0 && (opened->ctx_flags & AVFMTCTX_NOHEADER) != 0) {
        movie.readStreamDetails();
        movie.videoStreamIndex_ = firstRealVideo(*opened);
    }
    if (movie.videoStreamIndex_ < 0) return std::nullopt;
    return movie;
}

bool MovieFile::readStreamDetails() {
    if (!detailsRead_) {
        format_->probesize = kDetailBytes;
        format_->max_analyze_duration = kDetailDuration;
        // Streams are only ever added at the end, so an index already chosen stays valid.
        detailsRead_ = avformat_find_stream_info(format_.get(), nullptr) >= 0;
    }
    return *detailsRead_;
}
