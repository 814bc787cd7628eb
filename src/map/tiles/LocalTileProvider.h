#pragma once
// What the file-based providers share: tiles read and decoded on a thread of their own, kept in
// memory, each asked for once; a tile the storage lacks is not asked for again.

#include "TileMemoryCache.h"
#include "TileProvider.h"
#include "TileReader.h"

#include <QThread>

#include <memory>
#include <set>

class TileReadWorker;

class LocalTileProvider : public TileProvider {
    Q_OBJECT

public:
    ~LocalTileProvider() override;

    QImage tile(const TileId& id) override;
    int minimumZoom() const override { return minimumZoom_; }
    int maximumZoom() const override { return maximumZoom_; }
    int tileSize() const override { return tileSize_; }
    QString attribution() const override { return attribution_; }

    const TileMemoryCache& memoryCache() const { return memory_; }

protected:
    explicit LocalTileProvider(QObject* parent);

    void describe(int minimumZoom, int maximumZoom, int tileSize, QString attribution);
    // Starts the reader thread; until then no tile is read.
    void start(std::unique_ptr<TileReader> reader);

private:
    void arrived(const TileId& id, const QImage& image);
    void stop();

    int minimumZoom_ = 0;
    int maximumZoom_ = 0;
    int tileSize_ = 256;
    QString attribution_;
    TileMemoryCache memory_;
    std::set<TileId> inFlight_;
    std::set<TileId> missing_;
    QThread thread_;
    std::unique_ptr<TileReadWorker> worker_;
};
