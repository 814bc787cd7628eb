#include "TitleBarButton.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

QString accessibleNameOf(TitleBarButton::Glyph glyph) {
    switch (glyph) {
    case TitleBarButton::Glyph::Close: return TitleBarButton::tr("Close window");
    case TitleBarButton::Glyph::Minimise: return TitleBarButton::tr("Minimise window");
    case TitleBarButton::Glyph::Maximise: return TitleBarButton::tr("Maximise window");
    case TitleBarButton::Glyph::Restore: return TitleBarButton::tr("Restore window");
    }
    return {};
}

QString toolTipOf(TitleBarButton::Glyph glyph) {
    switch (glyph) {
    case TitleBarButton::Glyph::Close: return TitleBarButton::tr("Close");
    case TitleBarButton::Glyph::Minimise: return TitleBarButton::tr("Minimise");
    case TitleBarButton::Glyph::Maximise: return TitleBarButton::tr("Maximise");
    case TitleBarButton::Glyph::Restore: return TitleBarButton::tr("Restore");
    }
    return {};
}

}  // namespace

TitleBarButton::TitleBarButton(Glyph glyph, QWidget* parent) : QAbstractButton(parent), glyph_(glyph) {
    setFocusPolicy(Qt::NoFocus);
    nameGlyph();
}

void TitleBarButton::nameGlyph() {
    setAccessibleName(accessibleNameOf(glyph_));
    setToolTip(toolTipOf(glyph_));
}

void TitleBarButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) nameGlyph();
    QAbstractButton::changeEvent(event);
}

void TitleBarButton::setGlyph(Glyph glyph) {
    if (glyph_ == glyph) return;
    glyph_ = glyph;
    nameGlyph();
    QWidget::update();
}

void TitleBarButton::enterEvent(QEnterEvent* event) {
    hovered_ = true;
    QWidget::update();
    QAbstractButton::enterEvent(event);
}

void TitleBarButton::leaveEvent(QEvent* event) {
    hovered_ = false;
    QWidget::update();
    QAbstractButton::leaveEvent(event);
}

void TitleBarButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hovered_ || isDown()) {
        const QColor disc = glyph_ == Glyph::Close ? QColor(232, 17, 35, isDown() ? 255 : 220)
                                                   : QColor(255, 255, 255, isDown() ? 110 : 60);
        painter.fillRect(rect(), disc);
    }
    // A 10-pixel glyph centred in the button, drawn in lines so it stays sharp at any scale.
    const QRectF box(QPointF(width() / 2.0 - 5, height() / 2.0 - 5), QSizeF(10, 10));
    QPen pen(Qt::white, 1.4);
    pen.setCapStyle(Qt::SquareCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    switch (glyph_) {
    case Glyph::Close:
        painter.drawLine(box.topLeft(), box.bottomRight());
        painter.drawLine(box.topRight(), box.bottomLeft());
        break;
    case Glyph::Minimise:
        painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
        break;
    case Glyph::Maximise:
        painter.drawRect(box);
        break;
    case Glyph::Restore:
        painter.drawRect(box.adjusted(0, 3, -3, 0));
        painter.drawPolyline(QList<QPointF>{{box.left() + 3, box.top() + 3}, {box.left() + 3, box.top()},
                                            box.topRight(), {box.right(), box.bottom() - 3},
                                            {box.right() - 3, box.bottom() - 3}});
        break;
    }
}
