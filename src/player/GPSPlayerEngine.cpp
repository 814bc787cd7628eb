#include "GPSPlayerEngine.h"

#include "FrameGrabber.h"
#include "GPSDataLoader.h"
#include "GPSUtils.h"
#include "PlaybackMath.h"
#include "PlayerTrack.h"
#include "PngEncoder.h"
#include "QtUpdateTimer.h"

#include <QByteArray>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

// Quiet unless QT_LOGGING_RULES asks: a file that will not play is no news to print.
Q_LOGGING_CATEGORY(lcPlayerEngine, "dashtrack.player", QtWarningMsg)

namespace {
constexpr std::chrono::milliseconds kTickInterval{100};
// A paused seek or step that has not moved the time within this many ticks moved nothing (a
// step past either end); its report is dropped.
constexpr int kPausedMoveTicks = 20;
}

GPSPlayerEngine::GPSPlayerEngine(std::shared_ptr<MediaPlayerFactory> playerFactory, VideoSurface* surface,
                                 std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QObject* parent)
    : QObject(parent),
      playerFactory_(std::move(playerFactory)),
      surface_(surface),
      updateTimer_(updateTimer ? std::move(updateTimer) : std::make_unique<QtUpdateTimer>()),
      settings_(settings) {
    // The stored volume goes through setVolume like any other, which writes it back; a stored 0
    // leaves the fallback as the volume unmuting restores.
    setVolume(settings_.volume());
}

GPSPlayerEngine::~GPSPlayerEngine() {
    StopTimer();
    // The surface must let go of the players before they are destroyed.
    showInSurface(nullptr);
}

bool GPSPlayerEngine::IsPlaying() const {
    return mediaPlayer_ && mediaPlayer_->timeControlStatus() == PlayerStatus::Playing;
}

float GPSPlayerEngine::speed() const { return mediaPlayer_ ? mediaPlayer_->rate() : 1.0f; }

void GPSPlayerEngine::setSpeed(float speed) {
    if (mediaPlayer_) mediaPlayer_->setRate(speed);
}

float GPSPlayerEngine::maxSpeed() const { return std::max(speedMax_, GPSUtils::defaultMaxSpeed()); }

float GPSPlayerEngine::seekUnit() const { return mediaPlayer_ ? tenSecondShare(duration_) : 0.0f; }

void GPSPlayerEngine::setMuted(bool muted) {
    volume_.setIsMuted(muted);
    if (!mediaPlayer_) return;
    mediaPlayer_->setMuted(muted);
    if (const auto restored = volume_.volumeOnMute(muted, mediaPlayer_->volume())) {
        mediaPlayer_->setVolume(*restored);
    }
}

void GPSPlayerEngine::setVolume(double volume) {
    volume_.noteVolume(volume);
    settings_.setVolume(static_cast<float>(volume));
    if (mediaPlayer_) mediaPlayer_->setVolume(static_cast<float>(volume));
}

void GPSPlayerEngine::setMovie(const std::filesystem::path& url) {
    Stop();
    fileURL_ = url;
    mediaPlayer_ = playerFactory_ ? playerFactory_->playerWithURL(url) : nullptr;
    if (!mediaPlayer_) {
        qCDebug(lcPlayerEngine) << "no player for" << QByteArray(url.c_str());
        return;
    }
    mediaPlayer_->setVolume(static_cast<float>(volume_.lastVolume()));
    mediaPlayer_->setMuted(volume_.isMuted());
    // The end is looked at as soon as the player gets there, not at the next poll: the next clip
    // of a trip follows without a pause. Queued, since the player is still busy telling.
    mediaPlayer_->setEndListener([this] { QMetaObject::invokeMethod(this, [this] { tick(); }, Qt::QueuedConnection); });
    duration_ = mediaPlayer_->duration().seconds();
    cursor_.restart();
    pausedMoveFrom_.reset();
    showInSurface(mediaPlayer_.get());
    shownEmptyPlayer_.reset();

    float loaderMax = 0;
    std::vector<GPSData> records = GPSDataLoader::LoadGPSDataList(url, &loaderMax);
    appliedClockCorrection_ = settings_.clockCorrectionMinutes();
    PlayerTrack track = PlayerTrack::fromLoaded(std::move(records), loaderMax, appliedClockCorrection_);
    gpsDataList_ = std::move(track.samples);
    speedMax_ = track.speedMax;
    StartTimer();
}

