#include "TileProviderFactory.h"

#include "FolderTileProvider.h"
#include "MBTilesTileProvider.h"
#include "NetworkTileProvider.h"
#include "TileSource.h"
#include "TileUrlTemplate.h"

std::unique_ptr<TileProvider> makeTileProvider(const QString& choice, qint64 diskCacheBytes) {
    static const QString mbtilesPrefix = QStringLiteral("mbtiles:");
    static const QString folderPrefix = QStringLiteral("folder:");
    static const QString urlPrefix = QStringLiteral("url:");
    if (choice.startsWith(mbtilesPrefix)) {
        auto provider = std::make_unique<MBTilesTileProvider>();
        return provider->open(choice.mid(mbtilesPrefix.size())) ? std::move(provider) : nullptr;
    }
    if (choice.startsWith(folderPrefix)) {
        auto provider = std::make_unique<FolderTileProvider>();
        return provider->open(choice.mid(folderPrefix.size())) ? std::move(provider) : nullptr;
    }
    if (choice.startsWith(urlPrefix)) {
        // A tile server of the user's own (a fleet's, or one on this machine).
        const QString urlTemplate = choice.mid(urlPrefix.size()).trimmed();
        if (checkTileUrlTemplate(urlTemplate)) return nullptr;
        TileSource source;
        source.id = QStringLiteral("url");
        source.name = urlTemplate;
        source.urlTemplate = urlTemplate;
        return std::make_unique<NetworkTileProvider>(std::move(source), QString(), nullptr, diskCacheBytes);
    }
    if (choice == QLatin1String("offline")) {
        return nullptr;
    }
    if (std::optional<TileSource> source = findTileSource(choice)) {
        return std::make_unique<NetworkTileProvider>(std::move(*source), QString(), nullptr, diskCacheBytes);
    }
    return nullptr;
}
