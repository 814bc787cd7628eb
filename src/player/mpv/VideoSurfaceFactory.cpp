#include "VideoSurfaceFactory.h"

#include "GLVideoSurface.h"
#include "SoftwareVideoSurface.h"
#include "VideoRendererChoice.h"

std::unique_ptr<VideoSurface> makeVideoSurface(QWidget* parent) {
    if (chosenVideoRenderer() == VideoRenderer::OpenGL) return std::make_unique<GLVideoSurface>(parent);
    return std::make_unique<SoftwareVideoSurface>(parent);
}
