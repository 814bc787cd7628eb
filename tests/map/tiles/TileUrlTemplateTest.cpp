// The check of a tile server address of the user's own, the factory's use of it, the disk cache's
// bound, and emptying the cache.

#include "NetworkTileProvider.h"
#include "TileCacheFiles.h"
#include "TileProviderFactory.h"
#include "TileUrlTemplate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace {

TEST(TileUrlTemplateTest, AcceptsOnlyHttpAddressesWithEveryNumber) {
    using P = TileUrlProblem;
    const std::pair<const char*, std::optional<P>> cases[] = {
        {"https://tile.example.org/{z}/{x}/{y}.png", std::nullopt},
        {"http://127.0.0.1:8080/tiles/{z}/{x}/{y}", std::nullopt},
        {"  https://a.example.org/{z}/{y}/{x}.jpg?key=1  ", std::nullopt},
        {"HTTPS://tile.example.org/{z}/{x}/{y}.png", std::nullopt},
        {"", P::Empty},
        {"   ", P::Empty},
        {"ftp://tile.example.org/{z}/{x}/{y}.png", P::NotHttp},
        {"file:///tiles/{z}/{x}/{y}.png", P::NotHttp},
        {"tile.example.org/{z}/{x}/{y}.png", P::NotHttp},
        {"https://tile.example.org/{z}/{x}.png", P::MissingPlaceholder},
        {"https://tile.example.org/{Z}/{X}/{Y}.png", P::MissingPlaceholder},
        {"https:///{z}/{x}/{y}.png", P::NotAUrl},
        {"https://tile example.org/{z}/{x}/{y}.png", P::NotAUrl},
        {"https://[::1/{z}/{x}/{y}.png", P::NotAUrl},
    };
    for (const auto& [text, problem] : cases) EXPECT_EQ(checkTileUrlTemplate(QString::fromUtf8(text)), problem) << text;
}

TEST(TileUrlTemplateTest, TheFactoryMakesNoProviderForARefusedAddress) {
    EXPECT_NE(makeTileProvider(QStringLiteral("url:https://127.0.0.1:9/{z}/{x}/{y}.png")), nullptr);
    EXPECT_EQ(makeTileProvider(QStringLiteral("url:https://127.0.0.1:9/{z}/{x}.png")), nullptr);
    EXPECT_EQ(makeTileProvider(QStringLiteral("url:https://tile example.org/{z}/{x}/{y}.png")), nullptr);
}

TEST(TileUrlTemplateTest, TheDiskCacheTakesTheChosenBound) {
    constexpr qint64 kMegabyte = 1024 * 1024;
    const auto made = makeTileProvider(QStringLiteral("osm"), 42 * kMegabyte);
    auto* network = dynamic_cast<NetworkTileProvider*>(made.get());
    ASSERT_NE(network, nullptr);
    EXPECT_EQ(network->diskCacheBytes(), 42 * kMegabyte);
    network->setDiskCacheBytes(10 * kMegabyte);
    EXPECT_EQ(network->diskCacheBytes(), 10 * kMegabyte);
}

TEST(TileCacheFilesTest, RemovesTheFilesAndKeepsTheFolders) {
    QTemporaryDir cache;
    QTemporaryDir outside;
    const QDir root(cache.path());
    ASSERT_TRUE(root.mkpath(QStringLiteral("data8/a")));
    ASSERT_TRUE(root.mkpath(QStringLiteral("prepared")));
    for (const char* name : {"data8/a/one.d", "data8/two.d", ".hidden"}) {
        QFile file(root.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("tile");
    }
    // A link inside the cache goes; what it points at outside stays.
    const QString kept = QDir(outside.path()).filePath(QStringLiteral("kept.txt"));
    {
        QFile file(kept);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const QString link = root.filePath(QStringLiteral("data8/link.d"));
    ASSERT_TRUE(QFile::link(kept, link));

    EXPECT_EQ(removeTileCacheFiles(cache.path()), 0);
    EXPECT_TRUE(root.entryList(QDir::Files | QDir::Hidden).isEmpty());
    EXPECT_TRUE(QDir(root.filePath(QStringLiteral("data8/a"))).isEmpty());
    EXPECT_TRUE(root.exists(QStringLiteral("prepared")));
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFile::exists(kept));
    EXPECT_EQ(removeTileCacheFiles(QString()), 0);
}

}  // namespace
