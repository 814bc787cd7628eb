#include "BringToFront.h"

#include <QWidget>

void bringToFront(QWidget& window) {
    if (window.isMinimized()) window.showNormal();
    window.raise();
    window.activateWindow();
}
