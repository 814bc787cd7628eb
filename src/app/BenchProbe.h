#pragma once
// The benchmarks' view into the running application, off unless asked for. With the logging
// category "dashtrack.bench" at debug it logs, on the monotonic clock, each key press the
// application receives and each newly loaded movie's first painted frame; with quitAtFirstFrame
// it ends the application at the first such frame, so that a launch can be timed as a whole
// process. It also logs the playlist's row count each time the playlist changes after that first
// frame, for timing a hand-over from a later start.

#include "FirstFrameListener.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;

class BenchProbe final : public QObject, public FirstFrameListener {
public:
    // Whether anything asks for the probe: the option or the logging category.
    static bool wanted(bool quitAtFirstFrame);

    explicit BenchProbe(bool quitAtFirstFrame, QObject* parent = nullptr);
    ~BenchProbe() override;

    void firstFrameShown() override;
    // Logged under "dashtrack.bench.frames" only: a line a frame is a lot.
    void frameShown() override;
    // The playlist table to watch; its model is there once the first frame is.
    void watchPlaylist(QAbstractItemView* playlist) { playlist_ = playlist; }
    // A later start's paths have arrived, before the window adds them.
    void handOverArrived();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void logPlaylistRows();

    bool quitAtFirstFrame_;
    QPointer<QAbstractItemView> playlist_;
    bool watchingPlaylist_ = false;
};
