#include "MprisProperties.h"

#include <QFile>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kMicrosecondsPerSecond = 1e6;

// The largest time that still fits the bus's 64-bit microseconds with room to spare.
constexpr double kLongestSeconds = 1e12;

QString displayName(const std::filesystem::path& file) { return QFile::decodeName(file.filename().c_str()); }

}  // namespace

QString MprisProperties::playbackStatus(const MprisPlayerState& state) {
    if (!state.loaded) return QStringLiteral("Stopped");
    return state.playing ? QStringLiteral("Playing") : QStringLiteral("Paused");
}

QDBusObjectPath MprisProperties::trackId(int64_t entry) {
    if (entry < 0) return QDBusObjectPath(QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
    return QDBusObjectPath(QStringLiteral("/org/dashtrack/track/%1").arg(entry));
}

QVariantMap MprisProperties::metadata(const MprisPlayerState& state) {
    QVariantMap map;
    const bool hasTrack = state.loaded && state.entry >= 0 && !state.file.empty();
    map.insert(QStringLiteral("mpris:trackid"), QVariant::fromValue(trackId(hasTrack ? state.entry : -1)));
    if (!hasTrack) return map;
    map.insert(QStringLiteral("xesam:title"), displayName(state.file));
    map.insert(QStringLiteral("xesam:url"),
               QUrl::fromLocalFile(QFile::decodeName(state.file.c_str())).toString(QUrl::FullyEncoded));
    map.insert(QStringLiteral("mpris:length"), microseconds(state.durationSeconds));
    return map;
}

QVariantMap MprisProperties::changingProperties(const MprisPlayerState& state) {
    return {
        {QStringLiteral("PlaybackStatus"), playbackStatus(state)},
        {QStringLiteral("Rate"), state.rate},
        {QStringLiteral("Metadata"), metadata(state)},
        {QStringLiteral("Volume"), state.volume},
        {QStringLiteral("CanGoNext"), state.canGoNext},
        {QStringLiteral("CanGoPrevious"), state.canGoPrevious},
        {QStringLiteral("CanPlay"), state.canPlay},
        {QStringLiteral("CanPause"), state.canPause},
        {QStringLiteral("CanSeek"), state.canSeek},
    };
}

QVariantMap MprisProperties::changed(const QVariantMap& before, const QVariantMap& after) {
    QVariantMap differences;
    for (auto it = after.constBegin(); it != after.constEnd(); ++it) {
        const auto old = before.constFind(it.key());
        if (old == before.constEnd() || old.value() != it.value()) differences.insert(it.key(), it.value());
    }
    return differences;
}

qlonglong MprisProperties::microseconds(double seconds) {
    if (!std::isfinite(seconds) || seconds <= 0.0) return 0;
    return std::llround(std::min(seconds, kLongestSeconds) * kMicrosecondsPerSecond);
}

double MprisProperties::seconds(qlonglong microseconds) {
    return static_cast<double>(microseconds) / kMicrosecondsPerSecond;
}

std::optional<double> MprisProperties::seekTarget(double positionSeconds, qlonglong offsetMicroseconds,
                                                  double durationSeconds) {
    const double from = std::isfinite(positionSeconds) ? positionSeconds : 0.0;
    const double target = from + seconds(offsetMicroseconds);
    if (std::isfinite(durationSeconds) && target > durationSeconds) return std::nullopt;
    return std::max(target, 0.0);
}

std::optional<double> MprisProperties::positionTarget(const MprisPlayerState& state, const QDBusObjectPath& track,
                                                      qlonglong positionMicroseconds) {
    if (!state.loaded || state.entry < 0 || track != trackId(state.entry)) return std::nullopt;
    const double target = seconds(positionMicroseconds);
    if (target < 0.0 || target > state.durationSeconds) return std::nullopt;
    return target;
}

std::optional<double> MprisProperties::acceptedRate(double requested) {
    if (std::isnan(requested)) return std::nullopt;
    if (requested == 0.0) return 0.0;
    if (requested < 0.0) return kMinimumRate;
    return std::clamp(requested, kSlowestForwardRate, kMaximumRate);
}

QStringList MprisProperties::supportedMimeTypes() {
    return {QStringLiteral("video/mp4"), QStringLiteral("video/quicktime")};
}
