#include "KmlTrackWriter.h"

#include "MapPosition.h"
#include "NumberText.h"
#include "SampleTime.h"
#include "TrackSummary.h"
#include "XmlText.h"

#include <string>
#include <string_view>
#include <vector>

namespace {

// The samples a gx:Track can hold: a position on the map and a calendar time.
std::vector<const GPSData*> drawablePoints(const GPSTrack& track) {
    std::vector<const GPSData*> points;
    for (const GPSData& sample : track.samples)
        if (hasMapPosition(sample) && hasCalendarTime(sample.data().rmcinfo)) points.push_back(&sample);
    return points;
}

// Heights above sea level place the track in the air only when every point has one; otherwise it
// stays on the ground, where a missing height written as 0 does no harm.
bool everyPointHasAltitude(const std::vector<const GPSData*>& points) {
    for (const GPSData* point : points)
        if (!point->altitudeMetres()) return false;
    return true;
}

// indent goes before every line, so a track inside a gx:MultiTrack lines up under it.
void writeTrack(OutputBuffer& out, const std::vector<const GPSData*>& points, SpeedUnit unit, std::string_view indent) {
    const auto line = [&](std::string_view text) -> OutputBuffer& { return out << indent << text; };
    line("      <gx:Track>\n");
    if (everyPointHasAltitude(points)) line("        <altitudeMode>absolute</altitudeMode>\n");
    for (const GPSData* point : points) {
        line("        <when>");
        appendIsoDateTime(out.text(), point->data().rmcinfo);
        out << "</when>\n";
        out.flushWhenFull();
    }
    for (const GPSData* point : points) {
        line("        <gx:coord>");
        std::string& text = out.text();
        appendShortestDecimal(text, point->Longitude());
        text += ' ';
        appendShortestDecimal(text, point->Latitude());
        text += ' ';
        if (const auto altitude = point->altitudeMetres())
            appendShortestDecimal(text, *altitude);
        else
            text += '0';
        text += "</gx:coord>\n";
        out.flushWhenFull();
    }
    line("        <ExtendedData>\n");
    line("          <SchemaData schemaUrl=\"#dashtrack\">\n");
    line("            <gx:SimpleArrayData name=\"speed\">\n");
    for (const GPSData* point : points) {
        line("              <gx:value>");
        appendXmlEscaped(out.text(), speedTextIn(unit, *point));
        out << "</gx:value>\n";
        out.flushWhenFull();
    }
    line("            </gx:SimpleArrayData>\n");
    line("          </SchemaData>\n");
    line("        </ExtendedData>\n");
    line("      </gx:Track>\n");
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
            "        <displayName>";
    appendXmlEscaped(out_.text(), "Speed (" + speedUnitName(unit_) + ")");
    out_ << "</displayName>\n"
            "      </gx:SimpleArrayField>\n"
            "    </Schema>\n";
}

void KmlTrackWriter::beginPlacemark(std::string_view name, std::string_view summary) {
    out_ << "    <Placemark>\n"
            "      <name>";
    appendXmlEscaped(out_.text(), name);
    out_ << "</name>\n"
            "      <description>";
    appendXmlEscaped(out_.text(), summary);
    out_ << "</description>\n"
            "      <styleUrl>#route</styleUrl>\n";
}

void KmlTrackWriter::file(const NamedTrack& named) {
    beginPlacemark(named.file, trackSummary(named.track, unit_));
    // A Placemark without geometry still lists the movie, with its summary.
    const std::vector<const GPSData*> points = drawablePoints(named.track);
    if (!points.empty()) writeTrack(out_, points, unit_, "");
    out_ << "    </Placemark>\n";
}

void KmlTrackWriter::segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) {
    beginPlacemark(name, trackSummary(segments, unit_));
    // Not interpolated: the gap between two movies is drawn as a gap, not a straight line.
    out_ << "      <gx:MultiTrack>\n"
            "        <gx:interpolate>0</gx:interpolate>\n";
    for (const NamedTrack& segment : segments) {
        const std::vector<const GPSData*> points = drawablePoints(segment.track);
        if (!points.empty()) writeTrack(out_, points, unit_, "  ");
    }
    out_ << "      </gx:MultiTrack>\n"
            "    </Placemark>\n";
}

void KmlTrackWriter::end() {
    out_ << "  </Document>\n"
            "</kml>\n";
    out_.flush();
}
