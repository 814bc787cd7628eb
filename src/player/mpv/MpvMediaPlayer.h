#pragma once
// The media player of one movie, played by a libmpv core of its own.
//
// Everything runs on the GUI thread: mpv's wake-up callback only posts drainEvents() there, and the
// getters read what the observed properties last said, so they never wait for the core.

#include "MediaPlayer.h"
#include "MovieProbe.h"
#include "MpvCore.h"
#include "MpvPlaybackState.h"
#include "MpvRenderSource.h"

#include <QElapsedTimer>
#include <QObject>

#include <array>
#include <atomic>
#include <filesystem>
#include <optional>

struct mpv_event;
struct mpv_event_property;

class MpvMediaPlayer final : public QObject, public MediaPlayer, public MpvRenderSource {
public:
    // Opens `file` on `core`, paused. The file is loaded in the next turn of the event loop, so that
    // a surface attached meanwhile receives the very first frame. `sinceRequested` runs from when
    // the movie was asked for; the time to its first frame is logged (see MpvLogging.h).
    MpvMediaPlayer(MpvCore core, std::filesystem::path file, MovieInfo info, QElapsedTimer sinceRequested = {});
    ~MpvMediaPlayer() override;

    float volume() const override { return volume_; }
    void setVolume(float volume) override;
    bool muted() const override { return muted_; }
    void setMuted(bool muted) override;

    float rate() const override { return state_.rate(); }
    void setRate(float rate) override;
    void play() override { setRate(1.0f); }
    void pause() override;
    PlayerStatus timeControlStatus() const override { return state_.status(); }

    bool hasItem() const override { return true; }
    MediaTime currentTime() const override { return state_.currentTime(info_.duration); }
    MediaTime duration() const override { return info_.duration; }
    void seek(MediaTime time) override;

    MpvCore renderCore() const override { return core_; }
    void frameShown() override;

    // Handles everything mpv has queued; posted by the wake-up callback.
    void drainEvents();

    // The number of properties observed, and the slot each one reports under.
    static constexpr std::size_t kObservedCount = 7;

private:
    static void wakeUp(void* self);
    void load();
    void handleEvent(const mpv_event& event);
    void applyProperty(std::size_t slot, const mpv_event_property& property);
    void writeFlag(std::size_t slot, bool value);
    void writeDouble(std::size_t slot, double value);
    void writeString(std::size_t slot, const char* value);
    void writeDone(std::size_t slot, int error);
    void command(std::initializer_list<const char*> arguments, uint64_t reply = 0);
    void setAudioTrack(const char* track);
    void seekNow(double seconds);
    void logStats() const;

    MpvCore core_;
    std::filesystem::path file_;
    MovieInfo info_;
    MpvPlaybackState state_;
    float volume_ = 1.0f;
    bool muted_ = false;
    // A seek asked for before the file was open, made once it is.
    std::optional<double> pendingSeek_;
    // Our own writes still on their way to the core, per observed property: until the core has
    // them, its notifications carry the old value.
    std::array<int, kObservedCount> pendingWrites_{};
    std::atomic<bool> drainPosted_{false};
    QElapsedTimer sinceRequested_;
    std::optional<qint64> firstFrameMs_;
    qint64 framesShown_ = 0;
};
