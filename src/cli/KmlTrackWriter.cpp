#include "KmlTrackWriter.h"

#include "MapPosition.h"
#include "NumberText.h"
#include "SampleTime.h"
#include "TrackSummary.h"
#include "XmlText.h"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct TrackPoint {
    std::string when;
    const GPSData* sample;
};

std::vector<TrackPoint> drawablePoints(const GPSTrack& track) {
    std::vector<TrackPoint> points;
    for (const GPSData& sample : track.samples) {
        if (!hasMapPosition(sample)) continue;
        if (std::optional<std::string> when = isoDateTime(sample.data().rmcinfo))
            points.push_back({std::move(*when), &sample});
    }
    return points;
}

void writeTrack(std::ostream& out, const std::vector<TrackPoint>& points, SpeedUnit unit) {
    out << "      <gx:Track>\n";
    for (const TrackPoint& point : points) out << "        <when>" << point.when << "</when>\n";
    for (const TrackPoint& point : points) {
        out << "        <gx:coord>" << shortestDecimal(point.sample->Longitude()) << ' '
            << shortestDecimal(point.sample->Latitude()) << " 0</gx:coord>\n";
    }
    out << "        <ExtendedData>\n"
           "          <SchemaData schemaUrl=\"#dashtrack\">\n"
           "            <gx:SimpleArrayData name=\"speed\">\n";
    for (const TrackPoint& point : points)
        out << "              <gx:value>" << xmlEscaped(speedTextIn(unit, *point.sample)) << "</gx:value>\n";
    out << "            </gx:SimpleArrayData>\n"
           "          </SchemaData>\n"
           "        </ExtendedData>\n"
           "      </gx:Track>\n";
}

}  // namespace

void KmlTrackWriter::begin() {
    // The route is drawn red, as in the player.
    out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<kml xmlns=\"http://www.opengis.net/kml/2.2\" xmlns:gx=\"http://www.google.com/kml/ext/2.2\">\n"
            "  <Document>\n"
            "    <name>dashtrack-gps</name>\n"
            "    <Style id=\"route\">\n"
            "      <LineStyle><color>ff0000ff</color><width>4</width></LineStyle>\n"
            "    </Style>\n"
            "    <Schema id=\"dashtrack\" name=\"dashtrack\">\n"
            "      <gx:SimpleArrayField name=\"speed\" type=\"float\">\n"
            "        <displayName>"
         << xmlEscaped("Speed (" + speedUnitName(unit_) + ")")
         << "</displayName>\n"
            "      </gx:SimpleArrayField>\n"
            "    </Schema>\n";
}

void KmlTrackWriter::file(const NamedTrack& named) {
    out_ << "    <Placemark>\n"
         << "      <name>" << xmlEscaped(named.file) << "</name>\n"
         << "      <description>" << xmlEscaped(trackSummary(named.track, unit_)) << "</description>\n"
         << "      <styleUrl>#route</styleUrl>\n";
    // A Placemark without geometry still lists the movie, with its summary.
    const std::vector<TrackPoint> points = drawablePoints(named.track);
    if (!points.empty()) writeTrack(out_, points, unit_);
    out_ << "    </Placemark>\n";
}

void KmlTrackWriter::end() {
    out_ << "  </Document>\n"
            "</kml>\n";
}
