#pragma once
// Shared set-up of the movie view's tests: fixture movies and a settings store in a temporary
// folder, so that no test reads or writes the user's own settings.

#include "GPSUtils.h"

#include <QTemporaryDir>

#include <filesystem>
#include <memory>

inline std::filesystem::path fixtureMovie(const char* name) {
    return std::filesystem::path(DASHTRACK_FIXTURE_DIR) / name;
}

class TempSettings {
public:
    TempSettings();
    GPSUtils& utils() { return *utils_; }

private:
    QTemporaryDir dir_;
    std::unique_ptr<GPSUtils> utils_;
};
