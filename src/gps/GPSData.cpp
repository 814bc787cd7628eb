#include "GPSData.h"

#include "GPSUtils.h"
#include "HourShift.h"
#include "PaddedNumberText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <limits>

namespace {

constexpr float kKnotsFactor = 1.852f;  // the shown KM/H is the stored speed times this
constexpr float kSpeedCap = 200.0f;

// printf's "%0W.Pf" text; the separator is a full stop whatever the locale.
std::string fixedText(double value, int width, int precision) {
    std::array<char, kPaddedNumberTextMax> text;
    return std::string(text.data(), writeZeroPaddedFixed(text, value, width, precision));
}

// printf's "%02d%c%02d%c%02d" of three fields; a field past INT_MAX shows negative, as there.
std::string formatTriple(uint32_t a, uint32_t b, uint32_t c, char separator) {
    std::string text;
    std::array<char, kPaddedNumberTextMax> field;
    for (const uint32_t value : {a, b, c}) {
        if (!text.empty()) text += separator;
        text.append(field.data(), writeZeroPaddedInt(field, int(value), 2));
    }
    return text;
}

float signFrom(char indicator, char positive) { return indicator == positive ? 1.0f : -1.0f; }

// A value only where it survives the narrowing: a float past its range would export as "inf".
std::optional<float> finiteFloat(std::optional<double> value) {
    if (!value || !(std::fabs(*value) <= double(std::numeric_limits<float>::max()))) return std::nullopt;
    return float(*value);
}

bool useKMH() { return GPSUtils::sharedUtils().unitType() != 0; }

void normaliseMP4Form(RMCINFO& f) {
    f.Latitude = std::fabs((f.Latitude + -187.98216f) / 3.0f) * signFrom(f.NSInd, 'N');
    f.Longitude = std::fabs((f.Longitude + -2199.1987f) * 0.5f) * signFrom(f.EWInd, 'E');
    f.Speed = std::fmin(std::fabs(f.Speed), kSpeedCap);

    // The camera's clock runs on UTC; a whole number of hours from the longitude approximates
    // the local time where the car was.
    if (!std::isfinite(f.Longitude)) return;
    const int wholeDegrees = int(std::trunc(std::clamp(f.Longitude, -1e6f, 1e6f)));
    if (wholeDegrees >= 15 || wholeDegrees <= -15) shiftRecordTimeByHours(f, wholeDegrees / 15);
}

void normaliseScaledForm(RMCINFO& f) {
    f.Latitude = f.Latitude * 0.6014019f / 60.0f * signFrom(f.NSInd, 'N');
    f.Longitude = f.Longitude * 0.6000377f / 60.0f * signFrom(f.EWInd, 'E');
    f.Speed = f.Speed * 1.15078f;
}

void normaliseFixedPointForm(RMCINFO& f) {
    f.Latitude = float(std::bit_cast<int32_t>(f.Latitude)) / 10000000.0f;
    f.Longitude = float(std::bit_cast<int32_t>(f.Longitude)) / 10000000.0f;
    const float perHour = float(std::bit_cast<uint32_t>(f.Speed)) / 160.93f;
    f.Speed = float(std::fmin(double(perHour) * 3.6, double(kSpeedCap)));
}

}  // namespace

GPSRecordForm GPSData::formOf(const GPSDATA& raw, bool isMP4) {
    if (isMP4) return GPSRecordForm::MP4;
    return raw.rmcinfo.Year <= 1999 ? GPSRecordForm::Scaled : GPSRecordForm::FixedPoint;
}

void GPSData::SetData(GPSDATA record, bool isMP4) {
    data_ = record;
    RMCINFO& f = data_.rmcinfo;
    switch (formOf(record, isMP4)) {
        case GPSRecordForm::MP4:
            normaliseMP4Form(f);
            break;
        case GPSRecordForm::Scaled:
            normaliseScaledForm(f);
            break;
        case GPSRecordForm::FixedPoint:
            normaliseFixedPointForm(f);
            break;
        default:  // formOf never gives the other layouts: they are read as fixes
            break;
    }
    if (f.Year >= 2000) f.Year -= 2000;
}

GPSData GPSData::fromFix(const GPSFix& fix) {
    GPSData sample;
    RMCINFO& f = sample.data_.rmcinfo;
    f.Status = fix.quality == GPSFix::Quality::NoFix ? 'V' : 'A';
    f.NSInd = fix.latitude < 0 ? 'S' : 'N';
    f.EWInd = fix.longitude < 0 ? 'W' : 'E';
    f.Latitude = float(fix.latitude);
    f.Longitude = float(fix.longitude);
    // Metres a second to knots: the stored speed's unit, which the KM/H read-out multiplies by 1.852.
    const double knots = fix.speedMetresPerSecond.value_or(0.0) * 3600.0 / 1852.0;
    f.Speed = std::isfinite(knots) ? float(std::clamp(knots, 0.0, double(kSpeedCap))) : 0.0f;
    f.Angle = float(fix.headingDegrees.value_or(0.0));
    sample.heading_ = finiteFloat(fix.headingDegrees);
    sample.altitudeMetres_ = finiteFloat(fix.altitudeMetres);
    sample.fixQuality_ = fix.quality;
    if (fix.clockSeconds && std::isfinite(*fix.clockSeconds) && std::fabs(*fix.clockSeconds) < 1e11) {
        using namespace std::chrono;
        const sys_seconds instant{seconds{int64_t(std::floor(*fix.clockSeconds))}};
        const sys_days day = floor<days>(instant);
        const year_month_day date{day};
        const hh_mm_ss clock{instant - day};
        const int year = int(date.year());
        if (year >= 2000 && year < 2100) {
            f.Year = uint32_t(year - 2000);
            f.Month = unsigned(date.month());
            f.Day = unsigned(date.day());
            f.Hour = uint32_t(clock.hours().count());
            f.Minute = uint32_t(clock.minutes().count());
            f.Second = uint32_t(clock.seconds().count());
        }
    }
    return sample;
}

float GPSData::Speed() const { return useKMH() ? SpeedKMH() : SpeedMPH(); }
float GPSData::SpeedMPH() const { return data_.rmcinfo.Speed; }
float GPSData::SpeedKMH() const { return data_.rmcinfo.Speed * kKnotsFactor; }
float GPSData::Latitude() const { return data_.rmcinfo.Latitude; }
float GPSData::Longitude() const { return data_.rmcinfo.Longitude; }

std::string GPSData::SpeedText() const { return useKMH() ? SpeedKMHText() : SpeedMPHText(); }
std::string GPSData::SpeedMPHText() const { return fixedText(double(SpeedMPH()), 5, 2); }
std::string GPSData::SpeedKMHText() const { return fixedText(double(SpeedKMH()), 5, 2); }
std::string GPSData::LatitudeText() const { return fixedText(double(Latitude()), 8, 5); }
std::string GPSData::LongitudeText() const { return fixedText(double(Longitude()), 8, 5); }

std::string GPSData::DateText() const {
    const RMCINFO& f = data_.rmcinfo;
    return formatTriple(f.Month, f.Day, f.Year, '/');
}

std::string GPSData::TimeText() const {
    const RMCINFO& f = data_.rmcinfo;
    return formatTriple(f.Hour, f.Minute, f.Second, ':');
}

void GPSData::shiftClockByMinutes(int minutes) { shiftRecordTimeByMinutes(data_.rmcinfo, minutes); }
