#include "OutputText.h"
#include "TestTracks.h"
#include "TrackFormats.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <vector>

namespace {

// True when word stands outside a quoted string, as a number would; the read-out texts, quoted,
// may hold it padded ("    nan", " -inf").
bool hasBareWord(const std::string& text, std::string_view word) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        std::size_t before = at;
        while (before > 0 && std::string_view(" +-").find(text[before - 1]) != std::string_view::npos) --before;
        if (before == 0 || text[before - 1] != '"') return true;
    }
    return false;
}

TEST(TrackWriters, DocumentsStayWholeWhenNoFileCouldBeRead) {
    const struct {
        const char* format;
        bool severalFiles;
        const char* expected;
    } cases[] = {
        {"json", false, ""},  // the single file's object is all there would have been
        {"json", true, "[]\n"},
        {"csv", true, "file,datetime,date,time,latitude,longitude,speed_mph\n"},
        {"geojson", true, "{\"type\": \"FeatureCollection\", \"features\": []}\n"},
    };
    for (const auto& c : cases) {
        std::ostringstream out;
        const auto writer = findTrackFormat(c.format)->make(out, {.severalFiles = c.severalFiles});
        writeTracks(*writer, {});
        EXPECT_EQ(out.str(), c.expected) << c.format;
    }
}

TEST(TrackWriters, DamagedRecordsNeverMakeAnInvalidDocument) {
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    // Off the globe, not a number, a negative speed; then one good sample.
    const GPSTrack track = trackOf({scaledSample(nan, inf, -inf), fixedPointSample(900000128, 0, 0),
                                    scaledSample(0, 0, -10.0f), fixedPointSample(225000000, 1142500000, 2778)});
    const struct {
        const char* format;
        const char* point;  // what each drawn sample writes once
        std::size_t drawn;
    } cases[] = {
        {"json", "\"latitude\"", 4},  // the full track keeps every sample, with nulls
        {"gpx", "<trkpt ", 2},
        {"kml", "<gx:coord>", 2},
        {"geojson", "\n  [", 2},
    };
    for (const auto& c : cases) {
        const std::string text = render(c.format, {{"a.mov", track}});
        EXPECT_EQ(occurrences(text, c.point), c.drawn) << c.format;
        // Read-out texts may say "nan" as the player would; a bare nan is no number in any format.
        EXPECT_FALSE(hasBareWord(text, "nan")) << c.format;
        EXPECT_FALSE(hasBareWord(text, "inf")) << c.format;
    }
    // The speed extension does not allow negative speeds, so only the good sample has one.
    EXPECT_EQ(occurrences(render("gpx", {{"a.mov", track}}), "<gpxtpx:speed>"), 1u);
}

// A fix of a format that states more than the camera record holds; or, with nothing stated, as
// little as the record.
GPSData fixSample(double latitude, bool stated) {
    GPSFix fix;
    fix.clockSeconds = 1574120714.0;  // 2019-11-18 23:45:14 UTC
    fix.latitude = latitude;
    fix.longitude = 20;
    fix.speedMetresPerSecond = 5;
    if (stated) {
        fix.altitudeMetres = 1234.5;
        fix.headingDegrees = 271.25;
        fix.quality = GPSFix::Quality::Fix3D;
    }
    return GPSData::fromFix(fix);
}

TEST(TrackWriters, AltitudeHeadingAndFixKindOnlyWhereTheFormatStatedThem) {
    // The first sample states them all, the second nothing: each text appears once.
    const GPSTrack mixed = trackOf({fixSample(10, true), fixSample(11, false)});
    const struct {
        const char* format;
        std::vector<const char*> stated;
    } cases[] = {
        {"json", {"\"altitude\": 1234.5", "\"heading\": 271.25", "\"fix\": \"3d\""}},
        {"gpx", {"<ele>1234.5</ele>\n        <time>", "<fix>3d</fix>", "<gpxtpx:course>271.25</gpxtpx:course>"}},
        {"geojson", {"[20, 10, 1234.5]"}},
        {"kml", {"<gx:coord>20 10 1234.5</gx:coord>"}},
    };
    for (const auto& c : cases) {
        const std::string text = render(c.format, {{"a.mov", mixed}});
        for (const char* stated : c.stated) EXPECT_EQ(occurrences(text, stated), 1u) << c.format << ": " << stated;
    }
    // The CSV table's columns are fixed: the stated values change nothing in it.
    EXPECT_EQ(render("csv", {{"a.mov", mixed}}),
              render("csv", {{"a.mov", trackOf({fixSample(10, false), fixSample(11, false)})}}));
    // KML lifts the track off the ground only when every point has a height.
    EXPECT_EQ(occurrences(render("kml", {{"a.mov", mixed}}), "<altitudeMode>"), 0u);
    const GPSTrack high = trackOf({fixSample(10, true), fixSample(11, true)});
    EXPECT_EQ(occurrences(render("kml", {{"a.mov", high}}), "<altitudeMode>absolute</altitudeMode>"), 1u);
}

TEST(TrackWriters, LongTracksLoseNoTextWhereTheOutputIsHandedOn) {
    // Enough samples that every format passes its output on in several pieces: each further
    // identical sample must add the same bytes, and the document must end as a short one does.
    constexpr std::size_t kLong = 4000;
    const GPSData sample = fixedPointSample(225000000, 1142500000, 2778);
    const struct {
        const char* format;
        const char* point;  // what each sample writes once
    } cases[] = {
        {"json", "\"latitude\""}, {"csv", "\n2016-"}, {"gpx", "<trkpt "}, {"kml", "<gx:coord>"}, {"geojson", "\n  ["},
    };
    for (const auto& c : cases) {
        const std::string three = render(c.format, {{"a.mov", trackOf(std::vector<GPSData>(3, sample))}});
        const std::string four = render(c.format, {{"a.mov", trackOf(std::vector<GPSData>(4, sample))}});
        const std::string many = render(c.format, {{"a.mov", trackOf(std::vector<GPSData>(kLong, sample))}});
        // The summaries of GPX and KML spell the count, which has more digits in the long one.
        const std::size_t countDigits = occurrences(three, "3 samples") * (std::to_string(kLong).size() - 1);
        EXPECT_EQ(many.size(), three.size() + (kLong - 3) * (four.size() - three.size()) + countDigits) << c.format;
        EXPECT_EQ(occurrences(many, c.point), kLong) << c.format;
        EXPECT_EQ(many.substr(many.size() - 40), four.substr(four.size() - 40)) << c.format;
    }
}

}  // namespace
