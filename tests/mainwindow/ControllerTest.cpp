// The window's controller driven as the window drives it, with a scripted player behind the movie
// view: transport commands, the entry to play, sound, the playlist, the map, and the button states
// they leave behind.

#include "CarMarkerView.h"
#include "ControllerHarness.h"

#include "GPSDataLoader.h"
#include "GPSPlayControl.h"
#include "MapViewDelegate.h"
#include "SliderFraction.h"
#include "VideoTrackProbe.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <map>

namespace {

// Any file whose name ends in .mov or .mp4 counts as a movie; the scan's own rules are tested
// with the playlist library.
class NameProbe final : public VideoTrackProbe {
public:
    bool hasVideoTrack(const std::filesystem::path& file) const override {
        return file.extension() == ".mov" || file.extension() == ".mp4";
    }
};

class ControllerTest : public ControllerHarness, public ::testing::Test {
protected:
    void report(const GPSData& sample, uint64_t index) { controller.UpdatedGPSInfo(view->engine(), sample, index); }
};

TEST_F(ControllerTest, NothingLoadedDisablesEveryTransportControl) {
    controller.windowDidBecomeMain();
    for (QWidget* control :
         std::initializer_list<QWidget*>{btPrev, btBackward, btForward, btNext, btStop, btSnapshot, durationSlider})
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    EXPECT_EQ(controller.curIndex, -1);
    EXPECT_TRUE(btPause->isHidden());
    EXPECT_FALSE(btPlay->isHidden());
}

TEST_F(ControllerTest, AddingToAnEmptyPlaylistPlaysTheFirstEntryAndLaterAdditionsDoNot) {
    addMovies(3);
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(factory->requested.size(), 1u);
    EXPECT_TRUE(playing());
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(txtTitle->text().toStdString(), movie(0).string());

    controller.AddedMovies(nullptr, {movie(0)});
    EXPECT_EQ(factory->requested.size(), 1u) << "adding while a movie is loaded changes nothing that plays";
    EXPECT_EQ(controller.playlist.size(), 4u) << "a movie added twice is listed twice";
    EXPECT_EQ(controller.curIndex, 0);
}

TEST_F(ControllerTest, PrevAndNextStayInsideThePlaylist) {
    addMovies(3);
    // On the first entry Prev restarts it: back to 0, no reload, played.
    setSliderFraction(*durationSlider, 0.5);
    controller.OnPrev(btPrev);
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(factory->requested.size(), 1u);
    EXPECT_EQ(sliderFraction(*durationSlider), 0.0);
    ASSERT_FALSE(player->seeks.empty());
    EXPECT_EQ(player->seeks.back().seconds(), 0.0);

    controller.OnNext(btNext);
    controller.OnNext(btNext);
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_EQ(factory->requested.size(), 3u);
    EXPECT_FALSE(btNext->isEnabled()) << "the last entry has no next";
    EXPECT_TRUE(btPrev->isEnabled());

    // Next on the last restarts it, and a code for a disabled button does nothing.
    controller.OnNext(btNext);
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_EQ(factory->requested.size(), 3u);
    controller.didPerformPlayControl(controlView, GPSPlayControlNext);
    EXPECT_EQ(factory->requested.size(), 3u);

    // After Stop, Prev starts the first entry.
    controller.OnStop(btStop);
    EXPECT_EQ(controller.curIndex, -1);
    EXPECT_TRUE(txtTitle->text().isEmpty());
    EXPECT_FALSE(playing());
    controller.OnPrev(btPrev);
    EXPECT_EQ(factory->requested.back(), movie(0));
    EXPECT_TRUE(playing());
}

TEST_F(ControllerTest, TheEndOfAMovieLoadsTheNextPausedAndTheLastGoesBackToItsStart) {
    addMovies(3);
    controller.OnNext(btNext);
    ASSERT_EQ(controller.curIndex, 1);

    finishMovie();
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_EQ(factory->requested.back(), movie(2));
    EXPECT_EQ(selectedRow(), 2);
    EXPECT_FALSE(playing()) << "the next entry waits for the user";

    finishMovie();
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_EQ(factory->requested.size(), 3u) << "no wrap to the first entry";
    EXPECT_EQ(player->seeks.back().seconds(), 0.0);
    EXPECT_FALSE(playing());
}

TEST_F(ControllerTest, TenSecondStepsStopAtEitherEnd) {
    addMovies(1);  // 100 s long: ten seconds are 0.1. Every step rule is the slider step table.
    const struct {
        double from;
        uint64_t code;
        double to;
        bool seeks;
    } cases[] = {{0.95, GPSPlayControlForward, 1.0, true},
                 {1.0, GPSPlayControlForward, 1.0, false},
                 {0.03, GPSPlayControlBackward, 0.0, true}};
    for (const auto& c : cases) {
        setSliderFraction(*durationSlider, c.from);
        controller.UpdateControls();
        const size_t seeks = player->seeks.size();
        controller.didPerformPlayControl(controlView, c.code);
        EXPECT_NEAR(sliderFraction(*durationSlider), c.to, 1e-4) << c.from;
        EXPECT_EQ(player->seeks.size(), seeks + (c.seeks ? 1 : 0)) << c.from;
        EXPECT_EQ(btForward->isEnabled(), c.to < 1.0) << c.from;
        EXPECT_EQ(btBackward->isEnabled(), c.to > 0.0) << c.from;
        EXPECT_NEAR(player->seeks.back().seconds(), c.to * 100.0, 0.01);
    }
}

TEST_F(ControllerTest, VolumeStepsMuteAtZeroAndTheSoundButtonsKeepTheStoredVolume) {
    addMovies(1);
    setSliderFraction(*volumeSlider, 0.05);
    controller.OnVolumeChanged(volumeSlider);
    controller.VolumeDown();
    EXPECT_EQ(sliderFraction(*volumeSlider), 0.0);
    EXPECT_TRUE(player->muted);
    EXPECT_FALSE(btMute->isHidden());
    EXPECT_TRUE(btSound->isHidden());
    settings.utils().flush();
    EXPECT_EQ(settings.utils().volume(), 0.0f);

    controller.VolumeUp();
    EXPECT_NEAR(sliderFraction(*volumeSlider), 0.1, 1e-9);
    EXPECT_FALSE(player->muted);
    EXPECT_TRUE(btMute->isHidden());
    EXPECT_NEAR(settings.utils().volume(), 0.1f, 1e-6);

    controller.OnMute(btSound);
    EXPECT_TRUE(player->muted);
    EXPECT_EQ(sliderFraction(*volumeSlider), 0.0);
    EXPECT_NEAR(settings.utils().volume(), 0.1f, 1e-6) << "muting is not a volume of 0";
    controller.OnSound(btMute);
    EXPECT_FALSE(player->muted);
    EXPECT_NEAR(sliderFraction(*volumeSlider), 0.1, 1e-9);
    EXPECT_FALSE(btSound->isHidden());
}

TEST_F(ControllerTest, FastRatesShowThePlayButtonWhichGoesBackToNormal) {
    addMovies(1);
    controller.OnPause(btPause);
    controller.didPerformPlayControl(controlView, GPSPlayControlSpeedUp);
    EXPECT_EQ(player->rate, 2.0f);
    EXPECT_FALSE(btPlay->isHidden()) << "at 2x the play button returns to 1x";

    controller.didPerformPlayControl(controlView, GPSPlayControlPlayPause);
    EXPECT_EQ(player->rate, 1.0f);
    EXPECT_TRUE(btPlay->isHidden());
    EXPECT_FALSE(btPause->isHidden());

    controller.didPerformPlayControl(controlView, GPSPlayControlPlayPause);
    EXPECT_EQ(player->rate, 0.0f);
    EXPECT_FALSE(btPlay->isHidden());

    controller.didPerformPlayControl(controlView, GPSPlayControlSpeedDown);
    EXPECT_EQ(player->rate, -2.0f);
}

TEST_F(ControllerTest, PlayWithNothingLoadedPlaysTheSelectedRowAndADoubleClickRestartsIt) {
    addMovies(2);
    controller.OnStop(btStop);
    clearSelection();
    const size_t loads = factory->requested.size();
    controller.OnPlay(btPlay);
    EXPECT_EQ(factory->requested.size(), loads) << "no row selected: nothing";
    controller.OnPlay(nullptr);
    EXPECT_EQ(factory->requested.size(), loads);

    selectRow(1);
    controller.OnPlay(btPlay);
    EXPECT_EQ(controller.curIndex, 1);
    EXPECT_EQ(factory->requested.back(), movie(1));

    // A double click on the loaded row restarts it rather than loading it again.
    controller.OnDoubleClickMediaItem(table);
    EXPECT_EQ(factory->requested.size(), loads + 1);
    EXPECT_EQ(player->seeks.back().seconds(), 0.0);
    table->setCurrentIndex(table->model()->index(0, 0));
    controller.OnDoubleClickMediaItem(table);
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_TRUE(playing());
}

TEST_F(ControllerTest, AnEntryThatNoLongerPlaysIsLoadedOnceAndLeftStopped) {
    factory->next = nullptr;  // every file fails to open from now on
    controller.AddedMovies(nullptr, {movie(0), movie(1)});
    EXPECT_EQ(factory->requested.size(), 1u);
    EXPECT_FALSE(view->engine().IsReady());
    controller.OnNext(btNext);
    EXPECT_EQ(factory->requested.size(), 2u);
    EXPECT_FALSE(btStop->isEnabled());
}

TEST_F(ControllerTest, ProgressLeavesTheKnobAloneWhileTheUserHoldsIt) {
    addMovies(1);
    controller.UpdateDuration(view->engine(), 0.25);
    EXPECT_NEAR(sliderFraction(*durationSlider), 0.25, 1e-4);
    durationSlider->setSliderDown(true);
    controller.UpdateDuration(view->engine(), 0.75);
    EXPECT_NEAR(sliderFraction(*durationSlider), 0.25, 1e-4);
    durationSlider->setSliderDown(false);
}

TEST_F(ControllerTest, SnapshotIsTakenAtOnceAndWrittenOnlyWhereTheUserAccepts) {
    controller.OnSnapshot(btSnapshot);
    EXPECT_EQ(window.findChild<QFileDialog*>(), nullptr) << "nothing loaded: no dialog";

    addMovies(1);
    player->at(2.5);
    const QString target = QString::fromStdString((moviesFolder() / "shot.png").string());
    for (const bool accept : {false, true}) {
        controller.OnSnapshot(btSnapshot);
        auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("snapshotDialog"));
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(playing()) << "the movie plays on behind the dialog";
        if (accept) emit dialog->fileSelected(target);
        dialog->close();
        QCoreApplication::processEvents();
        QThreadPool::globalInstance()->waitForDone();
        QImage saved(target);
        EXPECT_EQ(!saved.isNull(), accept);
        if (accept) {
            EXPECT_EQ(saved.size(), QSize(320, 180)) << "the movie's own pixel size";
        }
    }
}

