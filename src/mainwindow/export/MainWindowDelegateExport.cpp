// The controller's Export Track: the user picks a scope from the File menu and a file and format in
// a save dialog that does not block the window; the document is then written on a worker. A
// progress dialog with Cancel appears only when the export takes more than half a second, and a
// failure is told in one sentence.

#include "MainWindowDelegate.h"

#include "ClipCatalog.h"
#include "ClipExportTrack.h"
#include "ExportDialogs.h"
#include "ExportFormatChoice.h"
#include "GPSUtils.h"
#include "TrackExportJob.h"
#include "TripText.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QThreadPool>

#include <memory>
#include <stop_token>

namespace {

QString qText(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

// False only for a clip read and found to hold no GPS: one not read yet may still have a track.
bool mayHaveTrack(const ClipCatalog* catalog, const std::filesystem::path& file) {
    const ClipRecord* record = catalog != nullptr ? catalog->find(file) : nullptr;
    if (record == nullptr) return true;
    return (record->track && !record->track->empty()) || (record->fixes && !record->fixes->empty());
}

// The clip as the export will gather it: from the catalog's record where the window has read it,
// else from the disk on the worker.
ExportClip exportClip(const ClipCatalog* catalog, const std::filesystem::path& file, int clockCorrectionMinutes) {
    const ClipRecord* record = catalog != nullptr ? catalog->find(file) : nullptr;
    if (record != nullptr) return {file.string(), [record = *record] { return exportTrackOf(record); }};
    return {file.string(), [file, clockCorrectionMinutes] { return readClipForExport(file, clockCorrectionMinutes); }};
}

// "Trip 2, from 2024-05-07 14:03": what mapping tools list the track as.
std::string tripName(const TripIndex& trips, std::size_t row) {
    const auto trip = trips.tripOfRow(row);
    if (!trip) return "Trip";
    const TripInfo& info = trips.trips()[*trip];
    std::string name = "Trip " + std::to_string(*trip + 1);
    const auto start = info.startSampleSeconds ? info.startSampleSeconds : info.startCreationSeconds;
    if (start) name += ", from " + clockText(*start);
    return name;
}

// Runs f on the UI thread, through the application object: it outlives the window, and while it
// goes away (waiting for the thread pool) instance() is already null and nothing more is posted.
template <typename F>
void postToUiThread(F f) {
    if (QCoreApplication* app = QCoreApplication::instance()) QMetaObject::invokeMethod(app, std::move(f), Qt::QueuedConnection);
}

SpeedUnit speedUnitOf(const GPSUtils& settings) { return settings.unitType() == 0 ? SpeedUnit::MPH : SpeedUnit::KMH; }

}  // namespace

std::vector<TripSpan> MainWindowDelegate::exportSpans(ExportScope scope) const {
    const std::size_t rows = playlist.size();
    std::vector<TripSpan> spans;
    switch (scope) {
    case ExportScope::LoadedClip:
        if (curIndex >= 0 && static_cast<std::size_t>(curIndex) < rows) spans.push_back({std::size_t(curIndex), 1});
        break;
    case ExportScope::SelectedTrip: {
        const int64_t row = selectedRow() >= 0 ? selectedRow() : curIndex;
        if (row >= 0 && static_cast<std::size_t>(row) < rows) spans.push_back(tripIndex_.spanOfRow(std::size_t(row)));
        break;
    }
    case ExportScope::Playlist:
        for (const TripInfo& trip : tripIndex_.trips())
            if (trip.span.first + trip.span.count <= rows) spans.push_back(trip.span);
        break;
    }
    for (const TripSpan& span : spans)
        for (std::size_t row = span.first; row < span.first + span.count; ++row)
            if (mayHaveTrack(clipCatalog_, playlist.at(row).URL())) return spans;
    return {};
}

void MainWindowDelegate::RefreshExportMenu() {
    const std::pair<QAction*, ExportScope> items[] = {
        {outlets_.actionExportClip, ExportScope::LoadedClip},
        {outlets_.actionExportTrip, ExportScope::SelectedTrip},
        {outlets_.actionExportPlaylist, ExportScope::Playlist},
    };
    bool any = false;
    for (const auto& [action, scope] : items) {
        const bool enabled = !exporting_ && !exportSpans(scope).empty();
        any = any || enabled;
        if (action != nullptr) action->setEnabled(enabled);
    }
    if (outlets_.menuExportTrack != nullptr) outlets_.menuExportTrack->setEnabled(any);
}

void MainWindowDelegate::OnExportTrack(ExportScope scope) {
    const std::vector<TripSpan> spans = exportSpans(scope);
    if (exporting_ || spans.empty()) return;
    const std::filesystem::path& first = playlist.at(spans.front().first).URL();
    const ExportFormatChoice& remembered = exportChoiceOfFormat(settings_.exportFormat());

    // Beside the clips, named after the (first) clip, or after the playlist for all of it.
    QString stem = QFile::decodeName(first.stem().c_str());
    if (scope == ExportScope::SelectedTrip) stem += QStringLiteral("-trip");
    if (scope == ExportScope::Playlist) stem = QStringLiteral("playlist");
    QFileDialog* dialog = makeExportSaveDialog(outlets_.window, remembered, QFile::decodeName(first.parent_path().c_str()),
                                               stem + QLatin1Char('.') + qText(remembered.suffix));
    QObject::connect(dialog, &QFileDialog::fileSelected, this, [this, dialog, scope](const QString& file) {
        const ExportFormatChoice* choice = exportChoiceOfFilter(dialog->selectedNameFilter().toStdString());
        const std::string format(choice != nullptr ? choice->format : exportFormatChoices().front().format);
        settings_.setExportFormat(format);
        startExport(scope, file, format);
    });
    dialog->open();
}

void MainWindowDelegate::startExport(ExportScope scope, const QString& file, const std::string& format) {
    const std::vector<TripSpan> spans = exportSpans(scope);
    if (exporting_ || spans.empty()) return;
    TrackExportRequest request{.tracks = {}, .format = format, .unit = speedUnitOf(settings_), .target = QFile::encodeName(file).toStdString()};
    const int clockCorrection = settings_.clockCorrectionMinutes();
    for (const TripSpan& span : spans) {
        ExportTrack track{tripName(tripIndex_, span.first), {}};
        for (std::size_t row = span.first; row < span.first + span.count; ++row)
            track.clips.push_back(exportClip(clipCatalog_, playlist.at(row).URL(), clockCorrection));
        request.tracks.push_back(std::move(track));
    }
    auto job = std::make_shared<const TrackExportJob>(std::move(request));

    QProgressDialog* progress = makeExportProgress(outlets_.window, file, int(job->clipCount()));
    progress->setValue(0);
    auto cancel = std::make_shared<std::stop_source>();
    QObject::connect(progress, &QProgressDialog::canceled, progress, [cancel] { cancel->request_stop(); });

    exporting_ = true;
    RefreshExportMenu();
    // The pointers are looked at only on the UI thread, where the window may have gone meanwhile.
    const QPointer<MainWindowDelegate> controller(this);
    const QPointer<QProgressDialog> progressGuard(progress);
    QThreadPool::globalInstance()->start([job, cancel, controller, progressGuard, file] {
        const TrackExportResult result = job->run(cancel->get_token(), [progressGuard](std::size_t done, std::size_t) {
            postToUiThread([progressGuard, done] {
                if (progressGuard && !progressGuard->wasCanceled()) progressGuard->setValue(int(done));
            });
        });
        postToUiThread([controller, progressGuard, file, result] {
            delete progressGuard.data();  // never shown if the export took under half a second
            if (!controller) return;
            controller->exporting_ = false;
            controller->RefreshExportMenu();
            if (result.outcome != TrackExportResult::Outcome::Failed) return;
            makeExportFailure(controller->outlets_.window, file, qText(result.error))->open();
        });
    });
}
