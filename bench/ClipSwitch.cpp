// Changing from one movie to the next as the player engine does (pause and blank the old one, drop
// it, make the next one's player and show it), in a 1280x720 window with the renderer this machine
// gets (DASHTRACK_VIDEO_RENDERER forces one). For each change it prints the time from the start of
// the change to the next movie's first frame on screen, how long the change's calls held the UI
// thread, and the longest gap between firings of a 1 ms timer from the change to that frame; and,
// for comparison, that longest gap while the movie then plays.
//
//   clip-switch [--switches N] MOVIE MOVIE...     (the movies are taken in turn)

#include "MpvPlayerFactory.h"
#include "VideoSurfaceFactory.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

QElapsedTimer clock_;
std::optional<double> firstFrameAt_;

double nowMs() { return static_cast<double>(clock_.nsecsElapsed()) / 1e6; }

// The player logs its first frame on screen under this category; the time of the log is the time
// of the paint.
void noteFirstFrame(QtMsgType, const QMessageLogContext& context, const QString& message) {
    if (context.category && std::strcmp(context.category, "dashtrack.mpv.stats") == 0 &&
        message.startsWith(QLatin1String("first-frame-ms="))) {
        if (!firstFrameAt_) firstFrameAt_ = nowMs();
        return;
    }
    if (context.category && std::strcmp(context.category, "dashtrack.mpv.stats") != 0)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

// The longest wait between firings of a 1 ms timer since the last reset.
class StallMeter {
public:
    StallMeter() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(1);
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            const double now = nowMs();
            longest_ = std::max(longest_, now - last_);
            last_ = now;
        });
        timer_.start();
    }
    void reset() {
        last_ = nowMs();
        longest_ = 0;
    }
    // Counts the wait since the last firing too, so that a stall still going on is not missed.
    double longest() const { return std::max(longest_, nowMs() - last_); }

private:
    QTimer timer_;
    double last_ = 0;
    double longest_ = 0;
};

struct Switch {
    double firstFrameMs = -1;
    double callMs = 0;
    double stallMs = 0;
    double playingStallMs = 0;
};

double median(std::vector<double> values) {
    if (values.empty()) return -1;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void runEventLoopFor(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    int switches = 9;
    std::vector<std::filesystem::path> movies;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--switches") == 0 && i + 1 < argc)
            switches = std::max(1, std::atoi(argv[++i]));
        else
            movies.emplace_back(argv[i]);
    }
    if (movies.empty()) {
        std::fprintf(stderr, "usage: clip-switch [--switches N] MOVIE...\n");
        return 2;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("dashtrack.mpv.stats.info=true"));
    qInstallMessageHandler(noteFirstFrame);
    clock_.start();

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    std::unique_ptr<VideoSurface> surface = makeVideoSurface(&window);
    layout->addWidget(surface->widget());
    window.resize(1280, 720);
    window.show();
    runEventLoopFor(300);

    MpvPlayerFactory factory;
    std::unique_ptr<MediaPlayer> player;
    std::unique_ptr<MediaPlayer> empty;
    StallMeter stalls;
    std::vector<Switch> results;
    // The first load also starts the core; it is reported apart from the changes that follow.
    for (int i = 0; i <= switches; ++i) {
        const std::filesystem::path& movie = movies[static_cast<std::size_t>(i) % movies.size()];
        firstFrameAt_.reset();
        stalls.reset();
        const double start = nowMs();
        if (player) {
            player->pause();
            empty = factory.emptyPlayer();
            surface->setPlayer(empty.get());
            player.reset();
        }
        player = factory.playerWithURL(movie);
        if (!player) {
            std::fprintf(stderr, "clip-switch: cannot play %s\n", movie.c_str());
            return 1;
        }
        player->setVolume(0.6f);
        player->setMuted(false);
        surface->setPlayer(player.get());
        Switch result;
        result.callMs = nowMs() - start;
        QElapsedTimer waited;
        waited.start();
        while (!firstFrameAt_ && waited.elapsed() < 5000) app.processEvents(QEventLoop::WaitForMoreEvents, 5);
        result.stallMs = stalls.longest();
        if (firstFrameAt_) result.firstFrameMs = *firstFrameAt_ - start;
        // Let the movie play a little, as a viewer would, before the next change; the longest stall
        // meanwhile is what rendering alone costs the UI thread.
        player->play();
        runEventLoopFor(100);
        stalls.reset();
        runEventLoopFor(400);
        result.playingStallMs = stalls.longest();
        results.push_back(result);
        std::printf("%s %-26s first frame %7.1f ms  call %6.1f ms  longest stall %6.1f ms (playing: %5.1f ms)\n",
                    i == 0 ? "load  " : "change", movie.filename().c_str(), result.firstFrameMs, result.callMs,
                    result.stallMs, result.playingStallMs);
    }
    std::vector<double> first, call, stall, playing;
    for (std::size_t i = 1; i < results.size(); ++i) {
        first.push_back(results[i].firstFrameMs);
        call.push_back(results[i].callMs);
        stall.push_back(results[i].stallMs);
        playing.push_back(results[i].playingStallMs);
    }
    std::printf(
        "median of %zu changes: first frame %.1f ms, call %.1f ms, longest stall %.1f ms (worst %.1f ms); "
        "longest stall while playing %.1f ms\n",
        first.size(), median(first), median(call), median(stall), *std::max_element(stall.begin(), stall.end()),
        median(playing));
    surface->setPlayer(nullptr);
    player.reset();
    return 0;
}
