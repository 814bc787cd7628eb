#pragma once
// Shared helpers of the playlist tests: instants in local time and a scratch folder.

#include "FileAttributes.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

// The instant of a local wall-clock time under the current TZ.
inline std::chrono::system_clock::time_point localTime(int year, int month, int day, int hour, int minute, int second) {
    std::tm fields{};
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&fields));
}

inline FileAttributes madeAt(int hour, int minute = 0, int second = 0, int day = 3) {
    return {.size = 1024, .creationTime = localTime(2016, 5, day, hour, minute, second)};
}

class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "dashtrack-playlist-XXXXXX").string();
        if (::mkdtemp(pattern.data())) path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path write(const std::string& name, std::size_t bytes = 0) const {
        std::ofstream(path_ / name, std::ios::binary) << std::string(bytes, 'x');
        return path_ / name;
    }

private:
    std::filesystem::path path_;
};
