#pragma once
// A scroll area's frame as a white line 2 pixels wide, whatever the base style draws there.

#include <QProxyStyle>

class QAbstractScrollArea;

class GPSScrollView : public QProxyStyle {
    Q_OBJECT

public:
    explicit GPSScrollView(const QAbstractScrollArea& area);

    // Frames the area with the white line, through a GPSScrollView owned by the area.
    static void apply(QAbstractScrollArea& area);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

    static constexpr int kFrameWidth = 2;

private:
    const QAbstractScrollArea* area_;
};
