#pragma once
// When a GPS sample was recorded, on one continuous scale of whole seconds that runs on across
// midnight, month ends and new years. The camera writes its wall-clock date and time without a
// zone, so the scale is that wall clock read as if it were UTC: differences between samples are
// right, whatever zone the viewer is in.

#include "GPSRecord.h"

#include <cstdint>
#include <optional>

// Seconds since 1970-01-01 00:00:00 of the sample's recorded date and time (years below 100 are
// 20xx). Absent for a date no calendar has (the empty sample's all-zero fields among them).
std::optional<int64_t> sampleClockSeconds(const RMCINFO& fields);
