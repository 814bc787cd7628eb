#include "CivilTime.h"
#include "GPSData.h"
#include "RecordEncoder.h"
#include "TimeZoneGuard.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Place {
    const char* name;
    double latitude, longitude, speed;
};

// Every quadrant, the axes, the speed limits of the forms.
constexpr Place kPlaces[] = {
    {"Paris", 48.869313, 2.309416, 28.0},    {"Rio", -22.951916, -43.210487, 55.5},
    {"Kowloon", 22.298389, 114.172039, 0.0}, {"Anchorage", 61.216667, -149.9, 199.9},
    {"NullIsland", 0.0, 0.0, 10.0},          {"Sydney", -33.8568, 151.2153, 61.25},
};

struct FormCase {
    GPSRecordForm form;
    double degrees;  // how close the player's reading comes to the route, given float records
    double speed;
};

// The MP4 form's offsets push longitudes past 2000, where a float keeps only about 1e-4.
constexpr FormCase kForms[] = {
    {GPSRecordForm::MP4, 2e-4, 1e-4},
    {GPSRecordForm::Scaled, 1e-5, 1e-4},
    {GPSRecordForm::FixedPoint, 1e-5, 0.02},  // whole centimetres per second
};

const char* formName(GPSRecordForm form) {
    return form == GPSRecordForm::MP4 ? "MP4" : form == GPSRecordForm::Scaled ? "Scaled" : "Fixed";
}

const CivilTime kClock{2026, 11, 15, 8, 15, 30};

RouteSample sampleAt(const Place& place) {
    return {toClockSeconds(kClock), place.latitude, place.longitude, place.speed, 287.5};
}

}  // namespace

TEST(RecordEncoder, ThePlayerReadsBackTheRouteInEveryForm) {
    const TimeZoneGuard utc("UTC");
    for (const FormCase& form : kForms) {
        for (const Place& place : kPlaces) {
            SCOPED_TRACE(std::string(formName(form.form)) + " " + place.name);
            const GPSDATA raw = makeRawRecord(sampleAt(place), form.form);
            EXPECT_EQ(GPSData::formOf(raw, form.form == GPSRecordForm::MP4), form.form);

            GPSData data;
            data.SetData(raw, form.form == GPSRecordForm::MP4);
            EXPECT_NEAR(data.Latitude(), place.latitude, form.degrees);
            EXPECT_NEAR(data.Longitude(), place.longitude, form.degrees);
            EXPECT_NEAR(data.SpeedMPH(), place.speed, form.speed);
            EXPECT_FLOAT_EQ(data.data().rmcinfo.Angle, 287.5f);
            EXPECT_EQ(data.data().rmcinfo.Status, 'A');

            // The clock as written, apart from the MP4 form's whole-hour move by longitude.
            const int hours = form.form == GPSRecordForm::MP4 ? int(std::trunc(place.longitude)) / 15 : 0;
            const CivilTime shown = fromClockSeconds(toClockSeconds(kClock) + hours * 3600);
            const RMCINFO& f = data.data().rmcinfo;
            EXPECT_EQ(
                CivilTime({int(f.Year) + 2000, int(f.Month), int(f.Day), int(f.Hour), int(f.Minute), int(f.Second)}),
                shown);
        }
    }
}

TEST(RecordEncoder, YearAndSignsAreWrittenAsEachFormExpects) {
    const RouteSample south = sampleAt(kPlaces[1]);
    struct Case {
        GPSRecordForm form;
        uint32_t year;
    };
    for (const Case c :
         {Case{GPSRecordForm::MP4, 2026}, Case{GPSRecordForm::Scaled, 26}, Case{GPSRecordForm::FixedPoint, 2026}}) {
        SCOPED_TRACE(formName(c.form));
        const RMCINFO f = makeRawRecord(south, c.form).rmcinfo;
        EXPECT_EQ(f.Year, c.year);
        EXPECT_EQ(f.NSInd, 'S');
        EXPECT_EQ(f.EWInd, 'W');
    }
}
