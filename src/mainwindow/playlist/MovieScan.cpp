#include "MovieScan.h"

#include "MovieCandidates.h"

#include <QMetaObject>

#include <utility>

MovieScan* MovieScan::openPanel(std::shared_ptr<const VideoTrackProbe> probe, std::filesystem::path firstChosen,
                                QObject* parent) {
    return new MovieScan(std::move(probe), [chosen = std::move(firstChosen)] { return movieCandidates(chosen); },
                         parent);
}

MovieScan* MovieScan::commandLine(std::shared_ptr<const VideoTrackProbe> probe, std::vector<std::filesystem::path> args,
                                  QObject* parent) {
    return new MovieScan(std::move(probe), [args = std::move(args)] { return commandLineCandidates(args); }, parent);
}

MovieScan::MovieScan(std::shared_ptr<const VideoTrackProbe> probe, Lister lister, QObject* parent) : QObject(parent) {
    worker_ = std::jthread([this, probe = std::move(probe), lister = std::move(lister)](std::stop_token stop) {
        run(stop, probe.get(), lister);
    });
}

MovieScan::~MovieScan() {
    // Joined here, while this is still a whole QObject: nothing is posted to it after this, and
    // QObject's own destructor then discards whatever was posted and not yet delivered.
    worker_.request_stop();
    if (worker_.joinable()) worker_.join();
}

void MovieScan::run(const std::stop_token& stop, const VideoTrackProbe* probe, const Lister& lister) {
    const Files candidates = lister();
    total_ = candidates.size();
    Files movies;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (stop.stop_requested()) return;
        if (probe && probe->hasVideoTrack(candidates[i])) movies.push_back(candidates[i]);
        postProgress(i + 1);
    }
    if (stop.stop_requested()) return;
    QMetaObject::invokeMethod(
        this, [this, movies = std::move(movies)] { deliver(movies); }, Qt::QueuedConnection);
}

void MovieScan::postProgress(std::size_t done) {
    done_ = done;
    // One report in flight at a time: a thousand fast files make a handful of events, not a
    // thousand, and the report always shows the latest count.
    if (progressPosted_.exchange(true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            progressPosted_ = false;
            emit progressed(done_.load(), total_.load());
        },
        Qt::QueuedConnection);
}

void MovieScan::deliver(const Files& movies) {
    emit finished(movies);
    deleteLater();
}
