#pragma once
// The controller of the main window: holds its items, sets them up on the window's first
// activation, and answers the player, the key-handling view, the buttons and the menus. Its
// operations live in one source file per role.

#include "GPSControlViewDelegate.h"
#include "GPSPlayerViewDelegate.h"
#include "Geodesy.h"
#include "HeadingTracker.h"
#include "MainWindowOutlets.h"
#include "MapViewDelegate.h"
#include "Playlist.h"
#include "RouteTracker.h"
#include "TileProvider.h"
#include "TransportCommands.h"
#include "TimelineSeries.h"
#include "TripClock.h"
#include "TripIndex.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <vector>

class ClipCatalog;
class GPSInfoPanel;
class GPSPlayerEngine;
class GPSUtils;
class MovieScan;
class PlaylistTableModel;
class PreferencesDialog;
class QAbstractButton;
class QAction;

class MainWindowDelegate : public QObject,
                           public GPSPlayerViewDelegate,
                           public GPSControlViewDelegate,
                           public TransportCommands,
                           public MapViewDelegate {
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
    // The unit to show, from the Units menu or the preferences: 1 KM/H, 0 MPH.
    void useUnit(uint64_t unitType);
    // The texts made in code, in the language just chosen (MainWindowDelegateLanguage.cpp).
    void retranslate();

    // Transport commands (control/). A null sender means "called by another handler".
    void OnPlay(QObject* sender) override;
    void OnPause(QObject* sender) override;
    void OnStop(QObject* sender) override;
    void OnPrev(QObject* sender) override;
    void OnNext(QObject* sender) override;
    void OnBackward(QObject* sender) override;
    void OnForward(QObject* sender) override;
    void OnDurationChanged(QObject* sender);
    void OnVolumeChanged(QObject* sender);
    void OnMute(QObject* sender);
    void OnSound(QObject* sender);
    void OnToggleFullscreen(QObject* sender) override;
    void OnSnapshot(QObject* sender);
    void VolumeDown() override;
    void VolumeUp() override;
    void SpeedDown() override;
    void SpeedUp() override;
    void StepFrame(bool forward) override;
    // A rate from the Playback menu's list; negative rates stay with the keys.
    void OnRateChosen(float rate);
    // Loads (or restarts) playlist entry index; autoPlay then plays it.
    void playWithIndex(int64_t index, bool autoPlay);
    void UpdateControls();
    void UpdatePlayingStatus() override;
    // The check mark on the Playback menu's rate that plays now; none while paused or backwards.
    void RefreshRateMenu();
    bool isButtonEnabled(TransportButton button) const override;
    bool isButtonHidden(TransportButton button) const override;
    void didPerformPlayControl(QObject* sender, uint64_t playControl) override;
    void UpdateDuration(GPSPlayerEngine& engine, double progress) override;
    void UpdatedPlayingStatus(GPSPlayerEngine& engine, bool playing) override;
    void Completed(GPSPlayerEngine& engine) override;

    // The playlist (mainwindow/).
    // Appends the movies, sorts, shows them, and plays the first entry when the playlist was empty.
    // Movies that arrive before the window's set-up wait for it.
    void addToPlaylist(const std::vector<std::filesystem::path>& movies);
    // The command line's files and folders, scanned off the UI thread like the open dialog's folder.
    void openArguments(const std::vector<std::filesystem::path>& arguments);
    void OnOpenMediaFile(QObject* sender);
    void OnRemoveMediaFile(QObject* sender);
    void OnDoubleClickMediaItem(QObject* sender);
    void AddedMovies(QObject* sender, const std::vector<std::filesystem::path>& movies) override;

    // The read-outs (display/).
    void UpdatedGPSInfo(GPSPlayerEngine& engine, const GPSData& data, uint64_t index) override;
    void ResetControls();
    void RefreshUnits();

    // The position of the sample on screen (display/MainWindowDelegatePosition.cpp): "lat, lon"
    // on the clipboard, or the place on OpenStreetMap in the browser. Nothing without a place.
    void OnCopyPosition();
    void OnOpenPosition();

    // Trips (mainwindow/MainWindowDelegateTrips.cpp): the clips' tracks read in the background,
    // the trips they form, continuous play through a trip, and seeking anywhere in it.
    void OnContinuousPlayChanged(bool on);
    // The line under the playlist: the trip of the selected row.
    void RefreshTripSummary();
    // Seconds on the timeline's line (the loaded clip's, or its trip's under continuous play).
    void seekTimeline(double seconds);
    ClipCatalog* clipCatalog() const { return clipCatalog_; }
    // The playlist rows the timeline spans: the loaded clip, or its whole trip under continuous play.
    TripSpan timelineSpan() const { return timelineSpan_; }

    // Save Segment (segment/MainWindowDelegateSegment.cpp): the marks on the timeline, and the
    // marked span (or the minute around the position) cut out of the clips with its GPX.
    void MarkSpanEdge(bool start) override;
    void OnClearMarks();
    void OnSaveSegment();

    // The map (display/).
    // The route driven so far and the car, for every sample the player reports.
    void showCarLocation(const GPSData& data, int64_t index);
    QWidget* viewForAnnotation(MapView& map, const MapAnnotation& annotation) override;
    void refreshViewForAnnotation(MapView& map, const MapAnnotation& annotation, QWidget& view) override;
    std::optional<PolylineStyle> rendererForOverlay(MapView& map, const Polyline& line) override;
    // The whole route of the timeline's clips, faint under the driven part; a click on it seeks
    // to the moment the car was there.
    void showRouteAhead(const std::vector<TimelineClip>& clips, const std::vector<std::span<const GPSFix>>& clipFixes);
    void OnMapClicked(QPointF widgetPoint);
    // source: "osm", "mbtiles:PATH", "folder:PATH" or "offline"; stored for the next run.
    void OnMapSourceChanged(const std::string& source);
    // Asks for an MBTiles file or a folder of tiles, without blocking the window.
    void OnOpenMapFile(bool folder);
    void RefreshMapMenu(const std::string& source);

    // Preferences (preferences/MainWindowDelegatePreferences.cpp): what only the dialog changes.
    void OnTileCacheSizeChanged(int64_t megabytes);
    // Stored, then the loaded clip's read-outs and the clips' trips follow.
    void OnClockCorrectionChanged(int minutes);
    // The open dialog, if any, shows the stored values again: after a menu changed one.
    void refreshPreferences();
    PreferencesDialog* preferencesDialog() const;
    // Export Track (mainwindow/export/MainWindowDelegateExport.cpp): the loaded clip, the trip of
    // the selected row, or the whole playlist (one track per trip, a segment per clip) as GPX,
    // KML, GeoJSON or CSV, written off the UI thread.
    enum class ExportScope { LoadedClip, SelectedTrip, Playlist };
    void OnExportTrack(ExportScope scope);
    // Each scope's item enabled while it holds a clip that may have a track and no export runs.
    void RefreshExportMenu();


    bool isInited = false;
    Playlist playlist;
    // The playlist position of the movie in the player; -1 for none.
    int64_t curIndex = -1;

private:
    // The engine behind the movie view; null when the window has none.
    GPSPlayerEngine* engine() const;
    QAbstractButton* buttonOf(TransportButton button) const;
    // The playlist table's selected row, -1 for none; selecting replaces the selection.
    int64_t selectedRow() const;
    void selectRow(int64_t row);
    const std::filesystem::path& playlistURL(int64_t row) const;
    void setupPlaylistTable();
    void setupMap();
    void useTileSource(const std::string& source);
    // Adds a scan's movies when it finishes, with a progress dialog if it takes a while.
    void watchScan(MovieScan* scan);

    // The place the read-outs show, for the position commands; absent when they are idle.
    void showPlace(std::optional<GeoPoint> place);

    // Trips.
    void refreshTrips();
    void refreshTimeline();
    void showTimelinePosition(double clipSeconds);
    // The loaded clip's playback time as the position slider last showed it; 0 without a movie.
    double currentClipSeconds() const;
    // The timeline's series and route ahead on the timeline widget and the map.
    void showTimelineSeries(TimelineSeries series, const std::vector<TimelineClip>& clips,
                            const std::vector<std::span<const GPSFix>>& clipFixes);
    void showTimelineCursor(double seconds);
    void setupTimeline();
    // The timeline's tooltip: the time, the speed and the place there.
    QString timelineHoverText(double seconds) const;
    // The next entry of the loaded clip's trip under continuous play; absent between trips.
    std::optional<int64_t> continuationOf(int64_t row) const;
    // Marks a row whose file would not open and says why over the movie.
    void showClipProblem(int64_t row);

    // Clears the timeline's marks when the clips it spans are no longer those they were set on.
    void keepMarksFor(const std::vector<std::filesystem::path>& clips);

    // The read-out labels of the outlets, as the panel that writes them.
    GPSInfoPanel infoPanel() const;

    GPSUtils& settings_;
    MainWindowOutlets outlets_;
    PlaylistTableModel* playlistModel_ = nullptr;  // a child of the controller
    RouteTracker routeTracker_;
    std::shared_ptr<MapAnnotation> car_;
    HeadingTracker headingTracker_;
    int64_t lastCarIndex_ = -1;
    struct RouteAheadPoint {
        Coordinate place;
        double seconds;  // on the timeline
    };
    std::vector<RouteAheadPoint> routeAhead_;
    std::unique_ptr<TileProvider> tileProvider_;
    std::vector<std::filesystem::path> pendingMovies_;
    ClipCatalog* clipCatalog_ = nullptr;  // a child of the controller
    TripIndex tripIndex_;
    TripSpan timelineSpan_;
    TripClock timelineClock_;
    // Files that would not open when they were chosen, and why.
    std::map<std::filesystem::path, QString> clipProblems_;
    // Set by the end of a clip for the load of the next clip of its trip, and spent by that load.
    bool continuing_ = false;
    // From that load until the clip shows its first sample: the read-outs keep the last sample
    // instead of the lead-in's empty one. Any other load ends it.
    bool holdingReadOuts_ = false;
    // The loaded entry was chosen but would not open.
    bool entryFailed_ = false;
    std::optional<GeoPoint> shownPlace_;
    bool quitAtEnd_ = false;
    bool quitting_ = false;
    QPointer<PreferencesDialog> preferencesDialog_;

    // Export Track: the playlist rows of each track the scope exports, in order; none when the
    // scope holds no clip that may have a track.
    std::vector<TripSpan> exportSpans(ExportScope scope) const;
    void startExport(ExportScope scope, const QString& file, const std::string& format);
    bool exporting_ = false;
    // The clips the timeline spanned when its marks were last kept.
    std::vector<std::filesystem::path> markedClips_;
};
