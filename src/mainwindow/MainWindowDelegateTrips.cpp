// The controller's trips: the clips' tracks read in the background as the playlist fills, the trips
// they form as the table shows them, continuous play through a trip, the timeline of the loaded
// clip or trip with seeking anywhere in it, and a clip whose file no longer opens.

#include "MainWindowDelegate.h"

#include "ClipCatalog.h"
#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "PlaylistTableModel.h"
#include "SliderFraction.h"
#include "TimelineSeries.h"
#include "TimelineView.h"
#include "TripText.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <system_error>

namespace {

QString qText(const std::string& text) { return QString::fromStdString(text); }

std::string phrase(const char* source) { return QCoreApplication::translate("TripText", source).toStdString(); }

// The trip sentences' words in the interface's language.
TripPhrases translatedTripPhrases() {
    return {
        .unknownTrip = phrase(QT_TRANSLATE_NOOP("TripText", "Trip %1 of %2")),
        .tripFrom = phrase(QT_TRANSLATE_NOOP("TripText", "Trip %1 of %2: %3, from %4, %5, %6")),
        .tripWithoutStart = phrase(QT_TRANSLATE_NOOP("TripText", "Trip %1 of %2: %3, %4, %5")),
        .oneClip = phrase(QT_TRANSLATE_NOOP("TripText", "%1 clip")),
        .clips = phrase(QT_TRANSLATE_NOOP("TripText", "%1 clips")),
    };
}

// Whether every clip of the trip that holds row has been read.
bool tripKnown(const TripIndex& trips, int64_t row) {
    const auto trip = row >= 0 ? trips.tripOfRow(static_cast<std::size_t>(row)) : std::nullopt;
    return trip && trips.trips()[*trip].known;
}

}  // namespace

void MainWindowDelegate::refreshTrips() {
    if (clipCatalog_ == nullptr) {
        clipCatalog_ = new ClipCatalog(this);
        clipCatalog_->setClockCorrectionMinutes(settings_.clockCorrectionMinutes());
        QObject::connect(clipCatalog_, &ClipCatalog::clipsRead, this, [this] { refreshTrips(); });
    }
    std::vector<std::filesystem::path> files;
    files.reserve(playlist.size());
    for (const PlaylistItem& item : playlist.items()) files.push_back(item.URL());
    clipCatalog_->request(files);

    std::vector<std::optional<ClipFacts>> rows;
    rows.reserve(files.size());
    for (const auto& file : files) {
        const ClipRecord* record = clipCatalog_->find(file);
        rows.push_back(record != nullptr ? std::optional(record->facts) : std::nullopt);
    }
    const TripSpan shownSpan = timelineSpan_;
    const bool shownKnown = tripKnown(tripIndex_, curIndex);
    tripIndex_ = TripIndex(rows);

    if (playlistModel_ != nullptr) {
        std::vector<PlaylistTableModel::RowDecoration> decorations(files.size());
        const TripPhrases phrases = translatedTripPhrases();
        const std::vector<TripInfo>& trips = tripIndex_.trips();
        for (std::size_t trip = 0; trip < trips.size(); ++trip) {
            const TripInfo& info = trips[trip];
            // A lone clip not read yet is no trip to speak of.
            if (!info.known && info.span.count == 1) continue;
            const QString summary = qText(tripSummaryText(info, trip + 1, trips.size(), phrases));
            for (std::size_t row = info.span.first; row < info.span.first + info.span.count; ++row) {
                auto& decoration = decorations[row];
                decoration.tripNumber = static_cast<int>(trip + 1);
                decoration.tripSummary = summary;
            }
            decorations[info.span.first].startsTrip = true;
            decorations[info.span.first].tripHeading = qText(tripHeadingText(info));
        }
        for (std::size_t row = 0; row < files.size(); ++row) {
            const auto problem = clipProblems_.find(files[row]);
            if (problem != clipProblems_.end()) decorations[row].problem = tr(qPrintable(problem->second));
        }
        playlistModel_->setRowDecorations(std::move(decorations));
    }
    RefreshTripSummary();
    RefreshExportMenu();

    // The timeline follows what became known of the loaded clip's trip, and only that.
    const TripSpan span = curIndex >= 0 && settings_.continuousPlay() ? tripIndex_.spanOfRow(curIndex) : shownSpan;
    if (span != shownSpan || tripKnown(tripIndex_, curIndex) != shownKnown) refreshTimeline();
}