TEST_F(ControllerTest, SnapshotStampIsRememberedAndTheFileCarriesTheSampleOnScreen) {
    addMovies(1);
    player->at(2.5);
    tick();  // the sample at 2.5 s reaches the read-outs
    std::map<bool, QImage> saved;
    for (const bool stamp : {false, true, true}) {
        controller.OnSnapshot(btSnapshot);
        auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("snapshotDialog"));
        ASSERT_NE(dialog, nullptr);
        auto* box = dialog->findChild<QCheckBox*>(QStringLiteral("stampCheckBox"));
        ASSERT_NE(box, nullptr);
        EXPECT_FALSE(box->accessibleName().isEmpty());
        EXPECT_EQ(box->isChecked(), saved.contains(true)) << "off until turned on, then as it was left";
        box->setChecked(stamp);
        const QString file = QString::fromStdString((moviesFolder() / (stamp ? "stamped.png" : "plain.png")).string());
        emit dialog->fileSelected(file);
        dialog->close();
        QCoreApplication::processEvents();
        QThreadPool::globalInstance()->waitForDone();
        saved[stamp] = QImage(file);
        EXPECT_EQ(saved[stamp].text("Source").toStdString(), movie(0).string());
        EXPECT_EQ(saved[stamp].text("Position"), QStringLiteral("2.500"));
        EXPECT_FALSE(saved[stamp].text("Speed").isEmpty());
    }
    const QImage &plain = saved[false], &stamped = saved[true];
    ASSERT_EQ(plain.size(), stamped.size());
    const int bottom = plain.height() - 1;
    EXPECT_EQ(plain.copy(0, 0, plain.width(), 1), stamped.copy(0, 0, plain.width(), 1)) << "the top row as taken";
    EXPECT_NE(plain.copy(0, bottom, plain.width(), 1), stamped.copy(0, bottom, plain.width(), 1)) << "the band";
}

