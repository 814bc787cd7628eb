#include "MpvSession.h"

#include "MpvLogging.h"

#include <QMetaObject>

#include <cstring>

namespace {

// The id that mpv's loadfile result gives the new playlist entry.
std::optional<int64_t> loadedEntry(const mpv_event& event) {
    const auto* reply = static_cast<const mpv_event_command*>(event.data);
    if (!reply || reply->result.format != MPV_FORMAT_NODE_MAP) return std::nullopt;
    const mpv_node_list* map = reply->result.u.list;
    for (int i = 0; map && i < map->num; ++i) {
        if (std::strcmp(map->keys[i], "playlist_entry_id") == 0 && map->values[i].format == MPV_FORMAT_INT64)
            return map->values[i].u.int64;
    }
    return std::nullopt;
}

}  // namespace

std::shared_ptr<MpvSession> MpvSession::create(std::span<const MpvObservedProperty> observed, const MpvOptions& extra) {
    MpvCore core = createMpvCore(extra);
    if (!core) return nullptr;
    return std::make_shared<MpvSession>(std::move(core), observed);
}

MpvSession::MpvSession(MpvCore core, std::span<const MpvObservedProperty> observed)
    : core_(std::move(core)), observed_(observed.begin(), observed.end()) {
    for (std::size_t slot = 0; slot < observed_.size(); ++slot) observe(slot);
    mpv_set_wakeup_callback(core_.get(), &MpvSession::wakeUp, this);
}

MpvSession::~MpvSession() {
    // Once this returns mpv runs the callback no more. A surface may keep the core a little
    // longer, until it has freed its render context.
    mpv_set_wakeup_callback(core_.get(), nullptr, nullptr);
    const char* stop[]{"stop", nullptr};
    mpv_command_async(core_.get(), 0, stop);
}

void MpvSession::wakeUp(void* context) {
    // Called on one of mpv's threads: post the work to the GUI thread, nothing more.
    auto* self = static_cast<MpvSession*>(context);
    if (self->drainPosted_.exchange(true)) return;
    QMetaObject::invokeMethod(
        self,
        [self] {
            self->drainPosted_ = false;
            self->drainEvents();
        },
        Qt::QueuedConnection);
}

void MpvSession::attach(MpvEventSink& sink) {
    sink_ = &sink;
    ++generation_;
    entry_.reset();
    entryStarted_ = false;
}

void MpvSession::load(const std::string& file) {
    // mpv takes up the playing direction only when it seeks: a file that starts without a seek
    // would play on in the direction of the file before it, from its end.
    const char* command[]{"loadfile", file.c_str(), "replace", "start=0", nullptr};
    mpv_command_async(core_.get(), replyId(kLoadCode), command);
}

void MpvSession::release(const MpvEventSink& sink) {
    if (!holds(sink)) return;
    sink_ = nullptr;
    ++generation_;
    entry_.reset();
    entryStarted_ = false;
    const char* stop[]{"stop", nullptr};
    mpv_command_async(core_.get(), 0, stop);
}

void MpvSession::observe(std::size_t slot) {
    mpv_observe_property(core_.get(), slot, observed_[slot].name, observed_[slot].format);
}

void MpvSession::reobserve(std::size_t slot) {
    if (slot >= observed_.size()) return;
    // Unlike a read, this never waits for the core on this thread, which also renders.
    mpv_unobserve_property(core_.get(), slot);
    observe(slot);
}

void MpvSession::drainEvents() {
    for (;;) {
        const mpv_event* event = mpv_wait_event(core_.get(), 0);
        if (event->event_id == MPV_EVENT_NONE) return;
        dispatch(*event);
    }
}

void MpvSession::dispatch(const mpv_event& event) {
    switch (event.event_id) {
        case MPV_EVENT_LOG_MESSAGE:
            logMessage(*static_cast<const mpv_event_log_message*>(event.data));
            return;
        case MPV_EVENT_COMMAND_REPLY:
        case MPV_EVENT_SET_PROPERTY_REPLY:
        case MPV_EVENT_GET_PROPERTY_REPLY:
            dispatchReply(event);
            return;
        case MPV_EVENT_START_FILE: {
            const auto* start = static_cast<const mpv_event_start_file*>(event.data);
            entryStarted_ = sink_ && entry_ && start->playlist_entry_id == *entry_;
            if (!entryStarted_) return;
            // Whatever the core last told of the file before may not have changed since, so it
            // would not be told again: make it tell the new file's values afresh.
            for (std::size_t slot = 0; slot < observed_.size(); ++slot) reobserve(slot);
            break;
        }
        case MPV_EVENT_END_FILE: {
            const auto* end = static_cast<const mpv_event_end_file*>(event.data);
            const bool ours = sink_ && entry_ && end->playlist_entry_id == *entry_;
            entryStarted_ = false;
            if (!ours) return;
            break;
        }
        default:
            if (!entryStarted_) return;
            break;
    }
    if (sink_) sink_->handleEvent(event, event.reply_userdata);
}

void MpvSession::dispatchReply(const mpv_event& event) {
    if (!sink_ || event.reply_userdata >> kCodeBits != generation_) return;
    const uint64_t code = event.reply_userdata & kCodeLimit;
    if (code == kLoadCode && event.event_id == MPV_EVENT_COMMAND_REPLY && event.error >= 0) {
        entry_ = loadedEntry(event);
        if (!entry_) qCWarning(lcMpv) << "mpv did not name the entry of a loaded file";
    }
    sink_->handleEvent(event, code);
}

void MpvSession::logMessage(const mpv_event_log_message& message) const {
    // mpv's own complaints are about files the user can do nothing about; an ending core is news.
    const QString text = QString::fromUtf8(message.text).trimmed();
    if (message.log_level <= MPV_LOG_LEVEL_FATAL)
        qCWarning(lcMpv).noquote() << message.prefix << text;
    else
        qCDebug(lcMpv).noquote() << message.prefix << text;
}
