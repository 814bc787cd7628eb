// The controller's roles that other parts of the program fill in. Until then each is a no-op with
// the signature the window's connections already use; remove a section when its role arrives.

#include "MainWindowDelegate.h"

#include <QCoreApplication>

// ---- Transport commands (control/) ----
void MainWindowDelegate::OnPlay(QObject* /*sender*/) {}
void MainWindowDelegate::OnPause(QObject* /*sender*/) {}
void MainWindowDelegate::OnStop(QObject* /*sender*/) {}
void MainWindowDelegate::OnPrev(QObject* /*sender*/) {}
void MainWindowDelegate::OnNext(QObject* /*sender*/) {}
void MainWindowDelegate::OnBackward(QObject* /*sender*/) {}
void MainWindowDelegate::OnForward(QObject* /*sender*/) {}
void MainWindowDelegate::OnDurationChanged(QObject* /*sender*/) {}
void MainWindowDelegate::OnVolumeChanged(QObject* /*sender*/) {}
void MainWindowDelegate::OnMute(QObject* /*sender*/) {}
void MainWindowDelegate::OnSound(QObject* /*sender*/) {}
void MainWindowDelegate::OnToggleFullscreen(QObject* /*sender*/) {}
void MainWindowDelegate::OnSnapshot(QObject* /*sender*/) {}
void MainWindowDelegate::VolumeDown() {}
void MainWindowDelegate::VolumeUp() {}
void MainWindowDelegate::SpeedDown() {}
void MainWindowDelegate::SpeedUp() {}
void MainWindowDelegate::UpdateControls() {}
void MainWindowDelegate::UpdatePlayingStatus() {}
void MainWindowDelegate::didPerformPlayControl(QObject* /*sender*/, uint64_t /*playControl*/) {}
void MainWindowDelegate::UpdateDuration(GPSPlayerEngine& /*engine*/, double /*progress*/) {}
void MainWindowDelegate::UpdatedPlayingStatus(GPSPlayerEngine& /*engine*/, bool /*playing*/) {}

void MainWindowDelegate::Completed(GPSPlayerEngine& /*engine*/) {
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

// ---- Playlist (mainwindow/playlist) ----
void MainWindowDelegate::OnOpenMediaFile(QObject* /*sender*/) {}
void MainWindowDelegate::OnRemoveMediaFile(QObject* /*sender*/) {}
void MainWindowDelegate::OnDoubleClickMediaItem(QObject* /*sender*/) {}
void MainWindowDelegate::AddedMovies(QObject* /*sender*/, const std::vector<std::filesystem::path>& /*movies*/) {}

