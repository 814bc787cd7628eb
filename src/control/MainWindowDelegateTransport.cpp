// The controller's transport commands: the handlers that buttons, keys and the end of a movie run,
// the choice of the playlist entry to play, the answers to the engine, and the states of the
// transport buttons. The rules themselves live in PlaylistNavigation, SliderStep, SoundRules and
// TransportButtonStates; this file applies them to the window.

#include "MainWindowDelegate.h"

#include "GPSInfoPanel.h"
#include "GPSPlayerView.h"
#include "PlayControlDispatch.h"
#include "PlaylistNavigation.h"
#include "SliderFraction.h"
#include "SliderStep.h"
#include "SoundRules.h"
#include "TransportButtonStates.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QSlider>

#include <utility>

namespace {

constexpr float kNormalRate = 1.0f;
constexpr float kFastRate = 2.0f;

void setEnabled(QWidget* widget, bool enabled) {
    if (widget != nullptr) widget->setEnabled(enabled);
}

void setHidden(QWidget* widget, bool hidden) {
    if (widget != nullptr) widget->setHidden(hidden);
}

enum class Step { Down, Up };

// Moves a 0-to-1 slider one step; false when there is no slider or it is already at that end.
bool stepSlider(QSlider* slider, Step direction, double step) {
    if (slider == nullptr) return false;
    const double value = sliderFraction(*slider);
    const auto moved = direction == Step::Up ? SliderStep::up(value, step) : SliderStep::down(value, step);
    if (!moved) return false;
    setSliderFraction(*slider, *moved);
    return true;
}

}  // namespace

GPSPlayerEngine* MainWindowDelegate::engine() const {
    return outlets_.player != nullptr ? &outlets_.player->engine() : nullptr;
}

void MainWindowDelegate::OnPlay(QObject* sender) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    switch (PlaylistNavigation::play(sender != nullptr, playlist.size(), player->IsReady())) {
    case PlaylistNavigation::PlayStep::Nothing:
        return;
    case PlaylistNavigation::PlayStep::OpenPanel:
        OnOpenMediaFile(nullptr);
        return;
    case PlaylistNavigation::PlayStep::Resume:
        if (player->speed() != kNormalRate) player->setSpeed(kNormalRate);
        player->Resume();
        UpdateControls();
        return;
    case PlaylistNavigation::PlayStep::PlaySelectedRow:
        playWithIndex(selectedRow(), true);
        return;
    }
}

void MainWindowDelegate::OnPause(QObject* /*sender*/) {
    if (GPSPlayerEngine* player = engine()) player->Pause();
    UpdateControls();
}

void MainWindowDelegate::OnStop(QObject* /*sender*/) {
    if (GPSPlayerEngine* player = engine()) player->Stop();
    continuing_ = false;
    holdingReadOuts_ = false;
    entryFailed_ = false;
    if (outlets_.player != nullptr) outlets_.player->clearMessage();
    ResetControls();
    UpdateControls();
    refreshTimeline();
}

void MainWindowDelegate::OnPrev(QObject* /*sender*/) { playWithIndex(PlaylistNavigation::previousIndex(curIndex), true); }

void MainWindowDelegate::OnNext(QObject* sender) {
    // Without a sender (the end of a movie) the next entry is only loaded: the user starts it.
    playWithIndex(PlaylistNavigation::nextIndex(curIndex, playlist.size()), sender != nullptr);
}

void MainWindowDelegate::playWithIndex(int64_t index, bool autoPlay) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    switch (PlaylistNavigation::playWithIndex(index, playlist.size(), player->IsReady(), curIndex)) {
    case PlaylistNavigation::IndexStep::Ignore:
        return;
    case PlaylistNavigation::IndexStep::Restart:
        if (outlets_.durationSlider != nullptr) setSliderFraction(*outlets_.durationSlider, 0.0);
        player->Seek(0.0);
        break;
    case PlaylistNavigation::IndexStep::Load: {
        // Going on through a trip, the read-outs keep the last clip's sample until the next one
        // has its own: no idle texts in between.
        const bool continuing = std::exchange(continuing_, false);
        holdingReadOuts_ = false;
        if (!continuing) OnStop(nullptr);
        curIndex = index;
        selectRow(index);
        const std::filesystem::path url = playlistURL(index);
        player->setMovie(url);
        if (outlets_.txtTitle != nullptr) outlets_.txtTitle->setText(QFile::decodeName(url.c_str()));
        entryFailed_ = !player->IsReady();
        if (entryFailed_) {
            showClipProblem(index);
            // Through a trip, a clip that went is passed over like a blank stretch of road.
            if (continuing) {
                if (const auto next = continuationOf(index)) {
                    continuing_ = true;
                    playWithIndex(*next, autoPlay);
                    return;
                }
            }
        } else {
            if (clipProblems_.erase(url) > 0) refreshTrips();
            if (outlets_.player != nullptr) outlets_.player->clearMessage();
            holdingReadOuts_ = continuing;
        }
        refreshTimeline();
        break;
    }
    }
    // Going on through a trip the speed stays as it was; the new clip has no sample yet to show.
    if (!holdingReadOuts_) RefreshUnits();
    // A file that no longer plays (deleted, or broken since it was added) leaves the engine empty;
    // playing it would come back here to load it again, without end. Its read-outs are idle, not
    // the last clip's.
    if (entryFailed_) {
        infoPanel().reset();
        showPlace(std::nullopt);
    }
    if (autoPlay && player->IsReady())
        OnPlay(outlets_.btPlay);
    else
        UpdateControls();
}

