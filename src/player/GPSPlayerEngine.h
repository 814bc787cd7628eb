#pragma once
// The engine of playback behind the movie view. It owns the media player of the one loaded movie
// and its GPS track, polls the player ten times a second, and reports new GPS samples, progress,
// playing status and the end of the movie to its delegate. It shows each player in a surface it
// is given; the widget around that surface (GPSPlayerView) is not its business.

#include "GPSData.h"
#include "GPSPlayerViewDelegate.h"
#include "MediaPlayer.h"
#include "SnapshotFrame.h"
#include "TrackCursor.h"
#include "UpdateTimer.h"
#include "VideoSurface.h"
#include "VolumeState.h"

#include <QObject>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class GPSUtils;

class GPSPlayerEngine final : public QObject {
    Q_OBJECT

public:
    // surface may be null (nothing shows the picture); it and settings must outlive the engine.
    // A null timer means the real one on Qt's event loop.
    GPSPlayerEngine(std::shared_ptr<MediaPlayerFactory> playerFactory, VideoSurface* surface,
                    std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QObject* parent = nullptr);
    ~GPSPlayerEngine() override;

    // Plain fields. Those the engine derives from the loaded movie have no setters: only setMovie
    // and the timer's ticks keep them consistent with each other.
    bool isMuted() const { return volume_.isMuted(); }
    // Only stores the flag; setMuted also acts on the player.
    void setIsMuted(bool muted) { volume_.setIsMuted(muted); }
    float speedMax() const { return speedMax_; }
    GPSPlayerViewDelegate* delegate() const { return delegate_; }
    void setDelegate(GPSPlayerViewDelegate* delegate) { delegate_ = delegate; }
    // Absent before the first movie; empty for a movie without GPS records.
    const std::optional<std::vector<GPSData>>& gpsDataList() const { return gpsDataList_; }
    double lastVolume() const { return volume_.lastVolume(); }
    double duration() const { return duration_; }
    int64_t curIndex() const { return cursor_.curIndex(); }
    int64_t prevStatus() const { return prevStatus_; }
    const UpdateTimer& updateTimer() const { return *updateTimer_; }
    const MediaPlayer* mediaPlayer() const { return mediaPlayer_.get(); }
    const std::optional<std::filesystem::path>& fileURL() const { return fileURL_; }

    bool IsReady() const { return mediaPlayer_ != nullptr; }
    bool IsPlaying() const;
    // The player's rate; 1.0 without a player. A rate other than 0 plays, a negative one backwards.
    float speed() const;
    void setSpeed(float speed);
    // The top of the speed scale: the track's maximum, at least the default.
    float maxSpeed() const;
    // The share of the movie that ten seconds make; 0 without a player.
    float seekUnit() const;
    bool muted() const { return volume_.isMuted(); }
    void setMuted(bool muted);
    // The volume unmuting restores, never 0.
    double volume() const { return volume_.lastVolume(); }
    // Also stores the volume in the settings, 0 included.
    void setVolume(double volume);

    // Loads a movie and its GPS track without starting playback. A file no player can play leaves
    // the engine empty, with the previous track and maximum kept.
    void setMovie(const std::filesystem::path& url);
    void Resume();
    void Pause();
    // Unloads the movie; the track, duration and file stay until the next setMovie.
    void Stop();
    // Seeks to a fraction of the movie, 0 the start and 1 the end; below 0 is the start. A seek
    // that lands while paused reports the sample and the progress there, so that the read-outs
    // show the picture on screen.
    void Seek(double fraction);
    // Seeks to a time in seconds, with the same reports.
    void SeekToSeconds(double seconds);
    // One frame forward or back while paused (nothing while playing), reported like a seek.
    void StepFrame(bool forward);
    void StartTimer();
    void StopTimer();
    // One track and progress update, as a tick while playing runs it.
    void update();
    // The stored clock correction changed: the loaded track's times follow it. Nothing is
    // reported: the sample on screen has not changed, only its time.
    void applyClockCorrection();

    // The frame at the current playback time as PNG bytes; nothing without a player, while it
    // waits, or when the frame cannot be taken from the file.
    std::optional<std::vector<uint8_t>> snapshot() const;
    // The same frame as a picture, with the movie and the playback time it was taken at.
    std::optional<SnapshotFrame> snapshotFrame() const;
    // The sample of the track at the cursor, the last one reported; nothing before the first.
    std::optional<GPSData> currentSample() const;
    // The speed text of the current sample, "00.00" when there is none.
    std::string currentSpeedText() const;

signals:
    // After every seek asked of the player (not frame steps): seconds is where it goes.
    void seeked(double seconds);

private:
    void tick();
    // While paused: the playback time has moved since a seek or a frame step was asked for.
    bool pausedMoveLanded();
    void awaitPausedMove();
    double currentSeconds() const;
    void showInSurface(MediaPlayer* player);

    std::shared_ptr<MediaPlayerFactory> playerFactory_;
    VideoSurface* surface_;
    std::unique_ptr<UpdateTimer> updateTimer_;
    GPSUtils& settings_;

    VolumeState volume_;
    float speedMax_ = 0;
    GPSPlayerViewDelegate* delegate_ = nullptr;
    std::optional<std::vector<GPSData>> gpsDataList_;
    // The clock correction gpsDataList_'s times carry.
    int appliedClockCorrection_ = 0;
    double duration_ = 0;
    TrackCursor cursor_;
    int64_t prevStatus_ = 0;
    std::unique_ptr<MediaPlayer> mediaPlayer_;
    // The empty player left in the surface by Stop, kept alive while the surface shows it.
    std::unique_ptr<MediaPlayer> shownEmptyPlayer_;
    std::optional<std::filesystem::path> fileURL_;
    // The time when a paused seek or step was asked for, and the ticks left to see it land.
    std::optional<double> pausedMoveFrom_;
    int pausedMoveTicksLeft_ = 0;
};
