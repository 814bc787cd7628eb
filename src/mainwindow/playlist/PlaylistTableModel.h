#pragma once
// The playlist table's data: one row per entry, columns "File", "DateTime" and "Size". The model
// holds no data of its own; it reads the playlist afresh on every request.

#include "Playlist.h"

#include <QAbstractTableModel>
#include <QString>

class PlaylistTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { FileColumn = 0, DateTimeColumn = 1, SizeColumn = 2, ColumnCount = 3 };

    // The playlist must outlive the model.
    explicit PlaylistTableModel(const Playlist& playlist, QObject* parent = nullptr);

    // The playlist changed: every view drops its rows and asks again.
    void reloadData();

    // "File", "DateTime", "Size"; empty for any other column.
    static QString columnIdentifier(int column);
    // The column with that identifier, or -1.
    static int columnWithIdentifier(const QString& identifier);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString cellText(std::size_t row, int column) const;

    const Playlist& playlist_;
};
