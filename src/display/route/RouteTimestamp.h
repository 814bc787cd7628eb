#pragma once
// When a GPS sample was recorded, as the route orders and splits its points.

#include "GPSRecord.h"

#include <string>

// The sample's date as the intake log shows it: "yyyy-MM-dd hh:mm:ss AM|PM" on a 12-hour clock.
// Years below 100 are taken as 20xx; an hour past 23 still reads as hour mod 12, PM.
std::string routeDateText(const RMCINFO& fields);

// Seconds since 1970-01-01 00:00:00 UTC of the recorded date and time read as local time in the
// current time zone (TZ), exactly as reading routeDateText back on a 12-hour clock would give:
// "00 AM" is the hour after midnight and "00 PM" the hour after noon. A date no calendar has
// (month 0 or past 12, day 0 or past the month's end, minute or second past 59, a year of five or
// more digits) gives 0.
double routeTimestamp(const RMCINFO& fields);
