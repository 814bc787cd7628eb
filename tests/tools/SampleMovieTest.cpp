#include "CivilTime.h"
#include "GPSBlock.h"
#include "GPSDataLoader.h"
#include "RecordEncoder.h"
#include "RunCommand.h"
#include "SampleGenError.h"
#include "SampleMovie.h"
#include "TempDir.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <algorithm>
#include <cmath>

namespace {

// Buenos Aires, a point every two seconds: the movie's records come from interpolation too.
Route buenosAires() {
    const int64_t start = toClockSeconds({2026, 3, 1, 23, 59, 58});
    return Route({{start, -34.6037, -58.3816, 12.0},
                  {start + 2, -34.6039, -58.3810, 31.5},
                  {start + 4, -34.6043, -58.3806, 0.0},
                  {start + 6, -34.6043, -58.3806, 8.0}});
}

MovieOptions small(GPSBlockLayout layout, GPSRecordForm form) {
    MovieOptions options;
    options.layout = layout;
    options.form = form;
    options.width = 96;
    options.height = 64;
    options.fps = 5;
    options.sampleRate = 8000;
    return options;
}

struct Tolerance {
    double degrees, speed;
};
// As close as float records come: the MP4 form's offset longitudes keep about 1e-4, and the
// fixed-point form holds whole centimetres per second.
Tolerance toleranceOf(GPSRecordForm form) {
    return form == GPSRecordForm::MP4 ? Tolerance{2e-4, 1e-4}
                                      : Tolerance{1e-5, form == GPSRecordForm::Scaled ? 1e-4 : 0.02};
}

// What ffmpeg says while decoding the whole file: nothing, for a good movie.
std::string decoderComplaints(const std::filesystem::path& movie) {
    const auto run = runCommand("ffmpeg -v warning -nostdin -i " + quoted(movie.string()) + " -f null - 2>&1");
    return run.status == 0 ? run.output : "exit status " + std::to_string(run.status) + ": " + run.output;
}

std::string probeStreams(const std::filesystem::path& movie) {
    return runCommand("ffprobe -v error -show_entries stream=codec_type,duration,nb_frames -of csv=p=0 " +
                      quoted(movie.string()))
        .output;
}

std::vector<uint8_t> readAt(SeekableFile& file, uint64_t offset, std::size_t size) {
    std::vector<uint8_t> bytes(size);
    file.seek(offset);
    bytes.resize(file.read(bytes));
    return bytes;
}

uint32_t u32At(const std::vector<uint8_t>& bytes, std::size_t at) {
    return uint32_t(bytes[at]) << 24 | uint32_t(bytes[at + 1]) << 16 | uint32_t(bytes[at + 2]) << 8 | bytes[at + 3];
}

}  // namespace

TEST(SampleMovie, PlaysCleanlyAndTheLoaderReadsBackTheRoute) {
    const TimeZoneGuard utc("UTC");
    const Route route = buenosAires();
    const struct {
        GPSBlockLayout layout;
        GPSRecordForm form;
        GPSLayout expected;
    } cases[] = {
        {GPSBlockLayout::Index, GPSRecordForm::MP4, GPSLayout::Index},
        {GPSBlockLayout::Index, GPSRecordForm::FixedPoint, GPSLayout::Index},
        {GPSBlockLayout::Chunk, GPSRecordForm::Scaled, GPSLayout::SoundChunk},
        {GPSBlockLayout::None, GPSRecordForm::MP4, GPSLayout::None},
        {GPSBlockLayout::None, GPSRecordForm::Scaled, GPSLayout::SoundChunk},  // tried, nothing found
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(int(c.layout)) + " " + std::to_string(int(c.form)));
        const MovieOptions options = small(c.layout, c.form);
        const TempDir dir;
        writeSampleMovie(route, options, dir / "movie.mov");
        EXPECT_EQ(decoderComplaints(dir / "movie.mov"), "");
        EXPECT_EQ(probeStreams(dir / "movie.mov"), "video,6.000000,30\naudio,6.000000,48000\n");

        const GPSTrack track = GPSDataLoader::LoadTrack(dir / "movie.mov");
        EXPECT_EQ(track.layout, c.expected);
        EXPECT_EQ(track.isMP4, c.form == GPSRecordForm::MP4);
        const auto recorded = c.layout == GPSBlockLayout::None ? std::vector<RouteSample>()
                                                               : recordedSamples(route, planMovie(route, options));
        ASSERT_EQ(track.samples.size(), recorded.size());
        const Tolerance tolerance = toleranceOf(c.form);
        // The MP4 form's UTC clock is shown moved by trunc(-58 / 15) = -3 hours, back into March 1st.
        const int64_t shift = c.form == GPSRecordForm::MP4 ? -3 * 3600 : 0;
        for (std::size_t k = 0; k < recorded.size(); ++k) {
            const GPSData& sample = track.samples[k];
            EXPECT_NEAR(sample.Latitude(), recorded[k].latitude, tolerance.degrees) << k;
            EXPECT_NEAR(sample.Longitude(), recorded[k].longitude, tolerance.degrees) << k;
            EXPECT_NEAR(sample.SpeedMPH(), recorded[k].speed, tolerance.speed) << k;
            const CivilTime shown = fromClockSeconds(recorded[k].time + shift);
            char text[32];
            std::snprintf(text, sizeof text, "%02d/%02d/%02d %02d:%02d:%02d", shown.month, shown.day, shown.year % 100,
                          shown.hour, shown.minute, shown.second);
            EXPECT_EQ(sample.DateText() + " " + sample.TimeText(), text) << k;
        }
        if (!recorded.empty()) {
            EXPECT_NEAR(track.maxSpeed, 31.5, tolerance.speed);
        }
    }
}

