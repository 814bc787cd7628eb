#pragma once
// A movie's length as its container states it: the movie header box ("mvhd" in "moov"), read
// without a media library, so that a folder of clips can be timed in a few milliseconds.

#include "SeekableFile.h"

#include <cstdint>
#include <filesystem>
#include <optional>

struct MovieHeader {
    std::optional<double> durationSeconds;  // absent when the header states no time scale
    // When the movie was made, seconds since 1970 (the header counts from 1904, in UTC by the
    // standard, though many cameras write their local time); absent when 0.
    std::optional<int64_t> creationSeconds;
};

// Absent when there is no movie header.
std::optional<MovieHeader> readMovieHeader(SeekableFile& file);

// Seconds; absent when there is no movie header or it states no time scale.
std::optional<double> readMovieDuration(SeekableFile& file);
std::optional<double> readMovieDuration(const std::filesystem::path& url);
