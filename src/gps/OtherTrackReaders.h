#pragma once
// The readers of the ways of storing a track other than the camera blocks, tried in this order
// after the block reader has found nothing: a GPMF metadata track in the movie, NMEA sentences in
// a box of the movie, then NMEA or GPX files beside it with the same base name. Each says from the file's own boxes and the sidecars'
// contents, never from names alone, whether it can read the clip.

#include "GPSDataLoader.h"

#include <filesystem>
#include <optional>

// The track of the first reader that claims the movie; nothing when none does.
std::optional<GPSTrack> readOtherTrack(SeekableFile& movie, const std::filesystem::path& url);

// The one-a-second samples, every fix and the largest speed of a track read as fixes.
GPSTrack trackFromFixes(std::vector<GPSFix> fixes, double durationSeconds, GPSLayout layout);
