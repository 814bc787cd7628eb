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

Tolerance toleranceOf(GPSRecordForm form) {
    if (form == GPSRecordForm::MP4) return {2e-4, 1e-4};
    if (form == GPSRecordForm::Scaled) return {1e-5, 1e-4};
    return {1e-5, 0.02};
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

// The sound track's chunk offsets, found the way the loader finds them (the second trak here).
std::vector<uint32_t> soundChunkOffsets(SeekableFile& file) {
    const FileRange moov = GPSDataLoader::loadBox("moov", file, 0);
    const FileRange video = GPSDataLoader::loadBox("trak", file, moov.location);
    FileRange box = GPSDataLoader::loadBox("trak", file, video.location + video.length);
    for (const char* child : {"mdia", "minf", "stbl", "stco"}) box = GPSDataLoader::loadBox(child, file, box.location);
    const auto table = readAt(file, box.location, std::size_t(box.length));
    std::vector<uint32_t> offsets;
    for (uint32_t i = 0; i < u32At(table, 4); ++i) offsets.push_back(u32At(table, 8 + 4 * i));
    return offsets;
}

struct MovieCase {
    GPSBlockLayout layout;
    GPSRecordForm form;
    GPSLayout expected;
};

std::string caseName(const testing::TestParamInfo<MovieCase>& info) {
    constexpr const char* layouts[] = {"Index", "Chunk", "None"};
    constexpr const char* forms[] = {"Mp4", "Scaled", "Fixed"};
    return std::string(layouts[int(info.param.layout)]) + forms[int(info.param.form)];
}

void PrintTo(const MovieCase& c, std::ostream* out) { *out << caseName(testing::TestParamInfo<MovieCase>(c, 0)); }

class SampleMovie : public testing::TestWithParam<MovieCase> {};

}  // namespace

TEST_P(SampleMovie, PlaysCleanlyAndTheLoaderReadsBackTheRoute) {
    const TimeZoneGuard utc("UTC");
    const MovieCase c = GetParam();
    const Route route = buenosAires();
    const MovieOptions options = small(c.layout, c.form);
    const TempDir dir;
    const auto movie = dir / "movie.mov";
    writeSampleMovie(route, options, movie);

    EXPECT_EQ(decoderComplaints(movie), "");
    EXPECT_EQ(probeStreams(movie), "video,6.000000,30\naudio,6.000000,48000\n");

    const GPSTrack track = GPSDataLoader::LoadTrack(movie);
    EXPECT_EQ(track.layout, c.expected);
    EXPECT_EQ(track.isMP4, c.form == GPSRecordForm::MP4);
    if (c.layout == GPSBlockLayout::None) {
        EXPECT_TRUE(track.samples.empty());
        return;
    }
    const auto recorded = recordedSamples(route, planMovie(route, options));
    ASSERT_EQ(track.samples.size(), recorded.size());
    const Tolerance tolerance = toleranceOf(c.form);
    // The MP4 form's UTC clock is shown moved by trunc(-58 / 15) = -3 hours, back into March 1st.
    const int64_t shift = c.form == GPSRecordForm::MP4 ? -3 * 3600 : 0;
    for (std::size_t k = 0; k < recorded.size(); ++k) {
        SCOPED_TRACE("record " + std::to_string(k + 1));
        const GPSData& sample = track.samples[k];
        EXPECT_NEAR(sample.Latitude(), recorded[k].latitude, tolerance.degrees);
        EXPECT_NEAR(sample.Longitude(), recorded[k].longitude, tolerance.degrees);
        EXPECT_NEAR(sample.SpeedMPH(), recorded[k].speed, tolerance.speed);
        const CivilTime shown = fromClockSeconds(recorded[k].time + shift);
        char date[16], time[16];
        std::snprintf(date, sizeof date, "%02d/%02d/%02d", shown.month, shown.day, shown.year % 100);
        std::snprintf(time, sizeof time, "%02d:%02d:%02d", shown.hour, shown.minute, shown.second);
        EXPECT_EQ(sample.DateText(), date);
        EXPECT_EQ(sample.TimeText(), time);
    }
    EXPECT_NEAR(track.maxSpeed, 31.5, tolerance.speed);
}

