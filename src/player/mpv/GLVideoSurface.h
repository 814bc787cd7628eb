#pragma once
// The picture drawn by mpv's OpenGL renderer into the widget's framebuffer.

#include "MpvRenderBinding.h"
#include "VideoSurface.h"

#include <QOpenGLWidget>

class MpvRenderSource;

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
    void onMpvUpdate();

    MpvRenderSource* source_ = nullptr;
    MpvRenderBinding binding_;
    bool newFrame_ = false;
    QMetaObject::Connection contextLost_;
};
