#pragma once
// The application's delegate: paints the main window blue while the application is active and
// grey while another one is in front, and lets the application end with its last window.

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QWidget>

class AppDelegate : public QObject {
    Q_OBJECT

public:
    // Needs the QApplication. The delegate lives as long as `window` (its parent); until the
    // first change of the application's state the window keeps its layout's background.
    explicit AppDelegate(QWidget* window);

    QWidget* window() const { return window_; }

    static QColor activeBackground() { return QColor::fromRgbF(0.09f, 0.63f, 1.0f, 1.0f); }
    static QColor inactiveBackground() { return QColor::fromRgbF(0.9f, 0.9f, 0.9f, 1.0f); }

    void applicationDidBecomeActive();
    void applicationDidResignActive();

private:
    void setBackground(const QColor& colour);

    QPointer<QWidget> window_;
};
