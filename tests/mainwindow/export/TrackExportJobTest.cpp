// The window's export job: the documents it writes, and what it leaves on disk when it is
// cancelled or cannot write.

#include "ClipExportTrack.h"
#include "ExportFormatChoice.h"
#include "ProgramRun.h"
#include "TestFiles.h"
#include "TestTracks.h"
#include "TrackExportJob.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

namespace {

using Outcome = TrackExportResult::Outcome;

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path().filename());
    return files;
}

ExportClip clipOf(const NamedTrack& named) {
    return {named.file, [track = named.track] { return track; }};
}

ExportTrack tripOf(const std::vector<NamedTrack>& clips) {
    ExportTrack trip{"Trip 1, from 2016-12-31 20:05", {}};
    for (const NamedTrack& clip : clips) trip.clips.push_back(clipOf(clip));
    return trip;
}

TEST(TrackExportJob, WritesTheDocumentsTheToolWrites) {
    // The writers' golden documents (every format's is the writers' test): a lone clip as
    // dashtrack-gps writes it and a trip as one segmented track, in the format and unit asked for.
    const struct {
        bool trip;
        const char* format;
        SpeedUnit unit;
        const char* golden;
    } cases[] = {
        {false, "gpx", SpeedUnit::MPH, "one_clip.gpx"}, {false, "kml", SpeedUnit::KMH, "one_clip_kmh.kml"},
        {true, "gpx", SpeedUnit::MPH, "trip.gpx"},      {true, "csv", SpeedUnit::KMH, "trip_kmh.csv"},
    };
    const TempDir folder;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.golden);
        const std::filesystem::path target = folder / c.golden;
        const ExportTrack track = c.trip ? tripOf(sampleMovies()) : tripOf({sampleMovies().front()});
        const TrackExportJob job({.tracks = {track}, .format = c.format, .unit = c.unit, .target = target});
        EXPECT_EQ(job.run({}).outcome, Outcome::Written);
        EXPECT_EQ(readFile(target), readFile(std::filesystem::path(DASHTRACK_GOLDEN_DIR) / c.golden));
    }
    // Nothing but the documents: every temporary file was renamed into place.
    EXPECT_EQ(filesIn(folder.path()).size(), std::size(cases));
}

TEST(TrackExportJob, AClipReadFromDiskIsWrittenAsTheToolWritesIt) {
    const char* movies[] = {"index_scaled.mov", "chunk_fixed.mov", "gpmf.mov", "nmea_sidecar.mov", "nogps.mov"};
    const TempDir folder;
    for (const char* movie : movies) {
        for (const char* format : {"gpx", "csv"}) {
            SCOPED_TRACE(std::string(movie) + " " + format);
            const std::string file = std::string(DASHTRACK_FIXTURE_DIR) + "/" + movie;
            const TrackExportRequest request{.tracks = {{"", {{file, [file] { return readClipForExport(file); }}}}},
                                             .format = format,
                                             .unit = SpeedUnit::MPH,
                                             .target = folder / "out"};
            ASSERT_EQ(TrackExportJob(request).run({}).outcome, Outcome::Written);
            const ProgramResult tool = runTool({"extract", "--format", format, file});
            ASSERT_EQ(tool.exitCode, 0) << tool.err;
            EXPECT_EQ(readFile(folder / "out"), tool.out);
        }
    }
}

TEST(TrackExportJob, CancelledOrFailedLeavesNothingBehind) {
    const TempDir folder;
    std::filesystem::create_directory(folder / "taken");
    const struct {
        const char* what;
        std::filesystem::path target;
        std::size_t cancelAfterClips;  // past the clip count: never cancelled
        Outcome outcome;
    } cases[] = {
        {"cancelled before the first clip", folder / "a.gpx", 0, Outcome::Cancelled},
        {"cancelled between clips", folder / "a.gpx", 1, Outcome::Cancelled},
        {"cancelled after the last clip", folder / "a.gpx", 3, Outcome::Cancelled},
        {"a folder that does not exist", folder / "missing" / "a.gpx", 99, Outcome::Failed},
        {"a folder in the target's place", folder / "taken", 99, Outcome::Failed},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const TrackExportJob job({.tracks = {tripOf(sampleMovies())}, .format = "gpx", .target = c.target});
        std::stop_source cancel;
        if (c.cancelAfterClips == 0) cancel.request_stop();
        const TrackExportResult result = job.run(cancel.get_token(), [&](std::size_t done, std::size_t total) {
            EXPECT_EQ(total, 3u);
            if (done == c.cancelAfterClips) cancel.request_stop();
        });
        EXPECT_EQ(result.outcome, c.outcome);
        EXPECT_EQ(result.error.empty(), c.outcome != Outcome::Failed) << result.error;
        EXPECT_EQ(filesIn(folder.path()), std::vector<std::filesystem::path>{"taken"});
    }
}

TEST(TrackExportJob, AStoredFormatWeDoNotOfferFallsBackToGpx) {
    for (const std::optional<std::string>& stored : {std::optional<std::string>(), std::optional<std::string>("json")})
        EXPECT_EQ(exportChoiceOfFormat(stored).format, "gpx");
    EXPECT_EQ(exportChoiceOfFilter("All files (*)"), nullptr);
}

}  // namespace
