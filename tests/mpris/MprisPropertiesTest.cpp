#include "MprisProperties.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

MprisPlayerState loadedClip() {
    MprisPlayerState state;
    state.loaded = true;
    state.entry = 3;
    state.file = "/clips/trip one/2026_1115_080000_0001.MOV";
    state.durationSeconds = 20.5;
    return state;
}

TEST(MprisProperties, PlaybackStatusFollowsLoadedAndPlaying) {
    const struct {
        bool loaded, playing;
        const char* status;
    } cases[] = {
        {false, false, "Stopped"},
        {true, false, "Paused"},
        {true, true, "Playing"},
    };
    for (const auto& c : cases) {
        MprisPlayerState state;
        state.loaded = c.loaded;
        state.playing = c.playing;
        EXPECT_EQ(MprisProperties::playbackStatus(state), QString::fromLatin1(c.status))
            << "loaded " << c.loaded << " playing " << c.playing;
    }
}

TEST(MprisProperties, MetadataOfALoadedClip) {
    const QVariantMap metadata = MprisProperties::metadata(loadedClip());
    EXPECT_EQ(metadata.value("mpris:trackid").value<QDBusObjectPath>().path(), "/org/dashtrack/track/3");
    EXPECT_EQ(metadata.value("xesam:title").toString(), "2026_1115_080000_0001.MOV");
    EXPECT_EQ(metadata.value("xesam:url").toString(), "file:///clips/trip%20one/2026_1115_080000_0001.MOV");
    EXPECT_EQ(metadata.value("mpris:length").toLongLong(), 20'500'000);
    EXPECT_EQ(metadata.value("mpris:length").metaType(), QMetaType::fromType<qlonglong>());
}

TEST(MprisProperties, MetadataWithoutAClipHasOnlyTheNoTrackId) {
    MprisPlayerState stopped = loadedClip();
    stopped.loaded = false;
    const QVariantMap metadata = MprisProperties::metadata(stopped);
    EXPECT_EQ(metadata.keys(), QStringList{"mpris:trackid"});
    EXPECT_EQ(metadata.value("mpris:trackid").value<QDBusObjectPath>().path(),
              "/org/mpris/MediaPlayer2/TrackList/NoTrack");
}

TEST(MprisProperties, MicrosecondsNeverNegativeOrUndefined) {
    const struct {
        double seconds;
        qlonglong microseconds;
    } cases[] = {
        {0.0, 0}, {0.5, 500'000}, {12.345678, 12'345'678}, {-3.0, 0}, {kNaN, 0}, {kInfinity, 0},
        {1e300, 1'000'000'000'000'000'000},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MprisProperties::microseconds(c.seconds), c.microseconds) << c.seconds;
}

TEST(MprisProperties, RelativeSeekStaysInTheClipOrGoesOn) {
    const struct {
        double position;
        qlonglong offset;
        double duration;
        std::optional<double> target;
    } cases[] = {
        {10.0, 5'000'000, 20.0, 15.0},
        {10.0, -4'000'000, 20.0, 6.0},
        {10.0, -20'000'000, 20.0, 0.0},         // before the start: the start
        {10.0, 10'000'000, 20.0, 20.0},         // the very end still seeks
        {10.0, 10'000'001, 20.0, std::nullopt},  // past it: the next clip
        {kNaN, 3'000'000, 20.0, 3.0},           // nothing shown yet counts as the start
    };
    for (const auto& c : cases)
        EXPECT_EQ(MprisProperties::seekTarget(c.position, c.offset, c.duration), c.target)
            << c.position << " + " << c.offset << " us";
}

TEST(MprisProperties, SetPositionOnlyForTheLoadedTrackAndWithinIt) {
    MprisPlayerState stopped = loadedClip();
    stopped.loaded = false;
    const struct {
        MprisPlayerState state;
        const char* track;
        qlonglong position;
        std::optional<double> target;
    } cases[] = {
        {loadedClip(), "/org/dashtrack/track/3", 7'250'000, 7.25},
        {loadedClip(), "/org/dashtrack/track/3", 20'500'000, 20.5},
        {loadedClip(), "/org/dashtrack/track/2", 7'250'000, std::nullopt},  // a clip since replaced
        {loadedClip(), "/org/dashtrack/track/3", -1, std::nullopt},
        {loadedClip(), "/org/dashtrack/track/3", 20'500'001, std::nullopt},
        {stopped, "/org/mpris/MediaPlayer2/TrackList/NoTrack", 0, std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MprisProperties::positionTarget(c.state, QDBusObjectPath(QString::fromLatin1(c.track)), c.position),
                  c.target)
            << c.track << " at " << c.position;
}

TEST(MprisProperties, RequestedRatesBecomeRatesThePlayerPlays) {
    const struct {
        double requested;
        std::optional<double> accepted;
    } cases[] = {
        {1.0, 1.0}, {2.0, 2.0}, {1.5, 1.5}, {0.0, 0.0},   {0.1, 0.25},
        {100.0, 8.0}, {-1.0, -2.0}, {-8.0, -2.0}, {kNaN, std::nullopt},
    };
    for (const auto& c : cases) EXPECT_EQ(MprisProperties::acceptedRate(c.requested), c.accepted) << c.requested;
}

TEST(MprisProperties, ChangedReportsOnlyWhatDiffers) {
    MprisPlayerState before = loadedClip();
    MprisPlayerState after = before;
    const QVariantMap unchanged = MprisProperties::changed(MprisProperties::changingProperties(before),
                                                           MprisProperties::changingProperties(after));
    EXPECT_TRUE(unchanged.isEmpty()) << unchanged.keys().join(' ').toStdString();

    after.playing = true;
    after.entry = 4;
    after.canGoNext = true;
    const QVariantMap changed = MprisProperties::changed(MprisProperties::changingProperties(before),
                                                         MprisProperties::changingProperties(after));
    EXPECT_EQ(changed.keys(), (QStringList{"CanGoNext", "Metadata", "PlaybackStatus"}));
    EXPECT_EQ(changed.value("PlaybackStatus").toString(), "Playing");
}

}  // namespace
