#pragma once
// Shared set-up of the player's tests: fixture movies and a settings store in a temporary folder,
// so that no test reads or writes the user's own settings.

#include "GPSUtils.h"

#include <QTemporaryDir>

#include <filesystem>
#include <memory>

inline std::filesystem::path fixtureMovie(const char* name) {
    return std::filesystem::path(DASHTRACK_FIXTURE_DIR) / name;
}

// A copy of a movie in a temporary folder under a name holding the byte 0xFF, which is not UTF-8.
// Removed by name: QTemporaryDir, going through QString, could not find it.
class NonUtf8MovieCopy {
public:
    explicit NonUtf8MovieCopy(const std::filesystem::path& source);
    ~NonUtf8MovieCopy();
    NonUtf8MovieCopy(const NonUtf8MovieCopy&) = delete;
    NonUtf8MovieCopy& operator=(const NonUtf8MovieCopy&) = delete;

    // Empty when the copy failed.
    const std::filesystem::path& path() const { return path_; }

private:
    QTemporaryDir dir_;
    std::filesystem::path path_;
};

class TempSettings {
public:
    TempSettings();
    GPSUtils& utils() { return *utils_; }

private:
    QTemporaryDir dir_;
    std::unique_ptr<GPSUtils> utils_;
};
