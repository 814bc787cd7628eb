#include "OutputText.h"
#include "TestTracks.h"
#include "TrackFormats.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <sstream>

namespace {

// The numbers that follow each "name": in the text, read back as a consumer would.
std::vector<float> numbersAfter(const std::string& text, const std::string& name) {
    std::vector<float> numbers;
    const std::string key = "\"" + name + "\": ";
    for (std::size_t at = text.find(key); at != std::string::npos; at = text.find(key, at + 1)) {
        float value = std::numeric_limits<float>::quiet_NaN();
        std::from_chars(text.data() + at + key.size(), text.data() + text.size(), value);
        numbers.push_back(value);
    }
    return numbers;
}

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

TEST(JsonTrackWriter, SampleNumbersReadBackAsTheStoredFloats) {
    std::vector<GPSData> samples;
    uint32_t seed = 12345;
    const auto next = [&] { return seed = seed * 1664525u + 1013904223u; };
    for (int i = 0; i < 300; ++i)
        samples.push_back(fixedPointSample(int32_t(next() % 1800000001u) - 900000000,
                                           int32_t(next() % 3600000001u - 1800000000u), next() % 9000));
    samples.push_back(fixedPointSample(1, -7, 1));                // 1e-07: the shortest form has an exponent
    samples.push_back(scaledSample(0.0f, 0.0f, 0.0f, 'S', 'W'));  // negative zero

    const std::string json = render("json", {{"a.mov", trackOf(samples)}});
    const std::pair<const char*, float (GPSData::*)() const> fields[] = {
        {"latitude", &GPSData::Latitude}, {"longitude", &GPSData::Longitude}, {"speed", &GPSData::SpeedMPH}};
    for (const auto& [name, getter] : fields) {
        const std::vector<float> printed = numbersAfter(json, name);
        ASSERT_EQ(printed.size(), samples.size()) << name;
        for (std::size_t i = 0; i < samples.size(); ++i)
            EXPECT_EQ(std::bit_cast<uint32_t>(printed[i]), std::bit_cast<uint32_t>((samples[i].*getter)()))
                << name << i;
    }
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
    EXPECT_EQ(render("json", {{"nogps.mov", trackOf({})}}), "{\"maxSpeed\": 0, \"samples\": []}\n");
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

}  // namespace
