// The controller's trips over real clips and the scripted player: continuous play through a trip
// and the wait between trips, a clip whose file went, seeking on a trip's timeline, and the trips
// the table shows once the clips have been read.

#include "ControllerHarness.h"

#include "GPSInfoPanel.h"
#include "PlaylistTableModel.h"

#include <gtest/gtest.h>

namespace {

const QString kFileNotFound = QStringLiteral("File not found");

class TripControllerTest : public ControllerHarness, public ::testing::Test {
protected:
    TripControllerTest() {
        player->duration = MediaTime::make(2000, 1000);  // every clip lasts two seconds
        window.show();  // the movie's message is only up in a window on screen
        // Rows 0-2 are one trip, row 3 a trip of its own. Copied in play order, so the sort keeps it.
        int n = 0;
        for (const char* name : {"a0.mov", "a1.mov", "a2.mov", "b0.mov"}) {
            clips_.push_back(std::filesystem::path(dir_.path().toStdString()) / ("trip" + std::to_string(n++) + ".mov"));
            std::filesystem::copy_file(std::filesystem::path(TRIP_CLIP_DIR) / name, clips_.back());
        }
    }

    // Lists the clips, which plays the first, and waits until the catalog has read them all.
    void openClips(bool continuous) {
        controller.OnContinuousPlayChanged(continuous);
        controller.AddedMovies(nullptr, clips_);
        ASSERT_TRUE(waitForClipsRead());
    }
    // A playing movie reaches this time and the engine's tick reports it.
    void playTo(double seconds) {
        player->at(seconds);
        tick();
    }
    // The movie rests on its last frame, which the next tick takes for its end.
    void endClip() {
        player->at(2.0);
        player->status = PlayerStatus::Paused;
        tick();
    }
    QString speedText() const { return controller.outlets().txtSpeed->text(); }
    QString loadedSampleSpeed(std::size_t index) const {
        return QString::fromStdString(view->engine().gpsDataList()->at(index).SpeedText());
    }
    QVariant rowData(int row, int role) const { return table->model()->index(row, 0).data(role); }

