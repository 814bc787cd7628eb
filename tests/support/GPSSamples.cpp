#include "GPSSamples.h"

#include <bit>
#include <tuple>

GPSData fixedPointSample(int32_t latitude, int32_t longitude, uint32_t centimetresPerSecond, RecordTime time) {
    GPSDATA raw;
    RMCINFO& f = raw.rmcinfo;
    std::tie(f.Year, f.Month, f.Day, f.Hour, f.Minute, f.Second) =
        std::tie(time.year, time.month, time.day, time.hour, time.minute, time.second);
    f.Latitude = std::bit_cast<float>(latitude);
    f.Longitude = std::bit_cast<float>(longitude);
    f.Speed = std::bit_cast<float>(centimetresPerSecond);
    GPSData sample;
    sample.SetData(raw, false);
    return sample;
}

GPSData scaledSample(float latitude, float longitude, float speed, char ns, char ew) {
    GPSDATA raw;
    RMCINFO& f = raw.rmcinfo;
    std::tie(f.Year, f.Month, f.Day, f.NSInd, f.EWInd) = std::tuple(16, 1, 2, ns, ew);
    std::tie(f.Latitude, f.Longitude, f.Speed) = std::tie(latitude, longitude, speed);
    GPSData sample;
    sample.SetData(raw, false);
    return sample;
}