void MainWindowDelegate::RefreshTripSummary() {
    if (outlets_.txtTripSummary == nullptr) return;
    const int64_t row = selectedRow() >= 0 ? selectedRow() : curIndex;
    const auto trip = row >= 0 ? tripIndex_.tripOfRow(static_cast<std::size_t>(row)) : std::nullopt;
    const QString text = trip ? qText(tripSummaryText(tripIndex_.trips()[*trip], *trip + 1, tripIndex_.trips().size(),
                                                      translatedTripPhrases()))
                              : QString();
    outlets_.txtTripSummary->setText(text);
    outlets_.txtTripSummary->setAccessibleName(text);
}

std::optional<int64_t> MainWindowDelegate::continuationOf(int64_t row) const {
    if (!settings_.continuousPlay() || row < 0) return std::nullopt;
    const TripSpan span = tripIndex_.spanOfRow(static_cast<std::size_t>(row));
    const auto next = static_cast<std::size_t>(row) + 1;
    if (next >= span.first + span.count || next >= playlist.size()) return std::nullopt;
    return static_cast<int64_t>(next);
}

void MainWindowDelegate::showClipProblem(int64_t row) {
    const std::filesystem::path& file = playlistURL(row);
    std::error_code error;
    // Kept untranslated, and said in the language of the moment wherever it shows.
    const char* problem = std::filesystem::exists(file, error) ? QT_TR_NOOP("Not a movie any more")
                                                               : QT_TR_NOOP("File not found");
    clipProblems_[file] = QString::fromUtf8(problem);
    if (outlets_.player != nullptr) outlets_.player->showMessage(tr(problem), QFile::decodeName(file.c_str()));
    // What was read of it before still places it in its trip, so that the trip goes on past it.
    refreshTrips();
}

void MainWindowDelegate::OnContinuousPlayChanged(bool on) {
    settings_.setContinuousPlay(on);
    if (outlets_.actionContinuousPlay != nullptr) outlets_.actionContinuousPlay->setChecked(on);
    refreshPreferences();
    refreshTimeline();
}

void MainWindowDelegate::refreshTimeline() {
    const GPSPlayerEngine* player = engine();
    TripSpan span;
    if (curIndex >= 0 && static_cast<uint64_t>(curIndex) < playlist.size())
        span = settings_.continuousPlay() ? tripIndex_.spanOfRow(static_cast<std::size_t>(curIndex))
                                          : TripSpan{static_cast<std::size_t>(curIndex), 1};
    std::vector<TimelineClip> clips;
    std::vector<std::span<const GPSFix>> clipFixes;
    for (std::size_t row = span.first; row < span.first + span.count; ++row) {
        TimelineClip clip;
        const ClipRecord* record = clipCatalog_ != nullptr ? clipCatalog_->find(playlist.at(row).URL()) : nullptr;
        if (record != nullptr) {
            clip.track = *record->track;
            clip.durationSeconds = record->facts.summary.durationSeconds;
        }
        clipFixes.push_back(record != nullptr && record->fixes ? std::span<const GPSFix>(*record->fixes)
                                                               : std::span<const GPSFix>());
        // The loaded clip: the player's own track and its duration as the player reads it.
        if (static_cast<int64_t>(row) == curIndex && player != nullptr && player->IsReady()) {
            if (player->gpsDataList()) clip.track = *player->gpsDataList();
            if (std::isfinite(player->duration()) && player->duration() > 0) clip.durationSeconds = player->duration();
        }
        clips.push_back(clip);
    }
    std::vector<double> durations;
    for (const TimelineClip& clip : clips) durations.push_back(clip.durationSeconds);
    timelineSpan_ = span;
    timelineClock_ = TripClock(std::move(durations));
    std::vector<std::filesystem::path> files;
    for (std::size_t row = span.first; row < span.first + span.count; ++row) files.push_back(playlist.at(row).URL());
    keepMarksFor(files);
    showTimelineSeries(buildTimelineSeries(clips), clips, clipFixes);
    showTimelinePosition(currentClipSeconds());
}

