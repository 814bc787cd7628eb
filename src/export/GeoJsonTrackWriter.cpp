#include "GeoJsonTrackWriter.h"

#include "JsonText.h"
#include "MapPosition.h"
#include "SampleTime.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

void appendPosition(std::string& out, const GPSData& sample) {
    out += '[';
    appendJsonNumber(out, sample.Longitude());
    out += ", ";
    appendJsonNumber(out, sample.Latitude());
    if (const auto altitude = sample.altitudeMetres()) {
        out += ", ";
        appendJsonNumber(out, *altitude);
    }
    out += ']';
}

void appendJsonTime(std::string& out, const GPSData& sample) {
    if (!hasCalendarTime(sample.data().rmcinfo)) {
        out += "null";
        return;
    }
    out += '"';
    appendIsoDateTime(out, sample.data().rmcinfo);  // digits and separators: nothing to escape
    out += '"';
}

// A JSON array of one item per drawn sample, on one line.
template <typename AppendItem>
void appendJsonArray(OutputBuffer& out, const std::vector<const GPSData*>& samples, AppendItem appendItem) {
    out << '[';
    for (const GPSData* sample : samples) {
        if (sample != samples.front()) out << ", ";
        appendItem(out.text(), *sample);
        out.flushWhenFull();
    }
    out << ']';
}

// The positions of a line, one a line.
void appendPositions(OutputBuffer& out, const std::vector<const GPSData*>& drawn) {
    for (const GPSData* sample : drawn) {
        out << (sample == drawn.front() ? "\n  " : ",\n  ");
        appendPosition(out.text(), *sample);
        out.flushWhenFull();
    }
}

void appendGeometry(OutputBuffer& out, const std::vector<const GPSData*>& drawn) {
    if (drawn.empty()) {
        out << "null";
        return;
    }
    if (drawn.size() == 1) {
        out << "{\"type\": \"Point\", \"coordinates\": ";
        appendPosition(out.text(), *drawn.front());
        out << '}';
        return;
    }
    out << "{\"type\": \"LineString\", \"coordinates\": [";
    appendPositions(out, drawn);
    out << "\n]}";
}

// The drawn samples of a track: those with a place on the map.
std::vector<const GPSData*> drawnSamples(const GPSTrack& track) {
    std::vector<const GPSData*> drawn;
    for (const GPSData& sample : track.samples)
        if (hasMapPosition(sample)) drawn.push_back(&sample);
    return drawn;
}

}  // namespace

void GeoJsonTrackWriter::begin() { out_ << "{\"type\": \"FeatureCollection\", \"features\": ["; }

void GeoJsonTrackWriter::file(const NamedTrack& named) {
    const std::vector<const GPSData*> drawn = drawnSamples(named.track);

    std::string& text = out_.text();
    text += written_++ > 0 ? ",\n" : "\n";
    text += "{\"type\": \"Feature\", \"properties\": {\"file\": ";
    appendJsonString(text, named.file);
    text += ", \"speedUnit\": ";
    appendJsonString(text, speedUnitName(unit_));
    text += ", \"maxSpeed\": ";
    appendJsonNumber(text, maximumIn(unit_, named.track.maxSpeed));
    text += ", \"times\": ";
    appendJsonArray(out_, drawn, appendJsonTime);
    out_ << ", \"speeds\": ";
    appendJsonArray(out_, drawn, [this](std::string& out, const GPSData& s) { appendJsonNumber(out, speedIn(unit_, s)); });
    out_ << "},\n \"geometry\": ";
    appendGeometry(out_, drawn);
    out_ << '}';
}

void GeoJsonTrackWriter::segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) {
    // A line of the MultiLineString needs two positions; a movie with fewer draws no line.
    std::vector<const NamedTrack*> kept;
    std::vector<std::vector<const GPSData*>> lines;
    float maximum = 0;
    for (const NamedTrack& segment : segments) {
        maximum = std::max(maximum, segment.track.maxSpeed);
        std::vector<const GPSData*> drawn = drawnSamples(segment.track);
        if (drawn.size() < 2) continue;
        kept.push_back(&segment);
        lines.push_back(std::move(drawn));
    }
    // Parallel arrays: one item per kept movie, each (for times and speeds) one per position.
    const auto appendPerLine = [&](auto appendLine) {
        out_ << '[';
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (i > 0) out_ << ", ";
            appendLine(i);
        }
        out_ << ']';
    };

    std::string& text = out_.text();
    text += written_++ > 0 ? ",\n" : "\n";
    text += "{\"type\": \"Feature\", \"properties\": {\"name\": ";
    appendJsonString(text, name);
    out_ << ", \"files\": ";
    appendPerLine([&](std::size_t i) { appendJsonString(out_.text(), kept[i]->file); });
    out_ << ", \"speedUnit\": ";
    appendJsonString(out_.text(), speedUnitName(unit_));
    out_ << ", \"maxSpeed\": ";
    appendJsonNumber(out_.text(), maximumIn(unit_, maximum));
    out_ << ", \"times\": ";
    appendPerLine([&](std::size_t i) { appendJsonArray(out_, lines[i], appendJsonTime); });
    out_ << ", \"speeds\": ";
    appendPerLine([&](std::size_t i) {
        appendJsonArray(out_, lines[i], [this](std::string& out, const GPSData& s) { appendJsonNumber(out, speedIn(unit_, s)); });
    });
    out_ << "},\n \"geometry\": ";
    if (lines.empty()) {
        out_ << "null}";
        return;
    }
    out_ << "{\"type\": \"MultiLineString\", \"coordinates\": [";
    for (const auto& line : lines) {
        out_ << (&line == &lines.front() ? "\n [" : ",\n [");
        appendPositions(out_, line);
        out_ << "\n ]";
    }
    out_ << "\n]}}";
}

void GeoJsonTrackWriter::end() {
    out_ << (written_ > 0 ? "\n]}\n" : "]}\n");
    out_.flush();
}
