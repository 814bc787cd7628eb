#include "SegmentCutter.h"

#include "FFmpegHandles.h"
#include "KeptStreams.h"
#include "MovieFile.h"

extern "C" {
#include <libavutil/parseutils.h>
}

#include <algorithm>
#include <cmath>
#include <ctime>
#include <deque>
#include <memory>

namespace {

// Packets held while the first video keyframe of a piece has not come yet; past this, the oldest go.
constexpr std::size_t kMaxWaitingPackets = 4096;

struct OutputContextFreer {
    void operator()(AVFormatContext* context) const {
        if (context->pb != nullptr && (context->oformat->flags & AVFMT_NOFILE) == 0) avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
using OutputContextPtr = std::unique_ptr<AVFormatContext, OutputContextFreer>;

std::string errorText(const char* what, int code) {
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return std::string(what) + ": " + text;
}

// ISO 8601 in UTC, as the creation_time tag wants it.
std::string isoTime(double seconds) {
    const auto whole = static_cast<std::time_t>(std::floor(seconds));
    std::tm utc{};
    if (gmtime_r(&whole, &utc) == nullptr) return {};
    char text[96] = {};
    const auto micros = static_cast<long>(std::lround((seconds - double(whole)) * 1e6)) % 1000000;
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d.%06ldZ", utc.tm_year + 1900, utc.tm_mon + 1,
                  utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec, micros);
    return text;
}

std::optional<double> creationTimeOf(const AVFormatContext& clip) {
    const AVDictionaryEntry* tag = av_dict_get(clip.metadata, "creation_time", nullptr, 0);
    int64_t micros = 0;
    if (tag == nullptr || av_parse_time(&micros, tag->value, 0) < 0) return std::nullopt;
    return double(micros) / 1e6;
}

// One movie being written: its streams, its header written with the first packet (when the cut's
// start, and so its date, is known), and where the pieces so far end.
class MovieWriter {
public:
    MovieWriter(AVFormatContext* output) : output_(output) {}

    bool started() const { return started_; }
    std::string start(std::optional<double> creationSeconds, const std::filesystem::path& target) {
        if (creationSeconds) av_dict_set(&output_->metadata, "creation_time", isoTime(*creationSeconds).c_str(), 0);
        if (int error = avio_open(&output_->pb, target.c_str(), AVIO_FLAG_WRITE); error < 0)
            return errorText("Cannot create the movie", error);
        if (int error = avformat_write_header(output_, nullptr); error < 0)
            return errorText("Cannot start the movie", error);
        started_ = true;
        return {};
    }
    AVFormatContext* context() const { return output_; }

private:
    AVFormatContext* output_;
    bool started_ = false;
};

struct StreamCut {
    AVRational base{};
    int64_t zero = 0;  // the stream's time at second 0 of the clip
    int output = -1;
    bool passedEnd = false;
};

class PieceCutter {
public:
    PieceCutter(AVFormatContext& input, const SegmentPiece& piece, std::vector<StreamCut> streams, int video)
        : input_(input), piece_(piece), streams_(std::move(streams)), video_(video) {
        if (video_ < 0) cutStart_ = piece_.inSeconds;
    }

