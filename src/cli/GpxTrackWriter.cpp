#include "GpxTrackWriter.h"

#include "MapPosition.h"
#include "NumberText.h"
#include "SampleTime.h"
#include "TrackSummary.h"
#include "XmlText.h"

#include <cmath>
#include <ostream>

namespace {

// The stored speed is in miles per hour; a mile is exactly 1609.344 m.
constexpr double kMetresPerSecondPerMPH = 0.44704;

void writePoint(std::ostream& out, const GPSData& sample, SpeedUnit unit) {
    out << "      <trkpt lat=\"" << shortestDecimal(sample.Latitude()) << "\" lon=\""
        << shortestDecimal(sample.Longitude()) << "\">\n";
    if (const auto time = isoDateTime(sample.data().rmcinfo)) out << "        <time>" << *time << "</time>\n";
    out << "        <desc>" << xmlEscaped(speedTextIn(unit, sample) + " " + speedUnitName(unit)) << "</desc>\n";
    // The extension's schema allows no negative speed; a damaged record's speed is left out.
    const float metresPerSecond = float(double(sample.SpeedMPH()) * kMetresPerSecondPerMPH);
    if (std::isfinite(metresPerSecond) && metresPerSecond >= 0.0f) {
        out << "        <extensions><gpxtpx:TrackPointExtension><gpxtpx:speed>" << shortestDecimal(metresPerSecond)
            << "</gpxtpx:speed></gpxtpx:TrackPointExtension></extensions>\n";
    }
    out << "      </trkpt>\n";
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

void GpxTrackWriter::file(const NamedTrack& named) {
    out_ << "  <trk>\n"
         << "    <name>" << xmlEscaped(named.file) << "</name>\n"
         << "    <desc>" << xmlEscaped(trackSummary(named.track, unit_)) << "</desc>\n"
         << "    <trkseg>\n";
    for (const GPSData& sample : named.track.samples)
        if (hasMapPosition(sample)) writePoint(out_, sample, unit_);
    out_ << "    </trkseg>\n"
         << "  </trk>\n";
}

void GpxTrackWriter::end() { out_ << "</gpx>\n"; }