    std::vector<std::filesystem::path> clips_;

private:
    QTemporaryDir dir_;
};

TEST_F(TripControllerTest, TheEndOfAClipGoesOnThroughItsTripAndWaitsBetweenTrips) {
    ASSERT_NO_FATAL_FAILURE(openClips(true));
    const struct {
        bool continuous;
        int from;
        int to;
        bool plays;
    } cases[] = {{true, 0, 1, true}, {true, 2, 3, false}, {false, 0, 1, false}};
    for (const auto& c : cases) {
        controller.OnContinuousPlayChanged(c.continuous);
        controller.playWithIndex(c.from, true);
        ASSERT_EQ(controller.curIndex, c.from);
        endClip();
        EXPECT_EQ(controller.curIndex, c.to) << c.from << " continuous " << c.continuous;
        EXPECT_EQ(factory->requested.back(), clips_[static_cast<std::size_t>(c.to)]) << c.from;
        EXPECT_EQ(selectedRow(), c.to) << c.from;
        EXPECT_EQ(playing(), c.plays) << c.from << " continuous " << c.continuous;
    }
}

TEST_F(TripControllerTest, GoingOnThroughATripTheReadOutsKeepTheLastSampleUntilTheNextClipHasOne) {
    ASSERT_NO_FATAL_FAILURE(openClips(true));
    playTo(2.0);
    const QString lastSpeed = speedText();
    ASSERT_EQ(lastSpeed, loadedSampleSpeed(2));
    ASSERT_NE(lastSpeed, GPSInfoPanel::idleSpeedText);

    endClip();
    ASSERT_EQ(controller.curIndex, 1);
    EXPECT_TRUE(playing());
    EXPECT_EQ(speedText(), lastSpeed) << "the new clip has no sample yet";
    playTo(0.0);  // the empty lead-in
    EXPECT_EQ(speedText(), lastSpeed);
    playTo(1.0);
    EXPECT_EQ(speedText(), loadedSampleSpeed(1));
    EXPECT_NE(speedText(), lastSpeed);
}

// The hold on the read-outs belongs to the clip that continued the trip: a clip that ends before
// it shows a sample (no GPS, or shorter than a second) must not carry it into the next trip, nor
// into a clip the user picks.
TEST_F(TripControllerTest, TheReadOutsHeldIntoAClipThatShowsNoSampleGoIdleOnLeavingTheTrip) {
    ASSERT_NO_FATAL_FAILURE(openClips(true));
    playTo(2.0);
    endClip();
    ASSERT_EQ(controller.curIndex, 1);
    controller.OnNext(btNext);  // the user's choice, before the clip has a sample of its own
    EXPECT_EQ(speedText(), GPSInfoPanel::idleSpeedText) << "a chosen clip starts like any other";

    controller.playWithIndex(1, true);
    playTo(1.0);
    ASSERT_NE(speedText(), GPSInfoPanel::idleSpeedText);
    endClip();
    ASSERT_EQ(controller.curIndex, 2);
    endClip();  // the trip's last clip ends unseen
    ASSERT_EQ(controller.curIndex, 3);
    EXPECT_FALSE(playing());
    EXPECT_EQ(speedText(), GPSInfoPanel::idleSpeedText) << "the next trip waits like any clip between trips";
}

TEST_F(TripControllerTest, AClipWhoseFileWentSaysSoAndLeavesPrevAndNextToTheUser) {
    ASSERT_NO_FATAL_FAILURE(openClips(false));
    playTo(1.0);
    ASSERT_NE(speedText(), GPSInfoPanel::idleSpeedText);
    std::filesystem::remove(clips_[1]);

    controller.playWithIndex(1, true);
    EXPECT_EQ(controller.curIndex, 1);
    EXPECT_FALSE(view->engine().IsReady());
    EXPECT_EQ(view->message(), kFileNotFound);
    EXPECT_EQ(rowData(1, PlaylistTableModel::ProblemRole).toString(), kFileNotFound);
    EXPECT_EQ(speedText(), GPSInfoPanel::idleSpeedText) << "not the last clip's sample";
    EXPECT_TRUE(btPrev->isEnabled());
    EXPECT_TRUE(btNext->isEnabled());

    controller.OnNext(btNext);
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_TRUE(view->engine().IsReady());
    EXPECT_TRUE(playing());
    EXPECT_TRUE(view->message().isEmpty());
    EXPECT_EQ(rowData(1, PlaylistTableModel::ProblemRole).toString(), kFileNotFound) << "the file is still gone";
    EXPECT_FALSE(rowData(2, PlaylistTableModel::ProblemRole).isValid());
}

TEST_F(TripControllerTest, ContinuousPlayPassesOverAClipOfTheTripWhoseFileWent) {
    ASSERT_NO_FATAL_FAILURE(openClips(true));
    std::filesystem::remove(clips_[1]);

    endClip();
    EXPECT_EQ(controller.curIndex, 2);
    EXPECT_TRUE(playing());
    ASSERT_GE(factory->requested.size(), 2u);
    EXPECT_EQ(factory->requested[factory->requested.size() - 2], clips_[1]) << "tried on the way";
    EXPECT_EQ(factory->requested.back(), clips_[2]);
    EXPECT_TRUE(view->message().isEmpty());
    EXPECT_EQ(rowData(1, PlaylistTableModel::ProblemRole).toString(), kFileNotFound);
}

TEST_F(TripControllerTest, SeekingOnATripsTimelineLoadsTheClipThatHoldsTheTime) {
    ASSERT_NO_FATAL_FAILURE(openClips(true));
    ASSERT_EQ(controller.timelineSpan(), (TripSpan{0, 3}));
    // Each step from where the one before left the player; the clips lie end to end, 2 s each.
    const struct {
        double tripSeconds;
        int row;
        double clipSeconds;
    } steps[] = {{1.5, 0, 1.5}, {3.25, 1, 1.25}, {5.0, 2, 1.0}, {0.5, 0, 0.5}};
    for (const auto& s : steps) {
        const int64_t before = controller.curIndex;
        const std::size_t loads = factory->requested.size();
        controller.seekTimeline(s.tripSeconds);
        EXPECT_EQ(controller.curIndex, s.row) << s.tripSeconds;
        EXPECT_EQ(txtTitle->text().toStdString(), clips_[static_cast<std::size_t>(s.row)].string()) << s.tripSeconds;
        EXPECT_EQ(factory->requested.size(), loads + (s.row != before ? 1 : 0)) << s.tripSeconds;
        ASSERT_FALSE(player->seeks.empty());
        EXPECT_NEAR(player->seeks.back().seconds(), s.clipSeconds, 1e-3) << s.tripSeconds;
        EXPECT_TRUE(playing()) << "a playing movie plays on in the new clip";
    }
}

TEST_F(TripControllerTest, TheTableShowsTripsOnceTheClipsHaveBeenRead) {
    controller.OnContinuousPlayChanged(false);
    controller.AddedMovies(nullptr, clips_);
    for (int row = 0; row < 4; ++row)
        EXPECT_FALSE(rowData(row, PlaylistTableModel::TripNumberRole).isValid()) << "nothing read yet: " << row;

    ASSERT_TRUE(waitForClipsRead());
    const struct {
        int trip;
        bool starts;
    } rows[] = {{1, true}, {1, false}, {1, false}, {2, true}};
    for (int row = 0; row < 4; ++row) {
        const auto& r = rows[row];
        EXPECT_EQ(rowData(row, PlaylistTableModel::TripNumberRole).toInt(), r.trip) << row;
        EXPECT_EQ(rowData(row, PlaylistTableModel::StartsTripRole).toBool(), r.starts) << row;
        EXPECT_EQ(rowData(row, PlaylistTableModel::TripHeadingRole).toString().isEmpty(), !r.starts) << row;
    }
}

}  // namespace
