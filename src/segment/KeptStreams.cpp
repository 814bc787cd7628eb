#include "KeptStreams.h"

#include "MovieFile.h"

std::vector<int> keptStreamIndices(const AVFormatContext& clip, const AVOutputFormat& container) {
    std::vector<int> kept;
    for (unsigned i = 0; i < clip.nb_streams; ++i) {
        const AVCodecParameters* parameters = clip.streams[i]->codecpar;
        const bool media = parameters->codec_type == AVMEDIA_TYPE_VIDEO || parameters->codec_type == AVMEDIA_TYPE_AUDIO;
        // A cover picture is a video stream of one frame; it is no part of the drive.
        const bool picture = (clip.streams[i]->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
        if (media && !picture && avformat_query_codec(&container, parameters->codec_id, FF_COMPLIANCE_NORMAL) == 1)
            kept.push_back(int(i));
    }
    return kept;
}

ClipStreams keptStreamSignatures(const AVFormatContext& clip, const AVOutputFormat& container) {
    ClipStreams streams;
    for (const int index : keptStreamIndices(clip, container)) {
        const AVStream* stream = clip.streams[index];
        const AVCodecParameters* p = stream->codecpar;
        StreamSignature signature{
            .mediaType = p->codec_type,
            .codecId = p->codec_id,
            .width = p->width,
            .height = p->height,
            .sampleRate = p->sample_rate,
            .channels = p->ch_layout.nb_channels,
            .timeBaseNumerator = stream->time_base.num,
            .timeBaseDenominator = stream->time_base.den,
            .extradata = {},
        };
        if (p->extradata != nullptr && p->extradata_size > 0)
            signature.extradata.assign(p->extradata, p->extradata + p->extradata_size);
        streams.push_back(std::move(signature));
    }
    return streams;
}

std::optional<ClipStreams> readKeptStreams(const std::filesystem::path& clip, const std::string& container) {
    const AVOutputFormat* format = av_guess_format(container.c_str(), nullptr, nullptr);
    if (format == nullptr) return std::nullopt;
    const std::optional<MovieFile> movie = MovieFile::open(clip);
    if (!movie) return std::nullopt;
    ClipStreams streams = keptStreamSignatures(movie->format(), *format);
    if (streams.empty()) return std::nullopt;
    return streams;
}
