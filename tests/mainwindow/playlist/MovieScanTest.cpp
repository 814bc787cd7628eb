#include "MovieCandidates.h"
#include "MovieScan.h"
#include "PlaylistTestSupport.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

// A movie is any file whose name is on the list; records which threads asked.
struct NamedMoviesProbe : VideoTrackProbe {
    explicit NamedMoviesProbe(std::set<std::string> movies) : movies(std::move(movies)) {}
    bool hasVideoTrack(const std::filesystem::path& file) const override {
        if (QThread::currentThread() == qApp->thread()) askedOnUiThread = true;
        return movies.contains(file.filename().string());
    }
    std::set<std::string> movies;
    mutable std::atomic<bool> askedOnUiThread = false;
};

// Says yes, but holds the second file until released: by then the first file's progress has been
// posted to the scan's thread.
struct GatedProbe : VideoTrackProbe {
    bool hasVideoTrack(const std::filesystem::path&) const override {
        if (++calls == 2) {
            reached.set_value();
            released.get_future().wait();
        }
        return true;
    }
    mutable std::atomic<int> calls = 0;
    mutable std::promise<void> reached, released;
};

// What a scan reported, as the window would see it.
struct Outcome {
    std::optional<std::vector<std::filesystem::path>> movies;
    std::vector<std::pair<qulonglong, qulonglong>> progress;
    bool onOwnerThread = true;

    void watch(MovieScan* scan) {
        QObject::connect(scan, &MovieScan::progressed, [this](qulonglong done, qulonglong total) {
            progress.emplace_back(done, total);
            onOwnerThread = onOwnerThread && QThread::currentThread() == qApp->thread();
        });
        QObject::connect(scan, &MovieScan::finished, [this](const std::vector<std::filesystem::path>& found) {
            movies = found;
            onOwnerThread = onOwnerThread && QThread::currentThread() == qApp->thread();
        });
    }
    void waitForResult() {
        while (!movies) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST(MovieScan, DeliversTheFoldersValidMoviesInListingOrderOnTheOwnerThreadThenGoes) {
    const ScratchFolder folder;
    for (const char* name : {"a.mp4", "audio.mp4", "b.MOV", "c.mov", "clip.mP4", "d.Mp4", "broken.mov"})
        folder.write(name);
    const auto probe = std::make_shared<NamedMoviesProbe>(std::set<std::string>{"a.mp4", "b.MOV", "c.mov", "clip.mP4", "d.Mp4"});
    QObject window;
    Outcome outcome;
    QPointer<MovieScan> scan = MovieScan::openPanel(probe, folder.path() / "a.mp4", &window);
    outcome.watch(scan);
    outcome.waitForResult();

    std::vector<std::filesystem::path> expected;
    for (const auto& file : movieCandidates(folder.path() / "a.mp4"))
        if (probe->movies.contains(file.filename().string())) expected.push_back(file);
    ASSERT_EQ(expected.size(), 4u);
    EXPECT_EQ(outcome.movies, expected);
    EXPECT_TRUE(outcome.onOwnerThread);
    EXPECT_FALSE(probe->askedOnUiThread);
    ASSERT_FALSE(outcome.progress.empty());
    EXPECT_EQ(outcome.progress.back(), std::make_pair(6ULL, 6ULL));
    for (std::size_t i = 1; i < outcome.progress.size(); ++i)
        EXPECT_LT(outcome.progress[i - 1].first, outcome.progress[i].first);
    EXPECT_TRUE(scan.isNull());
}

TEST(MovieScan, CommandLineArgumentsAreValidatedWhateverTheirNames) {
    const ScratchFolder folder;
    const auto inside = folder.write("drive.mov");
    folder.write("song.mp4");
    const ScratchFolder other;
    const auto avi = other.write("clip.avi");
    const auto text = other.write("notes.txt");
    const auto probe = std::make_shared<NamedMoviesProbe>(std::set<std::string>{"drive.mov", "clip.avi"});
    QObject window;
    Outcome outcome;
    outcome.watch(MovieScan::commandLine(probe, {text, folder.path(), avi}, &window));
    outcome.waitForResult();
    EXPECT_EQ(outcome.movies, (std::vector<std::filesystem::path>{inside, avi}));
}

TEST(MovieScan, AnEmptyFolderOrNoProbeStillFinishesWithNothing) {
    const ScratchFolder folder;
    QObject window;
    Outcome empty;
    empty.watch(MovieScan::openPanel(std::make_shared<NamedMoviesProbe>(std::set<std::string>{}), folder.path() / "x.mp4", &window));
    empty.waitForResult();
    EXPECT_EQ(empty.movies, std::vector<std::filesystem::path>{});

    folder.write("a.mp4");
    Outcome probeless;
    probeless.watch(MovieScan::openPanel(nullptr, folder.path() / "a.mp4", &window));
    probeless.waitForResult();
    EXPECT_EQ(probeless.movies, std::vector<std::filesystem::path>{});
}

TEST(MovieScan, AScanWhoseWindowGoesFirstNeverDelivers) {
    const ScratchFolder folder;
    for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) folder.write(name);
    const auto probe = std::make_shared<GatedProbe>();
    auto reached = probe->reached.get_future();
    auto window = std::make_unique<QObject>();
    Outcome outcome;
    QPointer<MovieScan> scan = MovieScan::openPanel(probe, folder.path() / "a.mp4", window.get());
    outcome.watch(scan);
    reached.wait();
    // A progress report is now posted and not delivered. The window lets the probe go as it is
    // destroyed, just before its children: the worker may then finish and post its result too, or
    // see the cancel first. Nothing posted may reach the window.
    QObject::connect(window.get(), &QObject::destroyed, [&] { probe->released.set_value(); });
    window.reset();

    EXPECT_TRUE(scan.isNull());
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(outcome.movies, std::nullopt);
    EXPECT_TRUE(outcome.progress.empty());
}

}  // namespace
