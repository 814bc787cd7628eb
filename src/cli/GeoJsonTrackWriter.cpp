#include "GeoJsonTrackWriter.h"

#include "JsonText.h"
#include "MapPosition.h"
#include "SampleTime.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

std::string position(const GPSData& sample) {
    return "[" + jsonNumber(sample.Longitude()) + ", " + jsonNumber(sample.Latitude()) + "]";
}

std::string jsonTime(const GPSData& sample) {
    const auto time = isoDateTime(sample.data().rmcinfo);
    return time ? jsonString(*time) : "null";
}

std::string jsonArray(const std::vector<const GPSData*>& samples,
                      const std::function<std::string(const GPSData&)>& item) {
    std::string array = "[";
    for (const GPSData* sample : samples) {
        if (array.size() > 1) array += ", ";
        array += item(*sample);
    }
    return array + "]";
}

std::string geometry(const std::vector<const GPSData*>& drawn) {
    if (drawn.empty()) return "null";
    if (drawn.size() == 1) return "{\"type\": \"Point\", \"coordinates\": " + position(*drawn.front()) + "}";
    std::string line = "{\"type\": \"LineString\", \"coordinates\": [";
    for (std::size_t i = 0; i < drawn.size(); ++i) line += (i == 0 ? "\n  " : ",\n  ") + position(*drawn[i]);
    return line + "\n]}";
}

}  // namespace

void GeoJsonTrackWriter::begin() { out_ << "{\"type\": \"FeatureCollection\", \"features\": ["; }

void GeoJsonTrackWriter::file(const NamedTrack& named) {
    std::vector<const GPSData*> drawn;
    for (const GPSData& sample : named.track.samples)
        if (hasMapPosition(sample)) drawn.push_back(&sample);

    out_ << (written_++ > 0 ? ",\n" : "\n") << "{\"type\": \"Feature\", \"properties\": {"
         << "\"file\": " << jsonString(named.file) << ", \"speedUnit\": " << jsonString(speedUnitName(unit_))
         << ", \"maxSpeed\": " << jsonNumber(maximumIn(unit_, named.track.maxSpeed))
         << ", \"times\": " << jsonArray(drawn, jsonTime)
         << ", \"speeds\": " << jsonArray(drawn, [this](const GPSData& s) { return jsonNumber(speedIn(unit_, s)); })
         << "},\n \"geometry\": " << geometry(drawn) << "}";
}

void GeoJsonTrackWriter::end() { out_ << (written_ > 0 ? "\n]}\n" : "]}\n"); }
