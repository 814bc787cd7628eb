#include "MovieDuration.h"

#include "BigEndian.h"
#include "GPSDataLoader.h"

#include <array>
#include <cstdint>

std::optional<MovieHeader> readMovieHeader(SeekableFile& file) {
    const FileRange moov = GPSDataLoader::loadBox("moov", file, 0);
    if (!moov.found()) return std::nullopt;
    const FileRange mvhd = GPSDataLoader::loadBox("mvhd", file, moov.location);
    if (!mvhd.found()) return std::nullopt;
    // Version 0: version and flags, creation and modification times, time scale and duration in
    // 32 bits each; version 1 has 64-bit times and duration.
    std::array<uint8_t, 32> header{};
    file.seek(mvhd.location);
    const std::size_t got = file.read(header);
    if (got < 20 || (header[0] == 1 && got < 32)) return std::nullopt;
    const bool wide = header[0] == 1;
    const uint64_t created = wide ? readU64BE(&header[4]) : readU32BE(&header[4]);
    const uint32_t timescale = readU32BE(&header[wide ? 20 : 12]);
    const uint64_t duration = wide ? readU64BE(&header[24]) : readU32BE(&header[16]);
    MovieHeader result;
    // All ones means "unknown" in either version.
    const bool unknown = duration == UINT64_MAX || (!wide && duration == UINT32_MAX);
    if (timescale != 0 && !unknown) result.durationSeconds = double(duration) / double(timescale);
    constexpr uint64_t kSeconds1904To1970 = 2082844800;
    if (created > kSeconds1904To1970 && created < (uint64_t(1) << 40))
        result.creationSeconds = int64_t(created - kSeconds1904To1970);
    return result;
}

std::optional<double> readMovieDuration(SeekableFile& file) {
    const auto header = readMovieHeader(file);
    return header ? header->durationSeconds : std::nullopt;
}

std::optional<double> readMovieDuration(const std::filesystem::path& url) {
    const std::unique_ptr<PosixFile> file = PosixFile::open(url);
    if (!file) return std::nullopt;
    return readMovieDuration(*file);
}
