// Each format's whole document for the sample movies, against a committed file. A change in
// the output shows up as a diff in review. After an intended change, regenerate with
// DASHTRACK_UPDATE_GOLDEN=1 and read the diff before committing it.

#include "TestFiles.h"
#include "TestTracks.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace {

// The documents the window's Export Track writes too: a single clip, and a trip of the sample
// movies as one track with a segment each.
enum class Shape { SeveralFiles, OneClip, Trip };

std::string renderShape(Shape shape, const char* format, SpeedUnit unit) {
    switch (shape) {
    case Shape::SeveralFiles: return render(format, sampleMovies(), unit);
    case Shape::OneClip: return render(format, {sampleMovies().front()}, unit);
    case Shape::Trip: return renderSegmented(format, "Trip 1, from 2016-12-31 20:05", sampleMovies(), unit);
    }
    return {};
}

TEST(GoldenFiles, OutputMatchesTheCommittedDocument) {
    const struct {
        Shape shape;
        const char* format;
        SpeedUnit unit;
        const char* file;
    } cases[] = {
        {Shape::SeveralFiles, "json", SpeedUnit::MPH, "sample_movies.json"},
        {Shape::SeveralFiles, "csv", SpeedUnit::KMH, "sample_movies_kmh.csv"},
        {Shape::SeveralFiles, "gpx", SpeedUnit::MPH, "sample_movies.gpx"},
        {Shape::SeveralFiles, "geojson", SpeedUnit::MPH, "sample_movies.geojson"},
        {Shape::SeveralFiles, "kml", SpeedUnit::MPH, "sample_movies.kml"},
        {Shape::OneClip, "gpx", SpeedUnit::MPH, "one_clip.gpx"},
        {Shape::OneClip, "kml", SpeedUnit::KMH, "one_clip_kmh.kml"},
        {Shape::OneClip, "geojson", SpeedUnit::MPH, "one_clip.geojson"},
        {Shape::OneClip, "csv", SpeedUnit::MPH, "one_clip.csv"},
        {Shape::Trip, "gpx", SpeedUnit::MPH, "trip.gpx"},
        {Shape::Trip, "kml", SpeedUnit::MPH, "trip.kml"},
        {Shape::Trip, "geojson", SpeedUnit::MPH, "trip.geojson"},
        {Shape::Trip, "csv", SpeedUnit::KMH, "trip_kmh.csv"},
    };
    for (const auto& golden : cases) {
        const std::string path = std::string(DASHTRACK_GOLDEN_DIR) + "/" + golden.file;
        const std::string actual = renderShape(golden.shape, golden.format, golden.unit);
        if (std::getenv("DASHTRACK_UPDATE_GOLDEN")) {
            std::ofstream(path, std::ios::binary) << actual;
            continue;
        }
        EXPECT_EQ(actual, readFile(path)) << "differs from " << path;
    }
}

}  // namespace
