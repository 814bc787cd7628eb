// Real cuts of generated clips (a keyframe every second, one GPS record a second): the saved movie's
// length, start and date read back with libavformat, its GPX with the GPX reader, and mpv's view.

#include "FFmpegHandles.h"
#include "GPSDataLoader.h"
#include "GpxReader.h"
#include "OutputText.h"
#include "RunCommand.h"
#include "SampleClock.h"
#include "SegmentJob.h"
#include "TempDir.h"
#include "TestFiles.h"

extern "C" {
#include <libavutil/parseutils.h>
}

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

const std::filesystem::path kClips = SEGMENT_CLIP_DIR;
constexpr double kClipSeconds = 20;
// One frame at 15 frames a second, and a little.
constexpr double kFrame = 0.07;

ClipTrack trackOf(const std::filesystem::path& clip) {
    auto track = std::make_shared<std::vector<GPSData>>(1);
    const GPSTrack loaded = GPSDataLoader::LoadTrack(clip);
    track->insert(track->end(), loaded.samples.begin(), loaded.samples.end());
    return track;
}

SegmentRequest requestFor(std::vector<std::string> names, SegmentSpan span, const std::filesystem::path& movie) {
    SegmentRequest request{.clips = {}, .tracks = {}, .span = span, .movie = movie};
    for (const std::string& name : names) {
        request.clips.push_back({kClips / name, kClipSeconds});
        request.tracks.push_back(trackOf(kClips / name));
    }
    return request;
}

struct MovieFacts {
    double seconds = 0;  // the format's duration
    double startSeconds = 0;
    int width = 0;
    std::optional<double> createdSeconds;
};

MovieFacts factsOf(const std::filesystem::path& movie) {
    AVFormatContext* opened = nullptr;
    if (avformat_open_input(&opened, movie.c_str(), nullptr, nullptr) < 0) return {};
    const FormatContextPtr input(opened);
    if (avformat_find_stream_info(input.get(), nullptr) < 0) return {};
    MovieFacts facts;
    facts.seconds = double(input->duration) / AV_TIME_BASE;
    facts.startSeconds = input->start_time == AV_NOPTS_VALUE ? 0 : double(input->start_time) / AV_TIME_BASE;
    for (unsigned i = 0; i < input->nb_streams; ++i)
        if (input->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_VIDEO) facts.width = input->streams[i]->codecpar->width;
    int64_t micros = 0;
    if (const AVDictionaryEntry* tag = av_dict_get(input->metadata, "creation_time", nullptr, 0))
        if (av_parse_time(&micros, tag->value, 0) == 0) facts.createdSeconds = double(micros) / 1e6;
    return facts;
}

// The camera's wall time at a second of a clip, from its first record (record k is at second k).
double wallAt(const std::string& clip, double seconds) {
    const ClipTrack track = trackOf(kClips / clip);
    return double(*sampleClockSeconds((*track)[1].data().rmcinfo)) - 1 + seconds;
}

