#include "FolderTileReader.h"

#include "TileSource.h"

#include <QFile>
#include <QUrl>

FolderTileReader::FolderTileReader(QString urlTemplate) : urlTemplate_(std::move(urlTemplate)) {}

std::optional<QByteArray> FolderTileReader::read(const TileId& id) {
    QFile file(QUrl(tileUrl(urlTemplate_, id)).toLocalFile());
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestTileFileBytes) {
        return std::nullopt;
    }
    return file.read(kLargestTileFileBytes);
}
