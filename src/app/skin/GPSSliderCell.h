#pragma once
// The look of a horizontal slider: a thin bar, blue up to the knob's centre and grey after it,
// under a white rounded knob. Vertical sliders keep the base style's look.

#include <QProxyStyle>

class QSlider;

class GPSSliderCell : public QProxyStyle {
    Q_OBJECT

public:
    // Wraps a fresh instance of the style named by key (the application's when empty).
    explicit GPSSliderCell(const QString& key = {});

    // Gives the slider its own GPSSliderCell, owned by the slider.
    static void apply(QSlider& slider);

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                         const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;

    // Sizes in device-independent pixels: the bar is the groove less 1 on every side.
    static constexpr int kGrooveHeight = 8;
    static constexpr int kKnobWidth = 14;
    static constexpr int kKnobHeight = 18;
    static constexpr int kKnobInset = 3;
};
