#include "TileProviderFactory.h"

#include "FolderTileProvider.h"
#include "MBTilesTileProvider.h"
#include "NetworkTileProvider.h"
#include "TileSource.h"

std::unique_ptr<TileProvider> makeTileProvider(const QString& choice) {
    static const QString mbtilesPrefix = QStringLiteral("mbtiles:");
    static const QString folderPrefix = QStringLiteral("folder:");
    if (choice.startsWith(mbtilesPrefix)) {
        auto provider = std::make_unique<MBTilesTileProvider>();
        return provider->open(choice.mid(mbtilesPrefix.size())) ? std::move(provider) : nullptr;
    }
    if (choice.startsWith(folderPrefix)) {
        auto provider = std::make_unique<FolderTileProvider>();
        return provider->open(choice.mid(folderPrefix.size())) ? std::move(provider) : nullptr;
    }
    if (choice == QLatin1String("offline")) {
        return nullptr;
    }
    if (std::optional<TileSource> source = findTileSource(choice)) {
        return std::make_unique<NetworkTileProvider>(std::move(*source));
    }
    return nullptr;
}
