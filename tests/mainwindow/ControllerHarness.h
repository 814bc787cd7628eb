#pragma once
// The window's controller over loose widgets and a movie view whose player is scripted: every
// outlet the transport commands touch, the playlist table, and a settings store of its own.

#include "ClipCatalog.h"
#include "FakeMediaPlayer.h"
#include "GPSControlView.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "MainWindowDelegate.h"
#include "MapView.h"
#include "PlayerTestDoubles.h"
#include "PlayerTestSupport.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class ControllerHarness {
public:
    struct NotActivated {};
    ControllerHarness() : ControllerHarness(NotActivated{}) { controller.windowDidBecomeMain(); }
    // The window has not become main yet: nothing is set up.
    explicit ControllerHarness(NotActivated) : controller(settings.utils()) {
        static const char* const names[] = {"index_mp4.mp4", "index_scaled.mov", "index_fixed.mov", "nogps.mov"};
        for (int i = 0; i < 4; ++i) {
            movies_.push_back(std::filesystem::path(moviesDir_.path().toStdString()) /
                              ("clip" + std::to_string(i) + fixtureMovie(names[i]).extension().string()));
            std::filesystem::copy_file(fixtureMovie(names[i]), movies_.back());
        }
        factory->next = player;
        settings.utils().setMapSource("offline");  // no tile server from a test
        player->duration = MediaTime::make(100000, 1000);
        auto updateTimer = std::make_unique<ManualUpdateTimer>();
        timer = updateTimer.get();
        view = new GPSPlayerView(
            factory, [](QWidget* parent) { return std::make_unique<RecordingSurface>(parent); },
            std::move(updateTimer), settings.utils(), &window);
        controlView = new GPSControlView(settings.utils(), &window);
        table = new GPSTableView(&window);
        durationSlider = slider("durationSlider", 100000);
        volumeSlider = slider("volumeSlider", 100);
        txtTitle = label("txtTitle");
        mapView = new MapView(&window);
        mapView->resize(400, 300);
        MainWindowOutlets o{.window = &window,
                            .player = view,
                            .playListView = table,
                            .mapView = mapView,
                            .txtTitle = txtTitle,
                            .durationSlider = durationSlider,
                            .volumeSlider = volumeSlider};
#define BUTTON(name) o.name = name = button(#name)
        BUTTON(btMute), BUTTON(btSound), BUTTON(btPrev), BUTTON(btBackward), BUTTON(btPlay), BUTTON(btPause);
        BUTTON(btForward), BUTTON(btNext), BUTTON(btStop), BUTTON(btSnapshot);
#undef BUTTON
        o.btToggleFullscreen = button("btToggleFullscreen");
        for (QLabel** readOut : {&o.txtSpeed, &o.txtSpeedUnit, &o.lblLatitude, &o.txtLatitude, &o.lblLongitude,
                                 &o.txtLongitude, &o.lblDate, &o.txtDate, &o.lblTime, &o.txtTime, &o.txtMapView})
            *readOut = label("readOut");
        controller.setOutlets(o);
        view->engine().setDelegate(&controller);
        controlView->setDelegate(&controller);
    }
    ~ControllerHarness() { view->engine().setDelegate(nullptr); }

    // Copies made one after the other and named in that order, so that the playlist sorts them in
    // this order; the scripted player plays them whatever they hold.
    const std::filesystem::path& movie(int i) const { return movies_.at(static_cast<std::size_t>(i)); }
    std::filesystem::path moviesFolder() const { return moviesDir_.path().toStdString(); }
    // Added one by one, oldest first, so that the sort keeps this order.
    void addMovies(int count) {
        std::vector<std::filesystem::path> movies;
        for (int i = 0; i < count; ++i) movies.push_back(movie(i));
        controller.AddedMovies(nullptr, movies);
    }
    // Until the catalog has read every listed clip on its worker and handed it back.
    bool waitForClipsRead() {
        return QTest::qWaitFor([this] { return controller.clipCatalog()->pending() == 0; }, 20000);
    }
    // The scripted player's state is shared by every movie it loads: a stop pauses it, a play starts it.
    bool playing() const { return player->status == PlayerStatus::Playing; }
    // The player reports the end of its movie.
    void finishMovie() { controller.Completed(view->engine()); }
    // One firing of the engine's timer and the tick it posts, as the event loop would run them.
    void tick() {
        timer->fire();
        QCoreApplication::processEvents();
    }

    int64_t selectedRow() const {
        const QModelIndexList rows =
            table->selectionModel() != nullptr ? table->selectionModel()->selectedRows() : QModelIndexList{};
        return rows.isEmpty() ? -1 : rows.front().row();
    }
    void selectRow(int row) { table->selectRow(row); }
    void clearSelection() {
        if (table->selectionModel() != nullptr) table->selectionModel()->clearSelection();
    }

    TempSettings settings;
    std::shared_ptr<FakeMediaPlayerFactory> factory = std::make_shared<FakeMediaPlayerFactory>();
    std::shared_ptr<FakePlayerState> player = std::make_shared<FakePlayerState>();
    QMainWindow window;
    MainWindowDelegate controller;
    GPSPlayerView* view = nullptr;
    ManualUpdateTimer* timer = nullptr;  // owned by the view's engine
    GPSControlView* controlView = nullptr;
    GPSTableView* table = nullptr;
    MapView* mapView = nullptr;
    QSlider* durationSlider = nullptr;
    QSlider* volumeSlider = nullptr;
    QLabel* txtTitle = nullptr;
    QPushButton *btMute, *btSound, *btPrev, *btBackward, *btPlay, *btPause, *btForward, *btNext, *btStop, *btSnapshot;

private:
    QTemporaryDir moviesDir_;
    std::vector<std::filesystem::path> movies_;

    QPushButton* button(const char* name) {
        auto* b = new QPushButton(QString::fromLatin1(name), &window);
        b->setObjectName(QString::fromLatin1(name));
        return b;
    }
    QSlider* slider(const char* name, int maximum) {
        auto* s = new QSlider(Qt::Horizontal, &window);
        s->setObjectName(QString::fromLatin1(name));
        s->setRange(0, maximum);
        return s;
    }
    QLabel* label(const char* name) {
        auto* l = new QLabel(&window);
        l->setObjectName(QString::fromLatin1(name));
        return l;
    }
};
