#pragma once
// Shared pieces of the control tests: a delegate that records what the key-handling view sends, a
// settings object in a temporary folder whose probe the test controls, that view, and key events.

#include "GPSControlView.h"
#include "GPSControlViewDelegate.h"
#include "GPSUtils.h"
#include "VideoTrackProbe.h"

#include <QKeyEvent>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

struct RecordingDelegate final : GPSControlViewDelegate {
    struct Drop {
        QObject* sender;
        std::vector<std::filesystem::path> movies;
    };
    void didPerformPlayControl(QObject* sender, uint64_t playControl) override {
        senders.push_back(sender);
        codes.push_back(playControl);
    }
    void AddedMovies(QObject* sender, const std::vector<std::filesystem::path>& movies) override {
        drops.push_back({sender, movies});
    }
    std::vector<QObject*> senders;
    std::vector<uint64_t> codes;
    std::vector<Drop> drops;
};

// A movie is a file whose name starts with "movie"; nothing is read. A file whose name starts with
// "held" waits until release() before it is answered (not a movie), so a test can keep a worker busy.
class NameProbe final : public VideoTrackProbe {
public:
    bool hasVideoTrack(const std::filesystem::path& file) const override {
        const std::string name = file.filename().string();
        {
            std::unique_lock lock(mutex_);
            threads_.insert(std::this_thread::get_id());
            if (name.starts_with("held")) released_.wait(lock, [this] { return isReleased_; });
        }
        ++calls_;
        return name.starts_with("movie");
    }
    void release() {
        {
            std::lock_guard lock(mutex_);
            isReleased_ = true;
        }
        released_.notify_all();
    }
    // Files answered so far, and the threads that asked.
    std::size_t calls() const { return calls_; }
    std::set<std::thread::id> threads() const {
        std::lock_guard lock(mutex_);
        return threads_;
    }

private:
    mutable std::mutex mutex_;
    mutable std::condition_variable released_;
    bool isReleased_ = false;
    mutable std::atomic<std::size_t> calls_{0};
    mutable std::set<std::thread::id> threads_;
};

class ProbedSettings {
public:
    GPSUtils& utils() { return utils_; }
    NameProbe& probe() { return *probe_; }

private:
    QTemporaryDir dir_;
    std::shared_ptr<NameProbe> probe_ = std::make_shared<NameProbe>();
    GPSUtils utils_{SettingsLocation{.userFile = std::filesystem::path(dir_.path().toStdString()) / "Env.plist",
                                     .shippedFile = std::nullopt},
                    probe_};
};

// A key-handling view that reports to a recording delegate, with settings of its own.
class ControlViewTest : public ::testing::Test {
protected:
    ControlViewTest() { view_->setDelegate(&delegate_); }
    ProbedSettings settings_;
    RecordingDelegate delegate_;
    std::unique_ptr<GPSControlView> view_ = std::make_unique<GPSControlView>(settings_.utils());
};

// A key event as X11 delivers it: a modifier key's own event carries the state from before it.
inline QKeyEvent keyEvent(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                          bool autoRepeat = false) {
    return QKeyEvent(type, key, modifiers, QString(), autoRepeat);
}
