#include "MovieDuration.h"

#include "BigEndian.h"
#include "GPSDataLoader.h"

#include <array>
#include <cstdint>

namespace {

uint64_t readU64BE(const uint8_t* p) { return uint64_t(readU32BE(p)) << 32 | readU32BE(p + 4); }

}  // namespace

std::optional<double> readMovieDuration(SeekableFile& file) {
    const FileRange moov = GPSDataLoader::loadBox("moov", file, 0);
    if (!moov.found()) return std::nullopt;
    const FileRange mvhd = GPSDataLoader::loadBox("mvhd", file, moov.location);
    if (!mvhd.found()) return std::nullopt;
    // Version 0: version and flags, creation and modification times, time scale and duration in
    // 32 bits each; version 1 has 64-bit times and duration.
    std::array<uint8_t, 32> header{};
    file.seek(mvhd.location);
    const std::size_t got = file.read(header);
    if (got < 20) return std::nullopt;
    uint32_t timescale = 0;
    uint64_t duration = 0;
    if (header[0] == 1) {
        if (got < 32) return std::nullopt;
        timescale = readU32BE(&header[20]);
        duration = readU64BE(&header[24]);
    } else {
        timescale = readU32BE(&header[12]);
        duration = readU32BE(&header[16]);
    }
    // All ones means "unknown" in either version.
    if (timescale == 0 || duration == UINT64_MAX || (header[0] != 1 && duration == UINT32_MAX)) return std::nullopt;
    return double(duration) / double(timescale);
}

std::optional<double> readMovieDuration(const std::filesystem::path& url) {
    const std::unique_ptr<PosixFile> file = PosixFile::open(url);
    if (!file) return std::nullopt;
    return readMovieDuration(*file);
}
