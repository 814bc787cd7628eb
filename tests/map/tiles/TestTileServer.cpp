#include "TestTileServer.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QTcpSocket>

#include <algorithm>

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

QColor TestTileServer::colorOf(const TileId& id) {
    return QColor((id.x * 40) % 256, (id.y * 40) % 256, (id.z * 20) % 256);
}

int TestTileServer::requestCount(const TileId& id) const {
    const QString path = pathOf(id);
    return int(std::count_if(requests_.begin(), requests_.end(),
                             [&](const Request& request) { return request.path == path; }));
}

void TestTileServer::serve(QTcpSocket* socket) {
    // Each connection carries one request: the answer says so and closes it.
    QByteArray head = socket->property("head").toByteArray() + socket->readAll();
    socket->setProperty("head", head);
    if (!head.contains("\r\n\r\n")) {
        return;
    }
    const QList<QByteArray> lines = head.left(head.indexOf("\r\n\r\n")).split('\n');
    Request request;
    request.path = QString::fromLatin1(lines.value(0).split(' ').value(1));
    for (const QByteArray& line : lines) {
        if (line.toLower().startsWith("user-agent:")) {
            request.userAgent = line.mid(int(qstrlen("user-agent:"))).trimmed();
        }
    }
    requests_.push_back(request);

    static const QRegularExpression tilePath(QStringLiteral("^/(\\d+)/(\\d+)/(\\d+)\\.png$"));
    const QRegularExpressionMatch match = tilePath.match(request.path);
    const int status = statuses_.value(request.path, match.hasMatch() ? 200 : 404);
    QByteArray body;
    if (status == 200) {
        const TileId id{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
        QImage image(256, 256, QImage::Format_RGB32);
        image.fill(colorOf(id));
        QBuffer buffer(&body);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
    }
    QByteArray answer = "HTTP/1.1 " + QByteArray::number(status) + " X\r\n";
    answer += "Content-Type: image/png\r\nCache-Control: max-age=3600\r\nConnection: close\r\n";
    answer += "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    socket->write(answer);
    socket->disconnectFromHost();
}
