#include "GPSButton.h"

#include "GPSUtils.h"

#include <QEnterEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSide = 32;

QString pathOf(const std::optional<SvgImage>& image) { return image ? image->path() : QString(); }

}  // namespace

GPSButton::GPSButton(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(false);
    setAutoRepeat(false);
    // The keyboard belongs to the movie view; a click must not take the focus from it.
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

QString GPSButton::defaultImage() const { return pathOf(cell_.defaultImage()); }

void GPSButton::setDefaultImage(const QString& path) {
    std::optional<SvgImage> image = SvgImage::load(path);
    cell_.setDefaultImage(image);
    cell_.setImage(std::move(image));
    updateGeometry();
    update();
}

QString GPSButton::overImage() const { return pathOf(cell_.overImage()); }

void GPSButton::setOverImage(const QString& path) {
    cell_.setOverImage(SvgImage::load(path));
    update();
}

QString GPSButton::downImage() const { return pathOf(cell_.downImage()); }

void GPSButton::setDownImage(const QString& path) {
    cell_.setDownImage(SvgImage::load(path));
    update();
}

void GPSButton::setImages(const QString& baseName) {
    images_ = baseName;
    const QString base = QStringLiteral(":/buttons/") + baseName;
    setDefaultImage(base + QStringLiteral(".svg"));
    setOverImage(base + QStringLiteral("-hover.svg"));
    setDownImage(base + QStringLiteral("-pressed.svg"));
}

QSize GPSButton::sizeHint() const {
    const std::optional<SvgImage>& image = cell_.image();
    if (!image || image->size().isEmpty()) return {kSide, kSide};
    const QSize size = image->size();
    const int width = static_cast<int>(std::lround(double(kSide) * size.width() / size.height()));
    return {std::max(1, width), kSide};
}

void GPSButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    cell_.setHighlighted(isDown());
    if (cell_.draw(painter, QRectF(rect()), isEnabled())) return;
    // No picture at all: the button's text still says what it does.
    painter.setOpacity(GPSButtonCell::opacity(isEnabled()));
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

void GPSButton::enterEvent(QEnterEvent* event) {
    const bool modal = statusIsModal();
    cell_.mouseEntered(modal);
    if (modal) return;
    QAbstractButton::enterEvent(event);
    update();
}

void GPSButton::leaveEvent(QEvent* event) {
    cell_.mouseExited();
    // Leaving while pressed lets the button go: no pressed picture, and no click on release.
    setDown(false);
    QAbstractButton::leaveEvent(event);
    update();
}

void GPSButton::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) update();
}

bool GPSButton::statusIsModal() const { return (utils_ ? *utils_ : GPSUtils::sharedUtils()).statusIsModal(); }
