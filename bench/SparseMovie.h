#pragma once
// Writes an hour-long dash-camera movie of a realistic size as a sparse file: only the box headers,
// the tables and the GPS blocks take disk space, the media data is a hole.

#include <cstdint>
#include <filesystem>

enum class SparseLayout { Index, SoundChunk };

// One GPS block per second for `seconds` seconds, spread evenly over about `totalBytes`.
void writeSparseMovie(const std::filesystem::path& path, SparseLayout layout, uint32_t seconds, uint64_t totalBytes);
