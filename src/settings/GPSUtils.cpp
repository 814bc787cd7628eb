#include "GPSUtils.h"

#include "ClockCorrection.h"
#include "SettingRange.h"

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
const std::string tileCacheKey = "TileCacheMegabytes";
const std::string clockCorrectionKey = "ClockCorrection";
const std::string videoRendererKey = "VideoRenderer";
const std::string exportFormatKey = "ExportFormat";
const std::string stampSnapshotsKey = "StampSnapshots";
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

int64_t GPSUtils::tileCacheMegabytes() const {
    const std::optional<uint64_t> stored = settings_.unsignedValue(tileCacheKey);
    // Checked before the conversion: a huge unsigned value would turn negative.
    if (!stored || *stored > uint64_t(kTileCacheMegabytes.highest)) return kTileCacheMegabytes.fallback;
    return kTileCacheMegabytes.valueOr(int64_t(*stored));
}

bool GPSUtils::setTileCacheMegabytes(int64_t megabytes) {
    if (!kTileCacheMegabytes.contains(megabytes)) return false;
    settings_.setUnsignedValue(tileCacheKey, uint64_t(megabytes));
    return true;
}

int GPSUtils::clockCorrectionMinutes() const {
    const std::optional<std::string> stored = settings_.stringValue(clockCorrectionKey);
    return stored ? parseClockCorrection(*stored).value_or(int(kClockCorrectionMinutes.fallback))
                  : int(kClockCorrectionMinutes.fallback);
}

bool GPSUtils::setClockCorrectionMinutes(int minutes) {
    if (!kClockCorrectionMinutes.contains(minutes)) return false;
    settings_.setStringValue(clockCorrectionKey, clockCorrectionText(minutes));
    return true;
}

RendererPreference GPSUtils::videoRenderer() const {
    const std::optional<std::string> stored = settings_.stringValue(videoRendererKey);
    return stored ? parseRendererPreference(*stored).value_or(RendererPreference::Automatic)
                  : RendererPreference::Automatic;
}

void GPSUtils::setVideoRenderer(RendererPreference preference) {
    settings_.setStringValue(videoRendererKey, std::string(rendererPreferenceWord(preference)));
}
std::optional<std::string> GPSUtils::exportFormat() const { return settings_.stringValue(exportFormatKey); }

void GPSUtils::setExportFormat(const std::string& format) { settings_.setStringValue(exportFormatKey, format); }
bool GPSUtils::stampSnapshots() const { return settings_.unsignedValue(stampSnapshotsKey).value_or(0) != 0; }

void GPSUtils::setStampSnapshots(bool on) { settings_.setUnsignedValue(stampSnapshotsKey, on ? 1 : 0); }
std::optional<std::string> GPSUtils::language() const { return settings_.stringValue(languageKey); }

void GPSUtils::setLanguage(const std::string& language) { settings_.setStringValue(languageKey, language); }
