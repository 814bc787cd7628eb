#pragma once
// The video surface for this machine (see VideoRendererChoice.h). Its widget is a child of
// `parent`; destroy the surface before the parent goes, or leave it to the parent by release().

#include "VideoSurface.h"

#include <memory>

class QWidget;

std::unique_ptr<VideoSurface> makeVideoSurface(QWidget* parent);