TEST_F(ControllerTest, ChoosingOneFileAddsEveryMovieOfItsFolderAndPlaysTheOldest) {
    settings.utils().setVideoTrackProbe(std::make_shared<NameProbe>());

    controller.OnPlay(btPlay);  // an empty playlist asks for files
    auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("openDialog"));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Open movie file"));
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
    emit dialog->filesSelected({QString::fromStdString(movie(2).string())});

    ASSERT_TRUE(QTest::qWaitFor([&] { return controller.playlist.size() == 4; }, 20000)) << controller.playlist.size();
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(factory->requested.front(), movie(0));
    EXPECT_TRUE(playing());
    EXPECT_TRUE(btNext->isEnabled());
    ASSERT_NE(table->model(), nullptr);
    EXPECT_EQ(table->model()->rowCount(), 4);
}

TEST_F(ControllerTest, RemovingTheSelectedEntry) {
    controller.OnRemoveMediaFile(nullptr);  // an empty playlist, nothing selected: nothing
    addMovies(3);
    clearSelection();
    controller.OnRemoveMediaFile(nullptr);
    EXPECT_EQ(controller.playlist.size(), 3u) << "no row selected: nothing goes";

    // Another entry than the loaded one: the loaded movie keeps playing and curIndex follows it.
    controller.OnNext(btNext);
    ASSERT_EQ(controller.curIndex, 1);
    selectRow(0);
    controller.OnRemoveMediaFile(nullptr);
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(controller.playlist.at(0).URL(), movie(1));
    EXPECT_TRUE(playing());

    // The loaded entry, with one after it: that one is loaded, selected, and waits.
    selectRow(0);
    controller.OnRemoveMediaFile(nullptr);
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(factory->requested.back(), movie(2));
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_FALSE(playing());

    // The only entry: everything stops and the table is empty.
    selectRow(0);
    controller.OnRemoveMediaFile(nullptr);
    EXPECT_TRUE(controller.playlist.empty());
    EXPECT_EQ(controller.curIndex, -1);
    EXPECT_EQ(selectedRow(), -1);
    EXPECT_EQ(table->model()->rowCount(), 0);
    EXPECT_FALSE(view->engine().IsReady());
    EXPECT_FALSE(btStop->isEnabled());
}

