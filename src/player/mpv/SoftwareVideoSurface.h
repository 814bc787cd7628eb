#pragma once
// The picture drawn by mpv's software renderer into memory and painted as an image: for machines
// whose only OpenGL is a CPU rasteriser, or none at all.

#include "FrameBuffer.h"
#include "MpvRenderBinding.h"
#include "VideoSurface.h"

#include <QWidget>

class MpvRenderSource;

class SoftwareVideoSurface final : public QWidget, public VideoSurface {
public:
    explicit SoftwareVideoSurface(QWidget* parent = nullptr);

    QWidget* widget() override { return this; }
    void setPlayer(MediaPlayer* player) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void onMpvUpdate();
    // Renders mpv's current frame, letterboxed, at the widget's size in device pixels.
    void renderFrame();
    void discardFrame();
    bool renderInto(FrameBuffer& target);

    MpvRenderSource* source_ = nullptr;
    MpvRenderBinding binding_;
    FrameBuffer frame_;
    FrameBuffer scratch_;
    bool hasFrame_ = false;
    bool newFrame_ = false;
    // Until the first new frame of the player's file, what the core renders is of the movie before.
    bool awaitingFirstFrame_ = true;
};
