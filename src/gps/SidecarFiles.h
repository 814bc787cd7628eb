#pragma once
// Track files that loggers and some cameras write beside a movie, under the movie's base name:
// clip.MP4 -> clip.nmea, clip.NMEA, clip.log, clip.LOG, clip.txt, clip.TXT, clip.gpx, clip.GPX.
// A .txt is taken only when its first few KiB hold an RMC sentence ("GPRMC" or "GNRMC", with or
// without '$'), since a text file beside a clip is usually something else. Only regular files
// count, and no file is read past a fixed cap, whatever size it claims.

#include "GPSFix.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

enum class SidecarFormat { Nmea, Gpx };

struct SidecarFile {
    std::filesystem::path path;
    SidecarFormat format = SidecarFormat::Nmea;
    friend bool operator==(const SidecarFile&, const SidecarFile&) = default;
};

// Hours of NMEA at ten sentences a second fit many times over.
inline constexpr std::size_t kMaxSidecarBytes = std::size_t(64) << 20;
// How much of a .txt is looked at for an RMC sentence.
inline constexpr std::size_t kSidecarSniffBytes = 4096;

// The sidecars of a movie in the order above; a file reached under two names (a case-insensitive
// file system) is listed once. Never throws.
std::vector<SidecarFile> findSidecarFiles(const std::filesystem::path& movie);

// The first maxBytes of a regular file at most; absent when it cannot be opened or is no regular
// file. Read in steps, so a file that shrinks or grows meanwhile gives what was there.
std::optional<std::string> readSidecarText(const std::filesystem::path& path, std::size_t maxBytes = kMaxSidecarBytes);

// The fixes of a sidecar, by its format; NMEA checksums that are present must match. Empty when the
// file cannot be read.
std::vector<GPSFix> readSidecarFixes(const SidecarFile& sidecar);
