#include "MpvMediaPlayer.h"

#include "FirstFrameListener.h"
#include "MpvLogging.h"

#include <mpv/client.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

bool flagOf(const mpv_event_property& property) {
    return property.format == MPV_FORMAT_FLAG && *static_cast<const int*>(property.data) != 0;
}

std::optional<double> doubleOf(const mpv_event_property& property) {
    if (property.format != MPV_FORMAT_DOUBLE) return std::nullopt;
    return *static_cast<const double*>(property.data);
}

bool stringIs(const mpv_event_property& property, const char* text) {
    return property.format == MPV_FORMAT_STRING && std::strcmp(*static_cast<char* const*>(property.data), text) == 0;
}

struct ObservedProperty {
    MpvObservedProperty property;
    void (*apply)(MpvPlaybackState& state, const mpv_event_property& property);
};

// Every property the player follows, by slot; a notification's reply id is its slot.
constexpr std::array<ObservedProperty, MpvMediaPlayer::kObservedCount> kObserved{{
    {{"pause", MPV_FORMAT_FLAG}, [](MpvPlaybackState& s, const mpv_event_property& p) { s.paused = flagOf(p); }},
    {{"core-idle", MPV_FORMAT_FLAG}, [](MpvPlaybackState& s, const mpv_event_property& p) { s.coreIdle = flagOf(p); }},
    {{"seeking", MPV_FORMAT_FLAG}, [](MpvPlaybackState& s, const mpv_event_property& p) { s.seeking = flagOf(p); }},
    {{"eof-reached", MPV_FORMAT_FLAG},
     [](MpvPlaybackState& s, const mpv_event_property& p) { s.eofReached = flagOf(p); }},
    {{"play-dir", MPV_FORMAT_STRING},
     [](MpvPlaybackState& s, const mpv_event_property& p) { s.backward = stringIs(p, "backward"); }},
    {{"speed", MPV_FORMAT_DOUBLE},
     [](MpvPlaybackState& s, const mpv_event_property& p) { s.speed = doubleOf(p).value_or(s.speed); }},
    // Unavailable while a file opens or a seek settles: the last position stands until a new one.
    {{"time-pos", MPV_FORMAT_DOUBLE},
     [](MpvPlaybackState& s, const mpv_event_property& p) {
         if (const auto seconds = doubleOf(p)) s.position = seconds;
     }},
}};

enum Slot : std::size_t { Pause, CoreIdle, Seeking, EofReached, PlayDirection, Speed, TimePos };
static_assert(std::string_view(kObserved[PlayDirection].property.name) == "play-dir");
static_assert(std::string_view(kObserved[TimePos].property.name) == "time-pos");

constexpr std::array<MpvObservedProperty, MpvMediaPlayer::kObservedCount> kObservedProperties = [] {
    std::array<MpvObservedProperty, MpvMediaPlayer::kObservedCount> properties{};
    for (std::size_t slot = 0; slot < properties.size(); ++slot) properties[slot] = kObserved[slot].property;
    return properties;
}();

// Codes of our own requests, above the observed slots.
constexpr uint64_t kWriteReply = 0x100;       // | slot: a property write
constexpr uint64_t kUnobservedReply = 0x200;  // writes of properties the player does not follow
constexpr uint64_t kSeekReply = 0x300;
static_assert(kSeekReply < MpvSession::kLoadCode);

bool isSlotReply(uint64_t reply, uint64_t base) {
    return reply >= base && reply < base + MpvMediaPlayer::kObservedCount;
}

std::string secondsText(double seconds) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, seconds, std::chars_format::fixed, 6);
    return std::string(buffer, result.ptr);
}

}  // namespace

MpvMediaPlayer::MpvMediaPlayer(std::shared_ptr<MpvSession> session, std::filesystem::path file, MovieInfo info,
                               QElapsedTimer sinceRequested)
    : session_(std::move(session)), file_(std::move(file)), info_(info), sinceRequested_(sinceRequested) {
    if (!sinceRequested_.isValid()) sinceRequested_.start();
    session_->attach(*this);
    // The core keeps what the movie before left behind; this one starts paused, forward, at
    // normal speed, with its sound, at its own volume.
    writeFlag(Pause, true);
    writeString(PlayDirection, "forward");
    writeDouble(Speed, 1.0);
    setAudioTrack("auto");
    setVolume(volume_);
    setMuted(muted_);
    session_->load(file_.string());
}

