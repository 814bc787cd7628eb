#include "InstanceClient.h"
#include "InstanceServer.h"
#include "InstanceSocketName.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <future>
#include <optional>

namespace {

using Paths = std::vector<std::filesystem::path>;

InstanceSocketPlace place(unsigned user, const char* runtimeDir, const char* display, const char* wayland = "",
                          const char* override = "") {
    return {user, runtimeDir, display, wayland, override, ""};
}

TEST(InstanceSocketName, OnePerUserAndSession) {
    const std::string name = instanceSocketName(place(1000, "/run/user/1000", ":0"));
    EXPECT_TRUE(name.starts_with("/run/user/1000/dashtrack-1000-")) << name;
    EXPECT_EQ(instanceSocketName(place(1000, "/run/user/1000", ":0")), name);

    const struct {
        const char* what;
        InstanceSocketPlace place;
    } others[] = {
        {"another user", place(1001, "/run/user/1000", ":0")},
        {"another runtime folder", place(1000, "/tmp/test-run", ":0")},
        {"another display", place(1000, "/run/user/1000", ":65")},
        {"a Wayland session", place(1000, "/run/user/1000", ":0", "wayland-0")},
    };
    for (const auto& other : others) EXPECT_NE(instanceSocketName(other.place), name) << other.what;

    // The launcher connects to the path itself, so it is always a whole one.
    EXPECT_TRUE(instanceSocketName(place(1000, "", ":0")).starts_with("/tmp/dashtrack-1000-"));
    InstanceSocketPlace withTemp = place(1000, "", ":0");
    withTemp.tempDir = "/var/tmp/";
    EXPECT_TRUE(instanceSocketName(withTemp).starts_with("/var/tmp/dashtrack-1000-"));
    EXPECT_EQ(instanceSocketName(place(1000, "/run/user/1000", ":0", "", "/srv/x.sock")), "/srv/x.sock");
    EXPECT_EQ(instanceSocketName(place(1000, "/run/user/1000", ":0", "", "x.sock")), "/tmp/x.sock");
}

// Hands paths over from another thread, as a later start would, while this one runs the server's
// events; the paths the server reported and whether the client saw them confirmed.
struct HandOverResult {
    std::optional<Paths> arrived;
    bool confirmed = false;
};

HandOverResult handOverTo(InstanceServer& server, const std::string& name, const Paths& paths) {
    HandOverResult result;
    QEventLoop loop;
    QObject::connect(&server, &InstanceServer::pathsArrived, &loop, [&](const Paths& arrived) {
        result.arrived = arrived;
    });
    auto client = std::async(std::launch::async, [&] { return InstanceClient::handOver(name, paths); });
    // Runs the server until the client has its answer; the client's own timeouts end its wait.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (client.wait_for(std::chrono::seconds(0)) == std::future_status::ready) loop.quit();
    });
    poll.start(5);
    loop.exec();
    result.confirmed = client.get();
    return result;
}

TEST(InstanceSocket, PathsReachTheRunningServer) {
    QTemporaryDir dir;
    const std::string name = QFile::encodeName(QDir(dir.path()).filePath("instance")).toStdString();
    InstanceServer server;
    ASSERT_TRUE(server.listen(name));
    const Paths paths{"/clips/a.MOV", "/clips/b c.MOV"};
    const HandOverResult result = handOverTo(server, name, paths);
    EXPECT_TRUE(result.confirmed);
    EXPECT_EQ(result.arrived, paths);
}

TEST(InstanceSocket, AStaleSocketIsTakenOver) {
    QTemporaryDir dir;
    const std::string name = QFile::encodeName(QDir(dir.path()).filePath("stale")).toStdString();
    // A socket file whose program is gone: bound, then closed without removing it.
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(fd, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.data(), name.size());
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(fd);
    ASSERT_TRUE(std::filesystem::exists(name));

    EXPECT_FALSE(InstanceClient::handOver(name, {"/clips/a.MOV"}));
    InstanceServer server;
    ASSERT_TRUE(server.listen(name));
    EXPECT_EQ(handOverTo(server, name, {"/clips/a.MOV"}).arrived, Paths{"/clips/a.MOV"});
}

}  // namespace
