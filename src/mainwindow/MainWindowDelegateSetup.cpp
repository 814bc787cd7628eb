// The controller's set-up and window events: the first activation, the unit menu, closing, About.

#include "MainWindowDelegate.h"

#include "AboutView.h"
#include "GPSInfoPanel.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"
#include "SliderFraction.h"

#include <QAction>
#include <QCoreApplication>
#include <QFont>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QSlider>

#include <utility>


MainWindowDelegate::MainWindowDelegate(GPSUtils& settings, QObject* parent) : QObject(parent), settings_(settings) {}

void MainWindowDelegate::windowDidBecomeMain() {
    if (isInited) return;
    isInited = true;
    // Before the controls: the font they ask for depends on whether registration worked.
    LEDFontManager::Register();
    setupControls();
    setupMap();
    if (!pendingMovies_.empty()) {
        addToPlaylist(std::exchange(pendingMovies_, {}));
        UpdateControls();
    }
}

void MainWindowDelegate::setupControls() {
    const MainWindowOutlets& o = outlets_;
    infoPanel().setupFonts();

    if (o.volumeSlider != nullptr && o.player != nullptr)
        setSliderFraction(*o.volumeSlider, o.player->engine().volume());

    setupPlaylistTable();
    setupTimeline();
    RefreshMenu();
    RefreshUnits();
    ResetControls();
    UpdateControls();
    UpdatePlayingStatus();
}

void MainWindowDelegate::windowWillClose() { LEDFontManager::Unregister(); }

void MainWindowDelegate::RefreshMenu() {
    const bool kmh = settings_.unitType() == 1;
    if (outlets_.unitKMH != nullptr) outlets_.unitKMH->setChecked(kmh);
    if (outlets_.unitMPH != nullptr) outlets_.unitMPH->setChecked(!kmh);
    if (outlets_.actionContinuousPlay != nullptr) outlets_.actionContinuousPlay->setChecked(settings_.continuousPlay());
    refreshPreferences();
}

void MainWindowDelegate::OnUnitChanged(QAction* sender) {
    if (sender == nullptr) return;
    // An item without a tag counts as tag 0, as a menu item's default tag would.
    useUnit(sender->data().toULongLong());
}

void MainWindowDelegate::useUnit(uint64_t unitType) {
    settings_.setUnitType(unitType);
    setupPlaylistTable();
    RefreshMenu();
    RefreshUnits();
    // The timeline's speeds are in the unit too.
    refreshTimeline();
}

void MainWindowDelegate::OnShowAbout() {
    if (outlets_.aboutView != nullptr && outlets_.content != nullptr) outlets_.aboutView->ShowAbout(true, outlets_.content);
}

void MainWindowDelegate::OnHideAbout() {
    if (outlets_.aboutView != nullptr && outlets_.content != nullptr) outlets_.aboutView->ShowAbout(false, outlets_.content);
}
