#include "GPSData.h"
#include "HourShift.h"
#include "SyntheticMovie.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

struct FormCase {
    const char* name;
    GPSDATA raw;
    bool isMP4;
    const char* latitude;
    const char* longitude;
    const char* speedMPH;
    const char* speedKMH;
    const char* date;
    const char* time;
};

GPSDATA dated(GPSDATA r, uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute, uint32_t second) {
    RMCINFO& f = r.rmcinfo;
    std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second) = std::tie(year, month, day, hour, minute, second);
    return r;
}

GPSDATA scaledRecord(float latitude, char ns, float longitude, char ew, float knots) {
    GPSDATA r = mp4Record(latitude, ns, longitude, ew, knots);
    r.rmcinfo.Year = 16;
    return r;
}

TEST(GPSDataTest, EachFormDecodesToTheShownTexts) {
    TimeZoneGuard utc("UTC0");
    const FormCase cases[] = {
        FormCase{"Mp4EastShiftsIntoNewYear",
                 dated(mp4Record(255.48216f, 'N', 2427.6987f, 'E', 60.0f), 16, 12, 31, 20, 5, 9), true, "22.50000",
                 "114.25000", "60.00", "111.12", "01/01/17", "03:05:09"},
        FormCase{"Mp4WestShiftsBack", dated(mp4Record(255.48216f, 'S', 2427.6987f, 'W', 5.3f), 16, 12, 31, 20, 5, 9),
                 true, "-22.50000", "-114.25000", "05.30", "09.82", "12/31/16", "13:05:09"},
        FormCase{"Mp4NearMeridianKeepsTime", dated(mp4Record(190.0f, 'N', 2229.0f, 'E', -75.0f), 2016, 6, 1, 10, 0, 0),
                 true, "00.67261", "14.90063", "75.00", "138.90", "06/01/16", "10:00:00"},
        FormCase{"Mp4FifteenDegreesShiftsOneHour",
                 dated(mp4Record(190.0f, 'N', 2229.2f, 'E', 250.0f), 16, 6, 1, 10, 0, 0), true, "00.67261", "15.00061",
                 "200.00", "370.40", "06/01/16", "11:00:00"},
        FormCase{"FixedPointSouthWestAndCap",
                 dated(fixedPointRecord(-225000000, 15000000, 10000), 2016, 5, 17, 8, 30, 0), false, "-22.50000",
                 "01.50000", "200.00", "370.40", "05/17/16", "08:30:00"},
        FormCase{"FixedPointIgnoresIndicators",
                 [] {
                     GPSDATA r = fixedPointRecord(225000000, 1142500000, 0);
                     r.rmcinfo.NSInd = 'S';
                     r.rmcinfo.EWInd = 'W';
                     return r;
                 }(),
                 false, "22.50000", "114.25000", "00.00", "00.00", "05/17/16", "08:30:00"},
        FormCase{"ScaledNorth", dated(scaledRecord(2231.5f, 'N', 6855.0f, 'E', 10.0f), 16, 5, 17, 23, 59, 59), false,
                 "22.36714", "68.55431", "11.51", "21.31", "05/17/16", "23:59:59"},
        FormCase{"ScaledSouthWestNoShift",
                 dated(scaledRecord(2231.5f, 'S', 6855.0f, 'W', 100.0f), 16, 12, 31, 23, 0, 0), false, "-22.36714",
                 "-68.55431", "115.08", "213.12", "12/31/16", "23:00:00"}};
    for (const FormCase& c : cases) {
        SCOPED_TRACE(c.name);
        GPSData sample;
        sample.SetData(c.raw, c.isMP4);
        EXPECT_EQ(sample.LatitudeText(), c.latitude);
        EXPECT_EQ(sample.LongitudeText(), c.longitude);
        EXPECT_EQ(sample.SpeedMPHText(), c.speedMPH);
        EXPECT_EQ(sample.SpeedKMHText(), c.speedKMH);
        EXPECT_EQ(sample.DateText(), c.date);
        EXPECT_EQ(sample.TimeText(), c.time);
    }
}

