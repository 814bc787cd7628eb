#pragma once
// What a saved snapshot records about its moment: the GPS sample on screen (speed in the chosen
// unit, place, date and time) and the movie and time the frame comes from. It gives the PNG's
// text chunks and the items of the stamp drawn across the picture.

#include "PngEncoder.h"
#include "SnapshotStamp.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

class GPSData;

class SnapshotFacts {
public:
    // A sample without a place on the globe (an empty lead-in, 0/0) counts as no sample, as it
    // leaves the read-outs' place commands disabled. kilometresPerHour chooses the speed's unit.
    SnapshotFacts(const std::optional<GPSData>& sample, bool kilometresPerHour, std::filesystem::path source,
                  double seconds);

    bool hasSample() const { return sample_.has_value(); }

    // Software, Source and Position always; Speed, Latitude, Longitude and DateTime (ISO 8601,
    // the camera's local time) with a sample. Numbers are written with a full stop whatever the
    // locale.
    std::vector<PngText> textChunks() const;
    // "63" with its unit "KM/H", "LAT 48.85837", "LON -2.29448", "2024-05-01 12:34:56"; empty
    // without a sample.
    std::vector<StampItem> stampItems() const;

private:
    struct Sample {
        std::optional<double> speed;
        std::string unit;
        float latitude = 0;  // as the track holds them
        float longitude = 0;
        std::optional<std::string> date;  // 2024-05-01
        std::optional<std::string> time;  // 12:34:56
    };
    std::optional<Sample> sample_;
    std::filesystem::path source_;
    double seconds_ = 0;
};
