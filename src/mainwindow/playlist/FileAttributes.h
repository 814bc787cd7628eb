#pragma once
// What the file system says about a movie file: the two facts the playlist shows.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

struct FileAttributes {
    uint64_t size;
    std::chrono::system_clock::time_point creationTime;
};

// Absent when the file cannot be examined (missing, no permission). Symbolic links are followed,
// so a link to a clip shows the clip's size and time.
std::optional<FileAttributes> readFileAttributes(const std::filesystem::path& file);
