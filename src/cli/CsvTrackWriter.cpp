#include "CsvTrackWriter.h"

#include "SampleTime.h"

#include <ostream>

namespace {

struct Column {
    std::string_view header;
    bool namesUnit;  // the header says the unit, so a file read later still tells what it holds
    std::string (*value)(const GPSData& sample, SpeedUnit unit);
};

constexpr Column kColumns[] = {
    {"datetime", false, [](const GPSData& s, SpeedUnit) { return isoDateTime(s.data().rmcinfo).value_or(""); }},
    {"date", false, [](const GPSData& s, SpeedUnit) { return s.DateText(); }},
    {"time", false, [](const GPSData& s, SpeedUnit) { return s.TimeText(); }},
    {"latitude", false, [](const GPSData& s, SpeedUnit) { return s.LatitudeText(); }},
    {"longitude", false, [](const GPSData& s, SpeedUnit) { return s.LongitudeText(); }},
    {"speed", true, [](const GPSData& s, SpeedUnit unit) { return speedTextIn(unit, s); }},
};

}  // namespace

std::string CsvTrackWriter::field(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    quoted += '"';
    return quoted;
}

void CsvTrackWriter::begin() {
    std::string row = severalFiles_ ? "file" : "";
    for (const Column& column : kColumns) {
        if (!row.empty()) row += ',';
        row += column.header;
        if (column.namesUnit) row += unit_ == SpeedUnit::KMH ? "_kmh" : "_mph";
    }
    out_ << row << '\n';
}

void CsvTrackWriter::file(const NamedTrack& named) {
    // File names are written as the bytes they are: CSV declares no encoding to keep to.
    const std::string fileField = severalFiles_ ? field(named.file) + "," : "";
    for (const GPSData& sample : named.track.samples) {
        std::string row = fileField;
        for (const Column& column : kColumns) {
            if (&column != kColumns) row += ',';
            row += field(column.value(sample, unit_));
        }
        out_ << row << '\n';
    }
}

void CsvTrackWriter::end() {}
