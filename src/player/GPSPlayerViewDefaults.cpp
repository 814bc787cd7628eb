// The view as the main window builds it: mpv players, the surface this machine supports, the
// shared settings. Kept apart so that tests link the view without relying on these.

#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "MpvPlayerFactory.h"
#include "QtUpdateTimer.h"
#include "VideoSurfaceFactory.h"

GPSPlayerView::GPSPlayerView(QWidget* parent)
    : GPSPlayerView(makeMediaPlayerFactory(), makeVideoSurface, std::make_unique<QtUpdateTimer>(),
                    GPSUtils::sharedUtils(), parent) {}
