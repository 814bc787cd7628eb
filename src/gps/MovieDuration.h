#pragma once
// A movie's length as its container states it: the movie header box ("mvhd" in "moov"), read
// without a media library, so that a folder of clips can be timed in a few milliseconds.

#include "SeekableFile.h"

#include <filesystem>
#include <optional>

// Seconds; absent when there is no movie header or it states no time scale.
std::optional<double> readMovieDuration(SeekableFile& file);
std::optional<double> readMovieDuration(const std::filesystem::path& url);
