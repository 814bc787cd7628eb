#pragma once
// The other stand-ins of the player engine's tests: a timer fired by hand, a surface that records
// what it shows, and a delegate that records every report.

#include "GPSPlayerEngine.h"
#include "GPSPlayerViewDelegate.h"
#include "MediaPlayer.h"
#include "UpdateTimer.h"
#include "VideoSurface.h"

#include <QWidget>

#include <vector>

class ManualUpdateTimer final : public UpdateTimer {
public:
    std::chrono::milliseconds interval{0};

    void start(std::chrono::milliseconds every, std::function<void()> onFire) override {
        interval = every;
        onFire_ = std::move(onFire);
        active_ = true;
    }
    void stop() override { active_ = false; }
    bool isActive() const override { return active_; }
    // One firing, as the real timer would make it; nothing while stopped.
    void fire() {
        if (active_ && onFire_) onFire_();
    }

private:
    std::function<void()> onFire_;
    bool active_ = false;
};

class RecordingSurface final : public QWidget, public VideoSurface {
public:
    explicit RecordingSurface(QWidget* parent = nullptr) : QWidget(parent) {}
    QWidget* widget() override { return this; }
    void setPlayer(MediaPlayer* player) override { shown.push_back(player); }

    std::vector<MediaPlayer*> shown;
};

struct RecordingDelegate final : GPSPlayerViewDelegate {
    std::vector<uint64_t> samples;  // the positions reported, and beside them what they held
    std::vector<GPSData> sampleData;
    std::vector<double> progress;
    std::vector<bool> statuses;
    int completions = 0;

    bool playing() const { return !statuses.empty() && statuses.back(); }
    void UpdatedGPSInfo(GPSPlayerEngine&, const GPSData& data, uint64_t index) override {
        samples.push_back(index);
        sampleData.push_back(data);
    }
    void UpdateDuration(GPSPlayerEngine&, double value) override { progress.push_back(value); }
    void UpdatedPlayingStatus(GPSPlayerEngine&, bool playing) override { statuses.push_back(playing); }
    void Completed(GPSPlayerEngine&) override { ++completions; }
    void clear() { *this = RecordingDelegate{}; }
};
