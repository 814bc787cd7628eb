#pragma once
// The GPS positions exiftool reads from a movie, for the tests that cross-check the loader with it.

#include "RunCommand.h"

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

inline bool haveExiftool() { return runCommand("exiftool -ver >/dev/null 2>&1").status == 0; }

struct ExiftoolFixes {
    std::vector<double> latitudes, longitudes, speeds;
};

// Every GPS position exiftool extracts from a file (every block, payload or sample), in its units:
// degrees, and the speed as the format stores it (m/s from GPMF, km/h from knots elsewhere).
inline ExiftoolFixes exiftoolFixes(const std::filesystem::path& file) {
    const CommandResult run = runCommand("exiftool -ee -n -G3 -a -s -GPSLatitude -GPSLongitude -GPSSpeed " +
                                         quoted(file.string()) + " 2>/dev/null");
    ExiftoolFixes found;
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string group, name, colon;
        double value = 0;
        if (!(words >> group >> name >> colon >> value)) continue;
        if (name == "GPSLatitude") found.latitudes.push_back(value);
        if (name == "GPSLongitude") found.longitudes.push_back(value);
        if (name == "GPSSpeed") found.speeds.push_back(value);
    }
    return found;
}
