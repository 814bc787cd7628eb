#include "MovieCandidates.h"
#include "PlaylistTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

struct NameCase {
    const char* name;
    bool movie;
};

TEST(MovieCandidates, ExactlySixSpellingsOfTheTwoExtensionsAreMovies) {
    const NameCase cases[] = {
        {"clip.mp4", true},      {"clip.MP4", true},         {"clip.Mp4", true},          {"clip.mov", true},
        {"clip.Mov", true},      {"clip.MOV", true},         {"clip.mP4", false},         {"clip.mOV", false},
        {"clip.MoV", false},     {"clip.m4v", false},        {"clip.avi", false},         {"clip.mp4.txt", false},
        {"clip.txt.mp4", true},  {".hidden.mov", true},      {"mp4", false},              {"clip.", false},
        {"clip", false},         {"/cam/clip.mp4", true},    {"/cam.mp4/clip", false},    {"clip. mp4", false},
    };
    for (const auto& [name, movie] : cases) EXPECT_EQ(hasMovieExtension(name), movie) << name;
}

// The folder's movie-named entries in the order the file system lists them.
std::vector<std::filesystem::path> listedMovies(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> movies;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (hasMovieExtension(entry.path())) movies.push_back(entry.path());
    return movies;
}

TEST(MovieCandidates, TheChosenFilesFolderGivesItsMovieNamedEntriesInListingOrder) {
    const ScratchFolder folder;
    for (const char* name : {"b.mp4", "a.MOV", "c.Mp4", ".d.mov", "e.Mov", "f.MP4", "clip.mP4", "clip.m4v", "notes.txt"})
        folder.write(name);
    std::filesystem::create_directory(folder.path() / "nested.mp4");  // kept: the video test turns it down
    std::filesystem::create_directory(folder.path() / "inner");
    folder.write("inner/deep.mp4");

    const auto candidates = movieCandidates(folder.path() / "b.mp4");
    EXPECT_EQ(candidates, listedMovies(folder.path()));
    const std::set<std::filesystem::path> names = [&] {
        std::set<std::filesystem::path> result;
        for (const auto& file : candidates) result.insert(file.filename());
        return result;
    }();
    EXPECT_EQ(names, (std::set<std::filesystem::path>{"b.mp4", "a.MOV", "c.Mp4", ".d.mov", "e.Mov", "f.MP4",
                                                      "nested.mp4"}));
    // Whichever file was chosen, and even one that is gone, names the same folder.
    EXPECT_EQ(movieCandidates(folder.path() / "notes.txt"), candidates);
    EXPECT_EQ(movieCandidates(folder.path() / "vanished.mp4"), candidates);
}

TEST(MovieCandidates, AFolderThatCannotBeListedGivesNone) {
    const ScratchFolder folder;
    const auto file = folder.write("file.mp4");
    EXPECT_TRUE(movieCandidates(folder.path() / "missing" / "clip.mp4").empty());
    EXPECT_TRUE(movieCandidates(file / "clip.mp4").empty());  // not a folder
    const ScratchFolder empty;
    EXPECT_TRUE(movieCandidates(empty.path() / "clip.mp4").empty());
}

TEST(MovieCandidates, CommandLineFoldersGiveTheirMoviesAndOtherArgumentsStandAsGiven) {
    const ScratchFolder folder;
    const auto inside = folder.write("drive.mp4");
    folder.write("readme.txt");
    const ScratchFolder other;
    const auto avi = other.write("clip.avi");
    const auto args = std::vector<std::filesystem::path>{avi, folder.path(), other.path() / "missing.mp4", avi};
    EXPECT_EQ(commandLineCandidates(args),
              (std::vector<std::filesystem::path>{avi, inside, other.path() / "missing.mp4", avi}));
    // A trailing separator names the same folder.
    EXPECT_EQ(commandLineCandidates({folder.path() / ""}), std::vector<std::filesystem::path>{inside});
    EXPECT_TRUE(commandLineCandidates({}).empty());
}

}  // namespace
