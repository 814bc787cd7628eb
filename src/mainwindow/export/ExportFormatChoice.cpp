#include "ExportFormatChoice.h"

#include <algorithm>

namespace {

constexpr ExportFormatChoice kChoices[] = {
    {"gpx", "GPX 1.1 (*.gpx)", "gpx"},
    {"kml", "KML 2.2 (*.kml)", "kml"},
    {"geojson", "GeoJSON (*.geojson)", "geojson"},
    {"csv", "CSV (*.csv)", "csv"},
};

}  // namespace

std::span<const ExportFormatChoice> exportFormatChoices() { return kChoices; }

const ExportFormatChoice& exportChoiceOfFormat(const std::optional<std::string>& format) {
    const auto found = std::find_if(std::begin(kChoices), std::end(kChoices),
                                    [&](const ExportFormatChoice& choice) { return format && choice.format == *format; });
    return found != std::end(kChoices) ? *found : kChoices[0];
}

const ExportFormatChoice* exportChoiceOfFilter(std::string_view filter) {
    const auto found = std::find_if(std::begin(kChoices), std::end(kChoices),
                                    [&](const ExportFormatChoice& choice) { return choice.filter == filter; });
    return found != std::end(kChoices) ? found : nullptr;
}