TEST(GPSDataTest, ScaledSpeedHasNoCapAndKeepsSign) {
    GPSData sample;
    sample.SetData(scaledRecord(0, 'N', 0, 'E', -500.0f), false);
    EXPECT_FLOAT_EQ(sample.SpeedMPH(), -575.39f);
}

struct ShiftCase {
    const char* name;
    const char* zone;
    RMCINFO before;
    int hours;
    RMCINFO after;
};

RMCINFO at(uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute = 0, uint32_t second = 0) {
    RMCINFO f;
    std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second) = std::tie(year, month, day, hour, minute, second);
    return f;
}

TEST(HourShiftTest, MovesWallClockTime) {
    // A POSIX zone rule needs no time zone database on the machine.
    constexpr const char* kNewYork = "EST5EDT,M3.2.0,M11.1.0";
    const ShiftCase cases[] = {
        {"into next year", "UTC0", at(16, 12, 31, 20, 5, 9), 7, at(2017, 1, 1, 3, 5, 9)},
        {"back into previous year", "UTC0", at(17, 1, 1, 3), -7, at(2016, 12, 31, 20)},
        {"leap day", "UTC0", at(2016, 2, 28, 22), 3, at(2016, 2, 29, 1)},
        {"no leap day", "UTC0", at(2015, 2, 28, 22), 3, at(2015, 3, 1, 1)},
        {"spring forward", kNewYork, at(16, 3, 13, 1, 30), 1, at(2016, 3, 13, 3, 30)},
        {"fall back", kNewYork, at(16, 11, 6, 0, 30), 2, at(2016, 11, 6, 1, 30)},
        {"invalid day unchanged", "UTC0", at(16, 4, 31, 5), 7, at(16, 4, 31, 5)},
        {"invalid hour unchanged", "UTC0", at(16, 4, 1, 24), 7, at(16, 4, 1, 24)},
    };
    for (const ShiftCase& c : cases) {
        TimeZoneGuard zone(c.zone);
        RMCINFO f = c.before;
        shiftRecordTimeByHours(f, c.hours);
        EXPECT_EQ(std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second),
                  std::tie(c.after.Year, c.after.Month, c.after.Day, c.after.Hour, c.after.Minute, c.after.Second))
            << c.name;
    }
}

TEST(GPSDataTest, Mp4FormKeepsAnInvalidDateButStillShortensTheYear) {
    TimeZoneGuard utc("UTC0");
    GPSData sample;
    sample.SetData(dated(mp4Record(0, 'N', 2427.6987f, 'E', 0), 2016, 0, 1, 5, 0, 0), true);
    EXPECT_EQ(sample.DateText(), "00/01/16");
    EXPECT_EQ(sample.TimeText(), "05:00:00");
}

TEST(GPSDataTest, Mp4FormOfNonFiniteAndHugeValuesKeepsItsRules) {
    TimeZoneGuard utc("UTC0");
    const struct {
        float value;
        int hours;  // the shift of the time: none without a finite longitude, clamped when huge
    } cases[] = {{std::numeric_limits<float>::quiet_NaN(), 0},
                 {std::numeric_limits<float>::infinity(), 0},
                 {3e38f, 1000000 / 15},
                 {-3e38f, 1000000 / 15}};  // the sign comes from the indicator, not the value
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        GPSData sample;
        const GPSDATA raw = dated(mp4Record(c.value, 'N', c.value, 'E', c.value), 16, 1, 1, 0, 0, 0);
        sample.SetData(raw, true);
        // The speed is a real number within the cap, whatever came in.
        EXPECT_GE(sample.SpeedMPH(), 0.0f);
        EXPECT_LE(sample.SpeedMPH(), 200.0f);
        RMCINFO expected = raw.rmcinfo;
        if (c.hours != 0) shiftRecordTimeByHours(expected, c.hours);
        if (expected.Year >= 2000) expected.Year -= 2000;
        const RMCINFO& stored = sample.data().rmcinfo;
        EXPECT_EQ(std::tie(stored.Year, stored.Month, stored.Day, stored.Hour),
                  std::tie(expected.Year, expected.Month, expected.Day, expected.Hour));
    }
}

}  // namespace
