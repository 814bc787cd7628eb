// A trip written as one track with a segment per clip.

#include "GpxReader.h"
#include "OutputText.h"
#include "TestTracks.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// Two clips of a drive, two and three dated samples, a second apart.
std::vector<NamedTrack> twoClips() {
    return {
        {"/cam/0001.mov", trackOf({fixedPointSample(225000000, 1142500000, 2778, {2016, 12, 31, 20, 5, 9}),
                                   fixedPointSample(225001000, 1142501000, 2700, {2016, 12, 31, 20, 5, 10})})},
        {"/cam/0002.mov", trackOf({fixedPointSample(225002000, 1142502000, 2600, {2016, 12, 31, 20, 5, 11}),
                                   fixedPointSample(225003000, 1142503000, 2500, {2016, 12, 31, 20, 5, 12}),
                                   fixedPointSample(225004000, 1142504000, 2400, {2016, 12, 31, 20, 5, 13})})},
    };
}

TEST(SegmentedTracks, OneTrackWithOneSegmentPerClip) {
    const struct {
        const char* format;
        const char* track;    // once per track
        const char* segment;  // once per clip
        const char* point;    // once per sample
    } cases[] = {
        {"gpx", "<trk>", "<trkseg>", "<trkpt "},
        {"kml", "<gx:MultiTrack>", "<gx:Track>", "<gx:coord>"},
        {"geojson", "\"MultiLineString\"", "\n [", "\n  ["},
        {"csv", "track,segment,file,", ",/cam/000", "\nTrip 1,"},
    };
    for (const auto& c : cases) {
        const std::string text = renderSegmented(c.format, "Trip 1", twoClips());
        EXPECT_EQ(occurrences(text, c.track), 1u) << c.format;
        EXPECT_EQ(occurrences(text, c.segment), c.format == std::string("csv") ? 5u : 2u) << c.format;
        EXPECT_EQ(occurrences(text, c.point), 5u) << c.format;
        EXPECT_EQ(occurrences(text, "Trip 1"), c.format == std::string("csv") ? 5u : 1u) << c.format;
    }
}

TEST(SegmentedTracks, GpxReadsBackWithEveryPointInOrder) {
    const std::vector<NamedTrack> clips = twoClips();
    std::vector<GPSData> written;
    for (const NamedTrack& clip : clips) written.insert(written.end(), clip.track.samples.begin(), clip.track.samples.end());
    const std::vector<GPSFix> fixes = readGpxFixes(renderSegmented("gpx", "Trip 1", clips));
    ASSERT_EQ(fixes.size(), written.size());
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        // The shortest text that reads back as the stored value.
        EXPECT_EQ(decltype(written[i].Latitude())(fixes[i].latitude), written[i].Latitude()) << i;
        EXPECT_EQ(decltype(written[i].Longitude())(fixes[i].longitude), written[i].Longitude()) << i;
        ASSERT_TRUE(fixes[i].clockSeconds) << i;
        if (i > 0) {
            EXPECT_EQ(*fixes[i].clockSeconds - *fixes[i - 1].clockSeconds, 1.0) << i;
        }
    }
}

}  // namespace
