// The generator's tracks other than the camera blocks, read back by the loader; and exiftool, which
// reads most of the formats on its own, finding the same fixes as the loader in every sample it knows.
#include "CivilTime.h"
#include "ExiftoolFixes.h"
#include "GPSDataLoader.h"
#include "SampleMovie.h"
#include "TempDir.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>

namespace {

constexpr double kMetresPerSecondPerKnot = 1852.0 / 3600.0;

// South and west, a point every two seconds, so that fixes between the points are interpolated.
Route montevideo() {
    const int64_t start = toClockSeconds({2026, 5, 31, 23, 59, 57});
    return Route({{start, -34.9011, -56.1645, 10.0},
                  {start + 2, -34.9015, -56.1640, 27.5},
                  {start + 4, -34.9016, -56.1633, 0.0},
                  {start + 6, -34.9016, -56.1633, 6.0}});
}

MovieOptions small(EmbeddedTrack track, SidecarTrack sidecar) {
    MovieOptions options;
    options.layout = GPSBlockLayout::None;
    options.track = track;
    options.sidecar = sidecar;
    options.width = 96;
    options.height = 64;
    options.fps = 5;
    options.sampleRate = 8000;
    return options;
}

std::string shownTime(int64_t clock) {
    const CivilTime t = fromClockSeconds(clock);
    char text[32];
    std::snprintf(text, sizeof text, "%02d/%02d/%02d %02d:%02d:%02d", t.month, t.day, t.year % 100, t.hour, t.minute,
                  t.second);
    return text;
}

struct TrackKind {
    const char* name;
    EmbeddedTrack track;
    SidecarTrack sidecar;
    GPSLayout layout;
    int fixesPerSecond;
    bool fixAtTheEnd;  // a fix at the movie's last instant, so that its last second has its own
    double degrees;    // what the format keeps
    double metresPerSecond;
};

const TrackKind kKinds[] = {
    {"gpmf", EmbeddedTrack::Gpmf, SidecarTrack::None, GPSLayout::Gpmf, 10, false, 6e-8, 6e-4},
    {"nmea-text", EmbeddedTrack::NmeaText, SidecarTrack::None, GPSLayout::NmeaText, 1, true, 1e-6, 3e-4},
    {"nmea-track", EmbeddedTrack::NmeaTrack, SidecarTrack::None, GPSLayout::NmeaTrack, 1, false, 1e-6, 3e-4},
    {"nmea-sidecar", EmbeddedTrack::None, SidecarTrack::Nmea, GPSLayout::NmeaSidecar, 1, true, 1e-6, 3e-4},
    {"gpx-sidecar", EmbeddedTrack::None, SidecarTrack::Gpx, GPSLayout::GpxSidecar, 1, true, 6e-8, 6e-4},
};

}  // namespace

// Every fix at its movie time and UTC, and the one-a-second samples the player shows equal to the
// camera blocks' records: the route at the movie's start + k seconds, in the zone the clip was made.
TEST(ReaderSamples, TheLoaderReadsBackEveryFixOfTheRoute) {
    for (const char* zone : {"UTC", "Asia/Tokyo"}) {
        const TimeZoneGuard guard(zone);
        const Route route = montevideo();
        for (const TrackKind& kind : kKinds) {
            SCOPED_TRACE(std::string(kind.name) + " in " + zone);
            const TempDir dir;
            const MovieOptions options = small(kind.track, kind.sidecar);
            writeSampleMovie(route, options, dir / "clip.mov");
            const MoviePlan plan = planMovie(route, options);
            const int64_t utcStart = localInstant(fromClockSeconds(plan.start));

            const GPSTrack track = GPSDataLoader::LoadTrack(dir / "clip.mov");
            EXPECT_EQ(track.layout, kind.layout);
            const std::size_t fixes = std::size_t(plan.seconds * kind.fixesPerSecond) + (kind.fixAtTheEnd ? 1 : 0);
            ASSERT_EQ(track.fixes.size(), fixes);
            for (std::size_t i = 0; i < fixes; ++i) {
                const GPSFix& fix = track.fixes[i];
                const double t = double(i) / kind.fixesPerSecond;
                const RouteSample at = route.at(double(plan.start) + t);
                EXPECT_NEAR(fix.latitude, at.latitude, kind.degrees) << i;
                EXPECT_NEAR(fix.longitude, at.longitude, kind.degrees) << i;
                EXPECT_NEAR(fix.speedMetresPerSecond.value_or(-1), at.speed * kMetresPerSecondPerKnot,
                            kind.metresPerSecond)
                    << i;
                EXPECT_NEAR(fix.movieSeconds.value_or(-1), t, 1e-6) << i;
                EXPECT_NEAR(fix.clockSeconds.value_or(-1), double(utcStart) + t, 1e-3) << i;
            }
            ASSERT_EQ(track.samples.size(), std::size_t(plan.seconds));
            // Without a fix at the end, the last second holds the one before it.
            const std::size_t ownSeconds = track.samples.size() - (kind.fixAtTheEnd ? 0 : 1);
            for (std::size_t k = 1; k <= ownSeconds; ++k) {
                const GPSData& sample = track.samples[k - 1];
                const RouteSample at = route.at(double(plan.start + int64_t(k)));
                EXPECT_NEAR(sample.Latitude(), at.latitude, 1e-5) << k;
                EXPECT_NEAR(sample.Longitude(), at.longitude, 1e-5) << k;
                EXPECT_NEAR(sample.SpeedMPH(), at.speed, 1e-3) << k;
                EXPECT_EQ(sample.DateText() + " " + sample.TimeText(), shownTime(utcStart + int64_t(k))) << k;
            }
            EXPECT_NEAR(track.maxSpeed, 27.5, 1e-3);
        }
    }
}

