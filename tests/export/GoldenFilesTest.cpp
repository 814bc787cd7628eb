// Each format's whole document for the sample movies, against a committed file. A change in
// the output shows up as a diff in review. After an intended change, regenerate with
// DASHTRACK_UPDATE_GOLDEN=1 and read the diff before committing it.

#include "TestTracks.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(GoldenFiles, OutputMatchesTheCommittedDocument) {
    const struct {
        const char* format;
        SpeedUnit unit;
        const char* file;
    } cases[] = {
        {"json", SpeedUnit::MPH, "sample_movies.json"}, {"csv", SpeedUnit::KMH, "sample_movies_kmh.csv"},
        {"gpx", SpeedUnit::MPH, "sample_movies.gpx"},   {"geojson", SpeedUnit::MPH, "sample_movies.geojson"},
        {"kml", SpeedUnit::MPH, "sample_movies.kml"},
    };
    for (const auto& golden : cases) {
        const std::string path = std::string(DASHTRACK_GOLDEN_DIR) + "/" + golden.file;
        const std::string actual = render(golden.format, sampleMovies(), golden.unit);
        if (std::getenv("DASHTRACK_UPDATE_GOLDEN")) {
            std::ofstream(path, std::ios::binary) << actual;
            continue;
        }
        EXPECT_EQ(actual, readFile(path)) << "differs from " << path;
    }
}

}  // namespace
