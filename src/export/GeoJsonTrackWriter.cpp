#include "GeoJsonTrackWriter.h"

#include "JsonText.h"
#include "MapPosition.h"
#include "SampleTime.h"

#include <string>
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
    for (const GPSData* sample : drawn) {
        out << (sample == drawn.front() ? "\n  " : ",\n  ");
        appendPosition(out.text(), *sample);
        out.flushWhenFull();
    }
    out << "\n]}";
}

}  // namespace

void GeoJsonTrackWriter::begin() { out_ << "{\"type\": \"FeatureCollection\", \"features\": ["; }

void GeoJsonTrackWriter::file(const NamedTrack& named) {
    std::vector<const GPSData*> drawn;
    for (const GPSData& sample : named.track.samples)
        if (hasMapPosition(sample)) drawn.push_back(&sample);

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

void GeoJsonTrackWriter::end() {
    out_ << (written_ > 0 ? "\n]}\n" : "]}\n");
    out_.flush();
}
