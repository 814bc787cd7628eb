#pragma once
// The benchmarks' view into the running application, off unless asked for. With the logging
// category "dashtrack.bench" at debug it logs, on the monotonic clock, each key press the
// application receives and each newly loaded movie's first painted frame; with quitAtFirstFrame
// it ends the application at the first such frame, so that a launch can be timed as a whole
// process.

#include "FirstFrameListener.h"

#include <QObject>

class BenchProbe final : public QObject, public FirstFrameListener {
public:
    // Whether anything asks for the probe: the option or the logging category.
    static bool wanted(bool quitAtFirstFrame);

    explicit BenchProbe(bool quitAtFirstFrame, QObject* parent = nullptr);
    ~BenchProbe() override;

    void firstFrameShown() override;
    // Logged under "dashtrack.bench.frames" only: a line a frame is a lot.
    void frameShown() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool quitAtFirstFrame_;
};
