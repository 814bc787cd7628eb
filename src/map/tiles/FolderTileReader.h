#pragma once
// Reads tiles from files named by a file:// template, e.g. file:///maps/town/{z}/{x}/{y}.png.

#include "TileReader.h"

#include <QString>

class FolderTileReader : public TileReader {
public:
    // A tile file larger than this is not a tile: it is not read.
    static constexpr qint64 kLargestTileFileBytes = 8 * 1024 * 1024;

    explicit FolderTileReader(QString urlTemplate);

    std::optional<QByteArray> read(const TileId& id) override;

private:
    QString urlTemplate_;
};
