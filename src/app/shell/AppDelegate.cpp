#include "AppDelegate.h"

#include <QApplication>
#include <QPalette>

AppDelegate::AppDelegate(QWidget* window) : QObject(window), window_(window) {
    // Closing the main window ends the program, whoever changed this before.
    QApplication::setQuitOnLastWindowClosed(true);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            applicationDidBecomeActive();
        else
            applicationDidResignActive();
    });
}

void AppDelegate::applicationDidBecomeActive() { setBackground(activeBackground()); }

void AppDelegate::applicationDidResignActive() { setBackground(inactiveBackground()); }

void AppDelegate::setBackground(const QColor& colour) {
    if (window_ == nullptr) return;
    QPalette palette = window_->palette();
    palette.setColor(QPalette::Window, colour);
    window_->setPalette(palette);
    window_->setAutoFillBackground(true);
}
