#pragma once
// Wall-clock arithmetic in the user's calendar and time zone, for records whose camera clock is UTC.

#include "GPSRecord.h"

// Moves the record's date and time by whole hours, as local wall-clock time: carries into days,
// months and years follow the calendar, and a daylight-saving change in between shows in the result.
// Year becomes four digits. A date and time that do not form a valid calendar date stay unchanged.
void shiftRecordTimeByHours(RMCINFO& fix, int hours);

// Moves the record's date and time by minutes on the plain calendar, with no time zone: for a
// camera clock set to the wrong zone or never set. Days, months and years carry through month
// lengths and leap years. A two-digit year stays two digits while the result is in 2000-2099.
// A date and time that do not form a valid calendar date, or a result past year 9999 or before
// year 1, stay unchanged.
void shiftRecordTimeByMinutes(RMCINFO& fix, int minutes);
