#include "JsonTrackWriter.h"

#include "FixQualityName.h"
#include "JsonText.h"
#include "NumberText.h"

#include <string>

namespace {

struct SampleMember {
    std::string_view name;
    void (*append)(std::string& out, const GPSData& sample);  // spelt as JSON
};

constexpr SampleMember kSampleMembers[] = {
    {"latitude", [](std::string& o, const GPSData& s) { appendJsonNumber(o, s.Latitude()); }},
    {"longitude", [](std::string& o, const GPSData& s) { appendJsonNumber(o, s.Longitude()); }},
    {"speed", [](std::string& o, const GPSData& s) { appendJsonNumber(o, s.SpeedMPH()); }},
    {"speedText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.SpeedMPHText()); }},
    {"speedKMHText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.SpeedKMHText()); }},
    {"latitudeText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.LatitudeText()); }},
    {"longitudeText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.LongitudeText()); }},
    {"dateText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.DateText()); }},
    {"timeText", [](std::string& o, const GPSData& s) { appendJsonString(o, s.TimeText()); }},
    {"year", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Year); }},
    {"month", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Month); }},
    {"day", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Day); }},
    {"hour", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Hour); }},
    {"minute", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Minute); }},
    {"second", [](std::string& o, const GPSData& s) { appendUnsigned(o, s.data().rmcinfo.Second); }},
};

// What only some formats state follows the record's members, and only on samples that have it,
// so that the camera blocks' documents stay as they were.
void appendStatedMembers(std::string& out, const GPSData& sample) {
    if (const auto altitude = sample.altitudeMetres()) {
        out += ", \"altitude\": ";
        appendJsonNumber(out, *altitude);
    }
    if (const auto heading = sample.heading()) {
        out += ", \"heading\": ";
        appendJsonNumber(out, *heading);
    }
    if (const std::string_view fix = fixQualityName(sample.fixQuality()); !fix.empty()) {
        out += ", \"fix\": ";
        appendJsonString(out, fix);
    }
}

void appendSampleObject(std::string& out, const GPSData& sample) {
    out += '{';
    for (const SampleMember& member : kSampleMembers) {
        if (&member != kSampleMembers) out += ", ";
        out += '"';
        out += member.name;
        out += "\": ";
        member.append(out, sample);
    }
    appendStatedMembers(out, sample);
    out += '}';
}

}  // namespace

void JsonTrackWriter::begin() {
    if (severalFiles_) out_ << '[';
}

void JsonTrackWriter::file(const NamedTrack& named) {
    if (written_ > 0)
        out_ << ",\n";
    else if (severalFiles_)
        out_ << '\n';
    ++written_;

    std::string& text = out_.text();
    text += '{';
    if (severalFiles_) {
        text += "\"file\": ";
        appendJsonString(text, named.file);
        text += ", ";
    }
    text += "\"maxSpeed\": ";
    appendJsonNumber(text, named.track.maxSpeed);
    text += ", \"samples\": [";
    const auto& samples = named.track.samples;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        out_.text() += i == 0 ? "\n  " : ",\n  ";
        appendSampleObject(out_.text(), samples[i]);
        out_.flushWhenFull();
    }
    out_ << (samples.empty() ? "]}" : "\n]}");
}

void JsonTrackWriter::end() {
    if (severalFiles_)
        out_ << (written_ > 0 ? "\n]\n" : "]\n");
    else if (written_ > 0)
        out_ << '\n';
    out_.flush();
}