TEST(SampleMovieChunks, EachBlockLiesOneRoundedSecondOfSoundAfterItsChunk) {
    for (const auto& [channels, rate, offset] :
         {std::tuple{1u, 8000u, 32768u}, {2u, 48000u, 196608u}, {1u, 32768u, 98304u}, {2u, 8000u, 32768u}})
        EXPECT_EQ(chunkGPSOffset(channels, rate, 16), offset) << channels << " x " << rate;
    // The loader, which finds the blocks its own way, reads every one of a stereo movie.
    const Route route = buenosAires();
    MovieOptions options = small(GPSBlockLayout::Chunk, GPSRecordForm::FixedPoint);
    options.channels = 2;
    options.sampleRate = 48000;
    options.seconds = 3;
    const TempDir dir;
    writeSampleMovie(route, options, dir / "chunks.mov");
    EXPECT_EQ(decoderComplaints(dir / "chunks.mov"), "");
    const GPSTrack track = GPSDataLoader::LoadTrack(dir / "chunks.mov");
    EXPECT_EQ(track.layout, GPSLayout::SoundChunk);
    EXPECT_EQ(track.samples.size(), recordedSamples(route, planMovie(route, options)).size());
    EXPECT_EQ(track.samples.size(), 3u);
}

TEST(SampleMovieTimes, FileTimeAndMovieHeaderAreTheStartReadAsLocalTime) {
    struct Case {
        const char* zone;
        int64_t utcOffset;
    };
    const Route route = buenosAires();
    for (const Case c : {Case{"Asia/Tokyo", 9 * 3600}, Case{"America/Argentina/Buenos_Aires", -3 * 3600}}) {
        SCOPED_TRACE(c.zone);
        const TimeZoneGuard zone(c.zone);
        const TempDir dir;
        writeSampleMovie(route, small(GPSBlockLayout::Index, GPSRecordForm::Scaled), dir / "timed.mov");
        const int64_t instant = route.startTime() - c.utcOffset;

        struct stat info {};
        ASSERT_EQ(stat((dir / "timed.mov").c_str(), &info), 0);
        EXPECT_EQ(int64_t(info.st_mtime), instant);

        const auto file = PosixFile::open(dir / "timed.mov");
        ASSERT_TRUE(file);
        const FileRange moov = GPSDataLoader::loadBox("moov", *file, 0);
        const FileRange mvhd = GPSDataLoader::loadBox("mvhd", *file, moov.location);
        EXPECT_EQ(u32At(readAt(*file, mvhd.location, 8), 4), uint32_t(instant + 2082844800));
    }

    MovieOptions untimed = small(GPSBlockLayout::None, GPSRecordForm::Scaled);
    untimed.setFileTime = false;
    const TempDir dir;
    writeSampleMovie(route, untimed, dir / "untimed.mov");
    struct stat info {};
    ASSERT_EQ(stat((dir / "untimed.mov").c_str(), &info), 0);
    EXPECT_GT(int64_t(info.st_mtime), route.endTime());
}

TEST(SampleMovieFailures, LeaveNoFileBehind) {
    const TempDir dir;
    const Route route = buenosAires();
    MovieOptions tooLong = small(GPSBlockLayout::Index, GPSRecordForm::Scaled);
    tooLong.seconds = 7;
    EXPECT_THROW(writeSampleMovie(route, tooLong, dir / "long.mov"), SampleGenError);
    MovieOptions late = small(GPSBlockLayout::Index, GPSRecordForm::Scaled);
    late.fromSecond = 6;
    EXPECT_THROW(writeSampleMovie(route, late, dir / "late.mov"), SampleGenError);
    EXPECT_THROW(writeSampleMovie(route, small(GPSBlockLayout::Chunk, GPSRecordForm::MP4), dir / "bad.mp4"),
                 SampleGenError);
    EXPECT_THROW(writeSampleMovie(route, small(GPSBlockLayout::Index, GPSRecordForm::Scaled), dir / "no" / "dir.mov"),
                 SampleGenError);
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
}

// The window tests play this movie and expect its route; the cli tests check the other fixtures.
TEST(Fixtures, PlayerMovieHoldsItsRoute) {
    const TimeZoneGuard utc("UTC");
    const GPSTrack track = GPSDataLoader::LoadTrack(std::filesystem::path(DASHTRACK_FIXTURE_DIR) / "player_720p.mov");
    EXPECT_EQ(track.layout, GPSLayout::Index);
    ASSERT_EQ(track.samples.size(), 20u);
    EXPECT_EQ(track.samples[0].DateText() + " " + track.samples[0].TimeText(), "11/15/26 08:15:01");
}
