#include "GPSPlayerView.h"

#include <QPalette>
#include <QVBoxLayout>

GPSPlayerView::GPSPlayerView(std::shared_ptr<MediaPlayerFactory> playerFactory, const SurfaceMaker& makeSurface,
                             std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QWidget* parent)
    : QWidget(parent),
      surface_(makeSurface ? makeSurface(this) : nullptr),
      engine_(std::move(playerFactory), surface_.get(), std::move(updateTimer), settings),
      fullScreen_(*this) {
    // Black around the picture and where there is none.
    setAutoFillBackground(true);
    QPalette black = palette();
    black.setColor(QPalette::Window, Qt::black);
    setPalette(black);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (surface_ && surface_->widget() != nullptr) layout->addWidget(surface_->widget());
}

GPSPlayerView::~GPSPlayerView() = default;
