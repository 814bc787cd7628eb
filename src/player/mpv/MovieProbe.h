#pragma once
// What libavformat says about a movie file before mpv has opened it: whether it is a movie at all
// (by the same test as playlist validation), and its duration, so that a new player knows its
// duration at once.

#include "MediaTime.h"

#include <filesystem>
#include <optional>

struct MovieInfo {
    // In microseconds; invalid when the container does not say.
    MediaTime duration;
    bool hasVideo = false;
    bool hasAudio = false;
    int width = 0;
    int height = 0;
};

// Microseconds per second: the time scale of every time the mpv player reports.
inline constexpr int32_t kMicrosecondsPerSecond = 1'000'000;

// Nothing when the file is not a movie (MovieFile.h): every answer has hasVideo set.
std::optional<MovieInfo> probeMovie(const std::filesystem::path& file);
