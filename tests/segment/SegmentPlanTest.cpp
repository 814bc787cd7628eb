#include "SegmentPlan.h"

#include <gtest/gtest.h>

#include <cmath>

#include <optional>
#include <vector>

namespace {

std::vector<SegmentClip> threeClips() { return {{"/c/a.mp4", 60}, {"/c/b.mp4", 60}, {"/c/c.mp4", 30}}; }

TEST(SegmentPlan, SpanToSaveIsTheMarksElseAMinuteAroundThePositionWithinTheTimeline) {
    struct Row {
        const char* what;
        std::optional<double> start, end;
        double position, total;
        std::optional<SegmentSpan> expected;
    };
    const Row rows[] = {
        {"marks", 10.0, 50.0, 100, 150, SegmentSpan{10, 50}},
        {"marks set end first", 50.0, 10.0, 100, 150, SegmentSpan{10, 50}},
        {"marks past the end", 140.0, 170.0, 0, 150, SegmentSpan{140, 150}},
        {"one mark only", 10.0, std::nullopt, 100, 150, SegmentSpan{70, 130}},
        {"no marks", std::nullopt, std::nullopt, 100, 150, SegmentSpan{70, 130}},
        {"near the start", std::nullopt, std::nullopt, 5, 150, SegmentSpan{0, 35}},
        {"near the end", std::nullopt, std::nullopt, 140, 150, SegmentSpan{110, 150}},
        {"marks on one point", 20.0, 20.0, 0, 150, std::nullopt},
        {"empty timeline", std::nullopt, std::nullopt, 0, 0, std::nullopt},
        {"not a number", std::nullopt, std::nullopt, std::nan(""), 10, SegmentSpan{0, 10}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SegmentPlan::spanToSave(row.start, row.end, row.position, row.total), row.expected) << row.what;
    }
}

TEST(SegmentPlan, CutsTheSpanIntoOnePiecePerClipItTouches) {
    struct Row {
        const char* what;
        SegmentSpan span;
        std::vector<SegmentPiece> expected;
    };
    const Row rows[] = {
        {"inside one clip", {70, 100}, {{1, "/c/b.mp4", 10, 40}}},
        {"across a joint", {50, 80}, {{0, "/c/a.mp4", 50, 60}, {1, "/c/b.mp4", 0, 20}}},
        {"across a whole clip", {30, 130},
         {{0, "/c/a.mp4", 30, 60}, {1, "/c/b.mp4", 0, 60}, {2, "/c/c.mp4", 0, 10}}},
        {"ending on a joint", {30, 60}, {{0, "/c/a.mp4", 30, 60}}},
        {"starting on a joint", {60, 70}, {{1, "/c/b.mp4", 0, 10}}},
        {"beyond the clips", {150, 200}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SegmentPlan(threeClips(), row.span, "/out/x.mp4").pieces(), row.expected) << row.what;
    }
}

TEST(SegmentPlan, JoinsPiecesWhoseStreamsMatchElseNumbersOneMoviePerClip) {
    const StreamSignature video{.mediaType = 0, .codecId = 27, .width = 1920, .height = 1080,
                                .timeBaseNumerator = 1, .timeBaseDenominator = 30000, .extradata = {1, 2, 3}};
    const StreamSignature audio{.mediaType = 1, .codecId = 86018, .sampleRate = 48000, .channels = 2,
                                .timeBaseNumerator = 1, .timeBaseDenominator = 48000, .extradata = {}};
    StreamSignature otherExtradata = video;
    otherExtradata.extradata = {1, 2, 4};
    StreamSignature otherSize = video;
    otherSize.height = 720;

    const SegmentPlan plan(threeClips(), {50, 80}, "/out/crash.mov");
    const std::vector<SegmentOutput> joined{{"/out/crash.mov", plan.pieces()}};
    const std::vector<SegmentOutput> apart{{"/out/crash-1.mov", {plan.pieces()[0]}},
                                           {"/out/crash-2.mov", {plan.pieces()[1]}}};
    struct Row {
        const char* what;
        std::vector<ClipStreams> streams;
        std::vector<SegmentOutput> expected;
    };
    const Row rows[] = {
        {"same streams", {{video, audio}, {video, audio}}, joined},
        {"other extradata", {{video, audio}, {otherExtradata, audio}}, apart},
        {"other picture size", {{video, audio}, {otherSize, audio}}, apart},
        {"audio missing", {{video, audio}, {video}}, apart},
        {"a count that does not match", {{video, audio}}, {}},
    };
    for (const Row& row : rows) EXPECT_EQ(plan.outputs(row.streams), row.expected) << row.what;

    const SegmentPlan single(threeClips(), {70, 100}, "/out/one.mp4");
    const std::vector<SegmentOutput> one{{"/out/one.mp4", single.pieces()}};
    EXPECT_EQ(single.outputs(std::vector<ClipStreams>{{video}}), one);
}

// The track's name beside the movie is checked by the real cuts.
TEST(SegmentPlan, NamesTheContainerAndTheTemporaryFile) {
    EXPECT_EQ(SegmentPlan::containerOf("/a/b.MOV"), "mov");
    EXPECT_EQ(SegmentPlan::containerOf("/a/b"), "mp4");
    // Hidden in the movie's own folder, so that the rename into place never crosses a disk.
    EXPECT_EQ(SegmentPlan::temporaryFileOf("/a/crash.mp4"), "/a/.crash.mp4.part");
}

}  // namespace
