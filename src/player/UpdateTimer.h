#pragma once
// A repeating timer on the main loop. The player engine polls its player through one; tests fire it
// by hand so that no time has to pass.

#include <chrono>
#include <functional>

class UpdateTimer {
public:
    virtual ~UpdateTimer() = default;
    // Calls onFire every interval until stopped; starting again replaces the previous schedule.
    virtual void start(std::chrono::milliseconds interval, std::function<void()> onFire) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;
};
