#include "JsonTrackWriter.h"

#include "JsonText.h"

#include <ostream>
#include <string>

namespace {

struct SampleMember {
    std::string_view name;
    std::string (*value)(const GPSData& sample);  // already spelt as JSON
};

std::string number(uint32_t value) { return std::to_string(value); }

constexpr SampleMember kSampleMembers[] = {
    {"latitude", [](const GPSData& s) { return jsonNumber(s.Latitude()); }},
    {"longitude", [](const GPSData& s) { return jsonNumber(s.Longitude()); }},
    {"speed", [](const GPSData& s) { return jsonNumber(s.SpeedMPH()); }},
    {"speedText", [](const GPSData& s) { return jsonString(s.SpeedMPHText()); }},
    {"speedKMHText", [](const GPSData& s) { return jsonString(s.SpeedKMHText()); }},
    {"latitudeText", [](const GPSData& s) { return jsonString(s.LatitudeText()); }},
    {"longitudeText", [](const GPSData& s) { return jsonString(s.LongitudeText()); }},
    {"dateText", [](const GPSData& s) { return jsonString(s.DateText()); }},
    {"timeText", [](const GPSData& s) { return jsonString(s.TimeText()); }},
    {"year", [](const GPSData& s) { return number(s.data().rmcinfo.Year); }},
    {"month", [](const GPSData& s) { return number(s.data().rmcinfo.Month); }},
    {"day", [](const GPSData& s) { return number(s.data().rmcinfo.Day); }},
    {"hour", [](const GPSData& s) { return number(s.data().rmcinfo.Hour); }},
    {"minute", [](const GPSData& s) { return number(s.data().rmcinfo.Minute); }},
    {"second", [](const GPSData& s) { return number(s.data().rmcinfo.Second); }},
};

std::string sampleObject(const GPSData& sample) {
    std::string object = "{";
    for (const SampleMember& member : kSampleMembers) {
        if (object.size() > 1) object += ", ";
        object += '"';
        object += member.name;
        object += "\": ";
        object += member.value(sample);
    }
    object += '}';
    return object;
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

    out_ << '{';
    if (severalFiles_) out_ << "\"file\": " << jsonString(named.file) << ", ";
    out_ << "\"maxSpeed\": " << jsonNumber(named.track.maxSpeed) << ", \"samples\": [";
    const auto& samples = named.track.samples;
    for (std::size_t i = 0; i < samples.size(); ++i) out_ << (i == 0 ? "\n  " : ",\n  ") << sampleObject(samples[i]);
    out_ << (samples.empty() ? "]}" : "\n]}");
}

void JsonTrackWriter::end() {
    if (severalFiles_)
        out_ << (written_ > 0 ? "\n]\n" : "]\n");
    else if (written_ > 0)
        out_ << '\n';
}
