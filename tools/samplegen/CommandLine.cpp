#include "CommandLine.h"

#include "SampleGenError.h"

#include <charconv>
#include <functional>
#include <map>
#include <vector>

namespace {

template <class T>
T parseInteger(std::string_view option, std::string_view text) {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        throw UsageError(std::string(option) + ": not a whole number: '" + std::string(text) + "'");
    return value;
}

template <class Enum>
Enum parseChoice(std::string_view option, std::string_view text, const std::map<std::string_view, Enum>& choices) {
    const auto found = choices.find(text);
    if (found != choices.end()) return found->second;
    std::string names;
    for (const auto& [name, value] : choices) names += (names.empty() ? "" : ", ") + std::string(name);
    throw UsageError(std::string(option) + ": '" + std::string(text) + "' is not one of " + names);
}

const std::map<std::string_view, GPSRecordForm> kForms = {
    {"mp4", GPSRecordForm::MP4},       {"scaled", GPSRecordForm::Scaled}, {"fixed", GPSRecordForm::FixedPoint},
    {"type1", GPSRecordForm::Type1},   {"type2", GPSRecordForm::Type2},   {"type3", GPSRecordForm::Type3},
    {"type20", GPSRecordForm::Type20}};
const std::map<std::string_view, GPSBlockLayout> kLayouts = {
    {"index", GPSBlockLayout::Index}, {"chunk", GPSBlockLayout::Chunk}, {"none", GPSBlockLayout::None}};
const std::map<std::string_view, EmbeddedTrack> kTracks = {
    {"gpmf", EmbeddedTrack::Gpmf},
    {"nmea-text", EmbeddedTrack::NmeaText},
    {"nmea-track", EmbeddedTrack::NmeaTrack},
    {"none", EmbeddedTrack::None}};
const std::map<std::string_view, SidecarTrack> kSidecars = {
    {"nmea", SidecarTrack::Nmea}, {"gpx", SidecarTrack::Gpx}, {"none", SidecarTrack::None}};

void parseSize(std::string_view text, MovieOptions& o) {
    const auto x = text.find('x');
    if (x == std::string_view::npos) throw UsageError("--size: want WIDTHxHEIGHT, got '" + std::string(text) + "'");
    o.width = parseInteger<int>("--size", text.substr(0, x));
    o.height = parseInteger<int>("--size", text.substr(x + 1));
}

using ValueHandler = std::function<void(std::string_view value, MovieOptions&)>;

const std::map<std::string_view, ValueHandler> kValueOptions = {
    {"--form", [](std::string_view v, MovieOptions& o) { o.form = parseChoice("--form", v, kForms); }},
    {"--layout", [](std::string_view v, MovieOptions& o) { o.layout = parseChoice("--layout", v, kLayouts); }},
    {"--track", [](std::string_view v, MovieOptions& o) { o.track = parseChoice("--track", v, kTracks); }},
    {"--sidecar", [](std::string_view v, MovieOptions& o) { o.sidecar = parseChoice("--sidecar", v, kSidecars); }},
    {"--size", parseSize},
    {"--fps", [](std::string_view v, MovieOptions& o) { o.fps = parseInteger<int>("--fps", v); }},
    {"--channels", [](std::string_view v, MovieOptions& o) { o.channels = parseInteger<int>("--channels", v); }},
    {"--rate", [](std::string_view v, MovieOptions& o) { o.sampleRate = parseInteger<int>("--rate", v); }},
    {"--from", [](std::string_view v, MovieOptions& o) { o.fromSecond = parseInteger<int64_t>("--from", v); }},
    {"--seconds", [](std::string_view v, MovieOptions& o) { o.seconds = parseInteger<int64_t>("--seconds", v); }},
};

}  // namespace

CommandLine parseCommandLine(std::span<const std::string_view> arguments) {
    CommandLine line;
    std::vector<std::string_view> positional;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string_view argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            line.help = true;
            return line;
        }
        if (argument == "--no-file-time") {
            line.options.setFileTime = false;
            continue;
        }
        if (argument.size() < 2 || argument.substr(0, 2) != "--") {
            positional.push_back(argument);
            continue;
        }
        // --name value or --name=value
        std::string_view name = argument, value;
        const auto equals = argument.find('=');
        if (equals != std::string_view::npos) {
            name = argument.substr(0, equals);
            value = argument.substr(equals + 1);
        }
        const auto handler = kValueOptions.find(name);
        if (handler == kValueOptions.end()) throw UsageError("unknown option " + std::string(name));
        if (equals == std::string_view::npos) {
            if (i + 1 == arguments.size()) throw UsageError(std::string(name) + " needs a value");
            value = arguments[++i];
        }
        handler->second(value, line.options);
    }
    if (positional.size() != 2) throw UsageError("want a route file and an output file");
    line.route = positional[0];
    line.output = positional[1];
    validate(line.options);
    return line;
}

std::string usageText() {
    return R"(usage: dashtrack-samplegen [options] ROUTE.csv OUTPUT

Writes a dash-camera movie (H.264 picture, PCM sound) with one GPS record per second of movie.

Route file: CSV rows "time,latitude,longitude,speed", for example
    time,latitude,longitude,speed
    2026-11-15T08:15:00,48.869313,2.309416,22.0
  time       the camera's clock, YYYY-MM-DDTHH:MM:SS (no time zone), strictly increasing,
             whole seconds, years 2000-2099; points may be seconds apart: the movie
             interpolates linearly to every second
  latitude   decimal degrees, north positive
  longitude  decimal degrees, east positive
  speed      0-200, in the unit the player shows as MPH
  Lines starting with '#' are comments; the header row is optional.

Timing: the movie starts at the route's first time (plus --from) and lasts whole seconds.
Record k (from 1) holds the route at start + k s, which the player shows from second k of
playback; the burned-in clock shows start + seconds played. The MP4 record form keeps the
clock as written (the camera's UTC clock), and the player shows it moved by
trunc(trunc(longitude) / 15) hours for longitudes beyond +-15 degrees.

Options:
  --form mp4|scaled|fixed     record form (default scaled); mp4 writes an ISO ftyp
  --form type1|type2|type3|type20
                              another maker's block layout of 256 bytes: XOR-obscured text,
                              an NMEA sentence, int32 clock with float minutes, big-endian
                              records; speed rounded to the layout's unit
  --layout index|chunk|none   "gps " index box, a block after every sound chunk, or no GPS
                              (default index; chunk needs --form scaled or fixed)
  --track gpmf|nmea-text|nmea-track
                              also a track in the movie: a GPMF metadata track (ten GPS5 fixes
                              a second, UTC from the movie's creation time), NMEA sentences
                              (RMC and GGA, one of each a second) in a top-level "free" box's
                              "gps " child, or the same sentences in the one-a-second samples
                              of a text track; needs --layout none
  --sidecar nmea|gpx          also a track file beside the movie, OUTPUT's base name with .nmea
                              or .gpx, one point a second from the movie's start to its end, in
                              UTC from the movie's creation time; needs --layout none
  --size WxH                  picture size, even numbers (default 1280x720)
  --fps N                     frames per second (default 30)
  --channels N                sound channels, 16-bit PCM (default 1)
  --rate HZ                   sound sample rate, 8000-65535 (default 22050)
  --from S                    start S seconds into the route (default 0)
  --seconds N                 movie length (default: to the end of the route)
  --no-file-time              leave the file's modification time alone (default: set it
                              to the movie's start, read as local time)
  --help                      this text

Exit status: 0 done, 1 failed (bad route, unwritable output), 2 bad command line.
)";
}
