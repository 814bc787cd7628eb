#pragma once
// What the tile tests share: PNG tiles of one colour, waiting for a tile as a map view would, and a
// tile server on 127.0.0.1 that serves a PNG for every /z/x/y.png (cacheable for an hour) unless
// told to answer a path with another status, and records the requests it gets.

#include "TileProvider.h"

#include <QColor>
#include <QMap>
#include <QTcpServer>

#include <vector>

QByteArray pngOf(const QColor& color);
// A colour that differs between neighbouring tiles.
QColor colorOf(const TileId& id);
// Asks for the tile on every tileReady until it is there; null if none comes.
QImage fetchTile(TileProvider& provider, const TileId& id);

class TestTileServer : public QObject {
    Q_OBJECT

public:
    struct Request {
        QString path;
        QByteArray userAgent;
    };

    TestTileServer();
    QString urlTemplate() const;
    void answerWith(const TileId& id, int status) { statuses_[pathOf(id)] = status; }
    int requestCount(const TileId& id) const;
    const std::vector<Request>& requests() const { return requests_; }

private:
    static QString pathOf(const TileId& id);
    void serve(QTcpSocket* socket);

    QTcpServer server_;
    QMap<QString, int> statuses_;
    std::vector<Request> requests_;
};
