#include "LocalTileProvider.h"

#include "TileReadWorker.h"
#include "TileSource.h"

LocalTileProvider::LocalTileProvider(QObject* parent) : TileProvider(parent) {}

LocalTileProvider::~LocalTileProvider() {
    stop();
}

void LocalTileProvider::describe(int minimumZoom, int maximumZoom, int tileSize, QString attribution) {
    minimumZoom_ = minimumZoom;
    maximumZoom_ = maximumZoom;
    tileSize_ = tileSize;
    attribution_ = std::move(attribution);
}

void LocalTileProvider::start(std::unique_ptr<TileReader> reader) {
    stop();
    inFlight_.clear();
    missing_.clear();
    worker_ = std::make_unique<TileReadWorker>(std::move(reader));
    worker_->moveToThread(&thread_);
    connect(worker_.get(), &TileReadWorker::tileRead, this, &LocalTileProvider::arrived);
    thread_.start();
}

void LocalTileProvider::stop() {
    if (!worker_) {
        return;
    }
    // The storage is closed on the thread that used it; then the thread ends and the worker, idle,
    // can go from here.
    TileReadWorker* worker = worker_.get();
    QMetaObject::invokeMethod(worker, [worker] { worker->close(); }, Qt::BlockingQueuedConnection);
    thread_.quit();
    thread_.wait();
    worker_.reset();
}

QImage LocalTileProvider::tile(const TileId& id) {
    if (!worker_ || !isValidTileId(id) || id.z < minimumZoom_ || id.z > maximumZoom_) {
        return {};
    }
    if (QImage image = memory_.image(id); !image.isNull()) {
        return image;
    }
    if (inFlight_.contains(id) || missing_.contains(id)) {
        return {};
    }
    inFlight_.insert(id);
    TileReadWorker* worker = worker_.get();
    QMetaObject::invokeMethod(worker, [worker, id] { worker->read(id); }, Qt::QueuedConnection);
    return {};
}

void LocalTileProvider::arrived(const TileId& id, const QImage& image) {
    inFlight_.erase(id);
    if (image.isNull()) {
        missing_.insert(id);
        return;
    }
    memory_.insert(id, image);
    emit tileReady(id);
}
