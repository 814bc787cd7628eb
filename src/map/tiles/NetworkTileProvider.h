#pragma once
// Tiles from a tile server over HTTP(S), as the big public servers ask: a User-Agent that names the
// program, their cache headers honoured through a disk cache, each tile asked for only when the view
// needs it and never twice at once, a failing tile not hammered.

#include "TileMemoryCache.h"
#include "TileProvider.h"
#include "TileSource.h"

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QString>

#include <map>
#include <set>

class QNetworkReply;

class NetworkTileProvider : public TileProvider {
    Q_OBJECT

public:
    static constexpr int kTransferTimeoutMs = 15'000;
    static constexpr int kDefaultRetryDelayMs = 30'000;
    static constexpr qint64 kDiskCacheBytes = 300LL * 1024 * 1024;

    // cacheDirectory: where the HTTP disk cache lives; empty for defaultCacheDirectory().
    explicit NetworkTileProvider(TileSource source, QString cacheDirectory = {}, QObject* parent = nullptr,
                                 qint64 diskCacheBytes = kDiskCacheBytes);
    ~NetworkTileProvider() override;

    QImage tile(const TileId& id) override;
    int minimumZoom() const override { return source_.minZoom; }
    int maximumZoom() const override { return source_.maxZoom; }
    int tileSize() const override { return source_.tileSize; }
    QString attribution() const override { return source_.attribution; }

    // $XDG_CACHE_HOME/dashtrack/tiles, or the platform's equivalent.
    static QString defaultCacheDirectory();
    // "Dashtrack/<version> (+<project address>)".
    static QByteArray userAgent();

    // How long a tile that timed out or failed waits before it may be asked for again.
    void setRetryDelay(int milliseconds) { retryDelayMs_ = milliseconds; }
    const TileMemoryCache& memoryCache() const { return memory_; }
    // The disk cache's bound; a smaller one is reached as the cache next makes room.
    void setDiskCacheBytes(qint64 bytes);
    qint64 diskCacheBytes() const;

signals:
    // The tile did not come: permanently (the server said it is not there) or for now.
    void tileUnavailable(TileId id, bool permanently);

private:
    void request(const TileId& id);
    void finished(QNetworkReply* reply, const TileId& id);

    TileSource source_;
    QNetworkAccessManager network_;
    TileMemoryCache memory_;
    std::set<TileId> inFlight_;
    // Answered 4xx: not there, not asked again in this run.
    std::set<TileId> missing_;
    // Failed for a passing reason: may be asked again once the deadline has passed.
    std::map<TileId, QDeadlineTimer> retryAfter_;
    int retryDelayMs_ = kDefaultRetryDelayMs;
};
