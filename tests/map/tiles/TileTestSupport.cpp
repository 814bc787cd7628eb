#include "TileTestSupport.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpSocket>

#include <algorithm>

QByteArray pngOf(const QColor& color) {
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QColor colorOf(const TileId& id) {
    return QColor((id.x * 40) % 256, (id.y * 40) % 256, (id.z * 20) % 256);
}

QImage fetchTile(TileProvider& provider, const TileId& id) {
    QSignalSpy ready(&provider, &TileProvider::tileReady);
    QImage image = provider.tile(id);
    while (image.isNull() && ready.wait()) {
        image = provider.tile(id);
    }
    return image;
}

TestTileServer::TestTileServer() {
    server_.listen(QHostAddress::LocalHost, 0);
    connect(&server_, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = server_.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

QString TestTileServer::urlTemplate() const {
    return QStringLiteral("http://127.0.0.1:%1/{z}/{x}/{y}.png").arg(server_.serverPort());
}

QString TestTileServer::pathOf(const TileId& id) {
    return QStringLiteral("/%1/%2/%3.png").arg(id.z).arg(id.x).arg(id.y);
}

int TestTileServer::requestCount(const TileId& id) const {
    return int(std::count_if(requests_.begin(), requests_.end(),
                             [path = pathOf(id)](const Request& request) { return request.path == path; }));
}

void TestTileServer::serve(QTcpSocket* socket) {
    // One request a connection: the answer says so and closes it.
    const QByteArray head = socket->property("head").toByteArray() + socket->readAll();
    socket->setProperty("head", head);
    if (!head.contains("\r\n\r\n")) {
        return;
    }
    const QList<QByteArray> lines = head.left(head.indexOf("\r\n\r\n")).split('\n');
    Request request{QString::fromLatin1(lines.value(0).split(' ').value(1)), {}};
    for (const QByteArray& line : lines) {
        if (line.toLower().startsWith("user-agent:")) {
            request.userAgent = line.mid(11).trimmed();
        }
    }
    requests_.push_back(request);

    static const QRegularExpression tilePath(QStringLiteral("^/(\\d+)/(\\d+)/(\\d+)\\.png$"));
    const QRegularExpressionMatch match = tilePath.match(request.path);
    const int status = statuses_.value(request.path, match.hasMatch() ? 200 : 404);
    const QByteArray body = status == 200 ? pngOf(colorOf(TileId{match.captured(1).toInt(),
                                                                 match.captured(2).toInt(),
                                                                 match.captured(3).toInt()}))
                                          : QByteArray();
    socket->write("HTTP/1.1 " + QByteArray::number(status) +
                  " X\r\nContent-Type: image/png\r\nCache-Control: max-age=3600\r\nConnection: close\r\n"
                  "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    socket->disconnectFromHost();
}
