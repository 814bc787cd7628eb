#pragma once
// The controller of the main window: holds its items, sets them up on the window's first
// activation, and answers the player, the key-handling view, the buttons and the menus. Its
// operations live in one source file per role.

#include "GPSControlViewDelegate.h"
#include "GPSPlayerViewDelegate.h"
#include "MainWindowOutlets.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <vector>

class GPSInfoPanel;
class GPSUtils;
class QAction;

class MainWindowDelegate : public QObject, public GPSPlayerViewDelegate, public GPSControlViewDelegate {
    Q_OBJECT

public:
    // settings must outlive the controller; the program passes GPSUtils::sharedUtils().
    explicit MainWindowDelegate(GPSUtils& settings, QObject* parent = nullptr);

    MainWindowOutlets& outlets() { return outlets_; }
    const MainWindowOutlets& outlets() const { return outlets_; }
    void setOutlets(const MainWindowOutlets& outlets) { outlets_ = outlets; }
    GPSUtils& settings() const { return settings_; }

    // For benchmarks: quit the program when a movie has played to its end.
    bool quitAtEnd() const { return quitAtEnd_; }
    void setQuitAtEnd(bool quitAtEnd) { quitAtEnd_ = quitAtEnd; }

    // Window events (MainWindowDelegateSetup.cpp).
    // The first activation sets everything up; later ones change nothing.
    void windowDidBecomeMain();
    void windowWillClose();
    void setupControls();
    // The check mark on the unit item that matches the stored unit.
    void RefreshMenu();
    // sender: a unit item; its data is the unit type to store.
    void OnUnitChanged(QAction* sender);
    void OnShowAbout();
    void OnHideAbout();
    void OnPreference(QObject* sender);

    // Transport commands (control/). A null sender means "called by another handler".
    void OnPlay(QObject* sender);
    void OnPause(QObject* sender);
    void OnStop(QObject* sender);
    void OnPrev(QObject* sender);
    void OnNext(QObject* sender);
    void OnBackward(QObject* sender);
    void OnForward(QObject* sender);
    void OnDurationChanged(QObject* sender);
    void OnVolumeChanged(QObject* sender);
    void OnMute(QObject* sender);
    void OnSound(QObject* sender);
    void OnToggleFullscreen(QObject* sender);
    void OnSnapshot(QObject* sender);
    void VolumeDown();
    void VolumeUp();
    void SpeedDown();
    void SpeedUp();
    void UpdateControls();
    void UpdatePlayingStatus();
    void didPerformPlayControl(QObject* sender, uint64_t playControl) override;
    void UpdateDuration(GPSPlayerEngine& engine, double progress) override;
    void UpdatedPlayingStatus(GPSPlayerEngine& engine, bool playing) override;
    void Completed(GPSPlayerEngine& engine) override;

    // The playlist (mainwindow/playlist).
    void OnOpenMediaFile(QObject* sender);
    void OnRemoveMediaFile(QObject* sender);
    void OnDoubleClickMediaItem(QObject* sender);
    void AddedMovies(QObject* sender, const std::vector<std::filesystem::path>& movies) override;

    // The read-outs (display/).
    void UpdatedGPSInfo(GPSPlayerEngine& engine, const GPSData& data, uint64_t index) override;
    void ResetControls();
    void RefreshUnits();


    bool isInited = false;
    // Placeholder until the playlist's entries arrive: the movies in display order.
    std::vector<std::filesystem::path> playlist;
    // The playlist position of the movie in the player; -1 for none.
    int64_t curIndex = -1;

private:
    // The read-out labels of the outlets, as the panel that writes them.
    GPSInfoPanel infoPanel() const;

    GPSUtils& settings_;
    MainWindowOutlets outlets_;
    bool quitAtEnd_ = false;
    bool quitting_ = false;
};
