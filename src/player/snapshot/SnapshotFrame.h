#pragma once
// A frame taken for a snapshot, with the movie it comes from and where in it.

#include "RgbImage.h"

#include <filesystem>

struct SnapshotFrame {
    RgbImage image;
    std::filesystem::path source;
    double seconds = 0;  // the playback time, counted from the movie's start
};
