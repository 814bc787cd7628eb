#include "GPSUtils.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <system_error>

namespace {

const std::string unitTypeKey = "UnitType";
const std::string volumeKey = "Volume";
const std::string mapSourceKey = "MapSource";
const std::string continuousPlayKey = "ContinuousPlay";
const std::string languageKey = "Language";

// The factor between the two speed units everywhere in the program (km in a nautical mile).
constexpr float kmhPerMPH = 1.852f;

}  // namespace

GPSUtils& GPSUtils::sharedUtils() {
    static GPSUtils utils(SettingsLocation::standard());
    return utils;
}

GPSUtils::GPSUtils(SettingsLocation location, std::shared_ptr<const VideoTrackProbe> probe,
                   SettingsWriter::WriteFile write)
    : settings_(SettingsFile::load(location, std::move(write))), probe_(std::move(probe)) {}

uint64_t GPSUtils::unitType() const { return settings_.unsignedValue(unitTypeKey).value_or(0); }

void GPSUtils::setUnitType(uint64_t unitType) { settings_.setUnsignedValue(unitTypeKey, unitType); }

float GPSUtils::volume() const { return static_cast<float>(settings_.realValue(volumeKey).value_or(0.0)); }

void GPSUtils::setVolume(float volume) {
    // Compared as the getter sees it: the file may hold the number with more digits than a float.
    const std::optional<double> stored = settings_.realValue(volumeKey);
    if (stored && static_cast<float>(*stored) == volume) return;
    settings_.setRealValue(volumeKey, volume);
}

std::string GPSUtils::SpeedUnitName() const { return unitType() != 0 ? SpeedUnitNameKMH() : SpeedUnitNameMPH(); }

int32_t GPSUtils::MaxSpeedMPH(float speed) {
    // Truncation toward zero, then the next multiple of ten for a positive fraction. The speed is
    // clamped first, since converting a NaN or out-of-range float to an integer is undefined.
    if (std::isnan(speed)) return 0;
    constexpr double lowest = std::numeric_limits<int32_t>::min();
    constexpr double highest = std::numeric_limits<int32_t>::max();
    const double value = std::clamp(static_cast<double>(speed), lowest, highest);
    auto truncated = static_cast<int64_t>(value);
    if (value > static_cast<double>(truncated)) truncated = (truncated + 10) / 10 * 10;
    return static_cast<int32_t>(std::min<int64_t>(truncated, std::numeric_limits<int32_t>::max()));
}

int32_t GPSUtils::MaxSpeedKMH(float speed) {
    const float kilometres = speed * kmhPerMPH;
    return MaxSpeedMPH(kilometres);
}

const std::optional<std::filesystem::path>& GPSUtils::envURL() const { return settings_.path(); }

bool GPSUtils::isValidURL(const std::optional<std::filesystem::path>& url) const {
    return url && probe_ && probe_->hasVideoTrack(*url);
}

std::vector<std::filesystem::path> GPSUtils::validURLs(const std::vector<std::filesystem::path>& urls) const {
    std::vector<std::filesystem::path> valid;
    std::copy_if(urls.begin(), urls.end(), std::back_inserter(valid),
                 [this](const std::filesystem::path& url) { return isValidURL(url); });
    return valid;
}

std::vector<std::filesystem::path> GPSUtils::validURLsWithPasteboard(const FilePasteboard& pasteboard) const {
    std::vector<std::filesystem::path> valid;
    if (!pasteboard.filenames) return valid;
    for (const auto& name : *pasteboard.filenames) {
        if (name.empty()) continue;
        // Dropped names become absolute, as file URLs are, against the current folder.
        std::error_code error;
        auto url = std::filesystem::absolute(name, error);
        if (!error && isValidURL(url)) valid.push_back(std::move(url));
    }
    return valid;
}

std::optional<std::string> GPSUtils::mapSource() const { return settings_.stringValue(mapSourceKey); }

void GPSUtils::setMapSource(const std::string& source) { settings_.setStringValue(mapSourceKey, source); }

bool GPSUtils::continuousPlay() const { return settings_.unsignedValue(continuousPlayKey).value_or(0) != 0; }

void GPSUtils::setContinuousPlay(bool on) { settings_.setUnsignedValue(continuousPlayKey, on ? 1 : 0); }

std::optional<std::string> GPSUtils::language() const { return settings_.stringValue(languageKey); }

void GPSUtils::setLanguage(const std::string& language) { settings_.setStringValue(languageKey, language); }
