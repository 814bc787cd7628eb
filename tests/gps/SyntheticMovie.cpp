#include "SyntheticMovie.h"

#include <bit>

GPSDATA fixedPointRecord(int32_t latitude, int32_t longitude, uint32_t speed, uint32_t second) {
    GPSDATA r;
    RMCINFO& f = r.rmcinfo;
    f.Year = 2016;
    f.Month = 5;
    f.Day = 17;
    f.Hour = 8;
    f.Minute = 30;
    f.Second = second;
    f.Latitude = std::bit_cast<float>(latitude);
    f.Longitude = std::bit_cast<float>(longitude);
    f.Speed = std::bit_cast<float>(speed);
    return r;
}

GPSDATA mp4Record(float latitude, char ns, float longitude, char ew, float speed) {
    GPSDATA r;
    RMCINFO& f = r.rmcinfo;
    f.Year = 16;
    f.Month = 5;
    f.Day = 17;
    f.Hour = 8;
    f.NSInd = ns;
    f.EWInd = ew;
    f.Latitude = latitude;
    f.Longitude = longitude;
    f.Speed = speed;
    return r;
}
