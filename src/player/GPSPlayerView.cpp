#include "GPSPlayerView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

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

void GPSPlayerView::toggleFullscreen() {
    fullScreen_.toggle();
    // The keys must reach the window the movie is in now, so that Escape can bring it back.
    window()->activateWindow();
}

bool GPSPlayerView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && controlView_) {
        const std::unique_ptr<QEvent> copy(event->clone());
        QCoreApplication::sendEvent(controlView_, copy.get());
        if (copy->isAccepted()) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void GPSPlayerView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (event->key() == Qt::Key_Escape && isInFullScreenMode()) {
        toggleFullscreen();
        return;
    }
    forwardToControlView(event);
}

void GPSPlayerView::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
    forwardToControlView(event);
}

void GPSPlayerView::forwardToControlView(QKeyEvent* event) {
    if (!controlView_) return;
    const std::unique_ptr<QEvent> copy(event->clone());
    QCoreApplication::sendEvent(controlView_, copy.get());
}

void GPSPlayerView::mouseDoubleClickEvent(QMouseEvent* event) {
    QWidget::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton) return;
    event->accept();
    toggleFullscreen();
}

void GPSPlayerView::wheelEvent(QWheelEvent* event) { event->accept(); }
