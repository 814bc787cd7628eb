#include "DroppedMovieFilter.h"

#include "GPSUtils.h"
#include "ValidationJob.h"

#include <QMetaObject>

#include <system_error>
#include <utility>

DroppedMovieFilter::DroppedMovieFilter(const GPSUtils& utils, QObject* parent) : QObject(parent), utils_(utils) {}

DroppedMovieFilter::~DroppedMovieFilter() {
    // Joined here, while the object the workers post to still exists.
    pending_.clear();
}

bool DroppedMovieFilter::isFew(const FilePasteboard& pasteboard) {
    return !pasteboard.filenames || pasteboard.filenames->size() <= kMostFilesReadAtOnce;
}

bool DroppedMovieFilter::mayHoldMovie(const FilePasteboard& pasteboard) const {
    if (!pasteboard.filenames || pasteboard.filenames->empty()) return false;
    if (!isFew(pasteboard)) return true;
    return !utils_.validURLsWithPasteboard(pasteboard).empty();
}

void DroppedMovieFilter::filter(const FilePasteboard& pasteboard, Delivery deliver) {
    if (pending_.empty() && isFew(pasteboard)) {
        if (deliver) deliver(utils_.validURLsWithPasteboard(pasteboard));
        return;
    }
    // The names made into paths as GPSUtils::validURLsWithPasteboard makes them; the job then
    // gives the same answer as it would.
    ValidationJob::Files files;
    if (pasteboard.filenames) {
        for (const auto& name : *pasteboard.filenames) {
            if (name.empty()) continue;
            std::error_code error;
            auto path = std::filesystem::absolute(name, error);
            if (!error) files.push_back(std::move(path));
        }
    }
    const uint64_t id = nextId_++;
    PendingDrop drop;
    drop.id = id;
    drop.deliver = std::move(deliver);
    drop.job =
        std::make_unique<ValidationJob>(utils_.sharedVideoTrackProbe(), std::move(files), ValidationJob::Progress{},
                                        [this, id](const ValidationJob::Files& valid) {
                                            // On the worker thread: only post. The destructor joins the worker before
                                            // this object goes.
                                            QMetaObject::invokeMethod(
                                                this, [this, id, valid] { finished(id, valid); }, Qt::QueuedConnection);
                                        });
    pending_.push_back(std::move(drop));
}

void DroppedMovieFilter::finished(uint64_t id, Movies movies) {
    for (auto& drop : pending_) {
        if (drop.id == id) drop.movies = std::move(movies);
    }
    // Deliver from the front only, so a small drop never overtakes a large one made before it.
    while (!pending_.empty() && pending_.front().movies) {
        PendingDrop done = std::move(pending_.front());
        pending_.pop_front();
        if (done.deliver) done.deliver(*done.movies);
    }
}
