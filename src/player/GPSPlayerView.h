#pragma once
// The movie area of the main window and the engine of playback. It owns the media player of the
// one loaded movie and its GPS track, polls the player ten times a second, and reports new GPS
// samples, progress, playing status and the end of the movie to its delegate.

#include "FullScreenSwitch.h"
#include "GPSData.h"
#include "GPSPlayerViewDelegate.h"
#include "MediaPlayer.h"
#include "TrackCursor.h"
#include "UpdateTimer.h"
#include "VideoSurface.h"
#include "VolumeState.h"

#include <QWidget>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class GPSUtils;

class GPSPlayerView : public QWidget {
    Q_OBJECT

public:
    // Makes the surface that shows the picture; its widget becomes a child of parent.
    using SurfaceMaker = std::function<std::unique_ptr<VideoSurface>(QWidget* parent)>;

    // The real view: mpv players, the surface the machine supports, the shared settings.
    explicit GPSPlayerView(QWidget* parent = nullptr);
    // Every outside service chosen by the caller; tests pass fakes. settings must outlive the view.
    GPSPlayerView(std::shared_ptr<MediaPlayerFactory> playerFactory, const SurfaceMaker& makeSurface,
                  std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QWidget* parent = nullptr);
    ~GPSPlayerView() override;

    // Plain fields, no side effects.
    bool isMuted() const { return volume_.isMuted(); }
    void setIsMuted(bool muted) { volume_.setIsMuted(muted); }
    float speedMax() const { return speedMax_; }
    void setSpeedMax(float speedMax) { speedMax_ = speedMax; }
    GPSPlayerViewDelegate* delegate() const { return delegate_; }
    void setDelegate(GPSPlayerViewDelegate* delegate) { delegate_ = delegate; }
    QWidget* controlView() const { return controlView_; }
    void setControlView(QWidget* controlView) { controlView_ = controlView; }
    // Absent before the first movie; empty for a movie without GPS records.
    const std::optional<std::vector<GPSData>>& gpsDataList() const { return gpsDataList_; }
    void setGpsDataList(std::optional<std::vector<GPSData>> list) { gpsDataList_ = std::move(list); }
    double lastVolume() const { return volume_.lastVolume(); }
    void setLastVolume(double volume) { volume_.setLastVolume(volume); }
    double duration() const { return duration_; }
    void setDuration(double duration) { duration_ = duration; }
    int64_t curIndex() const { return cursor_.curIndex(); }
    void setCurIndex(int64_t index) { cursor_.setCurIndex(index); }
    int64_t prevStatus() const { return prevStatus_; }
    void setPrevStatus(int64_t status) { prevStatus_ = status; }
    const UpdateTimer& updateTimer() const { return *updateTimer_; }
    MediaPlayer* mediaPlayer() const { return mediaPlayer_.get(); }
    const std::optional<std::filesystem::path>& fileURL() const { return fileURL_; }
    void setFileURL(std::optional<std::filesystem::path> url) { fileURL_ = std::move(url); }

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
    void setVolume(double volume);

    // Loads a movie and its GPS track without starting playback.
    void setMovie(const std::filesystem::path& url);
    void Resume();
    void Pause();
    // Unloads the movie; the track, duration and file stay until the next setMovie.
    void Stop();
    // Seeks to a fraction of the movie, 0 the start and 1 the end.
    void Seek(double fraction);
    void StartTimer();
    void StopTimer();
    // One track and progress update. Hides QWidget::update(); the repaint overloads stay reachable.
    void update();
    using QWidget::update;

    // The frame at the current playback time as PNG bytes; nothing without a player, while it
    // waits, or when the frame cannot be taken from the file.
    std::optional<std::vector<uint8_t>> snapshot() const;
    // The movie alone fills the screen, or goes back to its place in the window.
    void toggleFullscreen() { fullScreen_.toggle(); }
    bool isInFullScreenMode() const { return fullScreen_.isFullScreen(); }
    // The speed text of the current sample, "00.00" when there is none.
    std::string currentSpeedText() const;

private:
    void tick();
    double currentSeconds() const;
    void showInSurface(MediaPlayer* player);

    std::shared_ptr<MediaPlayerFactory> playerFactory_;
    // Destroyed before QWidget's destructor deletes the children, so its widget goes first.
    std::unique_ptr<VideoSurface> surface_;
    std::unique_ptr<UpdateTimer> updateTimer_;
    GPSUtils& settings_;
    FullScreenSwitch fullScreen_;

    VolumeState volume_;
    float speedMax_ = 0;
    GPSPlayerViewDelegate* delegate_ = nullptr;
    QWidget* controlView_ = nullptr;
    std::optional<std::vector<GPSData>> gpsDataList_;
    double duration_ = 0;
    TrackCursor cursor_;
    int64_t prevStatus_ = 0;
    std::unique_ptr<MediaPlayer> mediaPlayer_;
    // The empty player left in the surface by Stop, kept alive while the surface shows it.
    std::unique_ptr<MediaPlayer> shownEmptyPlayer_;
    std::optional<std::filesystem::path> fileURL_;
};
