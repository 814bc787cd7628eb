// The controller's playlist as the window uses it: the open dialog, removing and double-clicking
// entries, and movies that arrive before the window is set up.

#include "ControllerHarness.h"

#include "VideoTrackProbe.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileDialog>

#include <gtest/gtest.h>

#include <fstream>

namespace {

// Any file whose name ends in .mov or .mp4 counts as a movie; the scan's own rules are tested
// with the playlist library.
class NameProbe final : public VideoTrackProbe {
public:
    bool hasVideoTrack(const std::filesystem::path& file) const override {
        const auto ext = file.extension();
        return ext == ".mov" || ext == ".mp4";
    }
};

class ControllerPlaylistTest : public ControllerHarness, public ::testing::Test {
protected:
    // Lets queued results arrive; gives up after a generous while so that a lost result fails
    // instead of hanging.
    template <typename Done>
    bool waitFor(Done done) {
        const QDeadlineTimer deadline(20000);
        while (!done() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return done();
    }
};

TEST_F(ControllerPlaylistTest, ChoosingOneFileAddsEveryMovieOfItsFolderAndPlaysTheOldest) {
    settings.utils().setVideoTrackProbe(std::make_shared<NameProbe>());
    std::ofstream(moviesFolder() / "notes.txt") << "not a movie";
    std::ofstream(moviesFolder() / "clip.mP4") << "no accepted spelling";

    controller.OnPlay(btPlay);  // an empty playlist asks for files
    auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("openDialog"));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Open movie file"));
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
    emit dialog->filesSelected({QString::fromStdString(movie(2).string())});

    ASSERT_TRUE(waitFor([&] { return controller.playlist.size() == 4; })) << controller.playlist.size();
    EXPECT_EQ(controller.curIndex, 0);
    EXPECT_EQ(factory->requested.front(), movie(0));
    EXPECT_TRUE(playing());
    EXPECT_TRUE(btNext->isEnabled());
    ASSERT_NE(table->model(), nullptr);
    EXPECT_EQ(table->model()->rowCount(), 4);
}

TEST_F(ControllerPlaylistTest, RemovingTheSelectedEntry) {
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

TEST_F(ControllerPlaylistTest, DoubleClickPlaysTheRowAndRestartsTheLoadedOne) {
    addMovies(3);
    table->setCurrentIndex(table->model()->index(2, 0));
    controller.OnDoubleClickMediaItem(table);
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_TRUE(playing());

    const size_t loads = factory->requested.size();
    controller.OnDoubleClickMediaItem(table);
    EXPECT_EQ(factory->requested.size(), loads) << "the loaded row restarts, it is not loaded again";
    EXPECT_EQ(player->seeks.back().seconds(), 0.0);
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

}  // namespace
