#pragma once
// The window's key-handling view: it holds the keyboard focus, follows the modifier keys, turns
// each key press into a play control code for its delegate, and takes the movie files dropped on
// the window.

#include "GPSControlViewDelegate.h"

#include <QWidget>

class GPSControlView : public QWidget {
    Q_OBJECT

public:
    explicit GPSControlView(QWidget* parent = nullptr);

    GPSControlViewDelegate* delegate() const { return delegate_; }
    void setDelegate(GPSControlViewDelegate* delegate) { delegate_ = delegate; }

private:
    GPSControlViewDelegate* delegate_ = nullptr;
};
