#include "CsvTrackWriter.h"

#include "SampleTime.h"

namespace {

struct Column {
    std::string_view header;
    bool namesUnit;  // the header says the unit, so a file read later still tells what it holds
    void (*append)(std::string& out, const GPSData& sample, SpeedUnit unit);  // the text before quoting
};

constexpr Column kColumns[] = {
    {"datetime", false, [](std::string& o, const GPSData& s, SpeedUnit) { appendIsoDateTime(o, s.data().rmcinfo); }},
    {"date", false, [](std::string& o, const GPSData& s, SpeedUnit) { o += s.DateText(); }},
    {"time", false, [](std::string& o, const GPSData& s, SpeedUnit) { o += s.TimeText(); }},
    {"latitude", false, [](std::string& o, const GPSData& s, SpeedUnit) { o += s.LatitudeText(); }},
    {"longitude", false, [](std::string& o, const GPSData& s, SpeedUnit) { o += s.LongitudeText(); }},
    {"speed", true, [](std::string& o, const GPSData& s, SpeedUnit unit) { o += speedTextIn(unit, s); }},
};

}  // namespace

void CsvTrackWriter::appendField(std::string& out, std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    for (const char c : text) {
        if (c == '"') out += '"';
        out += c;
    }
    out += '"';
}

void CsvTrackWriter::begin() {
    std::string& row = out_.text();
    if (segmented_) row += "track,segment,";
    if (severalFiles_) row += "file";
    for (const Column& column : kColumns) {
        if (severalFiles_ || &column != kColumns) row += ',';
        row += column.header;
        if (column.namesUnit) row += unit_ == SpeedUnit::KMH ? "_kmh" : "_mph";
    }
    row += '\n';
}

void CsvTrackWriter::file(const NamedTrack& named) {
    if (segmented_) {
        segmentedTrack(named.file, {&named, 1});
        return;
    }
    // File names are written as the bytes they are: CSV declares no encoding to keep to.
    std::string leading;
    if (severalFiles_) {
        appendField(leading, named.file);
        leading += ',';
    }
    writeRows(named.track, leading);
}

void CsvTrackWriter::segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) {
    std::string trackField;
    appendField(trackField, name);
    for (std::size_t i = 0; i < segments.size(); ++i) {
        std::string leading = trackField + ',' + std::to_string(i + 1) + ',';
        appendField(leading, segments[i].file);
        leading += ',';
        writeRows(segments[i].track, leading);
    }
}

void CsvTrackWriter::writeRows(const GPSTrack& track, const std::string& leading) {
    std::string cell;
    for (const GPSData& sample : track.samples) {
        std::string& row = out_.text();
        row += leading;
        for (const Column& column : kColumns) {
            if (&column != kColumns) row += ',';
            cell.clear();
            column.append(cell, sample, unit_);
            appendField(row, cell);
        }
        row += '\n';
        out_.flushWhenFull();
    }
}

void CsvTrackWriter::end() { out_.flush(); }