MpvMediaPlayer::~MpvMediaPlayer() {
    logStats();
    // The core must not go on playing this movie for a surface that still shows it.
    session_->release(*this);
}

std::span<const MpvObservedProperty> MpvMediaPlayer::observedProperties() { return kObservedProperties; }

double MpvMediaPlayer::mpvVolume(float gain) {
    // mpv scales its volume cubically: at volume p its gain is (p/100)^3.
    return 100.0 * std::cbrt(std::clamp(static_cast<double>(gain), 0.0, 1.0));
}

void MpvMediaPlayer::handleEvent(const mpv_event& event, uint64_t code) {
    switch (event.event_id) {
        case MPV_EVENT_PROPERTY_CHANGE:
            if (code < kObserved.size()) applyProperty(code, *static_cast<const mpv_event_property*>(event.data));
            break;
        case MPV_EVENT_SET_PROPERTY_REPLY:
            if (isSlotReply(code, kWriteReply))
                writeDone(code - kWriteReply, event.error);
            else if (event.error < 0)
                qCDebug(lcMpv) << "setting a property failed:" << mpv_error_string(event.error);
            break;
        case MPV_EVENT_COMMAND_REPLY:
            if (event.error < 0) {
                qCDebug(lcMpv) << "command failed:" << mpv_error_string(event.error);
                if (code == kSeekReply) state_.seekInFlight = false;
                if (code == MpvSession::kLoadCode) state_.failed = true;
            }
            break;
        case MPV_EVENT_PLAYBACK_RESTART:
            state_.seekInFlight = false;
            break;
        case MPV_EVENT_START_FILE:
            fileStarted_ = true;
            break;
        case MPV_EVENT_FILE_LOADED:
            state_.loaded = true;
            if (pendingSeek_) {
                seekNow(*pendingSeek_);
                pendingSeek_.reset();
            }
            break;
        case MPV_EVENT_END_FILE: {
            const auto* end = static_cast<const mpv_event_end_file*>(event.data);
            if (end->reason == MPV_END_FILE_REASON_ERROR) {
                // The user sees the movie not playing and can do no more about it than that.
                qCDebug(lcMpv) << "cannot play" << file_.c_str() << ":" << mpv_error_string(end->error);
                state_.failed = true;
                state_.loaded = false;
            }
            break;
        }
        default:
            break;
    }
}

void MpvMediaPlayer::applyProperty(std::size_t slot, const mpv_event_property& property) {
    // Until the core has our write, what it reports is the value we have just replaced.
    if (pendingWrites_[slot] > 0) return;
    const bool wasAtEnd = state_.restingAtEnd();
    kObserved[slot].apply(state_, property);
    if (!wasAtEnd && state_.restingAtEnd() && endListener_) endListener_();
}

void MpvMediaPlayer::setProperty(const char* name, mpv_format format, void* value, uint64_t code) {
    if (!holdsCore()) return;
    mpv_set_property_async(session_->core().get(), session_->replyId(code), name, format, value);
}

void MpvMediaPlayer::writeFlag(std::size_t slot, bool value) {
    int flag = value ? 1 : 0;
    kObserved[slot].apply(state_, mpv_event_property{kObserved[slot].property.name, MPV_FORMAT_FLAG, &flag});
    if (!holdsCore()) return;
    ++pendingWrites_[slot];
    setProperty(kObserved[slot].property.name, MPV_FORMAT_FLAG, &flag, kWriteReply | slot);
}

void MpvMediaPlayer::writeDouble(std::size_t slot, double value) {
    kObserved[slot].apply(state_, mpv_event_property{kObserved[slot].property.name, MPV_FORMAT_DOUBLE, &value});
    if (!holdsCore()) return;
    ++pendingWrites_[slot];
    setProperty(kObserved[slot].property.name, MPV_FORMAT_DOUBLE, &value, kWriteReply | slot);
}

void MpvMediaPlayer::writeString(std::size_t slot, const char* value) {
    kObserved[slot].apply(state_, mpv_event_property{kObserved[slot].property.name, MPV_FORMAT_STRING, &value});
    if (!holdsCore()) return;
    ++pendingWrites_[slot];
    setProperty(kObserved[slot].property.name, MPV_FORMAT_STRING, &value, kWriteReply | slot);
}