    // Copies the piece; offsetMicros: where it starts in the movie. Returns an error text or empty.
    std::string run(MovieWriter& writer, std::optional<double> wallAtIn, const std::filesystem::path& target,
                    int64_t offsetMicros, const std::function<void(double)>& progress, const std::stop_token& stop) {
        offsetMicros_ = offsetMicros;
        const PacketPtr packet(av_packet_alloc());
        if (!packet) return "Out of memory";
        for (;;) {
            if (stop.stop_requested()) return kCutCancelled;
            const int read = av_read_frame(&input_, packet.get());
            if (read == AVERROR_EOF) break;
            if (read < 0) return errorText("Cannot read the clip", read);
            const bool kept = packet->stream_index >= 0 && std::size_t(packet->stream_index) < streams_.size() &&
                              streams_[std::size_t(packet->stream_index)].output >= 0;
            if (!kept) {
                av_packet_unref(packet.get());
                continue;
            }
            StreamCut& stream = streams_[std::size_t(packet->stream_index)];
            const int64_t stamp = packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts;
            if (stamp == AV_NOPTS_VALUE || stream.passedEnd) {
                av_packet_unref(packet.get());
                continue;
            }
            const double seconds = double(stamp - stream.zero) * av_q2d(stream.base);
            if (seconds >= piece_.outSeconds) {
                stream.passedEnd = true;
                av_packet_unref(packet.get());
                if (std::all_of(streams_.begin(), streams_.end(),
                                [](const StreamCut& s) { return s.output < 0 || s.passedEnd; }))
                    break;
                continue;
            }
            if (!cutStart_) {
                if (packet->stream_index != video_) {
                    if (waiting_.size() >= kMaxWaitingPackets) waiting_.pop_front();
                    waiting_.emplace_back(av_packet_clone(packet.get()));
                    av_packet_unref(packet.get());
                    continue;
                }
                // The picture can only start at a keyframe: at or before the start, as the seek left us.
                if ((packet->flags & AV_PKT_FLAG_KEY) == 0) {
                    av_packet_unref(packet.get());
                    continue;
                }
                cutStart_ = seconds;
                if (!writer.started()) {
                    const std::optional<double> creation =
                        wallAtIn ? std::optional(*wallAtIn + seconds - piece_.inSeconds) : std::nullopt;
                    if (std::string error = writer.start(creation, target); !error.empty()) return error;
                }
                for (PacketPtr& held : waiting_)
                    if (held) {
                        if (std::string error = write(writer, *held); !error.empty()) return error;
                    }
                waiting_.clear();
            }
            if (std::string error = write(writer, *packet); !error.empty()) return error;
            if (progress && piece_.outSeconds > *cutStart_)
                progress(std::clamp((seconds - *cutStart_) / (piece_.outSeconds - *cutStart_), 0.0, 1.0));
        }
        if (!cutStart_) return "No picture to start from in " + piece_.source.filename().string();
        if (!writer.started()) return "Nothing to save";
        return {};
    }

    double cutStart() const { return cutStart_.value_or(piece_.inSeconds); }
    // Where the piece ends in the movie: the latest end of any stream's packets.
    int64_t endMicros() const { return endMicros_; }

private:
    std::string write(MovieWriter& writer, AVPacket& packet) {
        const StreamCut& stream = streams_[std::size_t(packet.stream_index)];
        const int64_t stamp = packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
        // Audio from before the picture starts has nothing to go with.
        if (double(stamp - stream.zero) * av_q2d(stream.base) < *cutStart_ - 1e-6) {
            av_packet_unref(&packet);
            return {};
        }
        const int64_t shift = stream.zero + av_rescale_q(std::llround(*cutStart_ * 1e6), AV_TIME_BASE_Q, stream.base) -
                              av_rescale_q(offsetMicros_, AV_TIME_BASE_Q, stream.base);
        if (packet.pts != AV_NOPTS_VALUE) packet.pts -= shift;
        if (packet.dts != AV_NOPTS_VALUE) packet.dts -= shift;
        const int64_t end = (packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts) + std::max<int64_t>(packet.duration, 0);
        endMicros_ = std::max(endMicros_, av_rescale_q(end, stream.base, AV_TIME_BASE_Q));
        AVStream* out = writer.context()->streams[stream.output];
        av_packet_rescale_ts(&packet, stream.base, out->time_base);
        packet.stream_index = stream.output;
        packet.pos = -1;
        const int error = av_interleaved_write_frame(writer.context(), &packet);
        return error < 0 ? errorText("Cannot write the movie", error) : std::string();
    }

