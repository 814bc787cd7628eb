#pragma once
// Instants in local time and scratch folders, for the playlist tests.

#include "FileAttributes.h"

#include <QTemporaryDir>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>

inline std::chrono::system_clock::time_point localTime(int day, int hour, int minute = 0, int second = 0) {
    std::tm fields{};  // May 2016
    fields.tm_year = 116;
    fields.tm_mon = 4;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&fields));
}

inline FileAttributes madeAt(int hour, int minute = 0, int day = 3) {
    return {.size = 1024, .creationTime = localTime(day, hour, minute)};
}

// A folder removed with the test.
class ScratchFolder {
public:
    std::filesystem::path path() const { return folder_.path().toStdString(); }
    std::filesystem::path write(const std::string& name, std::size_t bytes = 0) const {
        std::ofstream(path() / name, std::ios::binary) << std::string(bytes, 'x');
        return path() / name;
    }

private:
    QTemporaryDir folder_;
};
