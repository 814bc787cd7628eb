#include "GPSSliderCell.h"

#include "SkinColours.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QSlider>
#include <QStyleOptionSlider>

namespace {

const QStyleOptionSlider* horizontalSlider(const QStyleOption* option) {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return slider != nullptr && slider->orientation == Qt::Horizontal ? slider : nullptr;
}

void fillRounded(QPainter& painter, const QRectF& rect, qreal radius, const QColor& colour) {
    if (rect.width() <= 0 || rect.height() <= 0) return;
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    painter.fillPath(path, colour);
}

QString styleKey(const QString& key) {
    if (!key.isEmpty()) return key;
    return QApplication::style() != nullptr ? QApplication::style()->name() : QString();
}

}  // namespace

GPSSliderCell::GPSSliderCell(const QString& key) : QProxyStyle(styleKey(key)) {}

void GPSSliderCell::apply(QSlider& slider) {
    auto* style = new GPSSliderCell(slider.style()->name());
    style->setParent(&slider);
    slider.setStyle(style);
    slider.updateGeometry();
}

int GPSSliderCell::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (horizontalSlider(option) != nullptr) {
        switch (metric) {
            case PM_SliderThickness:
            case PM_SliderControlThickness: return kKnobHeight;
            case PM_SliderLength: return kKnobWidth;
            case PM_SliderSpaceAvailable: return option->rect.width() - kKnobWidth;
            default: break;
        }
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QRect GPSSliderCell::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl subControl, const QWidget* widget) const {
    const QStyleOptionSlider* slider = control == CC_Slider ? horizontalSlider(option) : nullptr;
    if (slider == nullptr) return QProxyStyle::subControlRect(control, option, subControl, widget);
    const QRect& area = slider->rect;
    switch (subControl) {
        case SC_SliderGroove:
            // The whole width, so that the bar reaches the knob's centre at either end.
            return {area.x(), area.y() + (area.height() - kGrooveHeight) / 2, area.width(), kGrooveHeight};
        case SC_SliderHandle: {
            const int travel = std::max(0, area.width() - kKnobWidth);
            const int x = sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition, travel,
                                                  slider->upsideDown);
            return {area.x() + x, area.y() + (area.height() - kKnobHeight) / 2, kKnobWidth, kKnobHeight};
        }
        default: return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
}

void GPSSliderCell::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const QStyleOptionSlider* slider = control == CC_Slider ? horizontalSlider(option) : nullptr;
    if (slider == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QRectF bar = QRectF(subControlRect(CC_Slider, slider, SC_SliderGroove, widget)).adjusted(1, 1, -1, -1);
    const QRectF knob = subControlRect(CC_Slider, slider, SC_SliderHandle, widget);
    const qreal split = knob.center().x();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    // Grey first, blue over it: where the two rounded ends meet at the split, blue wins.
    fillRounded(*painter, QRectF(QPointF(split, bar.top()), bar.bottomRight()), 2, SkinColours::sliderRemaining());
    fillRounded(*painter, QRectF(bar.topLeft(), QPointF(split, bar.bottom())), 2, SkinColours::sliderDone());
    // The played part is the window's own blue: a faint edge keeps the bar visible on it.
    QPainterPath outline;
    outline.addRoundedRect(bar.adjusted(-0.5, -0.5, 0.5, 0.5), 2.5, 2.5);
    painter->strokePath(outline, QPen(QColor(0, 0, 0, 70), 1));
    fillRounded(*painter, knob.adjusted(kKnobInset, 0, -kKnobInset, 0), 3, SkinColours::sliderKnob());
    painter->restore();
}
