#pragma once
// A wall-clock date and time without a time zone, as a camera's clock shows it, and its
// conversion to a count of seconds (as if the clock ran on UTC) for arithmetic.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct CivilTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

// Seconds since 1970-01-01 00:00:00 of the same wall clock.
int64_t toClockSeconds(const CivilTime& time);
CivilTime fromClockSeconds(int64_t seconds);

// "YYYYMMDDhhmmss", as camera blocks and track samples write their clock.
std::string clockDigits(const CivilTime& time);

// "YYYY-MM-DDTHH:MM:SS" (a blank in place of the T is accepted). Absent when malformed or not
// a real calendar date.
std::optional<CivilTime> parseIsoDateTime(std::string_view text);

// The instant at which the local time zone's clock shows this wall-clock time (mktime), in
// seconds since the Unix epoch.
int64_t localInstant(const CivilTime& time);
