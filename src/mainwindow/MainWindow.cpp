#include "MainWindow.h"

#include "AboutView.h"
#include "GPSButton.h"
#include "GPSControlView.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "LanguageMenu.h"
#include "MainWindowConnections.h"
#include "SetupTitleBar.h"
#include "SkinControls.h"
#include "UiLanguage.h"
#include "WindowChromeMode.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QEvent>
#include <QLocale>


namespace {

MainWindowOutlets outletsOf(MainWindow& window, Ui::MainWindow& ui, AboutView& about) {
    return {
        .window = &window,
        .player = ui.player,
        .playListView = ui.playListView,
        .mapView = ui.mapView,
        .aboutView = &about,
        .content = ui.controlView,
        .txtTitle = ui.txtTitle,
        .durationSlider = ui.durationSlider,
        .volumeSlider = ui.volumeSlider,
        .btMute = ui.btMute,
        .btSound = ui.btSound,
        .btPrev = ui.btPrev,
        .btBackward = ui.btBackward,
        .btPlay = ui.btPlay,
        .btPause = ui.btPause,
        .btForward = ui.btForward,
        .btNext = ui.btNext,
        .btStop = ui.btStop,
        .btSnapshot = ui.btSnapshot,
        .btToggleFullscreen = ui.btToggleFullscreen,
        .txtSpeed = ui.txtSpeed,
        .txtSpeedUnit = ui.txtSpeedUnit,
        .lblLatitude = ui.lblLatitude,
        .txtLatitude = ui.txtLatitude,
        .lblLongitude = ui.lblLongitude,
        .txtLongitude = ui.txtLongitude,
        .lblDate = ui.lblDate,
        .txtDate = ui.txtDate,
        .lblTime = ui.lblTime,
        .txtTime = ui.txtTime,
        .txtMapView = ui.txtMapView,
        .unitKMH = ui.unitKMH,
        .unitMPH = ui.unitMPH,
        .languageChinese = ui.languageChinese,
        .languageEnglish = ui.languageEnglish,
        .languageJananese = ui.languageJananese,
        .languageVietnamese = ui.languageVietnamese,
        .mapBaidu = ui.mapBaidu,
        .mapGoogle = ui.mapGoogle,
        .mapOpenStreetMap = ui.mapOpenStreetMap,
        .mapMBTiles = ui.mapMBTiles,
        .mapTileFolder = ui.mapTileFolder,
        .mapWorkOffline = ui.mapWorkOffline,
        .timeline = ui.timeline,
        .txtElapsed = ui.txtElapsed,
        .txtTripSummary = ui.txtTripSummary,
        .actionContinuousPlay = ui.actionContinuousPlay,
        .rateItems = {ui.actionRate025, ui.actionRate05, ui.actionRate1, ui.actionRate2, ui.actionRate4,
                      ui.actionRate8},
        .actionCopyPosition = ui.actionCopyPosition,
        .actionOpenPosition = ui.actionOpenPosition,
        .menuExportTrack = ui.menuExportTrack,
        .actionExportClip = ui.actionExportClip,
        .actionExportTrip = ui.actionExportTrip,
        .actionExportPlaylist = ui.actionExportPlaylist,
    };
}

// The buttons' pictures ignore the pointer while a modal view is up; that flag lives in the settings.
void connectButtonsToSettings(QMainWindow& window, const GPSUtils& settings) {
    for (GPSButton* button : window.findChildren<GPSButton*>()) button->setUtils(&settings);
}

}  // namespace

MainWindow::MainWindow(GPSUtils& settings, QWidget* parent)
    : QMainWindow(parent),
      ui_(std::make_unique<Ui::MainWindow>()),
      controller_(std::make_unique<MainWindowDelegate>(settings)) {
    translator_.use(startupLanguage(settings.language(), QLocale::system().uiLanguages()));
    ui_->setupUi(this);
    // Before the window is first shown: a frameless window must be made so from the start.
    SetupTitleBarForMainWindow(*this, currentChromeMode());
    connectButtonsToSettings(*this, settings);
    applySliderSkin(*ui_->durationSlider);
    applySliderSkin(*ui_->volumeSlider);
    // One of each pair shows at a time; the controller's first refresh keeps it so.
    ui_->btPause->hide();
    ui_->btMute->hide();

    // Hidden until Help, About; the key-handling view it covers owns it.
    auto* about = new AboutView(settings, ui_->controlView);
    connect(about, &AboutView::hideRequested, controller_.get(), [this] { controller_->OnHideAbout(); });
    controller_->setOutlets(outletsOf(*this, *ui_, *about));
    ui_->player->setControlView(ui_->controlView);
    ui_->playListView->setControlView(ui_->controlView);
    ui_->controlView->setDelegate(controller_.get());
    ui_->player->engine().setDelegate(controller_.get());
    connectMainWindow(*ui_, *controller_);
    // Owned by the window.
    new LanguageMenu({{ui_->languageChinese, "zh_CN"},
                      {ui_->languageEnglish, "en"},
                      {ui_->languageJananese, "ja"},
                      {ui_->languageVietnamese, "vi"}},
                     translator_, settings, this);
    ui_->controlView->setFocus();
}

MainWindow::~MainWindow() {
    // The player and the key-handling view outlive the controller by a moment: cut them off first.
    ui_->player->engine().setDelegate(nullptr);
    ui_->controlView->setDelegate(nullptr);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) controller_->windowDidBecomeMain();
    return QMainWindow::event(event);
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        controller_->retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    controller_->windowWillClose();
    QMainWindow::closeEvent(event);
}