    AVFormatContext& input_;
    const SegmentPiece& piece_;
    std::vector<StreamCut> streams_;
    int video_;
    std::optional<double> cutStart_;
    std::deque<PacketPtr> waiting_;
    int64_t offsetMicros_ = 0;
    int64_t endMicros_ = 0;
};

}  // namespace

CutOutcome SegmentCutter::cut(const SegmentOutput& output, const std::filesystem::path& target,
                              const std::string& container, std::optional<double> startWallSeconds,
                              const Progress& progress, std::stop_token stop) {
    CutOutcome outcome;
    AVFormatContext* made = nullptr;
    if (int error = avformat_alloc_output_context2(&made, nullptr, container.c_str(), target.c_str()); error < 0) {
        outcome.error = errorText("Cannot make the movie", error);
        return outcome;
    }
    const OutputContextPtr movie(made);
    MovieWriter writer(movie.get());

    double total = 0;
    for (const SegmentPiece& piece : output.pieces) total += piece.outSeconds - piece.inSeconds;
    double done = 0;
    int64_t offsetMicros = 0;
    for (std::size_t p = 0; p < output.pieces.size(); ++p) {
        const SegmentPiece& piece = output.pieces[p];
        // As the player opens it: a local movie, never a list that names other files.
        std::optional<MovieFile> clip = MovieFile::open(piece.source);
        if (!clip) {
            outcome.error = "Cannot open " + piece.source.filename().string() + " as a movie";
            return outcome;
        }
        AVFormatContext* const input = &clip->format();
        const std::vector<int> kept = keptStreamIndices(*input, *movie->oformat);
        if (kept.empty() || (p > 0 && kept.size() != movie->nb_streams)) {
            outcome.error = "The streams of " + piece.source.filename().string() + " do not fit the movie";
            return outcome;
        }
        const int64_t zeroMicros = input->start_time != AV_NOPTS_VALUE ? input->start_time : 0;
        std::vector<StreamCut> streams(input->nb_streams);
        int video = -1;
        for (std::size_t k = 0; k < kept.size(); ++k) {
            AVStream* in = input->streams[kept[k]];
            if (p == 0) {
                AVStream* out = avformat_new_stream(movie.get(), nullptr);
                if (out == nullptr || avcodec_parameters_copy(out->codecpar, in->codecpar) < 0) {
                    outcome.error = "Out of memory";
                    return outcome;
                }
                // The container picks its own tag for the codec.
                out->codecpar->codec_tag = 0;
                out->time_base = in->time_base;
                out->disposition = in->disposition;
            }
            StreamCut& cut = streams[std::size_t(kept[k])];
            cut.base = in->time_base;
            cut.zero = av_rescale_q(zeroMicros, AV_TIME_BASE_Q, in->time_base);
            cut.output = int(k);
            if (video < 0 && in->codecpar->codec_type == AVMEDIA_TYPE_VIDEO) video = kept[k];
        }
        if (piece.inSeconds > 0) {
            // Backwards: to the keyframe at or before the start. A clip that will not seek is read from its start.
            const int64_t target = zeroMicros + std::llround(piece.inSeconds * 1e6);
            av_seek_frame(input, -1, target, AVSEEK_FLAG_BACKWARD);
        }
        // The movie is dated once, by its first piece.
        std::optional<double> wallAtIn;
        if (p == 0) {
            wallAtIn = startWallSeconds;
            if (!wallAtIn)
                if (const auto created = creationTimeOf(*input)) wallAtIn = *created + piece.inSeconds;
        }
        PieceCutter cutter(*input, piece, std::move(streams), video);
        const double length = piece.outSeconds - piece.inSeconds;
        const auto pieceProgress = [&](double fraction) {
            if (progress && total > 0) progress((done + fraction * length) / total);
        };
        if (std::string error = cutter.run(writer, wallAtIn, target, offsetMicros,
                                           pieceProgress, stop);
            !error.empty()) {
            outcome.error = std::move(error);
            return outcome;
        }
        outcome.pieces.push_back({cutter.cutStart(), piece.outSeconds});
        offsetMicros = std::max(offsetMicros, cutter.endMicros());
        done += length;
    }
    if (int error = av_write_trailer(movie.get()); error < 0) {
        outcome.error = errorText("Cannot finish the movie", error);
        outcome.pieces.clear();
        return outcome;
    }
    if (int error = avio_closep(&movie->pb); error < 0) {
        outcome.error = errorText("Cannot finish the movie", error);
        outcome.pieces.clear();
    }
    if (progress) progress(1.0);
    return outcome;
}
