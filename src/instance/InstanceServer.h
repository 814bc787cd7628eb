#pragma once
// The running window's end of the hand-over: listens on the instance socket and reports the paths
// each later start sends. A socket left by a program that died is taken over.

#include <QByteArray>
#include <QLocalServer>
#include <QObject>

#include <filesystem>
#include <string>
#include <vector>

class QLocalSocket;

class InstanceServer final : public QObject {
    Q_OBJECT

public:
    explicit InstanceServer(QObject* parent = nullptr);

    // Call only once nobody answered at socketPath: a socket file still there is
    // stale and goes.
    bool listen(const std::string& socketPath);

signals:
    // Absolute paths, possibly none (a start without arguments only brings the window forward).
    void pathsArrived(const std::vector<std::filesystem::path>& paths);

private:
    void accept();
    // Adds what the socket has to what it sent before, and acts once that is a whole message.
    void read(QLocalSocket& socket, QByteArray& received);

    QLocalServer server_;
};
