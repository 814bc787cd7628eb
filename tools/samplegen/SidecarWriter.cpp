#include "SidecarWriter.h"

#include "CivilTime.h"
#include "NmeaSentences.h"
#include "OutputFile.h"

#include <cmath>
#include <cstdio>
#include <span>

namespace {

std::string isoUtc(double utcSeconds) {
    const CivilTime t = fromClockSeconds(int64_t(std::floor(utcSeconds)));
    char out[48];
    std::snprintf(out, sizeof out, "%04d-%02d-%02dT%02d:%02d:%02dZ", t.year, t.month, t.day, t.hour, t.minute,
                  t.second);
    return out;
}

std::string trackPoint(const RouteSample& at, double utcSeconds) {
    char out[512];
    std::snprintf(out, sizeof out,
                  "      <trkpt lat=\"%.7f\" lon=\"%.7f\"><time>%s</time><extensions><gpxtpx:TrackPointExtension>"
                  "<gpxtpx:speed>%.3f</gpxtpx:speed><gpxtpx:course>%.1f</gpxtpx:course>"
                  "</gpxtpx:TrackPointExtension></extensions></trkpt>\n",
                  at.latitude, at.longitude, isoUtc(utcSeconds).c_str(), at.speed * kMetresPerSecondPerRouteSpeed,
                  at.heading);
    return out;
}

}  // namespace

std::string nmeaLog(const TimedRoute& route, int64_t seconds) {
    std::string log;
    for (int64_t k = 0; k <= seconds; ++k) {
        const RouteSample at = route.at(double(k));
        log += rmcSentence(at, route.utcAt(double(k))) + "\r\n";
        log += ggaSentence(at, route.utcAt(double(k))) + "\r\n";
    }
    return log;
}

std::string gpxDocument(const TimedRoute& route, int64_t seconds) {
    std::string document =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<gpx version=\"1.1\" creator=\"dashtrack-samplegen\" xmlns=\"http://www.topografix.com/GPX/1/1\"\n"
        "     xmlns:gpxtpx=\"http://www.garmin.com/xmlschemas/TrackPointExtension/v2\">\n"
        "  <trk>\n    <trkseg>\n";
    for (int64_t k = 0; k <= seconds; ++k) document += trackPoint(route.at(double(k)), route.utcAt(double(k)));
    return document + "    </trkseg>\n  </trk>\n</gpx>\n";
}

std::filesystem::path sidecarPath(const std::filesystem::path& movie, SidecarTrack kind) {
    return std::filesystem::path(movie).replace_extension(kind == SidecarTrack::Gpx ? ".gpx" : ".nmea");
}

void writeSidecar(SidecarTrack kind, const TimedRoute& route, int64_t seconds, const std::filesystem::path& movie) {
    if (kind == SidecarTrack::None) return;
    const std::string text = kind == SidecarTrack::Gpx ? gpxDocument(route, seconds) : nmeaLog(route, seconds);
    OutputFile out(sidecarPath(movie, kind));
    out.write(std::span(reinterpret_cast<const uint8_t*>(text.data()), text.size()));
    out.commit(std::nullopt);
}
