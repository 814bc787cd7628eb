#include "InstanceClient.h"

#include "HandOverMessage.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

// A live window answers at once and a stale socket refuses at once: this only bounds a window
// that hangs.
constexpr int kAnswerMilliseconds = 3000;
constexpr char kReceived = 'K';

class SocketFd {
public:
    SocketFd() : fd_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~SocketFd() {
        if (fd_ >= 0) ::close(fd_);
    }
    SocketFd(const SocketFd&) = delete;
    SocketFd& operator=(const SocketFd&) = delete;
    int get() const { return fd_; }

private:
    int fd_;
};

bool await(int fd, short events) {
    pollfd entry{fd, events, 0};
    int ready;
    do {
        ready = ::poll(&entry, 1, kAnswerMilliseconds);
    } while (ready < 0 && errno == EINTR);
    return ready == 1 && (entry.revents & events) != 0;
}

bool connectTo(int fd, const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, path.data(), path.size());
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return true;
    // A window whose queue of connections is full: wait for room.
    if (errno != EAGAIN && errno != EINPROGRESS) return false;
    if (!await(fd, POLLOUT)) return false;
    int error = 0;
    socklen_t size = sizeof error;
    return ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

bool sendAll(int fd, const std::string& bytes) {
    size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t n = ::send(fd, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (n > 0) {
            sent += static_cast<size_t>(n);
        } else if (n < 0 && errno == EINTR) {
            continue;
        } else if (n < 0 && errno == EAGAIN) {
            if (!await(fd, POLLOUT)) return false;
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

bool InstanceClient::handOver(const std::string& socketPath, const std::vector<std::filesystem::path>& absolutePaths) {
    const SocketFd socket;
    if (socket.get() < 0 || !connectTo(socket.get(), socketPath)) return false;
    if (!sendAll(socket.get(), HandOverMessage::encode(absolutePaths))) return false;
    if (!await(socket.get(), POLLIN)) return false;
    char answer = 0;
    return ::recv(socket.get(), &answer, 1, 0) == 1 && answer == kReceived;
}
