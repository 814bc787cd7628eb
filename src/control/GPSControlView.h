#pragma once
// The window's key-handling view: it holds the keyboard focus, follows the modifier keys, turns
// each key press into a play control code for its delegate, and takes the movie files dropped on
// the window. Made the window's central container, it also receives the drops and the shortcut
// overrides of every view inside it.

#include "DroppedMovieFilter.h"
#include "GPSControlViewDelegate.h"
#include "ModifierState.h"

#include <QWidget>

#include <cstdint>

class GPSUtils;
class QMimeData;

class GPSControlView : public QWidget {
    Q_OBJECT

public:
    // Validates drops with GPSUtils::sharedUtils(); the constructor a Qt Designer form calls.
    explicit GPSControlView(QWidget* parent = nullptr);
    // Validates drops with utils, which must outlive the view (tests).
    explicit GPSControlView(const GPSUtils& utils, QWidget* parent = nullptr);

    GPSControlViewDelegate* delegate() const { return delegate_; }
    void setDelegate(GPSControlViewDelegate* delegate) { delegate_ = delegate; }

    // True from the moment a drag enters the view until it leaves it; a drop leaves it as it is.
    bool isValidDragging() const { return isValidDragging_; }
    const ModifierState& modifierState() const { return modifiers_; }
    uint64_t keyStatus() const { return modifiers_.keyStatus(); }

    // The file names a drag carries, as bytes: absent when it carries no URI list; files only.
    static FilePasteboard pasteboardOf(const QMimeData& data);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    GPSControlViewDelegate* delegate_ = nullptr;
    bool isValidDragging_ = false;
    ModifierState modifiers_;
    DroppedMovieFilter movieFilter_;
};
