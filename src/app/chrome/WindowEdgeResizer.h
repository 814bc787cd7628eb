#pragma once
// Lets the pointer resize a frameless window by its border: the window keeps a thin band of its own
// background around its content, and a press there hands the resize to the window system.

#include <QObject>

class QWidget;

class WindowEdgeResizer final : public QObject {
    Q_OBJECT

public:
    static constexpr int kBorder = 4;

    // Owned by the window; watches the window's own (uncovered) border band.
    explicit WindowEdgeResizer(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
};
