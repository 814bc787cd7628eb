// The player engine's arithmetic, driven without a window: time-to-sample mapping, seek targets,
// progress, the track's lead-in and cap, and the snapshot colour rule.

#include "PlaybackMath.h"
#include "PlayerTrack.h"
#include "SnapshotColour.h"
#include "TrackCursor.h"

extern "C" {
#include <libswscale/swscale.h>
}

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TrackCursor, ReportsEachNewWholeSecondInsideTheTrackOnce) {
    constexpr uint64_t count = 4;  // a track of 3 records behind the empty sample
    TrackCursor cursor;
    cursor.restart();
    const struct {
        double seconds;
        std::optional<uint64_t> report;
        int64_t curIndexAfter;
    } steps[] = {
        {0.5, 0, 0},
        {0.9, std::nullopt, 0},
        {1.0, 1, 1},
        {3.9, 3, 3},
        {4.0, std::nullopt, 3},  // beyond the track the last position stays
        {kNaN, std::nullopt, 3},
        {0x1p63, std::nullopt, 3},
        {2.5, 2, 2},  // playing or seeking back reports the earlier sample
        {-1.5, std::nullopt, 2},
        {-0.5, 0, 0},  // truncated toward zero, not floored
    };
    for (const auto& s : steps) {
        EXPECT_EQ(cursor.advance(s.seconds, count), s.report) << "t = " << s.seconds;
        EXPECT_EQ(cursor.curIndex(), s.curIndexAfter) << "t = " << s.seconds;
    }
}

TEST(PlaybackMath, SeekTargetsAreWholeHundredthsTowardZero) {
    const struct {
        double fraction, duration;
        std::optional<MediaTime> target;
    } cases[] = {
        {0.5, 9.99, MediaTime::make(499, 100)},
        {1.0, 40.0, MediaTime::make(4000, 100)},
        {-0.01, 60.0, MediaTime::make(0, 100)},  // before the start is the start
        {-1e300, 10.0, MediaTime::make(0, 100)},
        {0.5, kNaN, std::nullopt},
        {1e300, 10.0, std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(seekTarget(c.fraction, c.duration), c.target) << c.fraction << " of " << c.duration;
    }
    EXPECT_DOUBLE_EQ(playbackProgress(5.0, 20.0), 0.25);
    EXPECT_FLOAT_EQ(tenSecondShare(40.0), 0.25f);
    for (double duration : {0.0, kNaN}) {
        EXPECT_EQ(playbackProgress(5.0, duration), 0.0) << duration;
        EXPECT_EQ(tenSecondShare(duration), 0.0f) << duration;
    }
}

TEST(PlayerTrack, EmptySampleInFrontAndMaximumCappedAt200) {
    const struct {
        std::size_t records;
        float loaderMax, speedMax;
    } cases[] = {{3, 250.0f, 200.0f}, {3, 200.0f, 200.0f}, {3, 120.0f, 120.0f}, {0, 55.0f, 0.0f}};
    for (const auto& c : cases) {
        std::vector<GPSData> records(c.records);
        if (c.records > 0) {
            GPSDATA raw{};
            raw.rmcinfo.Year = 16;  // scaled form: the speed passes uncapped
            raw.rmcinfo.Speed = 10.0f;
            records.back().SetData(raw, false);
        }
        const PlayerTrack track = PlayerTrack::fromLoaded(records, c.loaderMax);
        EXPECT_EQ(track.speedMax, c.speedMax);
        ASSERT_EQ(track.samples.size(), c.records == 0 ? 0 : c.records + 1);
        if (c.records > 0) {
            EXPECT_EQ(track.samples.front().SpeedMPH(), 0.0f);
            EXPECT_EQ(track.samples.back().SpeedMPH(), records.back().SpeedMPH());
        }
    }
}

TEST(SnapshotColour, TagsWinOtherwiseTheSizeDecides) {
    constexpr auto untagged = AVCOL_SPC_UNSPECIFIED;
    constexpr auto anyRange = AVCOL_RANGE_UNSPECIFIED;
    const struct {
        AVColorSpace space;
        AVColorRange range;
        int width, height;
        SnapshotColour colour;
    } cases[] = {
        {untagged, anyRange, 1280, 544, {SWS_CS_ITU709, false}},
        {untagged, anyRange, 1024, 578, {SWS_CS_ITU709, false}},
        {untagged, AVCOL_RANGE_JPEG, 720, 576, {SWS_CS_ITU601, true}},
        {AVCOL_SPC_BT709, AVCOL_RANGE_MPEG, 320, 180, {SWS_CS_ITU709, false}},
        {AVCOL_SPC_SMPTE170M, anyRange, 1920, 1080, {SWS_CS_ITU601, false}},
        {AVCOL_SPC_BT2020_NCL, anyRange, 3840, 2160, {SWS_CS_BT2020, false}},
        {AVCOL_SPC_RGB, anyRange, 640, 480, {SWS_CS_ITU601, false}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SnapshotColour::forFrame(c.space, c.range, c.width, c.height), c.colour)
            << "space " << c.space << " range " << c.range << " " << c.width << "x" << c.height;
    }
}

}  // namespace