double MainWindowDelegate::currentClipSeconds() const {
    const GPSPlayerEngine* player = engine();
    if (player == nullptr || !player->IsReady() || outlets_.durationSlider == nullptr) return 0.0;
    const double seconds = sliderFraction(*outlets_.durationSlider) * player->duration();
    return std::isfinite(seconds) ? seconds : 0.0;
}

void MainWindowDelegate::setupTimeline() {
    TimelineView* timeline = outlets_.timeline;
    if (timeline == nullptr) return;
    // Once, at set-up: every call adds a connection, and a click would then seek as many times.
    QObject::connect(timeline, &TimelineView::seekRequested, this, [this](double seconds) { seekTimeline(seconds); });
    timeline->setHoverTextProvider([this](double seconds) { return timelineHoverText(seconds); });
}

QString MainWindowDelegate::timelineHoverText(double seconds) const {
    QString text = qText(durationText(seconds));
    const auto point = outlets_.timeline != nullptr ? outlets_.timeline->series().pointAt(seconds) : std::nullopt;
    if (!point) return text + QStringLiteral(" · ") + tr("no GPS");
    text += QStringLiteral(" · %1 %2").arg(point->speed, 0, 'f', 1).arg(qText(settings_.SpeedUnitName()));
    // The route's points are in time order: the one on screen at this time.
    const auto after = std::upper_bound(routeAhead_.begin(), routeAhead_.end(), seconds,
                                        [](double t, const RouteAheadPoint& p) { return t < p.seconds; });
    if (after != routeAhead_.begin() && seconds < (after - 1)->seconds + 1.0) {
        const Coordinate place = (after - 1)->place;
        text += QStringLiteral(" · %1, %2").arg(place.latitude, 0, 'f', 5).arg(place.longitude, 0, 'f', 5);
    }
    return text;
}

void MainWindowDelegate::showTimelineSeries(TimelineSeries series, const std::vector<TimelineClip>& clips,
                                            const std::vector<std::span<const GPSFix>>& clipFixes) {
    showRouteAhead(clips, clipFixes);
    if (outlets_.timeline == nullptr) return;
    outlets_.timeline->setSpeedUnitName(qText(settings_.SpeedUnitName()));
    outlets_.timeline->setSeries(std::move(series));
}

void MainWindowDelegate::showTimelineCursor(double seconds) {
    if (outlets_.timeline != nullptr) outlets_.timeline->setPosition(seconds);
}

void MainWindowDelegate::showTimelinePosition(double clipSeconds) {
    double seconds = 0;
    if (timelineSpan_.count > 0 && curIndex >= static_cast<int64_t>(timelineSpan_.first) &&
        static_cast<std::size_t>(curIndex) < timelineSpan_.first + timelineSpan_.count && std::isfinite(clipSeconds))
        seconds = timelineClock_.tripSecondsAt(static_cast<std::size_t>(curIndex) - timelineSpan_.first, clipSeconds);
    if (outlets_.txtElapsed != nullptr)
        outlets_.txtElapsed->setText(qText(durationText(seconds)) + QStringLiteral(" / ") +
                                     qText(durationText(timelineClock_.totalSeconds())));
    showTimelineCursor(seconds);
}

void MainWindowDelegate::seekTimeline(double seconds) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr || timelineSpan_.count == 0 || timelineClock_.clipCount() == 0) return;
    const TripClock::Place place = timelineClock_.placeAt(seconds);
    const auto row = static_cast<int64_t>(timelineSpan_.first + place.clip);
    if (row != curIndex || !player->IsReady()) {
        // Another clip of the trip: it plays if the movie was playing, else waits on the picture.
        const bool wasPlaying = player->IsPlaying();
        playWithIndex(row, wasPlaying);
    }
    player->SeekToSeconds(place.seconds);
    showTimelinePosition(place.seconds);
}
