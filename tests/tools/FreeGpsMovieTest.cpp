// Movies of the other block layouts: the loader reads back the route the generator wrote, and
// exiftool, where installed, reads the same fixes.

#include "CivilTime.h"
#include "ExiftoolFixes.h"
#include "GPSDataLoader.h"
#include "SampleMovie.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace {

// South-east and north-west of the equator and the meridian; the second crosses midnight.
std::vector<Route> routes() {
    const int64_t sydney = toClockSeconds({2025, 3, 9, 14, 0, 0});
    const int64_t newYork = toClockSeconds({2025, 3, 9, 23, 59, 57});
    return {Route({{sydney, -33.8688, 151.2093, 20.0}, {sydney + 6, -33.8700, 151.2120, 35.5}}),
            Route({{newYork, 40.7711, -73.9742, 12.0}, {newYork + 6, 40.7730, -73.9710, 28.0}})};
}

struct Variant {
    GPSRecordForm form;
    const char* name;
    double knots;    // the speed the layout keeps: whole km/h, cm/s, or float/text knots
    double degrees;  // DDMM.MMMM to four decimals of a minute, as text or as a float
};
constexpr Variant kVariants[] = {
    {GPSRecordForm::Type1, "type1", 0.5 / 1.852, 1.2e-6},
    {GPSRecordForm::Type2, "type2", 0.005, 1.2e-6},
    {GPSRecordForm::Type3, "type3", 1e-4, 1e-5},  // a float holds 15112.xx minutes to about 1e-3
    {GPSRecordForm::Type20, "type20", 0.005 * 3600 / 1852, 1.2e-6},
};

MovieOptions options(GPSRecordForm form) {
    MovieOptions o;
    o.form = form;
    o.width = 96;
    o.height = 64;
    o.fps = 5;
    o.sampleRate = 8000;
    o.setFileTime = false;
    return o;
}

std::string clockText(const CivilTime& c) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", c.hour, c.minute, c.second);
    return text;
}

// Writes each layout's movie along each route and hands it to check with the loader's track.
template <class Check>
void forEachMovie(Check check) {
    const TempDir dir;
    for (const Variant& v : kVariants) {
        for (const Route& route : routes()) {
            SCOPED_TRACE(std::string(v.name) + " from " + std::to_string(route.points()[0].latitude));
            const auto path = dir.path() / (std::string(v.name) + ".mov");
            writeSampleMovie(route, options(v.form), path);
            check(v, route, path, GPSDataLoader::LoadTrack(path));
        }
    }
}

TEST(FreeGpsMovieTest, EachLayoutReadsBackTheRoute) {
    forEachMovie([](const Variant& v, const Route& route, const std::filesystem::path&, const GPSTrack& track) {
        ASSERT_EQ(track.layout, GPSLayout::Index);
        ASSERT_EQ(track.samples.size(), 6u);
        EXPECT_EQ(track.formCounts[std::size_t(v.form)], 6u);
        for (std::size_t k = 0; k < track.samples.size(); ++k) {
            const RouteSample want = route.at(double(route.startTime() + int64_t(k) + 1));
            const GPSData& got = track.samples[k];
            EXPECT_EQ(got.data().rmcinfo.Status, 'A');
            EXPECT_NEAR(got.Latitude(), want.latitude, v.degrees + 2e-6);  // the sample keeps a float
            EXPECT_NEAR(got.Longitude(), want.longitude, v.degrees + 8e-6);
            EXPECT_NEAR(got.SpeedMPH(), want.speed, v.knots + 1e-4);
            EXPECT_EQ(got.TimeText(), clockText(fromClockSeconds(want.time)));
        }
    });
}

// exiftool 12.57 reads types 1, 2 and 3 through the "gps " index. Its indexed reading has no
// big-endian layout, so for type20 it finds the blocks by scanning the media data instead, a
// scan that stops short of the last 32 KiB: it may miss the last block.
TEST(FreeGpsMovieTest, ExiftoolReadsTheSameFixes) {
    if (!haveExiftool()) GTEST_SKIP() << "exiftool is not installed";
    forEachMovie([](const Variant& v, const Route&, const std::filesystem::path& path, const GPSTrack& track) {
        const ExiftoolFixes theirs = exiftoolFixes(path);
        const std::size_t found = theirs.latitudes.size();
        ASSERT_EQ(theirs.longitudes.size(), found);
        ASSERT_EQ(theirs.speeds.size(), found);
        if (v.form == GPSRecordForm::Type20) {
            EXPECT_GE(found + 1, track.samples.size());
            EXPECT_LE(found, track.samples.size());
        } else {
            EXPECT_EQ(found, track.samples.size());
        }
        for (std::size_t k = 0; k < std::min(found, track.samples.size()); ++k) {
            EXPECT_NEAR(theirs.latitudes[k], track.samples[k].Latitude(), 1e-5);
            EXPECT_NEAR(theirs.longitudes[k], track.samples[k].Longitude(), 2e-5);
            EXPECT_NEAR(theirs.speeds[k], track.samples[k].SpeedKMH(), 1e-3);
        }
    });
}

}  // namespace
