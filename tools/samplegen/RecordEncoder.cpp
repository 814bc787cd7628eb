#include "RecordEncoder.h"

#include "CivilTime.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace {

void copyText(std::array<char, 16>& field, const char* text) {
    field.fill(0);
    std::memcpy(field.data(), text, std::min(std::strlen(text), field.size() - 1));
}

void encodeMP4Form(RMCINFO& f, const RouteSample& s) {
    f.Latitude = float(std::fabs(s.latitude) * 3.0 + 187.98216);
    f.Longitude = float(std::fabs(s.longitude) * 2.0 + 2199.1987);
    f.Speed = float(s.speed);
}

void encodeScaledForm(RMCINFO& f, const RouteSample& s) {
    f.Latitude = float(std::fabs(s.latitude) * 60.0 / 0.6014019);
    f.Longitude = float(std::fabs(s.longitude) * 60.0 / 0.6000377);
    f.Speed = float(s.speed / 1.15078);  // knots
    f.Year %= 100;                       // a two-digit year is what tells this form apart
}

void encodeFixedPointForm(RMCINFO& f, const RouteSample& s) {
    f.Latitude = std::bit_cast<float>(int32_t(std::lround(s.latitude * 1e7)));
    f.Longitude = std::bit_cast<float>(int32_t(std::lround(s.longitude * 1e7)));
    f.Speed = std::bit_cast<float>(uint32_t(std::lround(s.speed * 160.93 / 3.6)));  // cm/s
}

using FormEncoder = void (*)(RMCINFO&, const RouteSample&);
static_assert(int(GPSRecordForm::MP4) == 0 && int(GPSRecordForm::Scaled) == 1 && int(GPSRecordForm::FixedPoint) == 2);
constexpr FormEncoder kEncoders[] = {
    encodeMP4Form,         // GPSRecordForm::MP4
    encodeScaledForm,      // GPSRecordForm::Scaled
    encodeFixedPointForm,  // GPSRecordForm::FixedPoint
};

}  // namespace

GPSDATA makeRawRecord(const RouteSample& sample, GPSRecordForm form) {
    GPSDATA record;
    copyText(record.IQVer, "DTCAM-FW 2.4.1");
    copyText(record.IQBuildDate, "2025-09-30");

    const CivilTime clock = fromClockSeconds(sample.time);
    RMCINFO& f = record.rmcinfo;
    f.Hour = uint32_t(clock.hour);
    f.Minute = uint32_t(clock.minute);
    f.Second = uint32_t(clock.second);
    f.Year = uint32_t(clock.year);
    f.Month = uint32_t(clock.month);
    f.Day = uint32_t(clock.day);
    f.Status = 'A';  // a valid fix
    f.NSInd = sample.latitude < 0 ? 'S' : 'N';
    f.EWInd = sample.longitude < 0 ? 'W' : 'E';
    f.Angle = float(sample.heading);
    kEncoders[std::size_t(form)](f, sample);
    return record;
}
