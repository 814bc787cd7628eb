#include "FFmpegVideoTrackProbe.h"
#include "GPSUtils.h"
#include "MediaFixtures.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

const std::filesystem::path media = SETTINGS_TEST_MEDIA_DIR;
const GPSUtils utils({.userFile = {}, .shippedFile = {}}, defaultVideoTrackProbe());

TEST(Validation, AcceptsOnlyMoviesWithAPicture) {
    for (const auto& fixture : kMediaFixtures) {
        EXPECT_EQ(utils.isValidURL(media / fixture.name), fixture.movie) << fixture.name;
    }
    EXPECT_FALSE(utils.isValidURL(std::nullopt));
}

// Only local files are read: a name is never taken for a protocol, and nothing that is not a
// regular file is opened, so a FIFO without a writer cannot make validation wait.
TEST(Validation, ReadsOnlyRegularLocalFiles) {
    TempDir directory;
    std::filesystem::copy_file(media / "video.mp4", directory / "a.mp4");
    std::filesystem::copy_file(media / "video.mp4", directory / "concat:video.mp4");
    ASSERT_EQ(::mkfifo((directory / "fifo.mp4").c_str(), 0600), 0);
    std::filesystem::create_symlink(directory / "a.mp4", directory / "link.mp4");

    const struct {
        std::filesystem::path path;
        bool movie;
    } cases[] = {
        {directory / "concat:video.mp4", true},  // a file by that name
        {directory / "link.mp4", true},
        {"concat:" + (directory / "a.mp4").string() + "|" + (directory / "a.mp4").string(), false},
        {"http://127.0.0.1:9/a.mp4", false},
        {directory / "fifo.mp4", false},
        {"/dev/zero", false},
        {directory / std::string("a.mp4\0.txt", 10), false},
        {"", false},
    };
    for (const auto& c : cases) EXPECT_EQ(utils.isValidURL(c.path), c.movie) << c.path;
}

TEST(Validation, RelativeNameWithAColonIsAFileInTheCurrentFolder) {
    TempDir directory;
    std::filesystem::copy_file(media / "video.mp4", directory / "a:b.mp4");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    const bool valid = utils.isValidURL("a:b.mp4");
    std::filesystem::current_path(before);
    EXPECT_TRUE(valid);
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
