#pragma once
// The GPS track of a saved segment: the samples of each piece's clip whose time falls in what was
// cut, one track segment per clip, and the wall time at which the segment starts.

#include "GPSData.h"
#include "SegmentCutter.h"
#include "TrackWriter.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

// A clip's track in the player's form: position 0 the empty lead-in, record k shown from second k.
// Shared with the clip catalog that holds it, not copied.
using ClipTrack = std::shared_ptr<const std::vector<GPSData>>;

// The recording's wall time (seconds since 1970, the camera's clock read as UTC) at a second of the
// clip, from the nearest dated record at or after it, else the last one before; absent without one.
std::optional<double> wallTimeAt(const std::vector<GPSData>& track, double clipSeconds);

// One named track per cut piece: the records k with cut.inSeconds <= k <= cut.outSeconds of the
// piece's clip. pieces, cuts and tracks go together, one entry each; a null track gives no points.
std::vector<NamedTrack> segmentTracks(std::span<const SegmentPiece> pieces, std::span<const CutPiece> cuts,
                                      std::span<const ClipTrack> tracks);
