#pragma once
// The update timer on Qt's main event loop.

#include "UpdateTimer.h"

#include <QTimer>

class QtUpdateTimer final : public UpdateTimer {
public:
    QtUpdateTimer();

    void start(std::chrono::milliseconds interval, std::function<void()> onFire) override;
    void stop() override;
    bool isActive() const override;

private:
    QTimer timer_;
    std::function<void()> onFire_;
};
