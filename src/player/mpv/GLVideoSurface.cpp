#include "GLVideoSurface.h"

#include "MediaPlayer.h"
#include "MpvLogging.h"
#include "MpvRenderSource.h"
#include "VideoRendererChoice.h"

#include <mpv/render_gl.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

void* getProcAddress(void*, const char* name) {
    QOpenGLContext* context = QOpenGLContext::currentContext();
    return context ? reinterpret_cast<void*>(context->getProcAddress(name)) : nullptr;
}

}  // namespace

GLVideoSurface::GLVideoSurface(QWidget* parent) : QOpenGLWidget(parent), binding_(this, [this] { onMpvUpdate(); }) {
    connect(this, &QOpenGLWidget::frameSwapped, this, [this] {
        // Also after black frames: once told of swaps, mpv waits for each one before going on.
        if (binding_.context()) mpv_render_context_report_swap(binding_.context());
    });
}

GLVideoSurface::~GLVideoSurface() {
    // QOpenGLWidget destroys its context after this object's members are gone.
    disconnect(contextLost_);
    detach();
}

void GLVideoSurface::setPlayer(MediaPlayer* player) {
    MpvRenderSource* source = dynamic_cast<MpvRenderSource*>(player);
    if (source == source_) return;
    // The render context stays for every movie of its core; black while no player is shown.
    newFrame_ = false;
    awaitingFirstFrame_ = true;
    source_ = source;
    if (source_ && source_->renderCore() != binding_.core()) {
        detach();
        attach();
    }
    update();
}

void GLVideoSurface::initializeGL() {
    // Qt replaces the GL context when the widget moves to another window (full screen): mpv's
    // context has to go with the old one and is made again on the new one.
    disconnect(contextLost_);
    contextLost_ = connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] { detach(); });
    attach();
}

void GLVideoSurface::attach() {
    if (!source_ || !isValid()) return;
    makeCurrent();
    mpv_opengl_init_params glInit{&getProcAddress, nullptr};
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_OPENGL)},
        {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &glInit},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    const MpvCore core = source_->renderCore();
    const bool gpu = core && onRealGPU();
    // The decoders' interop is loaded when the render context is made, so it is allowed first.
    if (gpu) mpv_set_property_string(core.get(), "gpu-hwdec-interop", "auto");
    if (binding_.attach(*source_, params) && gpu) {
        // Dash-camera clips are often 4K: decode on the GPU where mpv has a decoder it trusts
        // for them, on the CPU otherwise.
        const char* hwdec = "auto-safe";
        mpv_set_property_async(core.get(), 0, "hwdec", MPV_FORMAT_STRING, &hwdec);
    }
    doneCurrent();
}

bool GLVideoSurface::onRealGPU() const {
    // A CPU rasteriser has no video decoder.
    const auto* renderer = reinterpret_cast<const char*>(context()->functions()->glGetString(GL_RENDERER));
    return renderer && !isSoftwareGLRenderer(renderer);
}

void GLVideoSurface::detach() {
    newFrame_ = false;
    if (!binding_.context()) return;
    // mpv frees its GL objects, so its context must be current.
    makeCurrent();
    binding_.release();
    doneCurrent();
}

void GLVideoSurface::onMpvUpdate() {
    makeCurrent();
    if (mpv_render_context_update(binding_.context()) & MPV_RENDER_UPDATE_FRAME) {
        const bool newFrame = binding_.nextIsNewFrame();
        if (newFrame && source_ && source_->fileStarted()) awaitingFirstFrame_ = false;
        if (showsPicture()) {
            if (newFrame && newFrame_) qCDebug(lcVideoSurface) << "a frame was replaced before it was painted";
            newFrame_ = newFrame_ || newFrame;
        } else {
            discardFrame();
        }
    }
    doneCurrent();
    update();
}

void GLVideoSurface::discardFrame() {
    // mpv holds its video output until the frame it handed over is rendered (for up to a fifth of
    // a second), so a frame of the movie before is rendered into a corner that paintGL clears.
    mpv_opengl_fbo fbo{static_cast<int>(defaultFramebufferObject()), 16, 16, 0};
    int block = 0;
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_OPENGL_FBO, &fbo},
        {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    mpv_render_context_render(binding_.context(), params);
}

void GLVideoSurface::paintGL() {
    mpv_render_context* context = binding_.context();
    if (!context || !showsPicture()) {
        if (context) discardFrame();
        QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
        gl->glClearColor(0, 0, 0, 1);
        gl->glClear(GL_COLOR_BUFFER_BIT);
        return;
    }
    const qreal ratio = devicePixelRatioF();
    mpv_opengl_fbo fbo{static_cast<int>(defaultFramebufferObject()), qRound(width() * ratio), qRound(height() * ratio),
                       0};
    int flipY = 1;
    // Frames arrive when due (video-timing-offset=0): waiting here would only stall the GUI.
    int block = 0;
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_OPENGL_FBO, &fbo},
        {MPV_RENDER_PARAM_FLIP_Y, &flipY},
        {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    mpv_render_context_render(context, params);
    if (newFrame_) {
        newFrame_ = false;
        source_->frameShown();
    }
}
