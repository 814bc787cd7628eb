#include "MBTilesReader.h"

#include <QAtomicInteger>
#include <QVariant>

int mbtilesRowOf(const TileId& id) {
    return (1 << id.z) - 1 - id.y;
}

QString uniqueMBTilesConnectionName() {
    static QAtomicInteger<quint64> counter;
    return QStringLiteral("dashtrack-mbtiles-%1").arg(counter.fetchAndAddRelaxed(1));
}

MBTilesReader::MBTilesReader(QString path) : path_(std::move(path)) {}

MBTilesReader::~MBTilesReader() {
    if (connectionName_.isEmpty()) {
        return;
    }
    query_.reset();
    {
        QSqlDatabase database = QSqlDatabase::database(connectionName_, false);
        database.close();
    }
    QSqlDatabase::removeDatabase(connectionName_);
}

bool MBTilesReader::ensureOpen() {
    if (query_ || failed_) {
        return !failed_;
    }
    connectionName_ = uniqueMBTilesConnectionName();
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName_);
    database.setDatabaseName(path_);
    // Read-only: never creates or changes the user's file.
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!database.open()) {
        failed_ = true;
        return false;
    }
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(QStringLiteral(
            "SELECT tile_data FROM tiles WHERE zoom_level = ? AND tile_column = ? AND tile_row = ?"))) {
        failed_ = true;
        return false;
    }
    query_ = std::move(query);
    return true;
}

std::optional<QByteArray> MBTilesReader::read(const TileId& id) {
    if (!ensureOpen()) {
        return std::nullopt;
    }
    query_->bindValue(0, id.z);
    query_->bindValue(1, id.x);
    query_->bindValue(2, mbtilesRowOf(id));
    std::optional<QByteArray> bytes;
    if (query_->exec() && query_->next()) {
        bytes = query_->value(0).toByteArray();
    }
    query_->finish();
    return bytes;
}
