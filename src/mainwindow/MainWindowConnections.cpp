#include "MainWindowConnections.h"

#include "GPSControlView.h"
#include "GPSPlayControl.h"
#include "GPSTableView.h"
#include "MainWindowDelegate.h"
#include "ui_MainWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QSlider>

#include <string>
#include <utility>

namespace {

using Handler = void (MainWindowDelegate::*)(QObject*);

// A button sends its handler with itself as the sender.
void connectButton(QAbstractButton* button, MainWindowDelegate& controller, Handler handler) {
    QObject::connect(button, &QAbstractButton::clicked, &controller,
                     [button, &controller, handler] { (controller.*handler)(button); });
}

void connectSlider(QSlider* slider, MainWindowDelegate& controller, Handler handler) {
    // valueChanged comes only from the user: the program moves the sliders without signals.
    QObject::connect(slider, &QSlider::valueChanged, &controller,
                     [slider, &controller, handler] { (controller.*handler)(slider); });
}

void connectMenuItem(QAction* action, MainWindowDelegate& controller, Handler handler) {
    QObject::connect(action, &QAction::triggered, &controller,
                     [action, &controller, handler] { (controller.*handler)(action); });
}

}  // namespace

void connectMainWindow(Ui::MainWindow& ui, MainWindowDelegate& controller) {
    MainWindowDelegate* c = &controller;
    const std::pair<QAbstractButton*, Handler> buttons[] = {
        {ui.btPrev, &MainWindowDelegate::OnPrev},
        {ui.btBackward, &MainWindowDelegate::OnBackward},
        {ui.btPlay, &MainWindowDelegate::OnPlay},
        {ui.btPause, &MainWindowDelegate::OnPause},
        {ui.btForward, &MainWindowDelegate::OnForward},
        {ui.btNext, &MainWindowDelegate::OnNext},
        {ui.btStop, &MainWindowDelegate::OnStop},
        {ui.btSnapshot, &MainWindowDelegate::OnSnapshot},
        {ui.btToggleFullscreen, &MainWindowDelegate::OnToggleFullscreen},
        // Only the shown one of the two can be clicked; each leads to the other state.
        {ui.btSound, &MainWindowDelegate::OnMute},
        {ui.btMute, &MainWindowDelegate::OnSound},
    };
    for (const auto& [button, handler] : buttons) connectButton(button, controller, handler);
    connectSlider(ui.durationSlider, controller, &MainWindowDelegate::OnDurationChanged);
    connectSlider(ui.volumeSlider, controller, &MainWindowDelegate::OnVolumeChanged);

    QObject::connect(ui.playListView, &QAbstractItemView::doubleClicked, c,
                     [c, table = ui.playListView] { c->OnDoubleClickMediaItem(table); });

    const std::pair<QAction*, Handler> fileItems[] = {
        {ui.actionOpen, &MainWindowDelegate::OnOpenMediaFile},
        {ui.actionRemove, &MainWindowDelegate::OnRemoveMediaFile},
        {ui.actionSnapshot, &MainWindowDelegate::OnSnapshot},
        {ui.actionPreferences, &MainWindowDelegate::OnPreference},
    };
    for (const auto& [action, handler] : fileItems) connectMenuItem(action, controller, handler);
    // Quitting closes the window, which is what ends the program.
    QObject::connect(ui.actionQuit, &QAction::triggered, ui.controlView->window(), &QWidget::close);

    // The playback items send the key's play control code the way a key press does, guards included.
    const std::pair<QAction*, GPSPlayControl> playbackItems[] = {
        {ui.actionPlayPause, GPSPlayControlPlayPause},
        {ui.actionStop, GPSPlayControlStop},
        {ui.actionBackward, GPSPlayControlBackward},
        {ui.actionForward, GPSPlayControlForward},
        {ui.actionPrev, GPSPlayControlPrev},
        {ui.actionNext, GPSPlayControlNext},
        {ui.actionSpeedUp, GPSPlayControlSpeedUp},
        {ui.actionSpeedDown, GPSPlayControlSpeedDown},
        {ui.actionVolumeUp, GPSPlayControlVolumeUp},
        {ui.actionVolumeDown, GPSPlayControlVolumeDown},
        {ui.actionToggleFullscreen, GPSPlayControlToggleFullscreen},
        {ui.actionPrevFrame, GPSPlayControlStepFrameBackward},
        {ui.actionNextFrame, GPSPlayControlStepFrameForward},
        {ui.actionMarkStart, GPSPlayControlMarkStart},
        {ui.actionMarkEnd, GPSPlayControlMarkEnd},
    };
    for (const auto& [action, code] : playbackItems) {
        action->setData(QVariant::fromValue<qulonglong>(code));
        QObject::connect(action, &QAction::triggered, c, [view = ui.controlView, code] {
            if (GPSControlViewDelegate* delegate = view->delegate()) delegate->didPerformPlayControl(view, code);
        });
    }

    const std::pair<QAction*, float> rates[] = {
        {ui.actionRate025, 0.25f}, {ui.actionRate05, 0.5f}, {ui.actionRate1, 1.0f},
        {ui.actionRate2, 2.0f},    {ui.actionRate4, 4.0f},  {ui.actionRate8, 8.0f},
    };
    // Paused or playing backwards, no rate of the list is the one playing.
    ui.rateGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const auto& [action, rate] : rates) {
        action->setData(rate);
        QObject::connect(action, &QAction::triggered, c, [c, rate] { c->OnRateChosen(rate); });
    }
    QObject::connect(ui.actionContinuousPlay, &QAction::toggled, c, [c](bool on) { c->OnContinuousPlayChanged(on); });

    // The tags are the stored unit types.
    ui.unitKMH->setData(QVariant::fromValue<qulonglong>(1));
    ui.unitMPH->setData(QVariant::fromValue<qulonglong>(0));
    for (QAction* unit : {ui.unitKMH, ui.unitMPH})
        QObject::connect(unit, &QAction::triggered, c, [c, unit] { c->OnUnitChanged(unit); });

    // The tile sources: the two that need a file ask for it first.
    const std::pair<QAction*, const char*> mapSources[] = {
        {ui.mapOpenStreetMap, "osm"},
        {ui.mapWorkOffline, "offline"},
    };
    for (const auto& [action, source] : mapSources)
        QObject::connect(action, &QAction::triggered, c, [c, source = std::string(source)] { c->OnMapSourceChanged(source); });
    QObject::connect(ui.mapMBTiles, &QAction::triggered, c, [c] { c->OnOpenMapFile(false); });
    QObject::connect(ui.mapTileFolder, &QAction::triggered, c, [c] { c->OnOpenMapFile(true); });

    QObject::connect(ui.actionAbout, &QAction::triggered, c, [c] { c->OnShowAbout(); });
    QObject::connect(ui.actionCopyPosition, &QAction::triggered, c, [c] { c->OnCopyPosition(); });
    QObject::connect(ui.actionOpenPosition, &QAction::triggered, c, [c] { c->OnOpenPosition(); });

    // Export Track: an item per scope; what there is to export is looked at as the File menu opens.
    using ExportScope = MainWindowDelegate::ExportScope;
    const std::pair<QAction*, ExportScope> exportItems[] = {
        {ui.actionExportClip, ExportScope::LoadedClip},
        {ui.actionExportTrip, ExportScope::SelectedTrip},
        {ui.actionExportPlaylist, ExportScope::Playlist},
    };
    for (const auto& [action, scope] : exportItems)
        QObject::connect(action, &QAction::triggered, c, [c, scope = scope] { c->OnExportTrack(scope); });
    QObject::connect(ui.menuFile, &QMenu::aboutToShow, c, [c] { c->RefreshExportMenu(); });
    QObject::connect(ui.actionClearMarks, &QAction::triggered, c, [c] { c->OnClearMarks(); });
    QObject::connect(ui.actionSaveSegment, &QAction::triggered, c, [c] { c->OnSaveSegment(); });
}
