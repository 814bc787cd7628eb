#pragma once
// The playlist table's data: one row per entry, columns "File", "DateTime" and "Size". The model
// holds no data of its own; it reads the playlist afresh on every request.

#include "Playlist.h"

#include <QAbstractTableModel>
#include <QString>

#include <vector>

class PlaylistTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { FileColumn = 0, DateTimeColumn = 1, SizeColumn = 2, ColumnCount = 3 };
    // What the table shows of a row beyond its three texts: the trip it belongs to and a problem
    // with its file.
    enum Role {
        TripNumberRole = Qt::UserRole + 1,  // int, from 1; absent while unknown
        StartsTripRole,                     // bool: the first row of a trip of several rows or a known one
        TripHeadingRole,                    // QString on a trip's first row, such as "Trip 2 · … · 8.4 km"
        ProblemRole,                        // QString such as "File not found"; absent when the file is fine
    };
    struct RowDecoration {
        int tripNumber = 0;  // 0: unknown
        bool startsTrip = false;
        QString tripHeading;
        QString tripSummary;  // the trip in a sentence, for tooltips and screen readers
        QString problem;
    };

    // The playlist must outlive the model.
    explicit PlaylistTableModel(const Playlist& playlist, QObject* parent = nullptr);

    // The playlist changed: every view drops its rows and asks again.
    void reloadData();
    // The column titles in the interface's new language.
    void retranslate();
    // One per playlist row (missing ones count as plain rows); the views repaint, keeping their
    // selection.
    void setRowDecorations(std::vector<RowDecoration> decorations);

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
    const RowDecoration* decoration(std::size_t row) const;

    const Playlist& playlist_;
    std::vector<RowDecoration> decorations_;
};
