// How long opening a folder of 1,000 camera clips takes, from the choice in the open panel to the
// filled playlist table and then to the trips being known (every clip's track read in the
// background and the trips formed), and how long the UI thread stalls meanwhile: a 5 ms timer runs
// on the UI thread and the longest gap between its ticks is the stall. The real video track test
// and the real track reading are used.
#include "ClipCatalog.h"
#include "FFmpegVideoTrackProbe.h"
#include "MovieScan.h"
#include "Playlist.h"
#include "PlaylistTableModel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

constexpr int clipCount = 1000;
constexpr int rounds = 3;

// Hard links of one clip under a thousand names (copies where the file system has no links).
class ClipFolder {
public:
    explicit ClipFolder(const std::filesystem::path& clip) {
        std::string pattern = (std::filesystem::temp_directory_path() / "dashtrack-scan-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) std::exit(2);
        directory_ = pattern;
        for (int i = 0; i < clipCount; ++i) {
            const auto name = directory_ / ("clip" + std::to_string(i) + ".MP4");
            std::error_code error;
            std::filesystem::create_hard_link(clip, name, error);
            if (error) std::filesystem::copy_file(clip, name);
        }
    }
    ~ClipFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(directory_, ignored);
    }
    ClipFolder(const ClipFolder&) = delete;
    ClipFolder& operator=(const ClipFolder&) = delete;

    std::filesystem::path chosen() const { return directory_ / "clip0.MP4"; }

private:
    std::filesystem::path directory_;
};

struct Figures {
    double scanned = 0, filled = 0, tripsKnown = 0, longestGap = 0;
    std::size_t rows = 0, trips = 0;
};

Figures openFolder(const std::filesystem::path& chosen) {
    Playlist playlist;
    PlaylistTableModel model(playlist);
    QTableView view;
    view.setModel(&model);
    view.resize(900, 600);
    view.show();
    QCoreApplication::processEvents();

    Figures figures;
    QElapsedTimer clock;
    qint64 lastTick = 0, longestGap = 0;
    QTimer ticker;
    ticker.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        longestGap = std::max(longestGap, now - lastTick);
        lastTick = now;
    });

    QObject window;
    QEventLoop loop;
    ClipCatalog catalog;
    // As the window does at each batch: the trips of the whole playlist formed anew.
    const auto formTrips = [&] {
        std::vector<std::optional<ClipFacts>> rows;
        rows.reserve(playlist.size());
        for (const PlaylistItem& item : playlist.items()) {
            const ClipRecord* record = catalog.find(item.URL());
            rows.push_back(record != nullptr ? std::optional(record->facts) : std::nullopt);
        }
        return TripIndex(rows);
    };
    QObject::connect(&catalog, &ClipCatalog::clipsRead, [&] {
        const TripIndex trips = formTrips();
        if (catalog.pending() > 0) return;
        figures.tripsKnown = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        figures.trips = trips.trips().size();
        loop.quit();
    });
    clock.start();
    ticker.start(5);
    auto* scan = MovieScan::openPanel(defaultVideoTrackProbe(), chosen, &window);
    QObject::connect(scan, &MovieScan::finished, [&](const std::vector<std::filesystem::path>& movies) {
        figures.scanned = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        playlist.add(movies);
        model.reloadData();
        view.viewport()->repaint();
        figures.filled = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        const qint64 now = clock.nsecsElapsed();
        longestGap = std::max(longestGap, now - lastTick);
        catalog.request(movies);
    });
    loop.exec();
    ticker.stop();
    figures.longestGap = static_cast<double>(longestGap) / 1e6;
    figures.rows = static_cast<std::size_t>(model.rowCount());
    return figures;
}

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    const ClipFolder folder(FOLDER_SCAN_BENCH_CLIP);
    std::printf("%d clips; time to the filled table (of it the scan), to the trips known, and the longest UI "
                "stall (5 ms ticks)\n",
                clipCount);
    bool ok = true;
    for (int round = 1; round <= rounds; ++round) {
        const auto figures = openFolder(folder.chosen());
        std::printf("round %d: filled %.1f ms (scan %.1f ms, add+reload+paint %.1f ms), trips known %.1f ms "
                    "(%zu trips), longest gap %.1f ms, %zu rows\n",
                    round, figures.filled, figures.scanned, figures.filled - figures.scanned, figures.tripsKnown,
                    figures.trips, figures.longestGap, figures.rows);
        ok = ok && figures.rows == clipCount;
    }
    return ok ? 0 : 1;
}
