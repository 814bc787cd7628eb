// The network provider against a tile server started by the test: what it sends, what it asks for
// and how often, and what the disk cache saves.

#include "NetworkTileProvider.h"
#include "TestTileServer.h"

#include <QDir>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TileSource sourceFor(const TestTileServer& server) {
    TileSource source;
    source.id = QStringLiteral("test");
    source.urlTemplate = server.urlTemplate();
    source.minZoom = 0;
    source.maxZoom = 19;
    source.attribution = QStringLiteral("test tiles");
    return source;
}

// Asks for the tile until it has arrived, as a map view would on every repaint.
QImage fetch(NetworkTileProvider& provider, const TileId& id) {
    QSignalSpy ready(&provider, &TileProvider::tileReady);
    QImage image = provider.tile(id);
    while (image.isNull() && ready.wait()) {
        image = provider.tile(id);
    }
    return image;
}

class NetworkTileProviderTest : public ::testing::Test {
protected:
    QTemporaryDir cacheDir;
    TestTileServer server;
};

}  // namespace

TEST_F(NetworkTileProviderTest, FetchesTheTileWithTheProgramsUserAgent) {
    NetworkTileProvider provider(sourceFor(server), cacheDir.path());
    const TileId id{5, 17, 11};
    const QImage image = fetch(provider, id);
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(256, 256));
    EXPECT_EQ(image.pixelColor(100, 100), TestTileServer::colorOf(id));
    ASSERT_EQ(server.requests().size(), 1u);
    EXPECT_EQ(server.requests()[0].path, QStringLiteral("/5/17/11.png"));
    EXPECT_EQ(server.requests()[0].userAgent,
              QByteArray("Dashtrack/" DASHTRACK_VERSION " (+https://github.com/dashtrack/dashtrack)"));
}

TEST_F(NetworkTileProviderTest, AsksOnceForATileAskedForManyTimes) {
    NetworkTileProvider provider(sourceFor(server), cacheDir.path());
    QSignalSpy ready(&provider, &TileProvider::tileReady);
    const TileId id{7, 3, 4};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(provider.tile(id).isNull());
    }
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(ready.size(), 1);
    EXPECT_FALSE(provider.tile(id).isNull());
    EXPECT_EQ(server.requestCount(id), 1);
}

TEST_F(NetworkTileProviderTest, LeavesOutTilesOffTheGridOrOutsideTheZooms) {
    TileSource source = sourceFor(server);
    source.minZoom = 2;
    source.maxZoom = 10;
    NetworkTileProvider provider(source, cacheDir.path());
    for (const TileId& id : {TileId{1, 0, 0}, TileId{11, 0, 0}, TileId{3, 8, 0}, TileId{3, 0, -1}}) {
        EXPECT_TRUE(provider.tile(id).isNull());
    }
    ASSERT_FALSE(fetch(provider, TileId{2, 1, 1}).isNull());
    ASSERT_EQ(server.requests().size(), 1u);  // only the good one
}

TEST_F(NetworkTileProviderTest, TriesAFailedTileAgainOnlyWhenItMay) {
    struct Case {
        const char* what;
        int status;
        int retryDelayMs;
        bool permanently;
        int requestsAfterAskingAgain;
    };
    const Case cases[] = {
        {"server error, retry delay not over", 503, NetworkTileProvider::kDefaultRetryDelayMs, false, 1},
        {"server error, retry delay over", 503, 0, false, 2},
        {"not found", 404, 0, true, 1},
        {"forbidden", 403, 0, true, 1},
    };
    int zoom = 1;
    for (const Case& c : cases) {
        const TileId id{++zoom, 1, 1};
        server.answerWith(id, c.status);
        NetworkTileProvider provider(sourceFor(server), cacheDir.path());
        provider.setRetryDelay(c.retryDelayMs);
        QSignalSpy unavailable(&provider, &NetworkTileProvider::tileUnavailable);
        EXPECT_TRUE(provider.tile(id).isNull());
        ASSERT_TRUE(unavailable.wait()) << c.what;
        EXPECT_EQ(unavailable.at(0).at(1).toBool(), c.permanently) << c.what;

        provider.tile(id);
        // A good tile fetched afterwards lets any second request of the failed one reach the server.
        ASSERT_FALSE(fetch(provider, TileId{zoom, 0, 0}).isNull()) << c.what;
        if (c.requestsAfterAskingAgain > 1) {
            ASSERT_TRUE(unavailable.size() > 1 || unavailable.wait()) << c.what;
        }
        EXPECT_EQ(server.requestCount(id), c.requestsAfterAskingAgain) << c.what;
    }
}

TEST_F(NetworkTileProviderTest, ASecondProviderGetsTheTileFromTheDiskCache) {
    const TileId id{9, 270, 170};
    {
        NetworkTileProvider first(sourceFor(server));
        ASSERT_FALSE(fetch(first, id).isNull());
    }
    ASSERT_EQ(server.requestCount(id), 1);
    const QString defaultDir =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/dashtrack/tiles");
    EXPECT_EQ(NetworkTileProvider::defaultCacheDirectory(), defaultDir);
    EXPECT_TRUE(defaultDir.startsWith(qEnvironmentVariable("XDG_CACHE_HOME")));
    EXPECT_TRUE(QDir(defaultDir).exists());

    NetworkTileProvider second(sourceFor(server));
    const QImage image = fetch(second, id);
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.pixelColor(0, 0), TestTileServer::colorOf(id));
    EXPECT_EQ(server.requestCount(id), 1);
}
