#include "GPSPlayerView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPalette>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <memory>

GPSPlayerView::GPSPlayerView(std::shared_ptr<MediaPlayerFactory> playerFactory, const SurfaceMaker& makeSurface,
                             std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QWidget* parent)
    : QWidget(parent),
      surface_(makeSurface ? makeSurface(this) : nullptr),
      engine_(std::move(playerFactory), surface_.get(), std::move(updateTimer), settings),
      fullScreen_(*this),
      message_(new QLabel(this)) {
    // Black around the picture and where there is none.
    setAutoFillBackground(true);
    QPalette black = palette();
    black.setColor(QPalette::Window, Qt::black);
    setPalette(black);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (surface_ && surface_->widget() != nullptr) layout->addWidget(surface_->widget());

    message_->setObjectName(QStringLiteral("movieMessage"));
    message_->setAlignment(Qt::AlignCenter);
    message_->setWordWrap(true);
    message_->setTextFormat(Qt::RichText);
    message_->setAttribute(Qt::WA_TransparentForMouseEvents);
    message_->setStyleSheet(QStringLiteral("QLabel { color: white; background: rgba(0, 0, 0, 170); border-radius: 10px;"
                                           " padding: 14px 22px; }"));
    message_->hide();
}

void GPSPlayerView::showMessage(const QString& message, const QString& detail) {
    message_->setText(QStringLiteral("<div style='font-size:18pt; font-weight:600;'>%1</div>"
                                     "<div style='font-size:10pt; color:#d0d0d0;'>%2</div>")
                          .arg(message.toHtmlEscaped(), detail.toHtmlEscaped()));
    message_->setAccessibleName(message);
    message_->setAccessibleDescription(detail);
    message_->show();
    message_->raise();
    placeMessage();
}

void GPSPlayerView::clearMessage() {
    message_->hide();
    message_->clear();
    message_->setAccessibleName({});
}

QString GPSPlayerView::message() const { return message_->isVisible() ? message_->accessibleName() : QString(); }

void GPSPlayerView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeMessage();
}

void GPSPlayerView::placeMessage() {
    const int width = std::min(this->width() - 40, 560);
    message_->setFixedWidth(std::max(width, 100));
    message_->adjustSize();
    message_->move((this->width() - message_->width()) / 2, (height() - message_->height()) / 2);
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
