#pragma once
// A surface's hold on a core's frames: a render context on the core, a share of that core so that
// the context is always freed first, and mpv's update requests carried over to the surface's
// thread. Made once per core, it serves every movie played on it.

#include "MpvCore.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

struct mpv_render_context;
struct mpv_render_param;
class MpvRenderSource;

struct MpvRenderContextFree {
    void operator()(mpv_render_context* context) const;
};
using MpvRenderContext = std::unique_ptr<mpv_render_context, MpvRenderContextFree>;

class MpvRenderBinding {
public:
    // onUpdate runs on the receiver's thread whenever mpv has something new to render.
    MpvRenderBinding(QObject* receiver, std::function<void()> onUpdate);
    ~MpvRenderBinding() { release(); }
    MpvRenderBinding(const MpvRenderBinding&) = delete;
    MpvRenderBinding& operator=(const MpvRenderBinding&) = delete;

    // Makes a render context on the source's core with these parameters (terminated by an invalid
    // one) and sends the core's video to it. False when mpv refuses.
    bool attach(MpvRenderSource& source, mpv_render_param* params);
    // Frees the context (for OpenGL with the caller's GL context current) and lets go of the core.
    void release();

    mpv_render_context* context() const { return context_.get(); }
    // The core of the context, null when there is none.
    const MpvCore& core() const { return core_; }
    // Whether what mpv will render next is a new video frame rather than a redraw of the last one.
    bool nextIsNewFrame() const;

private:
    static void requestUpdate(void* self);

    QObject* receiver_;
    std::function<void()> onUpdate_;
    // Declared before the context, so that the context goes first.
    MpvCore core_;
    MpvRenderContext context_;
    // The core of the last context freed: a context made again on it has to bring its video back.
    std::weak_ptr<mpv_handle> previousCore_;
    std::atomic<bool> updatePosted_{false};
};
