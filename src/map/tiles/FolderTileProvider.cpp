#include "FolderTileProvider.h"

#include "FolderTileReader.h"
#include "TileSource.h"

#include <QDir>
#include <QFile>
#include <QUrl>

#include <algorithm>

FolderTileProvider::FolderTileProvider(QObject* parent) : LocalTileProvider(parent) {}

bool FolderTileProvider::open(const QString& folder) {
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists()) {
        return false;
    }
    int minimum = kDeepestTileZoom + 1;
    int maximum = -1;
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isNumber = false;
        const int zoom = name.toInt(&isNumber);
        if (isNumber && zoom >= 0 && zoom <= kDeepestTileZoom && name == QString::number(zoom)) {
            minimum = std::min(minimum, zoom);
            maximum = std::max(maximum, zoom);
        }
    }
    if (maximum < 0) {
        return false;
    }
    QString attribution;
    if (QFile credit(dir.filePath(QStringLiteral("attribution.txt"))); credit.open(QIODevice::ReadOnly)) {
        attribution = QString::fromUtf8(credit.read(1024)).trimmed();
    }
    describe(minimum, maximum, 256, attribution);
    const QString urlTemplate =
        QUrl::fromLocalFile(dir.absolutePath()).toString() + QStringLiteral("/{z}/{x}/{y}.png");
    start(std::make_unique<FolderTileReader>(urlTemplate));
    return true;
}
