#include "TrackFormats.h"

#include "CsvTrackWriter.h"
#include "GeoJsonTrackWriter.h"
#include "GpxTrackWriter.h"
#include "JsonTrackWriter.h"
#include "KmlTrackWriter.h"

#include <algorithm>

namespace {

constexpr TrackFormat kFormats[] = {
    {"json", "every value and read-out text of each sample (the default)",
     [](std::ostream& out, const ExportOptions& o) -> std::unique_ptr<TrackWriter> {
         return std::make_unique<JsonTrackWriter>(out, o.severalFiles);
     }},
    {"csv", "one row per sample, the read-out texts",
     [](std::ostream& out, const ExportOptions& o) -> std::unique_ptr<TrackWriter> {
         return std::make_unique<CsvTrackWriter>(out, o.unit, o.severalFiles, o.segmented);
     }},
    {"gpx", "GPX 1.1, one track per file",
     [](std::ostream& out, const ExportOptions& o) -> std::unique_ptr<TrackWriter> {
         return std::make_unique<GpxTrackWriter>(out, o.unit);
     }},
    {"geojson", "GeoJSON, one feature per file",
     [](std::ostream& out, const ExportOptions& o) -> std::unique_ptr<TrackWriter> {
         return std::make_unique<GeoJsonTrackWriter>(out, o.unit);
     }},
    {"kml", "KML 2.2, one placemark per file",
     [](std::ostream& out, const ExportOptions& o) -> std::unique_ptr<TrackWriter> {
         return std::make_unique<KmlTrackWriter>(out, o.unit);
     }},
};

}  // namespace

std::span<const TrackFormat> trackFormats() { return kFormats; }

const TrackFormat* findTrackFormat(std::string_view name) {
    const auto found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                    [&](const TrackFormat& format) { return format.name == name; });
    return found == std::end(kFormats) ? nullptr : found;
}
