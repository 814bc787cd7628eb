#include "MainWindow.h"

#include "GPSControlView.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "MainWindowConnections.h"
#include "SetupTitleBar.h"
#include "SkinControls.h"
#include "WindowChromeMode.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QEvent>
#include <QStyle>

#include <utility>

namespace {

MainWindowOutlets outletsOf(MainWindow& window, Ui::MainWindow& ui) {
    return {
        .window = &window,
        .player = ui.player,
        .playListView = ui.playListView,
        .mapView = ui.mapView,
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
    };
}

// The style's own media pictures; the interface description's texts stay as names and fallbacks.
void setStandardIcons(Ui::MainWindow& ui, const QStyle& style) {
    const std::pair<QAbstractButton*, QStyle::StandardPixmap> icons[] = {
        {ui.btPrev, QStyle::SP_MediaSkipBackward},
        {ui.btBackward, QStyle::SP_MediaSeekBackward},
        {ui.btPlay, QStyle::SP_MediaPlay},
        {ui.btPause, QStyle::SP_MediaPause},
        {ui.btForward, QStyle::SP_MediaSeekForward},
        {ui.btNext, QStyle::SP_MediaSkipForward},
        {ui.btStop, QStyle::SP_MediaStop},
        {ui.btSnapshot, QStyle::SP_DialogSaveButton},
        {ui.btToggleFullscreen, QStyle::SP_TitleBarMaxButton},
        {ui.btMute, QStyle::SP_MediaVolumeMuted},
        {ui.btSound, QStyle::SP_MediaVolume},
    };
    for (const auto& [button, pixmap] : icons) {
        const QIcon icon = style.standardIcon(pixmap);
        if (!icon.isNull()) button->setIcon(icon);
        button->setIconSize(QSize(24, 24));
        // Keys belong to the key-handling view: a focused button would take Space for itself.
        button->setFocusPolicy(Qt::NoFocus);
    }
}

}  // namespace

MainWindow::MainWindow(GPSUtils& settings, QWidget* parent)
    : QMainWindow(parent),
      ui_(std::make_unique<Ui::MainWindow>()),
      controller_(std::make_unique<MainWindowDelegate>(settings)) {
    ui_->setupUi(this);
    // Before the window is first shown: a frameless window must be made so from the start.
    SetupTitleBarForMainWindow(*this, currentChromeMode());
    setStandardIcons(*ui_, *style());
    applySliderSkin(*ui_->durationSlider);
    applySliderSkin(*ui_->volumeSlider);
    // One of each pair shows at a time; the controller's first refresh keeps it so.
    ui_->btPause->hide();
    ui_->btMute->hide();

    controller_->setOutlets(outletsOf(*this, *ui_));
    ui_->player->setControlView(ui_->controlView);
    ui_->playListView->setControlView(ui_->controlView);
    ui_->controlView->setDelegate(controller_.get());
    ui_->player->engine().setDelegate(controller_.get());
    connectMainWindow(*ui_, *controller_);
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

void MainWindow::closeEvent(QCloseEvent* event) {
    controller_->windowWillClose();
    QMainWindow::closeEvent(event);
}