TEST(SegmentCut, SavesSpansWithinAndAcrossClipsFromTheKeyframeBeforeTheStart) {
    struct Row {
        const char* what;
        std::vector<std::string> clips;
        SegmentSpan span;
        // Each movie: its name, length and picture width.
        std::vector<std::tuple<std::string, double, int>> movies;
        double cutStart;  // on the timeline: the keyframe at or before the span's start
        std::size_t trackSegments;
    };
    // The clips follow each other on the route: a from 0 s, b from 20 s, c from 40 s.
    const Row rows[] = {
        {"within one clip", {"a.mov"}, {5.5, 15}, {{"cut.mov", 10, 320}}, 5, 1},
        {"across two clips, joined", {"a.mov", "b.mov"}, {15.2, 25}, {{"cut.mov", 10, 320}}, 15, 2},
        {"across clips of other sizes, apart", {"a.mov", "b.mov", "c.mov"}, {35, 44},
         {{"cut-1.mov", 5, 320}, {"cut-2.mov", 4, 352}}, 35, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TempDir folder;
        const SegmentRequest request = requestFor(row.clips, row.span, folder / "cut.mov");
        double lastProgress = 0;
        const SegmentResult result = SegmentJob::run(request, [&](double f) { lastProgress = f; }, {});
        ASSERT_TRUE(result.ok()) << result.error;
        EXPECT_EQ(lastProgress, 1.0);
        ASSERT_EQ(result.files.size(), row.movies.size() + 1);
        const double start = wallAt("a.mov", row.cutStart);
        const double end = wallAt("a.mov", row.span.endSeconds);
        for (std::size_t m = 0; m < row.movies.size(); ++m) {
            const auto& [name, seconds, width] = row.movies[m];
            EXPECT_EQ(result.files[m], folder / name);
            const MovieFacts facts = factsOf(folder / name);
            EXPECT_NEAR(facts.seconds, seconds, kFrame) << name;
            EXPECT_NEAR(facts.startSeconds, 0, 1e-3) << name;
            EXPECT_EQ(facts.width, width) << name;
            if (m == 0) {
                ASSERT_TRUE(facts.createdSeconds) << name;
                EXPECT_NEAR(*facts.createdSeconds, start, 1e-3);
            }
        }
        // The GPX: one segment per clip, from the cut's start to its end.
        const std::string gpx = readFile(folder / "cut.gpx");
        EXPECT_EQ(result.files.back(), folder / "cut.gpx");
        EXPECT_EQ(occurrences(gpx, "<trkseg>"), row.trackSegments);
        const std::vector<GPSFix> fixes = readGpxFixes(gpx);
        ASSERT_FALSE(fixes.empty());
        EXPECT_EQ(fixes.front().clockSeconds, start);
        EXPECT_GE(fixes.back().clockSeconds, end - 1);
        for (const GPSFix& fix : fixes) EXPECT_TRUE(fix.clockSeconds >= start && fix.clockSeconds <= end);
        // Nothing but the movies and the track is left in the folder.
        std::size_t entries = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path())) ++entries;
        EXPECT_EQ(entries, result.files.size());
    }
}

TEST(SegmentCut, LeavesNoFileWhenCancelledOrAClipIsGone) {
    struct Row {
        const char* what;
        std::vector<std::string> clips;
        bool cancel;
    };
    const Row rows[] = {
        {"cancelled", {"a.mov", "b.mov"}, true},
        {"a clip deleted", {"a.mov", "gone.mov"}, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const TempDir folder;
        std::ofstream(folder / "cut.mov") << "kept";
        SegmentRequest request{.clips = {}, .tracks = {}, .span = {10, 30}, .movie = folder / "cut.mov"};
        for (const std::string& name : row.clips) request.clips.push_back({kClips / name, kClipSeconds});
        std::stop_source stop;
        const SegmentResult result = SegmentJob::run(
            request, [&](double fraction) { if (row.cancel && fraction > 0.2) stop.request_stop(); }, stop.get_token());
        EXPECT_FALSE(result.ok());
        EXPECT_TRUE(result.files.empty());
        std::size_t entries = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path())) ++entries;
        EXPECT_EQ(entries, 1u) << "only the file that was there";
        EXPECT_EQ(readFile(folder / "cut.mov"), "kept");
    }
}

TEST(SegmentCut, TheSavedMoviePlaysInMpvForItsLength) {
    if (std::string(MPV_PROGRAM).empty()) GTEST_SKIP() << "no mpv";
    const TempDir folder;
    const SegmentResult result =
        SegmentJob::run(requestFor({"a.mov", "b.mov"}, {12, 30}, folder / "drive.mp4"), {}, {});
    ASSERT_TRUE(result.ok()) << result.error;
    const CommandResult played =
        runCommand(quoted(MPV_PROGRAM) + " --no-config --vo=null --ao=null --frames=1 "
                   "'--term-playing-msg=DURATION=${=duration}' " + quoted((folder / "drive.mp4").string()) + " 2>&1");
    EXPECT_EQ(played.status, 0) << played.output;
    const std::size_t at = played.output.find("DURATION=");
    ASSERT_NE(at, std::string::npos) << played.output;
    EXPECT_NEAR(std::stod(played.output.substr(at + 9)), 18, kFrame);
}

}  // namespace