namespace {

struct Reading {
    double latitude, longitude, speed;  // the loader's, in the units below
};

// Exiftool reads the camera blocks' coordinates as NMEA's ddmm.mmmm (degrees × 100 + minutes) and
// their speed as knots, giving km/h. The record forms store other numbers in those fields: these
// store the loader's reading as the form does, then read the field as exiftool does. The loader
// keeps floats (7 digits): a field differs from the stored one by its last bits, about 1e-5 of
// exiftool's degrees, and more in the fixed-point form, whose integers exiftool reads as floats.
double asDdmm(double field) {
    const double degrees = std::floor(std::fabs(field) / 100);
    return degrees + (std::fabs(field) - degrees * 100) / 60;
}
double asKmh(float knotsField) { return double(knotsField) * 1.852; }
float fixedPointField(double value, double scale) { return std::bit_cast<float>(int32_t(std::lround(value * scale))); }

struct ExiftoolCase {
    const char* name;
    MovieOptions options;
    std::size_t (*count)(const GPSTrack&);
    Reading (*ours)(const GPSTrack&, std::size_t);
    // What exiftool should find, from the loader's reading, in exiftool's units.
    Reading (*expected)(const Reading& ours);
    double degrees, speed;
};

std::size_t fixCount(const GPSTrack& track) { return track.fixes.size(); }
std::size_t sampleCount(const GPSTrack& track) { return track.samples.size(); }
Reading fixReading(const GPSTrack& track, std::size_t i) {
    const GPSFix& fix = track.fixes[i];
    return {fix.latitude, fix.longitude, fix.speedMetresPerSecond.value_or(-1)};
}
Reading sampleReading(const GPSTrack& track, std::size_t i) {
    const GPSData& sample = track.samples[i];
    return {sample.Latitude(), sample.Longitude(), sample.SpeedMPH()};
}

MovieOptions blocks(GPSRecordForm form) {
    MovieOptions options = small(EmbeddedTrack::None, SidecarTrack::None);
    options.layout = GPSBlockLayout::Index;
    options.form = form;
    return options;
}

}  // namespace

// The sound-chunk layout is left out: exiftool finds no blocks there. It looks for blocks not named
// by an index only where a box header "\0..\0freeGPS " starts them, the 32 KiB blocks of the
// cameras it knows; a 92-byte block's size word ends in 0x5c.
TEST(ReaderSamples, ExiftoolFindsTheSameFixes) {
    if (!haveExiftool()) GTEST_SKIP() << "exiftool is not installed";
    const TimeZoneGuard utc("UTC");
    // Kowloon, north and east: exiftool gives every value without its hemisphere's sign.
    const Route route = Route::load(std::filesystem::path(DASHTRACK_FIXTURE_DIR) / "route10.csv");
    const ExiftoolCase cases[] = {
        {"gpmf", small(EmbeddedTrack::Gpmf, SidecarTrack::None), fixCount, fixReading,
         [](const Reading& r) { return r; }, 1e-9, 1e-9},
        {"nmea-text", small(EmbeddedTrack::NmeaText, SidecarTrack::None), fixCount, fixReading,
         [](const Reading& r) { return Reading{r.latitude, r.longitude, r.speed * 3.6}; }, 1e-9, 1e-9},
        {"nmea-track", small(EmbeddedTrack::NmeaTrack, SidecarTrack::None), fixCount, fixReading,
         [](const Reading& r) { return Reading{r.latitude, r.longitude, r.speed * 3.6}; }, 1e-9, 1e-9},
        {"index scaled", blocks(GPSRecordForm::Scaled), sampleCount, sampleReading,
         [](const Reading& r) {
             return Reading{asDdmm(float(r.latitude * 60 / 0.6014019)), asDdmm(float(r.longitude * 60 / 0.6000377)),
                            asKmh(float(r.speed / 1.15078))};
         },
         1e-5, 1e-4},
        {"index mp4", blocks(GPSRecordForm::MP4), sampleCount, sampleReading,
         [](const Reading& r) {
             return Reading{asDdmm(float(r.latitude * 3 + 187.98216)), asDdmm(float(r.longitude * 2 + 2199.1987)),
                            asKmh(float(r.speed))};
         },
         1e-5, 1e-4},
        {"index fixed", blocks(GPSRecordForm::FixedPoint), sampleCount, sampleReading,
         [](const Reading& r) {
             return Reading{asDdmm(fixedPointField(r.latitude, 1e7)), asDdmm(fixedPointField(r.longitude, 1e7)),
                            asKmh(std::bit_cast<float>(uint32_t(std::lround(r.speed * 160.93 / 3.6))))};
         },
         2e-4, 1e-4},
    };
    for (const ExiftoolCase& c : cases) {
        SCOPED_TRACE(c.name);
        const TempDir dir;
        writeSampleMovie(route, c.options, dir / "clip.mov");
        const GPSTrack track = GPSDataLoader::LoadTrack(dir / "clip.mov");
        const ExiftoolFixes theirs = exiftoolFixes(dir / "clip.mov");
        const std::size_t count = c.count(track);
        ASSERT_GT(count, 0u);
        ASSERT_EQ(theirs.latitudes.size(), count);
        ASSERT_EQ(theirs.longitudes.size(), count);
        ASSERT_EQ(theirs.speeds.size(), count);
        for (std::size_t i = 0; i < count; ++i) {
            const Reading expected = c.expected(c.ours(track, i));
            EXPECT_NEAR(theirs.latitudes[i], expected.latitude, c.degrees) << i;
            EXPECT_NEAR(theirs.longitudes[i], expected.longitude, c.degrees) << i;
            EXPECT_NEAR(theirs.speeds[i], expected.speed, c.speed) << i;
        }
    }
}
