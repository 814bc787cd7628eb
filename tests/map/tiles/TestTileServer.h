#pragma once
// A tile server for tests on 127.0.0.1: serves a generated PNG for every /z/x/y.png, with a cache
// lifetime of an hour, except paths set to answer with another status. It records each request.

#include "TileId.h"

#include <QColor>
#include <QImage>
#include <QMap>
#include <QObject>
#include <QTcpServer>

#include <vector>

class QTcpSocket;

class TestTileServer : public QObject {
    Q_OBJECT

public:
    struct Request {
        QString path;
        QByteArray userAgent;
    };

    TestTileServer();

    // http://127.0.0.1:<port>/{z}/{x}/{y}.png
    QString urlTemplate() const;
    void answerWith(const TileId& id, int status) { statuses_[pathOf(id)] = status; }
    int requestCount(const TileId& id) const;
    const std::vector<Request>& requests() const { return requests_; }

    // The colour of the generated tile, different for neighbouring tiles.
    static QColor colorOf(const TileId& id);
    static QString pathOf(const TileId& id);

private:
    void serve(QTcpSocket* socket);

    QTcpServer server_;
    QMap<QString, int> statuses_;
    std::vector<Request> requests_;
};
