// The controller's playlist: the table over it, adding movies (from the open dialog's folder scan,
// the command line and drops), removing the selected entry, and playing a double-clicked row.

#include "MainWindowDelegate.h"

#include "GPSTableView.h"
#include "GPSUtils.h"
#include "MovieScan.h"
#include "PlaylistTableModel.h"
#include "SkinControls.h"
#include "TripBandCell.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMainWindow>
#include <QProgressDialog>

#include <algorithm>

namespace {

constexpr int kRowHeight = 20;
// A scan shorter than this shows no progress: a dialog that flashes up and goes is worse than none.
constexpr int kProgressDelayMs = 400;

}  // namespace

void MainWindowDelegate::setupPlaylistTable() {
    GPSTableView* table = outlets_.playListView;
    if (table == nullptr) return;
    const bool firstSetUp = playlistModel_ == nullptr;
    if (firstSetUp) playlistModel_ = new PlaylistTableModel(playlist, this);
    table->setModel(playlistModel_);
    if (firstSetUp)
        QObject::connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                         [this] { RefreshTripSummary(); });
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTextElideMode(Qt::ElideLeft);  // the file name is the end of the path: keep it
    QHeaderView* rows = table->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setMinimumSectionSize(kRowHeight);
    rows->setDefaultSectionSize(kRowHeight);
    // Our header look for every column; the header it puts in is the one to configure.
    applyPlaylistTableSkin(*table);
    if (qobject_cast<TripBandCell*>(table->itemDelegate()) == nullptr) table->setItemDelegate(new TripBandCell(table));
    QHeaderView* columns = table->horizontalHeader();
    columns->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < playlistModel_->columnCount(); ++column)
        columns->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

int64_t MainWindowDelegate::selectedRow() const {
    const GPSTableView* table = outlets_.playListView;
    if (table == nullptr || table->selectionModel() == nullptr) return -1;
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void MainWindowDelegate::selectRow(int64_t row) {
    if (outlets_.playListView != nullptr) outlets_.playListView->selectRow(static_cast<int>(row));
}

const std::filesystem::path& MainWindowDelegate::playlistURL(int64_t row) const {
    return playlist.at(static_cast<std::size_t>(row)).URL();
}

void MainWindowDelegate::addToPlaylist(const std::vector<std::filesystem::path>& movies) {
    if (!isInited) {
        // Set-up resets the read-outs and the loaded entry; what arrives before it waits for it.
        pendingMovies_.insert(pendingMovies_.end(), movies.begin(), movies.end());
        return;
    }
    // The sort may move the loaded entry; curIndex follows it, so Next still goes to the movie
    // after the one playing.
    const std::optional<std::filesystem::path> loaded =
        curIndex >= 0 ? std::optional(playlistURL(curIndex)) : std::nullopt;
    const bool startPlaying = playlist.add(movies);
    if (movies.empty()) return;
    if (loaded) {
        const auto& items = playlist.items();
        const auto it = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.URL() == *loaded; });
        curIndex = it - items.begin();
    }
    if (playlistModel_ != nullptr) playlistModel_->reloadData();
    refreshTrips();
    if (curIndex >= 0) selectRow(curIndex);
    if (startPlaying) playWithIndex(0, true);
}

void MainWindowDelegate::watchScan(MovieScan* scan) {
    auto* progress = new QProgressDialog(tr("Looking for movies…"), tr("Cancel"), 0, 0, outlets_.window);
    progress->setObjectName(QStringLiteral("scanProgress"));
    progress->setWindowTitle(tr("Opening movies"));
    progress->setWindowModality(Qt::NonModal);
    progress->setMinimumDuration(kProgressDelayMs);
    progress->setAutoReset(false);
    progress->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(scan, &MovieScan::progressed, progress, [progress](qulonglong done, qulonglong total) {
        progress->setMaximum(static_cast<int>(std::min<qulonglong>(total, INT32_MAX)));
        progress->setValue(static_cast<int>(std::min<qulonglong>(done, INT32_MAX)));
    });
    // Cancelling drops the scan, and with it its result.
    QObject::connect(progress, &QProgressDialog::canceled, scan, &QObject::deleteLater);
    QObject::connect(scan, &QObject::destroyed, progress, &QWidget::close);
    QObject::connect(scan, &MovieScan::finished, this, [this](const std::vector<std::filesystem::path>& movies) {
        addToPlaylist(movies);
        UpdateControls();
    });
}

void MainWindowDelegate::openArguments(const std::vector<std::filesystem::path>& arguments) {
    if (arguments.empty()) return;
    // Whole paths, so that the title and the table say where a clip is whatever the start folder.
    std::vector<std::filesystem::path> absolute;
    for (const auto& argument : arguments) {
        std::error_code error;
        std::filesystem::path whole = std::filesystem::absolute(argument, error);
        absolute.push_back(error ? argument : whole.lexically_normal());
    }
    watchScan(MovieScan::commandLine(settings_.sharedVideoTrackProbe(), std::move(absolute), this));
}

void MainWindowDelegate::OnOpenMediaFile(QObject* /*sender*/) {
    auto* dialog = new QFileDialog(outlets_.window, tr("Open movie file"));
    dialog->setObjectName(QStringLiteral("openDialog"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    // The six spellings a camera writes; clip.mP4 is not one of them.
    dialog->setNameFilter(tr("Movies (%1)").arg(QStringLiteral("*.mov *.MOV *.Mov *.mp4 *.MP4 *.Mp4")));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QFileDialog::filesSelected, this, [this](const QStringList& files) {
        if (files.isEmpty()) return;
        // Every movie of the first file's folder: a trip is a folder of one-minute clips.
        const std::filesystem::path first(QFile::encodeName(files.front()).toStdString());
        watchScan(MovieScan::openPanel(settings_.sharedVideoTrackProbe(), first, this));
    });
    dialog->open();
}

void MainWindowDelegate::OnRemoveMediaFile(QObject* /*sender*/) {
    const int64_t row = selectedRow();
    if (row < 0 || static_cast<uint64_t>(row) >= playlist.size()) return;
    const bool removedCurrent = row == curIndex;
    if (removedCurrent) OnStop(nullptr);
    playlist.removeAt(static_cast<std::size_t>(row));
    // The loaded entry keeps its place under curIndex when another one goes.
    if (curIndex > row) --curIndex;
    if (playlistModel_ != nullptr) playlistModel_->reloadData();
    refreshTrips();
    const int64_t next = std::min<int64_t>(row, static_cast<int64_t>(playlist.size()) - 1);
    if (next >= 0) selectRow(next);
    if (removedCurrent) playWithIndex(next, false);
    UpdateControls();
}

void MainWindowDelegate::OnDoubleClickMediaItem(QObject* /*sender*/) {
    if (outlets_.playListView == nullptr) return;
    const int64_t row = outlets_.playListView->currentIndex().row();
    if (row < 0 || static_cast<uint64_t>(row) >= playlist.size()) return;
    playWithIndex(row, true);
}

void MainWindowDelegate::AddedMovies(QObject* /*sender*/, const std::vector<std::filesystem::path>& movies) {
    addToPlaylist(movies);
}
