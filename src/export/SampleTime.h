#pragma once
// The recording time of a sample as an ISO 8601 date and time, for formats that carry one.

#include "GPSRecord.h"

#include <optional>
#include <string>

// True when the record's date and time as the player shows them (a two-digit year means 20YY)
// form a calendar date and a time of day; an empty record or a broken clock does not.
bool hasCalendarTime(const RMCINFO& fix);

// "20YY-MM-DDThh:mm:ss", without a zone: the camera's clock says nothing about one. Appends
// nothing and returns false for a record without a calendar time.
bool appendIsoDateTime(std::string& out, const RMCINFO& fix);

std::optional<std::string> isoDateTime(const RMCINFO& fix);
