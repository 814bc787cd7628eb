#include "SnapshotFacts.h"

#include "GPSData.h"
#include "GPSUtils.h"
#include "NumberText.h"
#include "SampleTime.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

// Fixed-point text with a full stop: printf would follow the locale Qt sets from the environment.
std::string fixed(double value, int precision) {
    std::array<char, 64> text;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, precision);
    if (result.ec != std::errc()) return "0";
    return std::string(text.data(), result.ptr);
}


bool onTheGlobe(double latitude, double longitude) {
    return std::isfinite(latitude) && std::isfinite(longitude) && std::fabs(latitude) <= 90 &&
           std::fabs(longitude) <= 180 && !(latitude == 0 && longitude == 0);
}

}  // namespace

SnapshotFacts::SnapshotFacts(const std::optional<GPSData>& sample, bool kilometresPerHour, std::filesystem::path source,
                             double seconds)
    : source_(std::move(source)), seconds_(std::isfinite(seconds) ? seconds : 0) {
    if (!sample || !onTheGlobe(sample->Latitude(), sample->Longitude())) return;
    Sample facts;
    const double speed = kilometresPerHour ? sample->SpeedKMH() : sample->SpeedMPH();
    // A speed no car drives is a misread record: left out rather than printed as a wild number.
    if (std::isfinite(speed) && speed >= 0 && speed < 10000) facts.speed = speed;
    facts.unit = kilometresPerHour ? GPSUtils::SpeedUnitNameKMH() : GPSUtils::SpeedUnitNameMPH();
    facts.latitude = sample->Latitude();
    facts.longitude = sample->Longitude();
    const RMCINFO record = sample->data().rmcinfo;
    // Read as the exports read it: two- and four-digit years alike (shifted records carry four).
    if (const std::optional<std::string> iso = isoDateTime(record)) {
        facts.date = iso->substr(0, 10);
        facts.time = iso->substr(11);
    }
    sample_ = std::move(facts);
}

std::vector<PngText> SnapshotFacts::textChunks() const {
    std::vector<PngText> chunks{{"Software", "Dashtrack"}};
    if (sample_) {
        if (sample_->speed) chunks.push_back({"Speed", fixed(*sample_->speed, 2) + " " + sample_->unit});
        // The shortest text that reads back as the same float: the track holds coordinates as
        // floats, and digits past their precision would be noise.
        chunks.push_back({"Latitude", shortestDecimal(sample_->latitude)});
        chunks.push_back({"Longitude", shortestDecimal(sample_->longitude)});
        if (sample_->date && sample_->time) chunks.push_back({"DateTime", *sample_->date + "T" + *sample_->time});
    }
    chunks.push_back({"Source", source_.string()});
    chunks.push_back({"Position", fixed(seconds_, 3)});
    return chunks;
}

std::vector<StampItem> SnapshotFacts::stampItems() const {
    if (!sample_) return {};
    std::vector<StampItem> items;
    if (sample_->speed) items.push_back({std::to_string(std::lround(*sample_->speed)), sample_->unit});
    items.push_back({"LAT " + fixed(sample_->latitude, 5), {}});
    items.push_back({"LON " + fixed(sample_->longitude, 5), {}});
    if (sample_->date && sample_->time) items.push_back({*sample_->date + " " + *sample_->time, {}});
    return items;
}
