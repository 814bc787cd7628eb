#pragma once
// The picture drawn by mpv's OpenGL renderer into the widget's framebuffer.

#include "MpvRenderBinding.h"
#include "MpvRenderSource.h"
#include "VideoSurface.h"

#include <QOpenGLWidget>

class GLVideoSurface final : public QOpenGLWidget, public VideoSurface {
public:
    explicit GLVideoSurface(QWidget* parent = nullptr);
    ~GLVideoSurface() override;

    QWidget* widget() override { return this; }
    void setPlayer(MediaPlayer* player) override;

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    // Both need the widget's GL context, which exists only once the widget has been shown.
    void attach();
    void detach();
    // Whether this widget's GL context runs on a GPU rather than a CPU rasteriser; needs it current.
    bool onRealGPU() const;
    // Black until the first new frame of the player's own file: what the core renders before that
    // is of the movie before.
    bool showsPicture() const { return source_ && source_->fileStarted() && !awaitingFirstFrame_; }
    void onMpvUpdate();
    void discardFrame();

    MpvRenderSource* source_ = nullptr;
    MpvRenderBinding binding_;
    bool newFrame_ = false;
    bool awaitingFirstFrame_ = true;
    QMetaObject::Connection contextLost_;
};