INSTANTIATE_TEST_SUITE_P(LayoutsAndForms, SampleMovie,
                         testing::Values(MovieCase{GPSBlockLayout::Index, GPSRecordForm::MP4, GPSLayout::Index},
                                         MovieCase{GPSBlockLayout::Index, GPSRecordForm::Scaled, GPSLayout::Index},
                                         MovieCase{GPSBlockLayout::Index, GPSRecordForm::FixedPoint, GPSLayout::Index},
                                         MovieCase{GPSBlockLayout::Chunk, GPSRecordForm::Scaled, GPSLayout::SoundChunk},
                                         MovieCase{GPSBlockLayout::Chunk, GPSRecordForm::FixedPoint,
                                                   GPSLayout::SoundChunk},
                                         MovieCase{GPSBlockLayout::None, GPSRecordForm::MP4, GPSLayout::None},
                                         MovieCase{GPSBlockLayout::None, GPSRecordForm::Scaled, GPSLayout::SoundChunk}),
                         caseName);

TEST(SampleMovieChunks, EachBlockLiesOneRoundedSecondOfSoundAfterItsChunk) {
    struct Case {
        int channels, rate;
        uint64_t offset;
    };
    const Case cases[] = {{1, 8000, 32768}, {1, 22050, 65536}, {2, 48000, 196608}, {1, 32768, 98304}, {2, 8000, 32768}};
    const Route route = buenosAires();
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.channels) + " x " + std::to_string(c.rate) + " Hz");
        EXPECT_EQ(chunkGPSOffset(uint32_t(c.channels), uint32_t(c.rate), 16), c.offset);

        MovieOptions options = small(GPSBlockLayout::Chunk, GPSRecordForm::FixedPoint);
        options.channels = c.channels;
        options.sampleRate = c.rate;
        options.seconds = 3;
        const TempDir dir;
        writeSampleMovie(route, options, dir / "chunks.mov");

        const auto file = PosixFile::open(dir / "chunks.mov");
        ASSERT_TRUE(file);
        const auto chunks = soundChunkOffsets(*file);
        const auto recorded = recordedSamples(route, planMovie(route, options));
        ASSERT_EQ(chunks.size(), recorded.size());
        for (std::size_t i = 0; i < chunks.size(); ++i) {
            const auto block = readAt(*file, chunks[i] + c.offset, kGPSBlockSize);
            ASSERT_EQ(block.size(), kGPSBlockSize);
            EXPECT_TRUE(GPSDataLoader::isGPSData(block.data()));
            const auto record = encodeGPSRecord(makeRawRecord(recorded[i], GPSRecordForm::FixedPoint));
            EXPECT_TRUE(std::equal(record.begin(), record.end(), block.begin() + kGPSHeaderSize)) << "block " << i;
        }
        EXPECT_EQ(decoderComplaints(dir / "chunks.mov"), "");
    }
}

TEST(SampleMovieTimes, FileTimeAndMovieHeaderAreTheStartReadAsLocalTime) {
    struct Case {
        const char* zone;
        int64_t utcOffset;
    };
    const Route route = buenosAires();
    for (const Case c :
         {Case{"UTC", 0}, Case{"Asia/Tokyo", 9 * 3600}, Case{"America/Argentina/Buenos_Aires", -3 * 3600}}) {
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

// The movies the build makes for the other tests hold what those tests are told they hold.
TEST(Fixtures, HoldTheirRoutesInTheirLayouts) {
    const TimeZoneGuard utc("UTC");
    struct Case {
        const char* file;
        GPSLayout layout;
        std::size_t records;
        const char* firstShown;  // date and time of record 1 as the player shows it
    };
    const Case cases[] = {
        {"index_mp4.mp4", GPSLayout::Index, 10, "01/01/17 06:59:56"},  // +7 h at 114 E
        {"index_scaled.mov", GPSLayout::Index, 10, "12/31/16 23:59:56"},
        {"index_fixed.mov", GPSLayout::Index, 10, "12/31/16 23:59:56"},
        {"chunk_scaled.mov", GPSLayout::SoundChunk, 10, "12/31/16 23:59:56"},
        {"chunk_fixed.mov", GPSLayout::SoundChunk, 10, "12/31/16 23:59:56"},
        {"nogps.mov", GPSLayout::SoundChunk, 0, ""},
        {"player_720p.mov", GPSLayout::Index, 20, "11/15/26 08:15:01"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        const GPSTrack track = GPSDataLoader::LoadTrack(std::filesystem::path(DASHTRACK_FIXTURE_DIR) / c.file);
        EXPECT_TRUE(track.opened);
        ASSERT_EQ(track.samples.size(), c.records);
        if (c.records == 0) continue;
        EXPECT_EQ(track.layout, c.layout);
        EXPECT_EQ(track.samples[0].DateText() + " " + track.samples[0].TimeText(), c.firstShown);
    }
}