class EarlyMoviesTest : public ControllerHarness, public ::testing::Test {
protected:
    EarlyMoviesTest() : ControllerHarness(NotActivated{}) {}
};

TEST_F(EarlyMoviesTest, MoviesBeforeTheWindowIsSetUpWaitForIt) {
    controller.AddedMovies(nullptr, {movie(0), movie(1)});
    EXPECT_TRUE(factory->requested.empty());
    controller.windowDidBecomeMain();
    EXPECT_EQ(controller.playlist.size(), 2u);
    EXPECT_EQ(controller.curIndex, 0) << "set-up's reset must not forget the movie it plays";
    EXPECT_EQ(txtTitle->text().toStdString(), movie(0).string());
    EXPECT_TRUE(btNext->isEnabled());
}

TEST_F(ControllerTest, ReportedSamplesDrawTheRouteAndMoveOneCar) {
    float maxSpeed = 0;
    const std::vector<GPSData> track = GPSDataLoader::LoadGPSDataList(fixtureMovie("index_mp4.mp4"), &maxSpeed);
    ASSERT_GE(track.size(), 8u);
    for (uint64_t i = 0; i < 8; ++i) report(track[i], i);

    EXPECT_GE(mapView->overlayCount(), 1u) << "points 1, 4 and 7 make a line";
    const Coordinate car{track[7].Latitude(), track[7].Longitude()};
    EXPECT_NEAR(mapView->centerCoordinate().latitude, car.latitude, 1e-6) << "the car is kept in the centre";
    EXPECT_NEAR(mapView->centerCoordinate().longitude, car.longitude, 1e-6);

    const auto style = controller.rendererForOverlay(*mapView, Polyline{});
    ASSERT_TRUE(style.has_value());
    EXPECT_EQ(style->color, QColor::fromRgbF(1, 0, 0, 1));
    EXPECT_EQ(style->lineWidth, 4.0);

    // Index 0 (a new movie) takes the route off and leaves the car where it was.
    report(track[0], 0);
    EXPECT_EQ(mapView->overlayCount(), 0u);
    EXPECT_NEAR(mapView->centerCoordinate().latitude, car.latitude, 1e-6);
}

