#include "SampleMovie.h"

#include "CivilTime.h"
#include "DashcamScene.h"
#include "EngineHum.h"
#include "FreeGpsVariantBlocks.h"
#include "GPSBlock.h"
#include "GpmfWriter.h"
#include "H264Encoder.h"
#include "MovieBox.h"
#include "MovieLayout.h"
#include "NmeaFreeBox.h"
#include "NmeaTrackSample.h"
#include "OutputFile.h"
#include "RecordEncoder.h"
#include "SampleGenError.h"
#include "SidecarWriter.h"

#include <cstdio>
#include <deque>
#include <iterator>
#include <limits>
#include <string>

namespace {

constexpr double kMetresPerSecondPerMph = 0.44704;
constexpr uint32_t kVideoTicksPerFrame = 1000;
constexpr uint32_t kBytesPerSample = 2;

std::string clockStamp(int64_t clock) {
    const CivilTime t = fromClockSeconds(clock);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour, t.minute,
                  t.second);
    return text;
}

YuvCanvas canvasOf(AVFrame& frame) { return YuvCanvas(frame.width, frame.height, frame.data, frame.linesize); }

// Streams the media data: frames come out of the encoder a few at a time, and each whole second
// goes to the file, with its sound and GPS block, as soon as all its frames are there.
class MovieWriter {
public:
    MovieWriter(const Route& route, const MovieOptions& options, const MoviePlan& plan, int64_t startInstant,
                OutputFile& out)
        : route_(route),
          options_(options),
          plan_(plan),
          startInstant_(startInstant),
          out_(out),
          records_(recordedSamples(route, plan)),
          hum_(options.sampleRate, options.channels),
          writeSecond_(secondWriterFor(options.layout)) {
        state_.chunkGPSOffset = chunkGPSOffset(uint32_t(options.channels), uint32_t(options.sampleRate), 16);
        state_.video = &movie_.video.samples;
        state_.sound = &movie_.sound.samples;
    }

    MovieWriter(const MovieWriter&) = delete;  // state_ points into movie_
    MovieWriter& operator=(const MovieWriter&) = delete;

    void write() {
        const FileBrand brand = options_.form == GPSRecordForm::MP4 ? FileBrand::IsoMp4 : FileBrand::QuickTime;
        out_.write(fileTypeBox(brand));
        if (options_.track == EmbeddedTrack::NmeaText) out_.write(nmeaFreeBox(timedRoute(), plan_.seconds));
        const uint64_t mdatStart = out_.write(std::vector<uint8_t>{0, 0, 0, 0, 'm', 'd', 'a', 't'});
        const std::vector<uint8_t> avcConfig = writeMediaData();
        const uint64_t mdatSize = out_.position() - mdatStart;
        if (mdatSize > std::numeric_limits<uint32_t>::max())
            throw SampleGenError("movie too large: media data past 4 GiB");
        out_.patchU32BE(mdatStart, uint32_t(mdatSize));
        out_.write(movieBox(describeMovie(brand, avcConfig)));
    }

    TimedRoute timedRoute() const { return {route_, plan_.start, startInstant_}; }

private:
    // Draws and encodes every frame; returns the stream's decoder configuration.
    std::vector<uint8_t> writeMediaData() {
        H264Encoder encoder(options_.width, options_.height, options_.fps);
        const DashcamScene scene(options_.width, options_.height);
        double travelled = 0;
        for (int64_t frame = 0; frame < plan_.seconds * options_.fps; ++frame) {
            const RouteSample now = route_.at(double(plan_.start) + double(frame) / options_.fps);
            YuvCanvas canvas = canvasOf(encoder.canvas());
            scene.paint(canvas, {travelled, clockStamp(plan_.start + frame / options_.fps), now.speed, frame});
            take(encoder.encode());
            travelled += now.speed * kMetresPerSecondPerMph / options_.fps;
        }
        take(encoder.finish());
        if (secondsWritten_ != plan_.seconds) throw SampleGenError("H.264 encoder: frames went missing");
        return encoder.avcConfig();
    }

    const MovieDescription& describeMovie(FileBrand brand, const std::vector<uint8_t>& avcConfig) {
        movie_.brand = brand;
        movie_.creationTime = uint32_t(startInstant_ + kMovieEpochOffset);
        movie_.durationSeconds = uint32_t(plan_.seconds);
        movie_.video.width = uint16_t(options_.width);
        movie_.video.height = uint16_t(options_.height);
        movie_.video.timescale = uint32_t(options_.fps) * kVideoTicksPerFrame;
        movie_.video.avcC = avcConfig;
        movie_.video.samples.sampleDelta = kVideoTicksPerFrame;
        movie_.sound.channels = uint16_t(options_.channels);
        movie_.sound.sampleRate = uint16_t(options_.sampleRate);
        movie_.sound.samples.sampleDelta = 1;
        movie_.sound.samples.uniformSampleSize = kBytesPerSample * uint32_t(options_.channels);
        if (movie_.dataTrack) movie_.dataTrack->samples.sampleDelta = 1000;  // ms
        if (options_.layout == GPSBlockLayout::Index)
            movie_.gpsIndex = makeGPSIndexPayload(
                state_.gpsBlockOffsets, uint32_t(isClassicForm(options_.form) ? kGPSBlockSize : kVariantBlockSize));
        return movie_;
    }

