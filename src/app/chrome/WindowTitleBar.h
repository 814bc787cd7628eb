#pragma once
// The main window's own title bar, for a frameless window: a strip on the window's background
// (blue while active, grey while not) with the window's title in white, the system font at 12
// points, set 3 points below the centre, and the minimise, maximise and close buttons at the right.
// Dragging the strip moves the window; a double-click maximises or restores it; its top edge
// resizes the window.

#include <QPoint>
#include <QWidget>

#include <optional>

class QLabel;
class TitleBarButton;

class WindowTitleBar final : public QWidget {
    Q_OBJECT

public:
    // A standard strip of 28 points, made 3 points taller; the title sits 3 points lower.
    static constexpr int kHeight = 31;
    static constexpr int kTitleDrop = 3;
    // The band along the strip's top edge that resizes the window rather than moving it.
    static constexpr int kResizeBand = 4;

    // Places itself along the top of `window`, keeps the window's content below it and inside the
    // resize border, and follows the window's size, title and state.
    explicit WindowTitleBar(QWidget& window);

    QLabel& titleLabel() const { return *title_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void placeOnWindow();
    void followWindowState();
    void toggleMaximised();

    QWidget& window_;
    QLabel* title_;
    TitleBarButton* minimise_;
    TitleBarButton* maximise_;
    TitleBarButton* close_;
    // Where the pointer held the window, while we move it ourselves (no window manager to ask).
    std::optional<QPoint> dragOffset_;
};
