#pragma once
// Tiles from a folder laid out as <folder>/<z>/<x>/<y>.png, read on a thread of their own.

#include "LocalTileProvider.h"

#include <QString>

class FolderTileProvider : public LocalTileProvider {
    Q_OBJECT

public:
    explicit FolderTileProvider(QObject* parent = nullptr);

    // False for a path that is no folder or has no zoom folders (named 0 to 29) in it. The zoom
    // range is that of the zoom folders; a file attribution.txt beside them gives the credit.
    bool open(const QString& folder);
};
