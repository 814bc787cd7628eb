#pragma once
// Reads tiles from an MBTiles file (SQLite) through a connection of its own, opened read-only on
// first use so that it belongs to the thread that reads.

#include "TileReader.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <optional>

// MBTiles numbers rows from the south: the row in the file of a tile numbered from the north.
int mbtilesRowOf(const TileId& id);

// A connection name no other connection in the process has.
QString uniqueMBTilesConnectionName();

class MBTilesReader : public TileReader {
public:
    explicit MBTilesReader(QString path);
    ~MBTilesReader() override;
    MBTilesReader(const MBTilesReader&) = delete;
    MBTilesReader& operator=(const MBTilesReader&) = delete;

    std::optional<QByteArray> read(const TileId& id) override;

private:
    bool ensureOpen();

    QString path_;
    QString connectionName_;
    bool failed_ = false;
    std::optional<QSqlQuery> query_;
};
