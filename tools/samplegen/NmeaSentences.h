#pragma once
// NMEA 0183 sentences as a GPS receiver sends them: "$GPRMC,...*hh" and "$GPGGA,...*hh" with
// valid checksums and no line end. Positions keep four decimals of minutes (about 0.2 m), speed
// three decimals of knots.

#include "Route.h"

#include <string>

// "$" + body + "*hh", hh the XOR of the body's bytes.
std::string nmeaSentence(const std::string& body);

// Recommended minimum data: UTC time and date, position, speed over ground, course.
std::string rmcSentence(const RouteSample& at, double utcSeconds);
// Fix data: UTC time, position, a GPS fix with 8 satellites, altitude 0 m.
std::string ggaSentence(const RouteSample& at, double utcSeconds);
