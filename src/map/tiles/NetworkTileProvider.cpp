#include "NetworkTileProvider.h"

#include "TileDecoding.h"

#include <QNetworkDiskCache>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStandardPaths>
#include <QUrl>

#ifndef DASHTRACK_VERSION
#error "DASHTRACK_VERSION must be defined by the build"
#endif

NetworkTileProvider::NetworkTileProvider(TileSource source, QString cacheDirectory, QObject* parent,
                                         qint64 diskCacheBytes)
    : TileProvider(parent), source_(std::move(source)) {
    auto* diskCache = new QNetworkDiskCache(&network_);
    diskCache->setCacheDirectory(cacheDirectory.isEmpty() ? defaultCacheDirectory() : cacheDirectory);
    diskCache->setMaximumCacheSize(diskCacheBytes);
    network_.setCache(diskCache);
}

NetworkTileProvider::~NetworkTileProvider() {
    // Replies still under way are aborted as the manager goes; by then this provider's sets are
    // gone, so they must not report back.
    for (QNetworkReply* reply : network_.findChildren<QNetworkReply*>()) {
        reply->disconnect(this);
    }
}

void NetworkTileProvider::setDiskCacheBytes(qint64 bytes) {
    if (auto* diskCache = qobject_cast<QNetworkDiskCache*>(network_.cache())) diskCache->setMaximumCacheSize(bytes);
}

qint64 NetworkTileProvider::diskCacheBytes() const {
    const auto* diskCache = qobject_cast<const QNetworkDiskCache*>(network_.cache());
    return diskCache != nullptr ? diskCache->maximumCacheSize() : 0;
}

QString NetworkTileProvider::defaultCacheDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/dashtrack/tiles");
}

QByteArray NetworkTileProvider::userAgent() {
    return QByteArrayLiteral("Dashtrack/" DASHTRACK_VERSION " (+https://github.com/dashtrack/dashtrack)");
}

QImage NetworkTileProvider::tile(const TileId& id) {
    if (!isValidTileId(id) || id.z < source_.minZoom || id.z > source_.maxZoom) {
        return {};
    }
    if (QImage image = memory_.image(id); !image.isNull()) {
        return image;
    }
    if (inFlight_.contains(id) || missing_.contains(id)) {
        return {};
    }
    if (auto waiting = retryAfter_.find(id); waiting != retryAfter_.end()) {
        if (!waiting->second.hasExpired()) {
            return {};
        }
        retryAfter_.erase(waiting);
    }
    request(id);
    return {};
}

void NetworkTileProvider::request(const TileId& id) {
    QNetworkRequest request(QUrl(tileUrl(source_.urlTemplate, id)));
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent());
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, true);
    // A fresh copy on disk is used without asking; a stale one is revalidated with the server.
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferCache);
    request.setTransferTimeout(kTransferTimeoutMs);
    inFlight_.insert(id);
    QNetworkReply* reply = network_.get(request);
    connect(reply, &QNetworkReply::finished, this, [this, reply, id] { finished(reply, id); });
}

void NetworkTileProvider::finished(QNetworkReply* reply, const TileId& id) {
    reply->deleteLater();
    inFlight_.erase(id);
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400 && status < 500) {
        missing_.insert(id);
        emit tileUnavailable(id, true);
        return;
    }
    QImage image;
    if (reply->error() == QNetworkReply::NoError) {
        // A 256-pixel PNG decodes in about a millisecond: cheap enough here, and it keeps the
        // provider single-threaded.
        image = decodeTile(reply->readAll());
    }
    if (image.isNull()) {
        // Timed out, refused, a server error or bytes that are no image: try again later.
        retryAfter_[id] = QDeadlineTimer(retryDelayMs_);
        emit tileUnavailable(id, false);
        return;
    }
    memory_.insert(id, image);
    emit tileReady(id);
}
