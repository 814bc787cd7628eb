#include "MpvTestSupport.h"

#include <QEventLoop>
#include <QTimer>

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
