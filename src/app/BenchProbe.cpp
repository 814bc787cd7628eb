#include "BenchProbe.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLoggingCategory>

#include <chrono>

namespace {

Q_LOGGING_CATEGORY(lcBench, "dashtrack.bench", QtWarningMsg)
Q_LOGGING_CATEGORY(lcBenchFrames, "dashtrack.bench.frames", QtWarningMsg)

// Microseconds on CLOCK_MONOTONIC, the clock a benchmark script can read too.
long long monotonicMicroseconds() {
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

bool BenchProbe::wanted(bool quitAtFirstFrame) {
    return quitAtFirstFrame || lcBench().isDebugEnabled() || lcBenchFrames().isDebugEnabled();
}

BenchProbe::BenchProbe(bool quitAtFirstFrame, QObject* parent) : QObject(parent), quitAtFirstFrame_(quitAtFirstFrame) {
    setFirstFrameListener(this);
    if (lcBench().isDebugEnabled()) QCoreApplication::instance()->installEventFilter(this);
}

BenchProbe::~BenchProbe() { setFirstFrameListener(nullptr); }

void BenchProbe::firstFrameShown() {
    qCDebug(lcBench).noquote() << "first-frame monotonic-us=" + QString::number(monotonicMicroseconds());
    if (!watchingPlaylist_ && playlist_ != nullptr && playlist_->model() != nullptr && lcBench().isDebugEnabled()) {
        watchingPlaylist_ = true;
        QAbstractItemModel* model = playlist_->model();
        connect(model, &QAbstractItemModel::modelReset, this, &BenchProbe::logPlaylistRows);
        connect(model, &QAbstractItemModel::rowsInserted, this, &BenchProbe::logPlaylistRows);
    }
    // Queued: the frame is being painted now, and the paint should finish first.
    if (quitAtFirstFrame_)
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

void BenchProbe::frameShown() {
    qCDebug(lcBenchFrames).noquote() << "painted-frame monotonic-us=" + QString::number(monotonicMicroseconds());
}

void BenchProbe::handOverArrived() {
    qCDebug(lcBench).noquote() << "hand-over monotonic-us=" + QString::number(monotonicMicroseconds());
}

void BenchProbe::logPlaylistRows() {
    if (playlist_ == nullptr || playlist_->model() == nullptr) return;
    qCDebug(lcBench).noquote() << "playlist-rows count=" + QString::number(playlist_->model()->rowCount())
                               << "monotonic-us=" + QString::number(monotonicMicroseconds());
}

bool BenchProbe::eventFilter(QObject* watched, QEvent* event) {
    // A key event is offered to the application filter once per receiver it travels through:
    // the window is where it first arrives.
    if (event->type() == QEvent::KeyPress && watched->isWindowType() && !static_cast<QKeyEvent*>(event)->isAutoRepeat())
        qCDebug(lcBench).noquote() << "key-press key=" + QString::number(static_cast<QKeyEvent*>(event)->key(), 16)
                                   << "monotonic-us=" + QString::number(monotonicMicroseconds());
    return QObject::eventFilter(watched, event);
}
