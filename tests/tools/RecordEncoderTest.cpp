#include "CivilTime.h"
#include "GPSData.h"
#include "RecordEncoder.h"

#include <gtest/gtest.h>

// The movie tests read whole routes back through the loader; here, what only a single record shows:
// the year, signs, heading and fix status each form carries, and the top speed the forms allow.
TEST(RecordEncoder, YearSignsHeadingAndTopSpeedAreWrittenAsEachFormExpects) {
    const RouteSample south{toClockSeconds({2026, 11, 15, 8, 15, 30}), -22.951916, -43.210487, 199.9, 287.5};
    const struct {
        GPSRecordForm form;
        uint32_t year;
        double speed;  // how close a float record comes; whole centimetres per second in the fixed-point form
    } cases[] = {
        {GPSRecordForm::MP4, 2026, 1e-4}, {GPSRecordForm::Scaled, 26, 1e-4}, {GPSRecordForm::FixedPoint, 2026, 0.02}};
    for (const auto& c : cases) {
        SCOPED_TRACE(int(c.form));
        const GPSDATA raw = makeRawRecord(south, c.form);
        const RMCINFO& f = raw.rmcinfo;
        EXPECT_EQ(f.Year, c.year);
        EXPECT_EQ(std::string({f.NSInd, f.EWInd, f.Status}), "SWA");
        EXPECT_FLOAT_EQ(f.Angle, 287.5f);
        const bool isMP4 = c.form == GPSRecordForm::MP4;
        EXPECT_EQ(GPSData::formOf(raw, isMP4), c.form);
        GPSData data;
        data.SetData(raw, isMP4);
        EXPECT_NEAR(data.SpeedMPH(), 199.9, c.speed);
        EXPECT_NEAR(data.Latitude(), south.latitude, 2e-4);
    }
}
