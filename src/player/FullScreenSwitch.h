#pragma once
// Takes one widget out of its window to fill the screen alone, and puts it back exactly where it
// was: same parent, same place in its layout, same size. A placeholder holds the place meanwhile,
// so the window's layout does not reflow while the widget is away.

#include <QPointer>
#include <QRect>
#include <QWidget>

class FullScreenSwitch {
public:
    explicit FullScreenSwitch(QWidget& widget) : widget_(widget) {}
    FullScreenSwitch(const FullScreenSwitch&) = delete;
    FullScreenSwitch& operator=(const FullScreenSwitch&) = delete;

    bool isFullScreen() const { return away_; }
    void toggle();
    void enter();
    void leave();

private:
    QWidget& widget_;
    bool away_ = false;
    QPointer<QWidget> parent_;
    QPointer<QWidget> placeholder_;  // owned by the parent; null when the widget had no parent
    bool inLayout_ = false;
    QRect geometry_;
};
