#include "GatedProbe.h"
#include "MovieCandidates.h"
#include "MovieScan.h"
#include "PlaylistTestSupport.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <set>

namespace {

using Files = std::vector<std::filesystem::path>;

TEST(MovieCandidates, ExactlySixSpellingsOfTheTwoExtensionsMakeCandidates) {
    for (const char* name : {"a.mp4", "a.MP4", "a.Mp4", "a.mov", "a.Mov", "a.MOV", ".hidden.mov"})
        EXPECT_TRUE(hasMovieExtension(name)) << name;
    for (const char* name : {"a.mP4", "a.MoV", "a.mp4.txt", "mp4", "/cam.mp4/clip"})
        EXPECT_FALSE(hasMovieExtension(name)) << name;
}

TEST(MovieCandidates, TheChosenFilesFolderGivesItsMovieNamedEntriesInListingOrder) {
    const ScratchFolder folder;
    for (const char* name : {"b.mp4", "a.MOV", ".c.mov", "clip.mP4", "clip.m4v", "notes.txt"}) folder.write(name);
    std::filesystem::create_directory(folder.path() / "inner");
    folder.write("inner/deep.mp4");
    Files listed;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        if (hasMovieExtension(entry.path())) listed.push_back(entry.path());
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(movieCandidates(folder.path() / "notes.txt"), listed);

    EXPECT_TRUE(movieCandidates(folder.path() / "missing" / "a.mp4").empty());
    EXPECT_TRUE(movieCandidates(folder.path() / "b.mp4" / "a.mp4").empty());  // not a folder
    // Folders give their own movies; anything else stands as given, for the video test to judge.
    const auto avi = folder.write("inner/clip.avi");
    EXPECT_EQ(commandLineCandidates({avi, folder.path() / "inner", "gone.mp4"}),
              (Files{avi, folder.path() / "inner" / "deep.mp4", "gone.mp4"}));
}

// A movie is a file whose name is listed; notes whether the UI thread ever asked.
struct NamedMoviesProbe : VideoTrackProbe {
    explicit NamedMoviesProbe(std::set<std::string> names) : movies(std::move(names)) {}
    bool hasVideoTrack(const std::filesystem::path& file) const override {
        askedOnUiThread = askedOnUiThread || QThread::currentThread() == qApp->thread();
        return movies.contains(file.filename().string());
    }
    std::set<std::string> movies;
    mutable std::atomic<bool> askedOnUiThread = false;
};

// What a scan reported, as its window would see it.
struct Outcome {
    explicit Outcome(MovieScan* scan) {
        QObject::connect(scan, &MovieScan::progressed, [this](qulonglong done, qulonglong total) {
            progress.emplace_back(done, total);
            onOwnerThread = onOwnerThread && QThread::currentThread() == qApp->thread();
        });
        QObject::connect(scan, &MovieScan::finished, [this](const Files& found) {
            movies = found;
            onOwnerThread = onOwnerThread && QThread::currentThread() == qApp->thread();
        });
    }
    void waitForResult() {
        while (!movies) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::optional<Files> movies;
    std::vector<std::pair<qulonglong, qulonglong>> progress;
    bool onOwnerThread = true;
};

TEST(MovieScan, DeliversTheValidMoviesInCandidateOrderOnTheOwnerThreadThenGoes) {
    const ScratchFolder folder;
    for (const char* name : {"a.mp4", "audio.mp4", "b.MOV", "c.mov", "clip.mP4"}) folder.write(name);
    const auto probe = std::make_shared<NamedMoviesProbe>(std::set<std::string>{"a.mp4", "b.MOV", "c.mov", "clip.mP4"});
    QObject window;
    QPointer<MovieScan> scan = MovieScan::openPanel(probe, folder.path() / "a.mp4", &window);
    Outcome outcome(scan);
    outcome.waitForResult();

    Files expected;
    for (const auto& file : movieCandidates(folder.path() / "a.mp4"))
        if (probe->movies.contains(file.filename().string())) expected.push_back(file);
    EXPECT_EQ(expected.size(), 3u);
    EXPECT_EQ(outcome.movies, expected);
    EXPECT_TRUE(outcome.onOwnerThread);
    EXPECT_FALSE(probe->askedOnUiThread);
    ASSERT_FALSE(outcome.progress.empty());
    EXPECT_EQ(outcome.progress.back(), std::make_pair(4ULL, 4ULL));
    EXPECT_TRUE(scan.isNull());

    Outcome commandLine(MovieScan::commandLine(probe, {folder.path() / "b.MOV", folder.path() / "audio.mp4"}, &window));
    commandLine.waitForResult();
    EXPECT_EQ(commandLine.movies, Files{folder.path() / "b.MOV"});
}

TEST(MovieScan, AScanWhoseWindowGoesFirstNeverDelivers) {
    const ScratchFolder folder;
    for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) folder.write(name);
    const auto probe = std::make_shared<GatedProbe>();
    auto reached = probe->reachedSecond.get_future();
    auto window = std::make_unique<QObject>();
    QPointer<MovieScan> scan = MovieScan::openPanel(probe, folder.path() / "a.mp4", window.get());
    Outcome outcome(scan);
    reached.wait();
    // The probe is let go as the window is destroyed, just before its children: the worker may
    // finish and post its result or see the cancel first. Nothing posted may reach the window.
    QObject::connect(window.get(), &QObject::destroyed, [&] { probe->release.set_value(); });
    window.reset();
    EXPECT_TRUE(scan.isNull());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(outcome.movies, std::nullopt);
    EXPECT_TRUE(outcome.progress.empty());
}

}  // namespace
