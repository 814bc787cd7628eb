#include "QtUpdateTimer.h"

QtUpdateTimer::QtUpdateTimer() {
    timer_.setSingleShot(false);
    // Ten polls a second need no better than the coarse timer's accuracy.
    timer_.setTimerType(Qt::CoarseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        if (onFire_) onFire_();
    });
}

void QtUpdateTimer::start(std::chrono::milliseconds interval, std::function<void()> onFire) {
    onFire_ = std::move(onFire);
    timer_.start(interval);
}

// The callback is kept: stop may be called from inside it.
void QtUpdateTimer::stop() { timer_.stop(); }

bool QtUpdateTimer::isActive() const { return timer_.isActive(); }
