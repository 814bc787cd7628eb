#pragma once
// The one libmpv core a player factory plays every movie on, and the sorting of its events: each
// movie's player is a handle that gets the events of its own file and the replies to its own
// requests, never those of the file it replaced.
//
// Everything runs on the GUI thread: mpv's wake-up callback only posts drainEvents() there.

#include "MpvCore.h"

#include <mpv/client.h>

#include <QObject>

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

// A property the core reports whenever it changes; its index in the list is the event's reply id.
struct MpvObservedProperty {
    const char* name;
    mpv_format format;
};

// The player handle that has the core.
class MpvEventSink {
public:
    virtual ~MpvEventSink() = default;
    // An event of this sink's file, or the reply to one of its requests; `code` is the number the
    // request was tagged with (see MpvSession::replyId), for other events the event's reply id.
    virtual void handleEvent(const mpv_event& event, uint64_t code) = 0;
};

class MpvSession final : public QObject {
public:
    // Starts a core that reports these properties. Null when libmpv cannot start.
    static std::shared_ptr<MpvSession> create(std::span<const MpvObservedProperty> observed,
                                              const MpvOptions& extra = {});
    MpvSession(MpvCore core, std::span<const MpvObservedProperty> observed);
    ~MpvSession() override;

    const MpvCore& core() const { return core_; }

    // Gives the core to `sink`: from now on only its requests' replies reach it, and of the core's
    // other events only those of the next file loaded. The previous holder hears nothing more.
    void attach(MpvEventSink& sink);
    // Whether `sink` still has the core.
    bool holds(const MpvEventSink& sink) const { return sink_ == &sink; }
    // Loads a file for the holder, replacing whatever was loaded. Its load reply carries kLoadCode.
    void load(const std::string& file);
    // If `sink` holds the core: unloads its file, leaving the core idle with nothing loaded.
    void release(const MpvEventSink& sink);

    // The reply id that tags a request of the current holder with `code` (below kCodeLimit).
    uint64_t replyId(uint64_t code) const { return generation_ << kCodeBits | code; }
    static constexpr unsigned kCodeBits = 16;
    static constexpr uint64_t kCodeLimit = (uint64_t{1} << kCodeBits) - 1;
    static constexpr uint64_t kLoadCode = kCodeLimit;

    // Makes the core report this property's current value again.
    void reobserve(std::size_t slot);
    // Handles everything mpv has queued; posted by the wake-up callback.
    void drainEvents();

private:
    static void wakeUp(void* self);
    void dispatch(const mpv_event& event);
    void dispatchReply(const mpv_event& event);
    void observe(std::size_t slot);
    void logMessage(const mpv_event_log_message& message) const;

    MpvCore core_;
    std::vector<MpvObservedProperty> observed_;
    MpvEventSink* sink_ = nullptr;
    // Counts the holders, so that replies to an earlier holder's requests are recognised as such.
    uint64_t generation_ = 0;
    // The playlist entry of the holder's file, once mpv has said which it is; and whether the
    // core is now playing that entry, so that its events are the holder's.
    std::optional<int64_t> entry_;
    bool entryStarted_ = false;
    std::atomic<bool> drainPosted_{false};
};
