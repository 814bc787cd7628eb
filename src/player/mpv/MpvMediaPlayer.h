#pragma once
// The media player of one movie: a handle on the factory's libmpv core, which it holds from when it
// is made until it goes or a newer player takes the core over; a player that has lost the core
// stays paused where it was and sends it nothing more.
//
// Everything runs on the GUI thread, and the getters read what the observed properties last said,
// so they never wait for the core.

#include "MediaPlayer.h"
#include "MovieProbe.h"
#include "MpvPlaybackState.h"
#include "MpvRenderSource.h"
#include "MpvSession.h"

#include <QElapsedTimer>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>

class MpvMediaPlayer final : public MediaPlayer, public MpvRenderSource, private MpvEventSink {
public:
    // Takes the session's core over and opens `file` on it, paused. `sinceRequested` runs from when
    // the movie was asked for; the time to its first frame is logged (see MpvLogging.h).
    MpvMediaPlayer(std::shared_ptr<MpvSession> session, std::filesystem::path file, MovieInfo info,
                   QElapsedTimer sinceRequested = {});
    ~MpvMediaPlayer() override;

    float volume() const override { return volume_; }
    void setVolume(float volume) override;
    bool muted() const override { return muted_; }
    void setMuted(bool muted) override;

    float rate() const override { return holdsCore() ? state_.rate() : 0.0f; }
    void setRate(float rate) override;
    void play() override { setRate(1.0f); }
    void pause() override;
    PlayerStatus timeControlStatus() const override { return holdsCore() ? state_.status() : PlayerStatus::Paused; }

    bool hasItem() const override { return true; }
    MediaTime currentTime() const override { return state_.currentTime(info_.duration); }
    MediaTime duration() const override { return info_.duration; }
    void seek(MediaTime time) override;
    void stepFrame(bool forward) override;
    void setEndListener(std::function<void()> listener) override { endListener_ = std::move(listener); }

    MpvCore renderCore() const override { return session_->core(); }
    bool fileStarted() const override { return fileStarted_ && holdsCore(); }
    void frameShown() override;

    // The properties a session must report for these players, by slot.
    static std::span<const MpvObservedProperty> observedProperties();
    static constexpr std::size_t kObservedCount = 7;

    // mpv's volume for a gain: its volume scale is cubic, and the gain here is linear.
    static double mpvVolume(float gain);

private:
    void handleEvent(const mpv_event& event, uint64_t code) override;
    bool holdsCore() const { return session_->holds(*this); }
    void applyProperty(std::size_t slot, const mpv_event_property& property);
    void writeFlag(std::size_t slot, bool value);
    void writeDouble(std::size_t slot, double value);
    void writeString(std::size_t slot, const char* value);
    void writeDone(std::size_t slot, int error);
    void command(std::initializer_list<const char*> arguments, uint64_t code = 0);
    void setProperty(const char* name, mpv_format format, void* value, uint64_t code);
    void setAudioTrack(const char* track);
    void seekNow(double seconds);
    void logStats() const;

    std::shared_ptr<MpvSession> session_;
    std::filesystem::path file_;
    MovieInfo info_;
    MpvPlaybackState state_;
    float volume_ = 1.0f;
    bool muted_ = false;
    // A seek asked for before the file was open, made once it is.
    std::optional<double> pendingSeek_;
    bool fileStarted_ = false;
    // Our own writes still on their way to the core, per observed property: until the core has
    // them, its notifications carry the old value.
    std::array<int, kObservedCount> pendingWrites_{};
    QElapsedTimer sinceRequested_;
    std::optional<qint64> firstFrameMs_;
    std::function<void()> endListener_;
    qint64 framesShown_ = 0;
};
