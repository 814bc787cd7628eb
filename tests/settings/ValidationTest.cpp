#include "FFmpegVideoTrackProbe.h"
#include "GPSUtils.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

namespace {

const std::filesystem::path media = SETTINGS_TEST_MEDIA_DIR;
const GPSUtils utils({.userFile = {}, .shippedFile = {}}, defaultVideoTrackProbe());

TEST(Validation, AcceptsOnlyMoviesWithAPicture) {
    const struct {
        const char* name;
        bool valid;
    } cases[] = {
        {"video.mp4", true},  {"video.avi", true},  {"video.mkv", true},    {"video.ts", true},
        {"audio.mp4", false}, {"cover.m4a", false}, {"picture.mp4", false}, {"text.mp4", false},
        {"notes.txt", false}, {"empty.mp4", false}, {"folder.mp4", false},  {"missing.mp4", false},
    };
    for (const auto& c : cases) EXPECT_EQ(utils.isValidURL(media / c.name), c.valid) << c.name;
    EXPECT_FALSE(utils.isValidURL(std::nullopt));
}

TEST(Validation, NameThatLooksLikeAnotherProtocolIsStillAFile) {
    TemporaryDirectory directory;
    std::filesystem::copy_file(media / "video.mp4", directory / "concat:video.mp4");
    EXPECT_TRUE(utils.isValidURL(directory / "concat:video.mp4"));
}

TEST(Validation, ListsKeepOrderAndDuplicates) {
    const auto movie = media / "video.mp4", text = media / "text.mp4", avi = media / "video.avi";
    EXPECT_EQ(utils.validURLs({movie, text, movie}), (std::vector{movie, movie}));
    EXPECT_TRUE(utils.validURLs({}).empty());

    const FilePasteboard drop{std::vector<std::string>{avi.string(), media / "audio.mp4", "", movie.string()}};
    EXPECT_EQ(utils.validURLsWithPasteboard(drop), (std::vector{avi, movie}));
    EXPECT_TRUE(utils.validURLsWithPasteboard(FilePasteboard{}).empty());
}

}  // namespace