void GPSPlayerEngine::Resume() {
    if (mediaPlayer_ && mediaPlayer_->timeControlStatus() != PlayerStatus::Playing) {
        mediaPlayer_->play();
    }
}

void GPSPlayerEngine::Pause() {
    if (mediaPlayer_ && mediaPlayer_->timeControlStatus() == PlayerStatus::Playing) {
        mediaPlayer_->pause();
    }
}

void GPSPlayerEngine::Stop() {
    if (mediaPlayer_) {
        mediaPlayer_->pause();
        // The empty player blanks the picture before the movie's player goes away.
        std::unique_ptr<MediaPlayer> empty = playerFactory_ ? playerFactory_->emptyPlayer() : nullptr;
        showInSurface(empty.get());
        StopTimer();
        mediaPlayer_.reset();
        shownEmptyPlayer_ = std::move(empty);
    }
    if (delegate_) delegate_->UpdatedPlayingStatus(*this, false);
}

void GPSPlayerEngine::Seek(double fraction) {
    if (!mediaPlayer_) return;
    const auto target = seekTarget(fraction, duration_);
    if (!target) return;
    awaitPausedMove();
    mediaPlayer_->seek(*target);
    emit seeked(target->seconds());
}

void GPSPlayerEngine::SeekToSeconds(double seconds) {
    if (!mediaPlayer_ || !std::isfinite(seconds)) return;
    // Milliseconds are finer than any frame; the time is kept within the movie.
    const double within = std::isfinite(duration_) ? std::clamp(seconds, 0.0, duration_) : std::max(seconds, 0.0);
    if (!(within < 1e12)) return;
    awaitPausedMove();
    mediaPlayer_->seek(MediaTime::make(std::llround(within * 1000.0), 1000));
    emit seeked(within);
}

void GPSPlayerEngine::StepFrame(bool forward) {
    if (!mediaPlayer_ || mediaPlayer_->timeControlStatus() == PlayerStatus::Playing) return;
    awaitPausedMove();
    mediaPlayer_->stepFrame(forward);
}

void GPSPlayerEngine::awaitPausedMove() {
    if (mediaPlayer_->timeControlStatus() == PlayerStatus::Playing) return;
    pausedMoveFrom_ = currentSeconds();
    pausedMoveTicksLeft_ = kPausedMoveTicks;
}

bool GPSPlayerEngine::pausedMoveLanded() {
    if (!pausedMoveFrom_) return false;
    const double now = currentSeconds();
    // Not-a-number before the move (nothing shown yet) counts as moved once a time is there.
    const bool moved = std::isfinite(now) && !(now == *pausedMoveFrom_);
    if (moved || --pausedMoveTicksLeft_ <= 0) pausedMoveFrom_.reset();
    return moved;
}

void GPSPlayerEngine::StartTimer() {
    StopTimer();
    // Not a status a fresh player has, so the first tick reports the player's status.
    prevStatus_ = static_cast<int64_t>(PlayerStatus::Waiting);
    // Each firing only posts the tick: it runs in a later turn of the event loop, never inside
    // the timer's callback, and one posted before Stop still runs after it.
    updateTimer_->start(kTickInterval, [this] {
        QMetaObject::invokeMethod(
            this, [this] { tick(); }, Qt::QueuedConnection);
    });
}

void GPSPlayerEngine::StopTimer() {
    if (updateTimer_->isActive()) updateTimer_->stop();
}

