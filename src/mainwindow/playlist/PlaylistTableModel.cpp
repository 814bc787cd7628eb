#include "PlaylistTableModel.h"

#include <QByteArray>
#include <QFile>

#include <optional>
#include <string>

namespace {

QString text(const std::optional<std::string>& value) {
    return value ? QString::fromStdString(*value) : QString();
}

// As a plain int, the form every Qt 6 delegate and header view reads.
QVariant alignment(Qt::AlignmentFlag horizontal) { return static_cast<int>(horizontal | Qt::AlignVCenter); }

}  // namespace

PlaylistTableModel::PlaylistTableModel(const Playlist& playlist, QObject* parent)
    : QAbstractTableModel(parent), playlist_(playlist) {}

void PlaylistTableModel::reloadData() {
    beginResetModel();
    endResetModel();
}

void PlaylistTableModel::retranslate() { emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1); }

void PlaylistTableModel::setRowDecorations(std::vector<RowDecoration> decorations) {
    decorations_ = std::move(decorations);
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

const PlaylistTableModel::RowDecoration* PlaylistTableModel::decoration(std::size_t row) const {
    return row < decorations_.size() ? &decorations_[row] : nullptr;
}

QString PlaylistTableModel::columnIdentifier(int column) {
    switch (column) {
        case FileColumn: return QStringLiteral("File");
        case DateTimeColumn: return QStringLiteral("DateTime");
        case SizeColumn: return QStringLiteral("Size");
        default: return {};
    }
}

int PlaylistTableModel::columnWithIdentifier(const QString& identifier) {
    for (int column = 0; column < ColumnCount; ++column)
        if (columnIdentifier(column) == identifier) return column;
    return -1;
}

int PlaylistTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(playlist_.size());
}

int PlaylistTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QString PlaylistTableModel::cellText(std::size_t row, int column) const {
    const auto& entry = playlist_.at(row);
    switch (column) {
        // The path's bytes are in the file system's encoding, which decodeName knows.
        case FileColumn: return QFile::decodeName(QByteArray::fromStdString(entry.FilePath()));
        case DateTimeColumn: return text(entry.CreationTime());
        case SizeColumn: return text(entry.FileSize());
        default: return {};
    }
}

QVariant PlaylistTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() < 0 || static_cast<std::size_t>(index.row()) >= playlist_.size())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const RowDecoration* decorated = decoration(row);
    switch (role) {
        case Qt::DisplayRole: return cellText(row, index.column());
        case Qt::AccessibleTextRole:
            if (index.column() == FileColumn && decorated != nullptr && !decorated->problem.isEmpty())
                return cellText(row, FileColumn) + QStringLiteral(" (") + decorated->problem + QStringLiteral(")");
            return cellText(row, index.column());
        case Qt::AccessibleDescriptionRole:
            return decorated != nullptr ? decorated->tripSummary : QString();
        case Qt::ToolTipRole: {
            if (index.column() != FileColumn) return {};
            QString tip = cellText(row, FileColumn);
            if (decorated != nullptr && !decorated->problem.isEmpty()) tip += QStringLiteral("\n") + decorated->problem;
            if (decorated != nullptr && !decorated->tripSummary.isEmpty())
                tip += QStringLiteral("\n") + decorated->tripSummary;
            return tip;
        }
        case TripNumberRole:
            return decorated != nullptr && decorated->tripNumber > 0 ? QVariant(decorated->tripNumber) : QVariant();
        case StartsTripRole: return decorated != nullptr && decorated->startsTrip;
        case TripHeadingRole: return decorated != nullptr ? decorated->tripHeading : QString();
        case ProblemRole:
            return decorated != nullptr && !decorated->problem.isEmpty() ? QVariant(decorated->problem) : QVariant();
        case Qt::TextAlignmentRole:
            if (index.column() == SizeColumn) return alignment(Qt::AlignRight);
            return alignment(Qt::AlignLeft);
        default: return {};
    }
}

QVariant PlaylistTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return QAbstractTableModel::headerData(section, orientation, role);
    switch (role) {
        case Qt::DisplayRole:
            switch (section) {
                case FileColumn: return tr("File");
                case DateTimeColumn: return tr("Date & Time");
                case SizeColumn: return tr("Size");
                default: return {};
            }
        case Qt::UserRole: return columnIdentifier(section).isEmpty() ? QVariant() : columnIdentifier(section);
        case Qt::TextAlignmentRole:
            if (section == SizeColumn) return alignment(Qt::AlignRight);
            return {};
        default: return {};
    }
}