void MainWindowDelegate::OnBackward(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player != nullptr && stepSlider(outlets_.durationSlider, Step::Down, player->seekUnit()))
        OnDurationChanged(outlets_.durationSlider);
}

void MainWindowDelegate::OnForward(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player != nullptr && stepSlider(outlets_.durationSlider, Step::Up, player->seekUnit()))
        OnDurationChanged(outlets_.durationSlider);
}

void MainWindowDelegate::OnDurationChanged(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player != nullptr && outlets_.durationSlider != nullptr) player->Seek(sliderFraction(*outlets_.durationSlider));
    UpdateControls();
}

void MainWindowDelegate::VolumeDown() {
    if (stepSlider(outlets_.volumeSlider, Step::Down, SliderStep::kVolumeStep)) OnVolumeChanged(outlets_.volumeSlider);
}

void MainWindowDelegate::VolumeUp() {
    if (stepSlider(outlets_.volumeSlider, Step::Up, SliderStep::kVolumeStep)) OnVolumeChanged(outlets_.volumeSlider);
}

void MainWindowDelegate::OnVolumeChanged(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr || outlets_.volumeSlider == nullptr) return;
    const double volume = sliderFraction(*outlets_.volumeSlider);
    switch (SoundRules::forVolume(volume, player->muted())) {
    case SoundRules::Switch::None:
        break;
    case SoundRules::Switch::Mute:
        OnMute(nullptr);
        break;
    case SoundRules::Switch::Unmute:
        OnSound(nullptr);
        break;
    }
    player->setVolume(volume);
}

namespace {

void applySound(const SoundRules::Outcome& outcome, GPSPlayerEngine& player, const MainWindowOutlets& o) {
    if (outcome.setEngineMuted) player.setMuted(*outcome.setEngineMuted);
    setHidden(o.btMute, !outcome.muteShown);
    setHidden(o.btSound, outcome.muteShown);
    if (outcome.volumeSlider && o.volumeSlider != nullptr) setSliderFraction(*o.volumeSlider, *outcome.volumeSlider);
}

}  // namespace

void MainWindowDelegate::OnMute(QObject* sender) {
    if (GPSPlayerEngine* player = engine())
        applySound(SoundRules::mute(player->muted(), sender != nullptr), *player, outlets_);
}

void MainWindowDelegate::OnSound(QObject* sender) {
    if (GPSPlayerEngine* player = engine())
        applySound(SoundRules::sound(player->muted(), sender != nullptr, player->volume()), *player, outlets_);
}

void MainWindowDelegate::SpeedUp() {
    GPSPlayerEngine* player = engine();
    if (player == nullptr || player->speed() == kFastRate) return;
    player->setSpeed(kFastRate);
    UpdatePlayingStatus();
}

void MainWindowDelegate::SpeedDown() {
    GPSPlayerEngine* player = engine();
    if (player == nullptr || player->speed() == -kFastRate) return;
    player->setSpeed(-kFastRate);
    UpdatePlayingStatus();
}

void MainWindowDelegate::StepFrame(bool forward) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    // A step is taken from a still picture: a playing movie stops first, on the frame it shows.
    if (player->IsPlaying()) player->Pause();
    player->StepFrame(forward);
    UpdatePlayingStatus();
}

void MainWindowDelegate::OnRateChosen(float rate) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr || !player->IsReady()) return;
    if (rate == kNormalRate) {
        OnPlay(outlets_.btPlay);
    } else if (player->speed() != rate) {
        player->setSpeed(rate);
    }
    UpdatePlayingStatus();
}

