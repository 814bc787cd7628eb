#include "FFmpegVideoTrackProbe.h"
#include "GPSUtils.h"
#include "GatedProbe.h"
#include "ValidationJob.h"

#include <gtest/gtest.h>

namespace {

const std::filesystem::path media = SETTINGS_TEST_MEDIA_DIR;

TEST(ValidationJob, GivesTheAnswerOfValidURLsWithProgressUpToTotal) {
    const GPSUtils utils({.userFile = {}, .shippedFile = {}}, defaultVideoTrackProbe());
    const std::vector<std::filesystem::path> files{media / "video.mp4",   media / "text.mp4",  media / "video.avi",
                                                   media / "missing.mp4", media / "video.mp4", media / "cover.m4a"};
    std::vector<std::pair<std::size_t, std::size_t>> progress;  // only the worker touches it until the end
    std::vector<std::filesystem::path> completed;
    ValidationJob job(
        utils.sharedVideoTrackProbe(), files,
        [&](std::size_t done, std::size_t total) { progress.emplace_back(done, total); },
        [&](const auto& valid) { completed = valid; });

    const auto result = job.result().get();
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(*result, utils.validURLs(files));
    EXPECT_EQ(completed, *result);
    ASSERT_EQ(progress.size(), files.size());
    for (std::size_t i = 0; i < progress.size(); ++i) EXPECT_EQ(progress[i], std::make_pair(i + 1, files.size()));
}

TEST(ValidationJob, CancelStopsBeforeTheNextFile) {
    const auto probe = std::make_shared<GatedProbe>();
    auto reached = probe->reachedSecond.get_future();
    bool completed = false;
    ValidationJob job(probe, std::vector<std::filesystem::path>(100, "clip.mp4"), {},
                      [&](const auto&) { completed = true; });

    reached.wait();
    job.cancel();
    probe->release.set_value();
    EXPECT_EQ(job.result().get(), std::nullopt);
    EXPECT_EQ(probe->calls, 2);
    EXPECT_FALSE(completed);
}

}  // namespace