    void take(std::vector<EncodedFrame> frames) {
        for (auto& frame : frames) pending_.push_back(std::move(frame));
        while (pending_.size() >= std::size_t(options_.fps) && secondsWritten_ < plan_.seconds) writeNextSecond();
    }

    void writeNextSecond() {
        const int64_t second = secondsWritten_++;
        const std::vector<EncodedFrame> frames(std::make_move_iterator(pending_.begin()),
                                               std::make_move_iterator(pending_.begin() + options_.fps));
        pending_.erase(pending_.begin(), pending_.begin() + options_.fps);

        std::vector<uint8_t> sound;
        const double at = double(plan_.start + second);
        hum_.render(sound, options_.sampleRate, route_.at(at).speed, route_.at(at + 1).speed);

        std::vector<uint8_t> block;
        if (options_.layout != GPSBlockLayout::None) {
            const RouteSample& record = records_[std::size_t(second)];
            if (isClassicForm(options_.form)) {
                const auto classic = makeGPSBlock(makeRawRecord(record, options_.form));
                block.assign(classic.begin(), classic.end());
            } else {
                block = makeFreeGpsVariantBlock(record, options_.form);
            }
        }
        const std::span<const uint8_t> gps = block;
        writeSecond_(out_, {frames, sound, uint32_t(options_.sampleRate), gps}, state_);
        if (options_.track == EmbeddedTrack::Gpmf) writeDataSample(makeGpmfPayload(timedRoute(), second));
        if (options_.track == EmbeddedTrack::NmeaTrack) writeDataSample(makeNmeaTrackSample(timedRoute(), second));
    }

    // The second's data sample in a chunk of its own, after the second's picture and sound.
    void writeDataSample(const std::vector<uint8_t>& payload) {
        if (!movie_.dataTrack) {
            movie_.dataTrack.emplace();
            if (options_.track == EmbeddedTrack::NmeaTrack) {
                movie_.dataTrack->handler = "text";
                movie_.dataTrack->sampleFormat = "text";
            }
        }
        const uint64_t offset = out_.write(payload);
        if (offset > std::numeric_limits<uint32_t>::max())
            throw SampleGenError("movie too large: offsets past 4 GiB cannot be written");
        movie_.dataTrack->samples.addChunk(uint32_t(offset), 1, {uint32_t(payload.size())});
    }

    const Route& route_;
    const MovieOptions& options_;
    MoviePlan plan_;
    int64_t startInstant_;  // seconds since the Unix epoch
    OutputFile& out_;
    std::vector<RouteSample> records_;
    EngineHum hum_;
    SecondWriter writeSecond_;
    MovieDescription movie_;
    MediaLayoutState state_;
    std::deque<EncodedFrame> pending_;
    int64_t secondsWritten_ = 0;
};

}  // namespace

MoviePlan planMovie(const Route& route, const MovieOptions& options) {
    const int64_t start = route.startTime() + options.fromSecond;
    const int64_t available = route.endTime() - start;
    const int64_t seconds = options.seconds.value_or(available);
    if (seconds < 1 || seconds > available)
        throw SampleGenError("the route covers " + std::to_string(route.endTime() - route.startTime()) +
                             " s; a movie from " + std::to_string(options.fromSecond) + " s lasting " +
                             std::to_string(seconds) + " s does not fit");
    return {start, seconds};
}

std::vector<RouteSample> recordedSamples(const Route& route, const MoviePlan& plan) {
    std::vector<RouteSample> samples;
    for (int64_t k = 1; k <= plan.seconds; ++k) samples.push_back(route.at(double(plan.start + k)));
    return samples;
}

void writeSampleMovie(const Route& route, const MovieOptions& options, const std::filesystem::path& output) {
    validate(options);
    const MoviePlan plan = planMovie(route, options);
    // The camera's clock is the user's wall clock: the file is dated as the playlist should show it.
    const int64_t startInstant = localInstant(fromClockSeconds(plan.start));
    OutputFile out(output);
    MovieWriter writer(route, options, plan, startInstant, out);
    writer.write();
    out.commit(options.setFileTime ? std::optional(startInstant) : std::nullopt);
    writeSidecar(options.sidecar, writer.timedRoute(), plan.seconds, output);
}
