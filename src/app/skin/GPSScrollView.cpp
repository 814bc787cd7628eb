#include "GPSScrollView.h"

#include "SkinColours.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

GPSScrollView::GPSScrollView(const QAbstractScrollArea& area) : QProxyStyle(area.style()->name()), area_(&area) {}

void GPSScrollView::apply(QAbstractScrollArea& area) {
    auto* style = new GPSScrollView(area);
    style->setParent(&area);
    area.setStyle(style);
    // A plain box's frame is exactly its line width, so the contents start inside the line.
    area.setFrameShape(QFrame::Box);
    area.setFrameShadow(QFrame::Plain);
    area.setLineWidth(kFrameWidth);
    area.setMidLineWidth(0);
}

void GPSScrollView::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element != CE_ShapedFrame || widget != area_ || option == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const QRect& r = option->rect;
    const QColor line = SkinColours::scrollFrame();
    painter->fillRect(QRect(r.left(), r.top(), r.width(), kFrameWidth), line);
    painter->fillRect(QRect(r.left(), r.bottom() - kFrameWidth + 1, r.width(), kFrameWidth), line);
    painter->fillRect(QRect(r.left(), r.top(), kFrameWidth, r.height()), line);
    painter->fillRect(QRect(r.right() - kFrameWidth + 1, r.top(), kFrameWidth, r.height()), line);
}
