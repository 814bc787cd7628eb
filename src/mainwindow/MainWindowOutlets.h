#pragma once
// The main window's items that the controller works with, by the names the window's interface
// description gives them. Non-owning: the window owns them all; null means not connected.

#include <array>

class AboutView;
class GPSPlayerView;
class GPSTableView;
class MapView;
class QAbstractButton;
class QAction;
class QLabel;
class QMenu;
class QMainWindow;
class QSlider;
class QWidget;
class TimelineView;

struct MainWindowOutlets {
    QMainWindow* window = nullptr;
    GPSPlayerView* player = nullptr;
    GPSTableView* playListView = nullptr;
    MapView* mapView = nullptr;
    // Shown over `content` (the window's central widget) by OnShowAbout.
    AboutView* aboutView = nullptr;
    QWidget* content = nullptr;

    QLabel* txtTitle = nullptr;
    // Both run from 0 to 1 through sliderFraction / setSliderFraction.
    QSlider* durationSlider = nullptr;
    QSlider* volumeSlider = nullptr;

    QAbstractButton* btMute = nullptr;
    QAbstractButton* btSound = nullptr;
    QAbstractButton* btPrev = nullptr;
    QAbstractButton* btBackward = nullptr;
    QAbstractButton* btPlay = nullptr;
    QAbstractButton* btPause = nullptr;
    QAbstractButton* btForward = nullptr;
    QAbstractButton* btNext = nullptr;
    QAbstractButton* btStop = nullptr;
    QAbstractButton* btSnapshot = nullptr;
    QAbstractButton* btToggleFullscreen = nullptr;

    QLabel* txtSpeed = nullptr;
    QLabel* txtSpeedUnit = nullptr;
    QLabel* lblLatitude = nullptr;
    QLabel* txtLatitude = nullptr;
    QLabel* lblLongitude = nullptr;
    QLabel* txtLongitude = nullptr;
    QLabel* lblDate = nullptr;
    QLabel* txtDate = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* txtTime = nullptr;
    QLabel* txtMapView = nullptr;

    // The unit items carry their unit type as data: 1 KM/H, 0 MPH.
    QAction* unitKMH = nullptr;
    QAction* unitMPH = nullptr;
    // The user interface's languages (LanguageMenu).
    QAction* languageChinese = nullptr;
    QAction* languageEnglish = nullptr;
    QAction* languageJananese = nullptr;
    QAction* languageVietnamese = nullptr;
    // No behaviour: shown disabled until they have some.
    QAction* mapBaidu = nullptr;
    QAction* mapGoogle = nullptr;
    // Where the tiles come from; the checked one is in use.
    QAction* mapOpenStreetMap = nullptr;
    QAction* mapMBTiles = nullptr;
    QAction* mapTileFolder = nullptr;
    QAction* mapWorkOffline = nullptr;

    // The speed over time under the movie, of the clip or, under continuous play, of its trip.
    TimelineView* timeline = nullptr;
    // "1:42 / 3:00" beside the position slider: the clip's, or the trip's under continuous play.
    QLabel* txtElapsed = nullptr;
    // Under the playlist: the trip of the selected row in a sentence.
    QLabel* txtTripSummary = nullptr;
    QAction* actionContinuousPlay = nullptr;
    // The Playback menu's rates, each carrying its rate as data; the one playing is checked.
    std::array<QAction*, 6> rateItems{};
    // Edit: the shown place as text, or in the browser; enabled while the read-outs show a place.
    QAction* actionCopyPosition = nullptr;
    QAction* actionOpenPosition = nullptr;
    // File, Export Track: one item per scope, each enabled while its scope has a track to export.
    QMenu* menuExportTrack = nullptr;
    QAction* actionExportClip = nullptr;
    QAction* actionExportTrip = nullptr;
    QAction* actionExportPlaylist = nullptr;
};
