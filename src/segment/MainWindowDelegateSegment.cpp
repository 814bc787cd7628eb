// The controller's Save Segment: I and O (or the Playback menu) mark a span on the timeline, and
// File, Save Segment… cuts it (or the minute around the position) out of the timeline's clips
// into a movie beside its GPX. The save dialog does not block the window; the cut runs on a worker.

#include "MainWindowDelegate.h"

#include "ClipCatalog.h"
#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "SegmentDialogs.h"
#include "SegmentPlan.h"
#include "SegmentSaver.h"
#include "TimelineView.h"

#include <QFile>
#include <QFileDialog>
#include <QMainWindow>

namespace {

// The clip's own container, MOV or else MP4.
QString suffixLike(const std::filesystem::path& clip) { return QString::fromStdString(SegmentPlan::containerOf(clip)); }

}  // namespace

void MainWindowDelegate::MarkSpanEdge(bool start) {
    TimelineView* timeline = outlets_.timeline;
    if (timeline == nullptr || timeline->totalSeconds() <= 0) return;
    if (start) {
        timeline->setMarkStart(timeline->position());
    } else {
        timeline->setMarkEnd(timeline->position());
    }
}

void MainWindowDelegate::OnClearMarks() {
    if (outlets_.timeline != nullptr) outlets_.timeline->clearMarks();
}

void MainWindowDelegate::keepMarksFor(const std::vector<std::filesystem::path>& clips) {
    // Loading another clip of the trip empties the timeline for a moment: that changes nothing.
    if (clips.empty() || clips == markedClips_) return;
    markedClips_ = clips;
    OnClearMarks();
}

void MainWindowDelegate::OnSaveSegment() {
    TimelineView* timeline = outlets_.timeline;
    if (timeline == nullptr || timelineSpan_.count == 0 || timelineClock_.clipCount() != timelineSpan_.count) return;
    const std::optional<SegmentSpan> span =
        SegmentPlan::spanToSave(timeline->markStart(), timeline->markEnd(), timeline->position(),
                                timelineClock_.totalSeconds());
    if (!span) return;

    SegmentRequest request;
    request.span = *span;
    request.unit = settings_.unitType() != 0 ? SpeedUnit::KMH : SpeedUnit::MPH;
    const GPSPlayerEngine* player = engine();
    for (std::size_t i = 0; i < timelineSpan_.count; ++i) {
        const std::size_t row = timelineSpan_.first + i;
        const std::filesystem::path& file = playlist.at(row).URL();
        request.clips.push_back({file, timelineClock_.durationOf(i)});
        // The tracks the window already holds: the player's for the loaded clip, else the catalog's.
        ClipTrack track;
        if (static_cast<int64_t>(row) == curIndex && player != nullptr && player->gpsDataList())
            track = std::make_shared<const std::vector<GPSData>>(*player->gpsDataList());
        else if (const ClipRecord* record = clipCatalog_ != nullptr ? clipCatalog_->find(file) : nullptr)
            track = record->track;
        request.tracks.push_back(std::move(track));
    }

    const std::filesystem::path& first = request.clips.front().file;
    const QString suffix = suffixLike(first);
    QFileDialog* dialog =
        makeSegmentSaveDialog(outlets_.window, suffix, QFile::decodeName(first.parent_path().c_str()),
                              QFile::decodeName(first.stem().c_str()) + QStringLiteral("-segment.") + suffix);
    QObject::connect(dialog, &QFileDialog::fileSelected, this, [this, request](const QString& file) mutable {
        request.movie = QFile::encodeName(file).toStdString();
        SegmentSaver::start(std::move(request), outlets_.window);
    });
    dialog->open();
}
