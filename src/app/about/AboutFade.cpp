#include "AboutFade.h"

#include <algorithm>

AboutFade::AboutFade(QObject* parent) : QObject(parent) {
    backdropTimer_.setInterval(10);
    contentTimer_.setInterval(3);
    backdropTimer_.setTimerType(Qt::PreciseTimer);
    contentTimer_.setTimerType(Qt::PreciseTimer);
    connect(&backdropTimer_, &QTimer::timeout, this, &AboutFade::backdropTick);
    connect(&contentTimer_, &QTimer::timeout, this, &AboutFade::contentTick);
}

void AboutFade::fadeIn() {
    restartFrom(true);
    backdropTimer_.start();
}

void AboutFade::fadeOut() {
    restartFrom(false);
    contentTimer_.start();
}

// A fade that ran to its end left its alphas one step outside [0, 1]; clamping them makes a
// fresh fade start at 0 (in) or with the backdrop at 1 (out), and an interrupted one reverse
// where it stands instead of jumping.
void AboutFade::restartFrom(bool in) {
    backdropTimer_.stop();
    contentTimer_.stop();
    in_ = in;
    backdrop_ = std::clamp(backdrop_, 0, kOpaque);
    content_ = std::clamp(content_, 0, kOpaque);
}

void AboutFade::backdropTick() {
    bool ended = false;
    if (in_ ? backdrop_ >= kOpaque : backdrop_ <= 0) {
        backdropTimer_.stop();
        if (in_)
            contentTimer_.start();
        else
            ended = true;
    }
    backdrop_ += in_ ? kStep : -kStep;
    emit alphasChanged();
    if (ended) emit fadedOut();
}

void AboutFade::contentTick() {
    if (in_ ? content_ >= kOpaque : content_ <= 0) {
        contentTimer_.stop();
        if (!in_) backdropTimer_.start();
    }
    content_ += in_ ? kStep : -kStep;
    emit alphasChanged();
}