void MainWindowDelegate::OnToggleFullscreen(QObject* /*sender*/) {
    if (outlets_.player != nullptr) outlets_.player->toggleFullscreen();
}

void MainWindowDelegate::UpdateControls() {
    const GPSPlayerEngine* player = engine();
    const ControlStates states = TransportButtonStates::controlsFor({
        .ready = player != nullptr && player->IsReady(),
        .entryFailed = entryFailed_,
        .curIndex = curIndex,
        .count = playlist.size(),
        .progress = outlets_.durationSlider != nullptr ? sliderFraction(*outlets_.durationSlider) : 0.0,
    });
    const MainWindowOutlets& o = outlets_;
    setEnabled(o.btPrev, states.prevEnabled);
    setEnabled(o.btBackward, states.backwardEnabled);
    setEnabled(o.btForward, states.forwardEnabled);
    setEnabled(o.btNext, states.nextEnabled);
    setEnabled(o.btStop, states.stopEnabled);
    setEnabled(o.btSnapshot, states.snapshotEnabled);
    setEnabled(o.durationSlider, states.durationSliderEnabled);
}

void MainWindowDelegate::UpdatePlayingStatus() {
    const GPSPlayerEngine* player = engine();
    const PlayingStates states = TransportButtonStates::playingStatusFor({
        .ready = player != nullptr && player->IsReady(),
        .isPlaying = player != nullptr && player->IsPlaying(),
        .speed = player != nullptr ? player->speed() : kNormalRate,
    });
    const MainWindowOutlets& o = outlets_;
    setHidden(o.btPause, !states.pauseShown);
    setHidden(o.btPlay, !states.playShown);
    setEnabled(o.btStop, states.stopEnabled);
    RefreshRateMenu();
}

void MainWindowDelegate::RefreshRateMenu() {
    const GPSPlayerEngine* player = engine();
    const float rate = player != nullptr && player->IsPlaying() ? player->speed() : 0.0f;
    for (QAction* item : outlets_.rateItems) {
        if (item != nullptr) item->setChecked(item->data().toFloat() == rate);
    }
}

QAbstractButton* MainWindowDelegate::buttonOf(TransportButton button) const {
    const MainWindowOutlets& o = outlets_;
    switch (button) {
    case TransportButton::Prev: return o.btPrev;
    case TransportButton::Backward: return o.btBackward;
    case TransportButton::Play: return o.btPlay;
    case TransportButton::Pause: return o.btPause;
    case TransportButton::Forward: return o.btForward;
    case TransportButton::Next: return o.btNext;
    case TransportButton::Stop: return o.btStop;
    case TransportButton::Snapshot: return o.btSnapshot;
    case TransportButton::ToggleFullscreen: return o.btToggleFullscreen;
    }
    return nullptr;
}

bool MainWindowDelegate::isButtonEnabled(TransportButton button) const {
    const QAbstractButton* b = buttonOf(button);
    return b != nullptr && b->isEnabled();
}

bool MainWindowDelegate::isButtonHidden(TransportButton button) const {
    // isHidden, not !isVisible: a button counts as shown while its window is minimised or not yet up.
    const QAbstractButton* b = buttonOf(button);
    return b == nullptr || b->isHidden();
}

void MainWindowDelegate::didPerformPlayControl(QObject* sender, uint64_t playControl) {
    PlayControlDispatch::perform(*this, sender, playControl);
}

void MainWindowDelegate::UpdateDuration(GPSPlayerEngine& engine, double progress) {
    // While the user drags the knob, the knob is theirs: the seek follows when they let go.
    if (outlets_.durationSlider != nullptr && !outlets_.durationSlider->isSliderDown())
        setSliderFraction(*outlets_.durationSlider, progress);
    showTimelinePosition(progress * engine.duration());
    UpdateControls();
}

void MainWindowDelegate::UpdatedPlayingStatus(GPSPlayerEngine& /*engine*/, bool /*playing*/) { UpdatePlayingStatus(); }

void MainWindowDelegate::Completed(GPSPlayerEngine& /*engine*/) {
    // Under continuous play the trip goes on at once; between trips the next clip waits.
    if (const auto next = continuationOf(curIndex)) {
        continuing_ = true;
        playWithIndex(*next, true);
        return;
    }
    if (quitAtEnd_) {
        // The end is reported on every tick there; quit once.
        if (!quitting_) {
            quitting_ = true;
            QCoreApplication::quit();
        }
        return;
    }
    OnNext(nullptr);
}