TEST_F(ControllerTest, TheMapMenusChoiceIsKeptForTheNextRun) {
    controller.OnMapSourceChanged("folder:/nowhere");  // a folder that will not open: no tiles, no crash
    EXPECT_EQ(settings.utils().mapSource(), "folder:/nowhere");
    EXPECT_EQ(mapView->tileProvider(), nullptr);
    controller.OnMapSourceChanged("offline");
    EXPECT_EQ(settings.utils().mapSource(), "offline");
}

// A stated course turns the car while it drives; a parked car's stated course is noise and the
// bearing of its last move stands.
TEST_F(ControllerTest, TheCarPointsWhereTheFormatSaysWhileItDrives) {
    const auto fixAt = [](double longitude, double metresPerSecond, double heading) {
        GPSFix fix;
        fix.latitude = 47;
        fix.longitude = longitude;  // 0.0001 degree east is 7.6 m
        fix.speedMetresPerSecond = metresPerSecond;
        fix.headingDegrees = heading;
        return GPSData::fromFix(fix);
    };
    const struct {
        double longitude, metresPerSecond, stated, expected;
    } steps[] = {{10.0000, 10, 100, 100}, {10.0001, 10, 100, 100}, {10.0002, 10, 110, 110}, {10.0002, 0, 300, 90}};
    uint64_t index = 1;  // index 0 starts a movie: no car yet
    for (const auto& step : steps) {
        report(fixAt(step.longitude, step.metresPerSecond, step.stated), index);
        const auto* car = mapView->findChild<CarMarkerView*>();
        ASSERT_NE(car, nullptr);
        EXPECT_NEAR(car->heading().value_or(-1), step.expected, 1e-3) << "sample " << index;
        ++index;
    }
}

// The Edit menu's position: the shown sample's place on the clipboard with six decimals, and
// nothing to copy once the read-outs are idle.
TEST_F(ControllerTest, CopyPositionPutsTheShownPlaceOnTheClipboard) {
    QAction copy, open;
    MainWindowOutlets o = controller.outlets();
    o.actionCopyPosition = &copy;
    o.actionOpenPosition = &open;
    controller.setOutlets(o);
    GPSFix fix;
    // Values a single-precision sample holds exactly.
    fix.latitude = -33.859375;
    fix.longitude = 151.21875;
    QGuiApplication::clipboard()->setText("before");
    report(GPSData::fromFix(fix), 1);
    EXPECT_TRUE(copy.isEnabled() && open.isEnabled());
    controller.OnCopyPosition();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "-33.859375, 151.218750");
    controller.OnStop(nullptr);
    EXPECT_FALSE(copy.isEnabled() || open.isEnabled());
    QGuiApplication::clipboard()->setText("after");
    controller.OnCopyPosition();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "after");
}

}  // namespace
