#pragma once
// A probe that says yes to every file but holds the second one until released, so that a test
// knows a worker is busy, and where, whatever the timing.

#include "VideoTrackProbe.h"

#include <atomic>
#include <future>

struct GatedProbe : VideoTrackProbe {
    bool hasVideoTrack(const std::filesystem::path&) const override {
        if (++calls == 2) {
            reachedSecond.set_value();
            release.get_future().wait();
        }
        return true;
    }
    mutable std::atomic<int> calls = 0;
    mutable std::promise<void> reachedSecond, release;
};