void MpvMediaPlayer::writeDone(std::size_t slot, int error) {
    if (error < 0) qCDebug(lcMpv) << "setting" << kObserved[slot].property.name << "failed:" << mpv_error_string(error);
    if (--pendingWrites_[slot] > 0) return;
    // mpv may undo a write at once (unpausing at the end pauses again) and then tells nothing, as
    // the value is the one it last told us. Observing afresh makes it report where it stands now.
    session_->reobserve(slot);
}

void MpvMediaPlayer::command(std::initializer_list<const char*> arguments, uint64_t code) {
    if (!holdsCore()) return;
    std::vector<const char*> list(arguments);
    list.push_back(nullptr);
    mpv_command_async(session_->core().get(), session_->replyId(code), list.data());
}

void MpvMediaPlayer::setVolume(float volume) {
    volume_ = std::clamp(volume, 0.0f, 1.0f);
    double percent = mpvVolume(volume_);
    setProperty("volume", MPV_FORMAT_DOUBLE, &percent, kUnobservedReply);
}

void MpvMediaPlayer::setMuted(bool muted) {
    muted_ = muted;
    int flag = muted ? 1 : 0;
    setProperty("mute", MPV_FORMAT_FLAG, &flag, kUnobservedReply);
}

void MpvMediaPlayer::setRate(float rate) {
    if (rate == 0.0f || !std::isfinite(rate)) {
        pause();
        return;
    }
    const bool backward = rate < 0.0f;
    if (backward != state_.backward) {
        // Sound played backwards is noise, and demuxing AAC backwards holds playback up for
        // seconds: the audio track sits out while the movie runs backwards.
        if (backward) setAudioTrack("no");
        writeString(PlayDirection, backward ? "backward" : "forward");
        if (!backward) setAudioTrack("auto");
    }
    if (std::abs(rate) != state_.speed) writeDouble(Speed, std::abs(rate));
    if (state_.paused) writeFlag(Pause, false);
}

void MpvMediaPlayer::setAudioTrack(const char* track) {
    setProperty("aid", MPV_FORMAT_STRING, &track, kUnobservedReply);
}

void MpvMediaPlayer::pause() {
    if (!state_.paused) writeFlag(Pause, true);
}

void MpvMediaPlayer::seek(MediaTime time) {
    if (!time.isValid()) return;
    // mpv counts a negative absolute time from the end; before the start is the start.
    const double seconds = std::max(time.seconds(), 0.0);
    if (!state_.loaded) {
        pendingSeek_ = seconds;
        return;
    }
    seekNow(seconds);
}

void MpvMediaPlayer::seekNow(double seconds) {
    // Reported at once, as the position the player is heading for; mpv confirms it when it lands.
    state_.position = seconds;
    state_.seekInFlight = true;
    const std::string target = secondsText(seconds);
    command({"seek", target.c_str(), "absolute"}, kSeekReply);
}

void MpvMediaPlayer::stepFrame(bool forward) {
    if (!state_.loaded) return;
    // mpv plays exactly one frame and pauses again; stepping back decodes from the keyframe before.
    command({forward ? "frame-step" : "frame-back-step"});
}

void MpvMediaPlayer::frameShown() {
    ++framesShown_;
    if (!firstFrameMs_) {
        firstFrameMs_ = sinceRequested_.elapsed();
        qCInfo(lcMpvStats).noquote() << "first-frame-ms=" + QString::number(*firstFrameMs_);
        notifyFirstFrameShown();
    }
    // After the first-frame news, so that a listener pairs it with the movie before's last frame.
    notifyFrameShown();
}

void MpvMediaPlayer::logStats() const {
    if (!lcMpvStats().isInfoEnabled() || !holdsCore()) return;
    int64_t decoderDrops = 0;
    int64_t outputDrops = 0;
    mpv_get_property(session_->core().get(), "frame-drop-count", MPV_FORMAT_INT64, &decoderDrops);
    mpv_get_property(session_->core().get(), "vo-drop-frame-count", MPV_FORMAT_INT64, &outputDrops);
    qCInfo(lcMpvStats).noquote() << QStringLiteral(
                                        "file=%1 first-frame-ms=%2 frames-shown=%3 decoder-drops=%4 output-drops=%5")
                                        .arg(QString::fromStdString(file_.filename().string()))
                                        .arg(firstFrameMs_.value_or(-1))
                                        .arg(framesShown_)
                                        .arg(decoderDrops)
                                        .arg(outputDrops);
}
