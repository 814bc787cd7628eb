#include "MpvRenderBinding.h"

#include "MpvLogging.h"
#include "MpvRenderSource.h"

#include <mpv/client.h>
#include <mpv/render.h>

#include <QMetaObject>

void MpvRenderContextFree::operator()(mpv_render_context* context) const { mpv_render_context_free(context); }

MpvRenderBinding::MpvRenderBinding(QObject* receiver, std::function<void()> onUpdate)
    : receiver_(receiver), onUpdate_(std::move(onUpdate)) {}

bool MpvRenderBinding::attach(MpvRenderSource& source, mpv_render_param* params) {
    release();
    MpvCore core = source.renderCore();
    if (!core) return false;
    mpv_render_context* raw = nullptr;
    if (const int error = mpv_render_context_create(&raw, core.get(), params); error < 0) {
        qCWarning(lcVideoSurface) << "mpv refused a render context:" << mpv_error_string(error);
        return false;
    }
    core_ = std::move(core);
    context_.reset(raw);
    mpv_render_context_set_update_callback(context_.get(), &MpvRenderBinding::requestUpdate, this);
    // The core starts with video going nowhere; now there is somewhere to draw it.
    const char* output = "libmpv";
    mpv_set_property_async(core_.get(), 0, "vo", MPV_FORMAT_STRING, &output);
    if (core_ == previousCore_.lock()) {
        // Freeing the last context turned this core's video track off: turn it on again.
        for (const char* track : {"no", "auto"})
            mpv_set_property_async(core_.get(), 0, "vid", MPV_FORMAT_STRING, &track);
    }
    return true;
}

void MpvRenderBinding::release() {
    if (context_) {
        mpv_render_context_set_update_callback(context_.get(), nullptr, nullptr);
        previousCore_ = core_;
    }
    context_.reset();
    core_.reset();
}

bool MpvRenderBinding::nextIsNewFrame() const {
    if (!context_) return false;
    mpv_render_frame_info info{};
    if (mpv_render_context_get_info(context_.get(), {MPV_RENDER_PARAM_NEXT_FRAME_INFO, &info}) < 0) return false;
    return (info.flags & MPV_RENDER_FRAME_INFO_PRESENT) && !(info.flags & MPV_RENDER_FRAME_INFO_REDRAW);
}

void MpvRenderBinding::requestUpdate(void* context) {
    // Called on one of mpv's threads: post the work to the surface's thread, nothing more.
    auto* self = static_cast<MpvRenderBinding*>(context);
    if (self->updatePosted_.exchange(true)) return;
    QMetaObject::invokeMethod(
        self->receiver_,
        [self] {
            self->updatePosted_ = false;
            if (self->context_) self->onUpdate_();
        },
        Qt::QueuedConnection);
}
