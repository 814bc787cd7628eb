#pragma once
// The recording time of a sample as an ISO 8601 date and time, for formats that carry one.

#include "GPSRecord.h"

#include <optional>
#include <string>

// "20YY-MM-DDThh:mm:ss" from the record's date and time as the player shows them (a two-digit
// year means 20YY), without a zone: the camera's clock says nothing about one. Absent when the
// fields do not form a calendar date and a time of day (an empty record, a broken clock).
std::optional<std::string> isoDateTime(const RMCINFO& fix);
