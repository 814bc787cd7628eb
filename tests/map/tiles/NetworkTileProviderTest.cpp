// The network provider against a tile server started by the test: what it sends, what it asks for
// and how often, and what the disk cache saves.

#include "NetworkTileProvider.h"
#include "TileTestSupport.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class NetworkTileProviderTest : public ::testing::Test {
protected:
    TileSource source() const { return TileSource{"test", "test", server.urlTemplate(), 0, 19, 256, "test"}; }

    QTemporaryDir cacheDir;
    TestTileServer server;
};

}  // namespace

TEST_F(NetworkTileProviderTest, FetchesOnceWithTheProgramsUserAgent) {
    NetworkTileProvider provider(source(), cacheDir.path());
    QSignalSpy ready(&provider, &TileProvider::tileReady);
    const TileId id{5, 17, 11};
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(provider.tile(id).isNull());
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(provider.tile(id).pixelColor(100, 100), colorOf(id));
    EXPECT_EQ(ready.size(), 1);
    ASSERT_EQ(server.requests().size(), 1u);
    EXPECT_EQ(server.requests()[0].path, QStringLiteral("/5/17/11.png"));
    EXPECT_EQ(server.requests()[0].userAgent,
              QByteArray("Dashtrack/" DASHTRACK_VERSION " (+https://github.com/dashtrack/dashtrack)"));
}

TEST_F(NetworkTileProviderTest, TriesAFailedTileAgainOnlyWhenItMay) {
    const struct {
        int status;
        int retryDelayMs;
        bool permanently;
        int requests;
    } cases[] = {
        {503, NetworkTileProvider::kDefaultRetryDelayMs, false, 1},
        {503, 0, false, 2},
        {404, 0, true, 1},
    };
    int zoom = 1;
    for (const auto& c : cases) {
        const TileId id{++zoom, 1, 1};
        server.answerWith(id, c.status);
        NetworkTileProvider provider(source(), cacheDir.path());
        provider.setRetryDelay(c.retryDelayMs);
        QSignalSpy unavailable(&provider, &NetworkTileProvider::tileUnavailable);
        provider.tile(id);
        ASSERT_TRUE(unavailable.wait()) << c.status;
        EXPECT_EQ(unavailable.at(0).at(1).toBool(), c.permanently) << c.status;

        provider.tile(id);
        // A good tile fetched afterwards lets any second request of the failed one reach the server.
        ASSERT_FALSE(fetchTile(provider, TileId{zoom, 0, 0}).isNull());
        if (c.requests > 1) {
            ASSERT_TRUE(unavailable.size() > 1 || unavailable.wait());
        }
        EXPECT_EQ(server.requestCount(id), c.requests) << c.status << " " << c.retryDelayMs;
    }
}

TEST_F(NetworkTileProviderTest, ASecondProviderGetsTheTileFromTheDiskCache) {
    const TileId id{9, 270, 170};
    {
        NetworkTileProvider first(source());  // the default cache folder, under XDG_CACHE_HOME
        ASSERT_FALSE(fetchTile(first, id).isNull());
    }
    EXPECT_TRUE(NetworkTileProvider::defaultCacheDirectory().startsWith(qEnvironmentVariable("XDG_CACHE_HOME")));
    EXPECT_TRUE(QDir(NetworkTileProvider::defaultCacheDirectory()).exists());

    {
        NetworkTileProvider leaving(source());  // goes with a request under way
        EXPECT_TRUE(leaving.tile(TileId{9, 1, 1}).isNull());
    }
    NetworkTileProvider second(source());
    EXPECT_EQ(fetchTile(second, id).pixelColor(0, 0), colorOf(id));
    EXPECT_EQ(server.requestCount(id), 1);
}
