#include "InstanceClient.h"

#include "HandOverMessage.h"

#include <QLocalSocket>

namespace {

// A live window accepts at once; a stale socket file refuses at once. These only bound a window
// that hangs.
constexpr int kConnectMilliseconds = 1000;
constexpr int kConfirmMilliseconds = 3000;

}  // namespace

bool InstanceClient::handOver(const QString& name, const std::vector<std::filesystem::path>& absolutePaths) {
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(kConnectMilliseconds)) return false;
    socket.write(HandOverMessage::encode(absolutePaths));
    if (!socket.waitForBytesWritten(kConfirmMilliseconds)) return false;
    const bool confirmed = socket.waitForReadyRead(kConfirmMilliseconds) && socket.read(1) == "K";
    socket.disconnectFromServer();
    return confirmed;
}