void GPSPlayerEngine::tick() {
    const PlayerStatus status = mediaPlayer_ ? mediaPlayer_->timeControlStatus() : PlayerStatus::Paused;
    if (static_cast<int64_t>(status) != prevStatus_) {
        prevStatus_ = static_cast<int64_t>(status);
        if (delegate_) delegate_->UpdatedPlayingStatus(*this, status == PlayerStatus::Playing);
    }
    // A frame step plays for a moment: the move it awaits is seen once the player rests again.
    if (mediaPlayer_ && status == PlayerStatus::Playing) {
        update();
        return;
    }
    if (mediaPlayer_ && pausedMoveLanded()) update();
    // Exact equality: a movie at rest on its last frame stands at its duration. Not-a-number (no
    // player) never equals.
    if (currentSeconds() == duration_ && delegate_) delegate_->Completed(*this);
}

void GPSPlayerEngine::applyClockCorrection() {
    const int wanted = settings_.clockCorrectionMinutes();
    if (!gpsDataList_ || wanted == appliedClockCorrection_) return;
    PlayerTrack::recorrect(*gpsDataList_, appliedClockCorrection_, wanted);
    appliedClockCorrection_ = wanted;
}

void GPSPlayerEngine::update() {
    if (!mediaPlayer_) return;
    const double t = currentSeconds();
    const uint64_t count = gpsDataList_ ? gpsDataList_->size() : 0;
    if (const auto index = cursor_.advance(t, count)) {
        // A copy: the receiver may load another movie, which replaces the track.
        const GPSData sample = (*gpsDataList_)[*index];
        if (delegate_) delegate_->UpdatedGPSInfo(*this, sample, *index);
    }
    if (delegate_) delegate_->UpdateDuration(*this, playbackProgress(t, duration_));
}

std::optional<std::vector<uint8_t>> GPSPlayerEngine::snapshot() const {
    const std::optional<SnapshotFrame> frame = snapshotFrame();
    if (!frame) return std::nullopt;
    return PngEncoder::encode(frame->image);
}

std::optional<SnapshotFrame> GPSPlayerEngine::snapshotFrame() const {
    if (!mediaPlayer_ || mediaPlayer_->timeControlStatus() == PlayerStatus::Waiting || !fileURL_) {
        return std::nullopt;
    }
    const MediaTime at = mediaPlayer_->hasItem() ? mediaPlayer_->currentTime() : MediaTime{};
    std::optional<RgbImage> frame = FrameGrabber::frameAt(*fileURL_, at);
    if (!frame) {
        qCDebug(lcPlayerEngine) << "no frame at" << at.seconds() << "in" << QByteArray(fileURL_->c_str());
        return std::nullopt;
    }
    return SnapshotFrame{std::move(*frame), *fileURL_, at.isValid() ? at.seconds() : 0.0};
}

std::optional<GPSData> GPSPlayerEngine::currentSample() const {
    const int64_t index = cursor_.curIndex();
    if (gpsDataList_ && index >= 0 && static_cast<uint64_t>(index) < gpsDataList_->size()) {
        return (*gpsDataList_)[static_cast<std::size_t>(index)];
    }
    return std::nullopt;
}

std::string GPSPlayerEngine::currentSpeedText() const {
    const int64_t index = cursor_.curIndex();
    if (gpsDataList_ && index >= 0 && static_cast<uint64_t>(index) < gpsDataList_->size()) {
        return (*gpsDataList_)[static_cast<std::size_t>(index)].SpeedText();
    }
    return "00.00";
}

double GPSPlayerEngine::currentSeconds() const {
    if (!mediaPlayer_ || !mediaPlayer_->hasItem()) return std::numeric_limits<double>::quiet_NaN();
    return mediaPlayer_->currentTime().seconds();
}

void GPSPlayerEngine::showInSurface(MediaPlayer* player) {
    if (surface_) surface_->setPlayer(player);
}
