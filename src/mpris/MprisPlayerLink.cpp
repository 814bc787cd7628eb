#include "MprisPlayerLink.h"

#include "BringToFront.h"
#include "GPSControlView.h"
#include "GPSPlayControl.h"
#include "GPSPlayerView.h"
#include "MainWindowDelegate.h"
#include "MprisProperties.h"
#include "SliderFraction.h"

#include <QFile>
#include <QSlider>
#include <QUrl>
#include <QWidget>

namespace {

// Often enough that a desktop's controls follow a key press at once, rarely enough to cost nothing.
constexpr int kChangeWatchMilliseconds = 200;

}  // namespace

MprisPlayerLink::MprisPlayerLink(MainWindowDelegate& controller, QWidget& window, QObject* parent)
    : QObject(parent), controller_(controller), window_(&window),
      controlView_(window.findChild<GPSControlView*>()) {
    changeWatch_.setInterval(kChangeWatchMilliseconds);
    connect(&changeWatch_, &QTimer::timeout, this, &MprisPlayerLink::reportChanges);
    if (GPSPlayerEngine* player = engine())
        connect(player, &GPSPlayerEngine::seeked, this,
                [this](double seconds) { emit seeked(MprisProperties::microseconds(seconds)); });
}

GPSPlayerEngine* MprisPlayerLink::engine() const {
    GPSPlayerView* view = controller_.outlets().player;
    return view != nullptr ? &view->engine() : nullptr;
}

MprisPlayerState MprisPlayerLink::state() const {
    MprisPlayerState state;
    const GPSPlayerEngine* player = engine();
    const MainWindowOutlets& outlets = controller_.outlets();
    state.loaded = player != nullptr && player->IsReady();
    state.playing = state.loaded && player->IsPlaying();
    // Paused, the player's rate is 0; Play resumes at 1, which is what a client should show.
    state.rate = state.playing ? player->speed() : 1.0;
    if (player != nullptr && player->muted())
        state.volume = 0.0;
    else if (outlets.volumeSlider != nullptr)
        state.volume = sliderFraction(*outlets.volumeSlider);
    if (state.loaded) {
        state.entry = controller_.curIndex;
        if (player->fileURL()) state.file = *player->fileURL();
        state.durationSeconds = player->duration();
    }
    state.canGoNext = controller_.isButtonEnabled(TransportButton::Next);
    state.canGoPrevious = controller_.isButtonEnabled(TransportButton::Prev);
    // With an empty playlist Play would open the file dialog: nothing a remote should do.
    state.canPlay = state.loaded || controller_.playlist.size() > 0;
    state.canPause = state.loaded;
    state.canSeek = outlets.durationSlider != nullptr && outlets.durationSlider->isEnabled();
    return state;
}

double MprisPlayerLink::positionSeconds() const {
    const GPSPlayerEngine* player = engine();
    if (player == nullptr || player->mediaPlayer() == nullptr || !player->mediaPlayer()->hasItem()) return 0.0;
    return player->mediaPlayer()->currentTime().seconds();
}

void MprisPlayerLink::send(uint64_t playControl) {
    if (controlView_ == nullptr) return;
    if (GPSControlViewDelegate* delegate = controlView_->delegate()) delegate->didPerformPlayControl(controlView_, playControl);
}

void MprisPlayerLink::playPause() {
    if (state().canPlay) send(GPSPlayControlPlayPause);
}

void MprisPlayerLink::play() {
    // Play-pause plays whenever the play button shows: paused, stopped, or at another rate.
    if (state().canPlay && !controller_.isButtonHidden(TransportButton::Play)) send(GPSPlayControlPlayPause);
}

void MprisPlayerLink::pause() {
    if (controller_.isButtonHidden(TransportButton::Play)) {
        send(GPSPlayControlPlayPause);
    } else if (state().playing) {
        // At another rate than 1 play-pause would go back to 1 instead: pause as its pause half does.
        controller_.OnPause(controlView_);
        controller_.UpdatePlayingStatus();
    }
}

void MprisPlayerLink::stop() { send(GPSPlayControlStop); }

void MprisPlayerLink::next() { send(GPSPlayControlNext); }

void MprisPlayerLink::previous() { send(GPSPlayControlPrev); }

void MprisPlayerLink::seekBy(qlonglong offsetMicroseconds) {
    const MprisPlayerState now = state();
    if (!now.canSeek) return;
    if (const auto target = MprisProperties::seekTarget(positionSeconds(), offsetMicroseconds, now.durationSeconds))
        seekToSeconds(*target);
    else
        next();
}

void MprisPlayerLink::setPosition(const QDBusObjectPath& track, qlonglong positionMicroseconds) {
    const MprisPlayerState now = state();
    if (!now.canSeek) return;
    if (const auto target = MprisProperties::positionTarget(now, track, positionMicroseconds)) seekToSeconds(*target);
}

void MprisPlayerLink::seekToSeconds(double seconds) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    // The slider's steps are coarser than a client's microseconds: the engine takes the time
    // itself, and the slider follows on the next tick as after a drag.
    player->SeekToSeconds(seconds);
    controller_.UpdateControls();
}

void MprisPlayerLink::openUri(const QString& uri) {
    const QUrl url(uri);
    if (!url.isLocalFile()) return;
    controller_.openArguments({std::filesystem::path(QFile::encodeName(url.toLocalFile()).toStdString())});
}

void MprisPlayerLink::setRate(double rate) {
    const auto accepted = MprisProperties::acceptedRate(rate);
    if (!accepted) return;
    if (*accepted == 0.0)
        pause();
    else if (*accepted < 0.0)
        send(GPSPlayControlSpeedDown);
    else
        controller_.OnRateChosen(static_cast<float>(*accepted));
}

void MprisPlayerLink::setVolume(double volume) {
    QSlider* slider = controller_.outlets().volumeSlider;
    if (slider == nullptr || std::isnan(volume)) return;
    setSliderFraction(*slider, volume);
    controller_.OnVolumeChanged(slider);
}

void MprisPlayerLink::raiseWindow() {
    if (window_ != nullptr) bringToFront(*window_);
}

void MprisPlayerLink::quit() {
    // Closing the window is what ends the program, settings written.
    if (window_ != nullptr) window_->close();
}

void MprisPlayerLink::startWatching() {
    published_ = state();
    changeWatch_.start();
}

void MprisPlayerLink::reportChanges() {
    // Most ticks nothing has moved: the plain state is compared before any property is built.
    MprisPlayerState now = state();
    if (now == published_) return;
    const QVariantMap changed = MprisProperties::changed(MprisProperties::changingProperties(published_),
                                                         MprisProperties::changingProperties(now));
    published_ = std::move(now);
    if (!changed.isEmpty()) emit playerPropertiesChanged(changed);
}
