#pragma once
// A clip's track as the exports write it, from what the window has read of the clip.

#include "ClipCatalog.h"
#include "GPSDataLoader.h"

#include <filesystem>

// The catalog's record as dashtrack-gps would load the file: the one-a-second records without the
// player's lead-in, or every fix where the format keeps several a second, and the records' maximum.
GPSTrack exportTrackOf(const ClipRecord& record);

// The one way the window's exports read a clip that the catalog has not read yet; it reads as
// the catalog does, clock correction (minutes) included, so the export shows the clip as the
// window does.
GPSTrack readClipForExport(const std::filesystem::path& file, int clockCorrectionMinutes = 0);
