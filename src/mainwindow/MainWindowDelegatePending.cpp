// The controller's roles that other parts of the program fill in. Until then each is a no-op with
// the signature the window's connections already use; remove a section when its role arrives.

#include "MainWindowDelegate.h"

#include "GPSTableView.h"

#include <QItemSelectionModel>

// ---- Playlist (mainwindow/playlist) ----
void MainWindowDelegate::OnOpenMediaFile(QObject* /*sender*/) {}
void MainWindowDelegate::OnRemoveMediaFile(QObject* /*sender*/) {}
void MainWindowDelegate::OnDoubleClickMediaItem(QObject* /*sender*/) {}
void MainWindowDelegate::AddedMovies(QObject* /*sender*/, const std::vector<std::filesystem::path>& movies) {
    const bool startPlaying = playlist.empty() && !movies.empty();
    playlist.insert(playlist.end(), movies.begin(), movies.end());
    if (startPlaying) playWithIndex(0, true);
    UpdateControls();
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
    return playlist.at(static_cast<std::size_t>(row));
}
