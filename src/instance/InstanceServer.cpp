#include "InstanceServer.h"

#include "HandOverMessage.h"

#include <QFile>
#include <QLocalSocket>
#include <QTimer>

#include <memory>

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
        // What this connection has sent so far, held by the connection below: it goes with the socket.
        auto received = std::make_shared<QByteArray>();
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, received] { read(*socket, *received); });
        QTimer::singleShot(kSilentClientMilliseconds, socket, [socket] { socket->abort(); });
        // Bytes that came with the connection raise no readyRead of their own.
        if (socket->bytesAvailable() > 0) read(*socket, *received);
    }
}

void InstanceServer::read(QLocalSocket& socket, QByteArray& received) {
    // Only the new bytes are copied: a message that arrives in many pieces is not copied whole
    // once per piece, and the decoder tells an incomplete one from its header alone.
    received += socket.readAll();
    const HandOverMessage::Decoded message =
        HandOverMessage::decode(std::string_view(received.constData(), static_cast<size_t>(received.size())));
    switch (message.status) {
    case HandOverMessage::Status::Incomplete:
        return;
    case HandOverMessage::Status::Invalid:
        socket.abort();
        return;
    case HandOverMessage::Status::Complete:
        // Whatever follows is read as a message of its own.
        received.clear();
        socket.write(&kReceived, 1);
        socket.flush();
        emit pathsArrived(message.paths);
        return;
    }
}
