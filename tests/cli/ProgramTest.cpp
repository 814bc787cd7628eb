// dashtrack-gps run as a user runs it, on the fixture movies.

#include "OutputText.h"
#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <tuple>

namespace {

std::string fixture(const std::string& name) { return std::string(DASHTRACK_FIXTURE_DIR) + "/" + name; }

// Each fixture with GPS holds the ten records of route10.csv after its first row.
constexpr std::size_t kFixtureSamples = 10;

TEST(Program, HelpGoesToStdoutWithStatusZero) {
    const ProgramResult help = runTool({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_EQ(help.err, "");
    for (const char* word : {"extract", "probe", "--format", "--unit", "geojson", "kml", "kmh", "Exit status"})
        EXPECT_NE(help.out.find(word), std::string::npos) << word;
    for (const std::vector<std::string>& spelling : {std::vector<std::string>{"-h"}, {"probe", "x.mov", "-h"}}) {
        const ProgramResult run = runTool(spelling);
        EXPECT_EQ(run.exitCode, 0) << spelling.front();
        EXPECT_EQ(run.out, help.out) << spelling.front();
    }
}

TEST(Program, UsageErrorsAreOneLineOnStderrWithStatusTwo) {
    const std::string movie = fixture("index_fixed.mov");
    const std::vector<std::vector<std::string>> cases = {
        {},
        {"bogus", movie},
        {"extract"},
        {"extract", "--unit", "knots", movie},
        {"extract", movie, "--format"},
        {"--frobnicate", "extract", movie},
        {"probe", "--format", "csv", movie},
        {"extract", "--help=yes"},
    };
    for (const auto& arguments : cases) {
        const ProgramResult run = runTool(arguments);
        const std::string what = arguments.empty() ? "(none)" : arguments.front() + " " + arguments.back();
        EXPECT_EQ(run.exitCode, 2) << what;
        EXPECT_EQ(run.out, "") << what;
        EXPECT_TRUE(run.err.starts_with("dashtrack-gps: ")) << what << ": " << run.err;
        EXPECT_EQ(occurrences(run.err, "\n"), 1u) << what << ": " << run.err;
    }
}

TEST(Program, AnUnreadableFileIsReportedAndTheOthersStillPrint) {
    const std::string missing = fixture("does-not-exist.mov");
    const std::string movie = fixture("index_fixed.mov");
    // Each format leaves the file out and keeps the shape it has for several files.
    const struct {
        const char* format;
        const char* perFile;
    } cases[] = {
        {"json", "{\"file\": "},
        {"csv", "\n/"},  // the file column starts each row
        {"kml", "<Placemark>"},
    };
    for (const auto& c : cases) {
        const ProgramResult run = runTool({"extract", "--format", c.format, missing, movie});
        EXPECT_EQ(run.exitCode, 1) << c.format;
        EXPECT_EQ(run.err, "dashtrack-gps: " + missing + ": No such file or directory\n") << c.format;
        const std::size_t expected = std::string_view(c.format) == "csv" ? kFixtureSamples : 1;
        EXPECT_EQ(occurrences(run.out, c.perFile), expected) << c.format;
        EXPECT_EQ(occurrences(run.out, "does-not-exist"), 0u) << c.format;
    }
}

TEST(Program, FileErrorsNameTheFileOnOneLine) {
    const std::pair<std::string, std::string> cases[] = {
        {DASHTRACK_FIXTURE_DIR, std::string(DASHTRACK_FIXTURE_DIR) + ": Is a directory"},
        {"/no/such\ndir/x.mov", "/no/such\\ndir/x.mov: No such file or directory"},
    };
    for (const auto& [file, message] : cases) {
        for (const char* command : {"extract", "probe"}) {
            const ProgramResult run = runTool({command, file});
            EXPECT_EQ(run.exitCode, 1) << command;
            EXPECT_EQ(run.err, "dashtrack-gps: " + message + "\n") << command;
        }
    }
}

TEST(Program, ProbeTellsLayoutFormsAndCountOfEachFile) {
    const std::size_t n = kFixtureSamples;
    const std::pair<const char*, std::string> cases[] = {
        {"index_mp4.mp4", "movie\tindex\tmp4\t" + std::to_string(n)},
        {"index_scaled.mov", "movie\tindex\tscaled\t" + std::to_string(n)},
        {"index_fixed.mov", "movie\tindex\tfixed-point\t" + std::to_string(n)},
        {"chunk_scaled.mov", "movie\tsound-chunk\tscaled\t" + std::to_string(n)},
        {"chunk_fixed.mov", "movie\tsound-chunk\tfixed-point\t" + std::to_string(n)},
        {"nogps.mov", "movie\tnone\t-\t0"},
        {"gpmf.mov", "movie\tgpmf\t-\t" + std::to_string(n)},
        {"nmea_text.mov", "movie\tnmea-text\t-\t" + std::to_string(n)},
        {"nmea_track.mov", "movie\tnmea-track\t-\t" + std::to_string(n)},
        {"nmea_sidecar.mov", "movie\tnmea-sidecar\t-\t" + std::to_string(n)},
        {"gpx_sidecar.mov", "movie\tgpx-sidecar\t-\t" + std::to_string(n)},
        {"route10.csv", "not-movie\tnone\t-\t0"},
    };
    std::vector<std::string> arguments{"probe"}, expected;
    for (const auto& [file, description] : cases) {
        arguments.push_back(fixture(file));
        expected.push_back(fixture(file) + "\t" + description);
    }
    const ProgramResult run = runTool(arguments);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(lines(run.out), expected);
}

TEST(Program, ExtractReadsTheRouteOfBothLayouts) {
    // First and last rows: route10.csv's second and last rows as the player shows them. The MP4
    // form moves the time by +7 h for longitude 114 E (the tool runs in UTC here) and keeps fewer
    // digits of longitude. Every layout and form is told apart by the probe test; the forms'
    // decoding is the loader's tests.
    const struct {
        const char* file;
        const char* first;
        const char* last;
    } cases[] = {
        {"index_mp4.mp4", "2017-01-01T06:59:56,01/01/17,06:59:56,22.29828,114.17200,18.50",
         "2017-01-01T07:00:05,01/01/17,07:00:05,22.29857,114.17200,22.50"},
        {"chunk_fixed.mov", "2016-12-31T23:59:56,12/31/16,23:59:56,22.29828,114.17204,18.50",
         "2017-01-01T00:00:05,01/01/17,00:00:05,22.29857,114.17204,22.50"},
    };
    for (const auto& c : cases) {
        const ProgramResult run = runTool({"extract", "--format", "csv", fixture(c.file)});
        EXPECT_EQ(run.exitCode, 0) << c.file;
        const std::vector<std::string> rows = lines(run.out);
        ASSERT_EQ(rows.size(), 1 + kFixtureSamples) << c.file;
        EXPECT_EQ(rows[1], c.first) << c.file;
        EXPECT_EQ(rows.back(), c.last) << c.file;
    }
    // A movie without GPS is an empty track, not an error.
    const ProgramResult none = runTool({"extract", fixture("nogps.mov")});
    EXPECT_EQ(std::tie(none.exitCode, none.err, none.out),
              std::make_tuple(0, "", "{\"maxSpeed\": 0, \"samples\": []}\n"));
}

// The readers beyond the camera blocks, each named by the probe: a GPMF movie from a real action
// camera, and a movie without blocks with an NMEA or a GPX file beside it. Of the sidecars only the
// points within the clip's ten seconds count.
TEST(Program, ProbeAndExtractReadGpmfAndSidecars) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "dashtrack-sidecar-test";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    for (const char* name : {"nmea.mov", "gpx.mov"})
        std::filesystem::copy_file(fixture("nogps.mov"), folder / name);
    // nogps.mov was made from 2016-12-31 23:59:55 for ten seconds; one sentence is from the day before.
    std::ofstream(folder / "nmea.NMEA") << "$GPRMC,235954.00,A,2217.8920,N,11410.3230,E,10.0,0.0,301216,,,A*66\r\n"
                                           "$GPRMC,235957.00,A,2217.8920,N,11410.3230,E,10.0,0.0,311216,,,A*64\r\n";
    std::ofstream(folder / "gpx.gpx") << R"(<gpx version="1.1"><trk><trkseg>
        <trkpt lat="-22.5" lon="-114.25"><time>2017-01-01T00:00:01Z</time></trkpt>
        <trkpt lat="1" lon="1"><time>2017-01-02T00:00:01Z</time></trkpt></trkseg></trk></gpx>)";
    const std::string gpmf = std::string(DASHTRACK_CAMERA_DIR) + "/max-heromode.mp4";
    const ProgramResult probe = runTool({"probe", gpmf, (folder / "nmea.mov").string(), (folder / "gpx.mov").string()});
    EXPECT_EQ(probe.exitCode, 0);
    EXPECT_EQ(lines(probe.out), (std::vector<std::string>{gpmf + "\tmovie\tgpmf\t-\t10",
                                                          (folder / "nmea.mov").string() + "\tmovie\tnmea-sidecar\t-\t10",
                                                          (folder / "gpx.mov").string() + "\tmovie\tgpx-sidecar\t-\t10"}));
    // The export holds every fix within the clip, where the player shows one a second.
    const ProgramResult extract = runTool({"extract", "--format", "csv", (folder / "gpx.mov").string(), gpmf});
    const std::vector<std::string> rows = lines(extract.out);
    ASSERT_EQ(rows.size(), 1u + 1u + 191u) << "the GPX point, then the GPMF movie's fixes as exiftool counts them";
    EXPECT_EQ(rows[1], (folder / "gpx.mov").string() + ",2017-01-01T00:00:01,01/01/17,00:00:01,-22.50000,-114.25000,00.00");
    std::filesystem::remove_all(folder);
}

// What a format states beyond the camera record reaches the GPX export through the tool: GPMF's
// altitude (the generator writes 0 m) and 3D fix, a GPX sidecar's course. Every point has them.
TEST(Program, GpxExportKeepsWhatTheMovieTrackStates) {
    const struct {
        const char* generatorOption;
        const char* choice;
        std::vector<const char*> everyPointHas;
    } cases[] = {
        {"--track", "gpmf", {"<ele>0</ele>", "<fix>3d</fix>"}},
        {"--sidecar", "gpx", {"<gpxtpx:course>"}},
    };
    for (const auto& c : cases) {
        const TempDir scratch;
        const std::string movie = (scratch / "clip.mov").string();
        const CommandResult made =
            runCommand(quoted(SAMPLEGEN_PROGRAM) + " --layout none " + c.generatorOption + " " + c.choice +
                       " --size 96x64 --fps 5 --rate 8000 " + quoted(fixture("route10.csv")) + " " + quoted(movie));
        ASSERT_EQ(made.status, 0) << c.choice;
        const ProgramResult run = runTool({"extract", "--format", "gpx", movie});
        ASSERT_EQ(run.exitCode, 0) << c.choice << ": " << run.err;
        const std::size_t points = occurrences(run.out, "<trkpt ");
        EXPECT_GE(points, kFixtureSamples) << c.choice;
        for (const char* stated : c.everyPointHas) EXPECT_EQ(occurrences(run.out, stated), points) << c.choice;
    }
}

}  // namespace
