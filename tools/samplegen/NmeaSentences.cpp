#include "NmeaSentences.h"

#include "CivilTime.h"

#include <cmath>
#include <cstdio>

namespace {

// ddmm.mmmm (or dddmm.mmmm), rounded as a whole so that minutes never read 60.
std::string angle(double degrees, int degreeDigits) {
    const long long tenThousandthsOfMinute = std::llround(std::fabs(degrees) * 60.0 * 1e4);
    char out[32];
    std::snprintf(out, sizeof out, "%0*lld%02lld.%04lld", degreeDigits, tenThousandthsOfMinute / 600000,
                  tenThousandthsOfMinute / 10000 % 60, tenThousandthsOfMinute % 10000);
    return out;
}

std::string timeOfDay(double utcSeconds) {
    const double whole = std::floor(utcSeconds);
    const CivilTime t = fromClockSeconds(int64_t(whole));
    char out[32];
    std::snprintf(out, sizeof out, "%02d%02d%02d.%02d", t.hour, t.minute, t.second,
                  int(std::lround((utcSeconds - whole) * 100)) % 100);
    return out;
}

std::string position(const RouteSample& at) {
    return angle(at.latitude, 2) + (at.latitude < 0 ? ",S," : ",N,") + angle(at.longitude, 3) +
           (at.longitude < 0 ? ",W" : ",E");
}

}  // namespace

std::string nmeaSentence(const std::string& body) {
    unsigned checksum = 0;
    for (char c : body) checksum ^= uint8_t(c);
    char tail[8];
    std::snprintf(tail, sizeof tail, "*%02X", checksum & 0xFF);
    return "$" + body + tail;
}

std::string rmcSentence(const RouteSample& at, double utcSeconds) {
    const CivilTime date = fromClockSeconds(int64_t(std::floor(utcSeconds)));
    char rest[64];
    std::snprintf(rest, sizeof rest, ",%.3f,%.1f,%02d%02d%02d,,,A",
                  at.speed /* knots, see TimedRoute.h */, at.heading, date.day,
                  date.month, date.year % 100);
    return nmeaSentence("GPRMC," + timeOfDay(utcSeconds) + ",A," + position(at) + rest);
}

std::string ggaSentence(const RouteSample& at, double utcSeconds) {
    return nmeaSentence("GPGGA," + timeOfDay(utcSeconds) + "," + position(at) + ",1,08,0.9,0.0,M,0.0,M,,");
}
