#include "InstanceServer.h"

#include "HandOverMessage.h"

#include <QFile>
#include <QLocalSocket>
#include <QTimer>

namespace {

// A start that connects and then says nothing is cut off after this long.
constexpr int kSilentClientMilliseconds = 5000;
constexpr char kReceived = 'K';

}  // namespace

InstanceServer::InstanceServer(QObject* parent) : QObject(parent) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &InstanceServer::accept);
}

bool InstanceServer::listen(const std::string& socketPath) {
    const QString name = QFile::decodeName(socketPath.c_str());
    if (server_.listen(name)) return true;
    if (server_.serverError() != QAbstractSocket::AddressInUseError) return false;
    QLocalServer::removeServer(name);
    return server_.listen(name);
}

void InstanceServer::accept() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(*socket); });
        QTimer::singleShot(kSilentClientMilliseconds, socket, [socket] { socket->abort(); });
        // Bytes that came with the connection raise no readyRead of their own.
        if (socket->bytesAvailable() > 0) read(*socket);
    }
}

void InstanceServer::read(QLocalSocket& socket) {
    // The socket's own buffer holds what came so far; nothing is taken until it is all there.
    const QByteArray bytes = socket.peek(socket.bytesAvailable());
    const HandOverMessage::Decoded message = HandOverMessage::decode(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    switch (message.status) {
    case HandOverMessage::Status::Incomplete:
        return;
    case HandOverMessage::Status::Invalid:
        socket.abort();
        return;
    case HandOverMessage::Status::Complete:
        socket.readAll();
        socket.write(&kReceived, 1);
        socket.flush();
        emit pathsArrived(message.paths);
        return;
    }
}
