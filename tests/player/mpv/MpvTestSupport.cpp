#include "MpvTestSupport.h"

#include <mpv/client.h>

#include <QEventLoop>
#include <QTimer>

#include <cmath>

namespace {

void runSlice() {
    QEventLoop loop;
    QTimer::singleShot(10, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace

bool runUntil(const std::function<bool()>& done, int maxSlices) {
    for (int slice = 0; slice < maxSlices; ++slice) {
        if (done()) return true;
        runSlice();
    }
    return done();
}

void runFor(int slices) {
    for (int slice = 0; slice < slices; ++slice) runSlice();
}

bool isAtRest(const MediaPlayer& player) {
    return player.timeControlStatus() == PlayerStatus::Paused && player.rate() == 0.0f;
}

MediaTime at(double seconds) { return MediaTime::make(std::llround(seconds * 100), 100); }

bool coreIsIdle(const MpvCore& core) {
    int idle = 0;
    return mpv_get_property(core.get(), "idle-active", MPV_FORMAT_FLAG, &idle) >= 0 && idle != 0;
}
