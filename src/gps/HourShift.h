#pragma once
// Wall-clock arithmetic in the user's calendar and time zone, for records whose camera clock is UTC.

#include "GPSRecord.h"

// Moves the record's date and time by whole hours, as local wall-clock time: carries into days,
// months and years follow the calendar, and a daylight-saving change in between shows in the result.
// Year becomes four digits. A date and time that do not form a valid calendar date stay unchanged.
void shiftRecordTimeByHours(RMCINFO& fix, int hours);
