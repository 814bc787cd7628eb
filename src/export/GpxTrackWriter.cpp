#include "GpxTrackWriter.h"

#include "FixQualityName.h"
#include "MapPosition.h"
#include "NumberText.h"
#include "SampleTime.h"
#include "TrackSummary.h"
#include "XmlText.h"

#include <cmath>

namespace {

// The stored speed is in miles per hour; a mile is exactly 1609.344 m.
constexpr double kMetresPerSecondPerMPH = 0.44704;

// Garmin's extension: the speed, and the heading where the format gave one (the camera record's
// own angle is not trusted: the blocks leave it zero).
void appendExtension(std::string& out, const GPSData& sample) {
    // The extension's schema allows no negative speed; a damaged record's speed is left out.
    const float metresPerSecond = float(double(sample.SpeedMPH()) * kMetresPerSecondPerMPH);
    const bool hasSpeed = std::isfinite(metresPerSecond) && metresPerSecond >= 0.0f;
    const std::optional<float> course = sample.heading();
    if (!hasSpeed && !course) return;
    out += "        <extensions><gpxtpx:TrackPointExtension>";
    if (hasSpeed) {
        out += "<gpxtpx:speed>";
        appendShortestDecimal(out, metresPerSecond);
        out += "</gpxtpx:speed>";
    }
    if (course) {
        out += "<gpxtpx:course>";
        appendShortestDecimal(out, *course);
        out += "</gpxtpx:course>";
    }
    out += "</gpxtpx:TrackPointExtension></extensions>\n";
}

void appendPoint(std::string& out, const GPSData& sample, SpeedUnit unit, std::string_view unitName) {
    out += "      <trkpt lat=\"";
    appendShortestDecimal(out, sample.Latitude());
    out += "\" lon=\"";
    appendShortestDecimal(out, sample.Longitude());
    out += "\">\n";
    // GPX fixes the order of a point's elements: ele, time, ..., desc, ..., fix, ..., extensions.
    if (const auto altitude = sample.altitudeMetres()) {
        out += "        <ele>";
        appendShortestDecimal(out, *altitude);
        out += "</ele>\n";
    }
    if (hasCalendarTime(sample.data().rmcinfo)) {
        out += "        <time>";
        appendIsoDateTime(out, sample.data().rmcinfo);
        out += "</time>\n";
    }
    out += "        <desc>";
    appendXmlEscaped(out, speedTextIn(unit, sample));
    out += ' ';
    appendXmlEscaped(out, unitName);
    out += "</desc>\n";
    if (const std::string_view fix = fixQualityName(sample.fixQuality()); !fix.empty()) {
        out += "        <fix>";
        out += fix;
        out += "</fix>\n";
    }
    appendExtension(out, sample);
    out += "      </trkpt>\n";
}

}  // namespace

void GpxTrackWriter::begin() {
    out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<gpx version=\"1.1\" creator=\"dashtrack-gps\"\n"
            "     xmlns=\"http://www.topografix.com/GPX/1/1\"\n"
            "     xmlns:gpxtpx=\"http://www.garmin.com/xmlschemas/TrackPointExtension/v2\"\n"
            "     xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"\n"
            "     xsi:schemaLocation=\"http://www.topografix.com/GPX/1/1 "
            "http://www.topografix.com/GPX/1/1/gpx.xsd "
            "http://www.garmin.com/xmlschemas/TrackPointExtension/v2 "
            "http://www8.garmin.com/xmlschemas/TrackPointExtensionv2.xsd\">\n";
}

void GpxTrackWriter::file(const NamedTrack& named) { writeTrack(named.file, trackSummary(named.track, unit_), {&named, 1}); }

void GpxTrackWriter::segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) {
    writeTrack(name, trackSummary(segments, unit_), segments);
}

void GpxTrackWriter::writeTrack(std::string_view name, std::string_view summary, std::span<const NamedTrack> segments) {
    std::string& text = out_.text();
    text += "  <trk>\n    <name>";
    appendXmlEscaped(text, name);
    text += "</name>\n    <desc>";
    appendXmlEscaped(text, summary);
    text += "</desc>\n";
    const std::string unitName = speedUnitName(unit_);
    for (const NamedTrack& segment : segments) {
        out_ << "    <trkseg>\n";
        for (const GPSData& sample : segment.track.samples) {
            if (!hasMapPosition(sample)) continue;
            appendPoint(out_.text(), sample, unit_, unitName);
            out_.flushWhenFull();
        }
        out_ << "    </trkseg>\n";
    }
    out_ << "  </trk>\n";
}

void GpxTrackWriter::end() {
    out_ << "</gpx>\n";
    out_.flush();
}
