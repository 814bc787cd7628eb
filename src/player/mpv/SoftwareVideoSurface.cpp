#include "SoftwareVideoSurface.h"

#include "MediaPlayer.h"
#include "MpvLogging.h"
#include "MpvRenderSource.h"

#include <mpv/render.h>

#include <QPainter>

SoftwareVideoSurface::SoftwareVideoSurface(QWidget* parent)
    : QWidget(parent), binding_(this, [this] { onMpvUpdate(); }) {
    // Every pixel is painted each time: Qt need not clear the background first.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SoftwareVideoSurface::setPlayer(MediaPlayer* player) {
    MpvRenderSource* source = dynamic_cast<MpvRenderSource*>(player);
    if (source == source_) return;
    // Black until the new player's first frame; the render context stays for the next movie.
    hasFrame_ = newFrame_ = false;
    awaitingFirstFrame_ = true;
    source_ = source;
    if (source_ && source_->renderCore() != binding_.core()) {
        mpv_render_param params[]{
            {MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)},
            {MPV_RENDER_PARAM_INVALID, nullptr},
        };
        binding_.attach(*source_, params);
    }
    update();
}

void SoftwareVideoSurface::onMpvUpdate() {
    // The frame is converted here, when mpv says it is due, never by waiting for one in paintEvent.
    if (!(mpv_render_context_update(binding_.context()) & MPV_RENDER_UPDATE_FRAME)) return;
    const bool newFrame = binding_.nextIsNewFrame();
    if (newFrame && source_ && source_->fileStarted()) awaitingFirstFrame_ = false;
    if (!source_ || !source_->fileStarted() || awaitingFirstFrame_) {
        discardFrame();
        return;
    }
    if (newFrame && newFrame_) qCDebug(lcVideoSurface) << "a frame was replaced before it was painted";
    renderFrame();
    newFrame_ = (newFrame_ || newFrame) && hasFrame_;
}

void SoftwareVideoSurface::renderFrame() {
    const qreal ratio = devicePixelRatioF();
    frame_.resize(size() * ratio);
    if (frame_.isEmpty() || !binding_.context()) return;
    frame_.setDevicePixelRatio(ratio);
    hasFrame_ = renderInto(frame_);
    update();
}

void SoftwareVideoSurface::discardFrame() {
    // mpv holds its video output until the frame it handed over is rendered (for up to a fifth of
    // a second), so a frame of the movie before is rendered, tiny, and dropped.
    scratch_.resize(QSize(16, 16));
    renderInto(scratch_);
}

bool SoftwareVideoSurface::renderInto(FrameBuffer& target) {
    int size[2]{target.size().width(), target.size().height()};
    std::size_t stride = target.stride();
    int block = 0;
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_SW_SIZE, size},
        {MPV_RENDER_PARAM_SW_FORMAT, const_cast<char*>(FrameBuffer::kMpvFormat)},
        {MPV_RENDER_PARAM_SW_STRIDE, &stride},
        {MPV_RENDER_PARAM_SW_POINTER, target.pixels()},
        {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    return mpv_render_context_render(binding_.context(), params) >= 0;
}

void SoftwareVideoSurface::resizeEvent(QResizeEvent*) {
    // A paused movie gets no new frame: draw the current one again at the new size.
    if (hasFrame_ && source_) renderFrame();
}

void SoftwareVideoSurface::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!hasFrame_ || !binding_.context() || !source_) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    painter.drawImage(QPointF(0, 0), frame_.image());
    if (newFrame_) {
        newFrame_ = false;
        source_->frameShown();
    }
}
